#include <OrvCameraGuiApi/feature_tree/markdelegate.h>

#include <OrvCameraGuiApi/feature_tree/featuretree.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

#include <QPainter>

namespace {

constexpr int barWidth = 4; // pixels

/** At the end of \a cell, in which the text leaves a margin. */
QRect barIn(const QRect &cell, Qt::LayoutDirection direction)
{
    const int x = direction == Qt::RightToLeft ? cell.left() : cell.right() + 1 - barWidth;
    return QRect(x, cell.top(), barWidth, cell.height());
}

} // namespace

MarkDelegate::MarkDelegate(const ValueWatch *watch, FeatureTree *tree)
    : ReadableDelegate(tree)
    , m_watch(watch)
    , m_tree(tree)
{
}

void MarkDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    ReadableDelegate::paint(painter, option, index);
    if (!m_watch)
        return;
    auto *const feature = index.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>();
    const qreal strength = m_watch->strengthOf(feature);
    if (strength <= 0)
        return;
    const bool isSelected = option.state & QStyle::State_Selected;
    QColor color = option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Highlight);
    color.setAlphaF(float(strength)); // as Qt 6 takes it
    painter->fillRect(barIn(option.rect, option.direction).adjusted(0, 1, 0, -1), color);
}

void MarkDelegate::updateMarks() const
{
    constexpr int column = GenParamTreeModel::NameColumn;
    const QVector<FeatureTree::Row> rows = m_tree->rowsOnScreen();
    for (const FeatureTree::Row &row : rows) {
        const QRect cell(m_tree->columnViewportPosition(column), row.rect.top(), m_tree->columnWidth(column),
                         row.rect.height());
        m_tree->viewport()->update(barIn(cell, m_tree->layoutDirection()));
    }
}
