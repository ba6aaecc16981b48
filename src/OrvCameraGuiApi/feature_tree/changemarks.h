// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <OrvCameraGuiApi/feature_tree/featuretree.h>

#include <QPointer>
#include <QRect>

class QModelIndex;
class QPainter;
class ValueWatch;

/**
 * Paints a bar beside each value that a watch has marked, whichever delegates the tree has. The bar is at the end of
 * the name, where a text leaves a margin, and where painting reads no register.
 */
class ChangeMarks
{
public:
    ChangeMarks(const ValueWatch &watch, FeatureTree &tree);
    ~ChangeMarks();
    Q_DISABLE_COPY(ChangeMarks)

    /** Paints the bars on the screen again. */
    void update() const;

private:
    void paint(QPainter &painter, const QRect &row, const QModelIndex &index) const;
    QRect barIn(const QRect &row) const;

    const ValueWatch &m_watch;
    const QPointer<FeatureTree> m_tree;
};
