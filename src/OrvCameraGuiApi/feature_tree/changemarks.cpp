// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/changemarks.h>

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/valuewatch.h>

#include <QPainter>

ChangeMarks::ChangeMarks(const ValueWatch &watch, FeatureTree &tree)
    : m_watch(watch)
    , m_tree(&tree)
{
    tree.setDecoration(
        [this](QPainter &painter, const QRect &row, const QModelIndex &index) { paint(painter, row, index); });
}

ChangeMarks::~ChangeMarks()
{
    if (m_tree)
        m_tree->setDecoration({});
}

void ChangeMarks::update() const
{
    if (!m_tree)
        return;
    const QVector<FeatureTree::Row> rows = m_tree->rowsOnScreen();
    for (const FeatureTree::Row &row : rows)
        m_tree->viewport()->update(barIn(row.rect));
}

void ChangeMarks::paint(QPainter &painter, const QRect &row, const QModelIndex &index) const
{
    const qreal strength = m_watch.strengthOf(featureAt(index));
    if (strength <= 0)
        return;
    const bool isSelected = m_tree->selectionModel()->isSelected(index);
    QColor color = m_tree->palette().color(isSelected ? QPalette::HighlightedText : QPalette::Highlight);
    color.setAlphaF(float(strength));
    painter.fillRect(barIn(row).adjusted(0, 1, 0, -1), color);
}

QRect ChangeMarks::barIn(const QRect &row) const
{
    constexpr int width = 4; // pixels
    constexpr int column = GenParamTreeModel::NameColumn;
    const int start = m_tree->columnViewportPosition(column);
    const int x = m_tree->isRightToLeft() ? start : start + m_tree->columnWidth(column) - width;
    return QRect(x, row.top(), width, row.height());
}
