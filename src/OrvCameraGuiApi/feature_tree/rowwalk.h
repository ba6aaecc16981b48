// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QAbstractItemModel>

#include <vector>

/**
 * A walk through the rows of a model, from top to bottom, that can be interrupted as long as no rows change. A branch
 * that is read then may let foreign code run: whoever keeps a walk takes it out for next().
 */
class RowWalk
{
public:
    RowWalk() = default;

    /** Through the rows in \a parent, all there are for an invalid one. */
    explicit RowWalk(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
        : m_model(&model)
        , m_levels{{parent, 0}}
    {
    }

    /** The next row; invalid when there is none. Not recursive: a description decides how deep it goes. */
    QModelIndex next()
    {
        while (!m_levels.empty()) {
            Level &level = m_levels.back();
            const QModelIndex index = m_model->index(level.next++, 0, level.parent);
            if (!index.isValid()) {
                m_levels.pop_back();
                continue;
            }
            m_levels.push_back({index, 0});
            return index;
        }
        return {};
    }

private:
    struct Level
    {
        QModelIndex parent;
        int next;
    };

    const QAbstractItemModel *m_model = nullptr;
    std::vector<Level> m_levels;
};
