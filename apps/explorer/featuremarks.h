// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QSet>
#include <QStyledItemDelegate>

namespace OrvGui {
class OrvGenParamTreeView;
}

/** Marks features of a tree by a bar in front of their names, and leads to features. */
class FeatureMarks : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** \a view outlives this. */
    explicit FeatureMarks(OrvGui::OrvGenParamTreeView &view, QObject *parent = nullptr);

    /** These from now on, by their GenICam names, and no others. */
    void mark(const QStringList &features);

    /**
     * Makes the feature current, and removes the filter and raises the level if these hide it. False, and nothing has
     * changed, if it is not in the tree.
     */
    bool goTo(const QString &feature);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

private:
    QAbstractItemDelegate &usual() const;
    QModelIndex indexOf(const QString &feature) const;

    OrvGui::OrvGenParamTreeView &m_view;
    QSet<QString> m_marked;
};
