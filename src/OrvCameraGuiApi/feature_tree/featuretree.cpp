// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/featuretree.h>

#include <OrvCameraGuiApi/feature_tree/featurehandler.h>
#include <OrvCameraGuiApi/feature_tree/featureselection.h>
#include <OrvCameraGuiApi/feature_tree/genparamdelegate.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/opencalls.h>

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QScopedValueRollback>

#include <utility>
#include <vector>

namespace {

QPair<quintptr, int> identityOf(const QModelIndex &index)
{
    return {index.internalId(), index.row()};
}

/** A call of the feature tree that ends when this is freed. */
class OpenCall : public QObject
{
public:
    using QObject::QObject;

private:
    const OpenCalls::Call m_call;
};

} // namespace

FeatureTree::FeatureTree(QWidget *parent)
    : QTreeView(parent)
{
    connect(this, &QTreeView::expanded, this, [this] { keepWhatIsInUse(); });
    connect(this, &QTreeView::collapsed, this, [this] {
        keepWhatIsInUse();
        moveCurrentIntoSight();
    });
}

/**
 * Called before other slots. A program may open and close categories outside of any call, and Qt does not signal the
 * end. So a call is kept open until control returns to the event loop.
 */
void FeatureTree::keepWhatIsInUse()
{
    if (!OpenCalls::any())
        (new OpenCall(this))->deleteLater();
}

/**
 * Found by place, not by indexBelow(): a category that stands in several places has the same rows in all of them. Qt
 * continues at the place that it finds first, and never ends if that is the one above.
 */
QVector<FeatureTree::Row> FeatureTree::rowsOnScreen() const
{
    const int x = header()->sectionViewportPosition(header()->logicalIndex(0));
    const QSize size = viewport()->size();
    QVector<Row> rows;
    QModelIndex index = indexAt(QPoint(x, 0));
    const int height = index.isValid() ? qMax(1, rowHeight(index)) : 1;
    for (int top = -(verticalOffset() % height); index.isValid() && top < size.height();) {
        rows.append({index, QRect(0, top, size.width(), height)});
        top += height;
        index = indexAt(QPoint(x, top));
    }
    return rows;
}

void FeatureTree::endEditing(const QModelIndex &index)
{
    const QPersistentModelIndex edited(index);
    const QPointer<QWidget> editor(indexWidget(index));
    if (!editor)
        return;
    commitData(editor);
    // The write may have closed it already.
    if (editor && indexWidget(edited) == editor)
        closeEditor(editor, QAbstractItemDelegate::NoHint);
}

/** What the first of the two signals that end editing causes may let the editor go before the second. */
bool FeatureTree::isLetGo(const QWidget *editor) const
{
    const std::optional<QModelIndex> edited = GenParamDelegate::editedIndex(editor);
    return edited && indexWidget(*edited) != editor;
}

void FeatureTree::commitData(QWidget *editor)
{
    if (!isLetGo(editor))
        QTreeView::commitData(editor);
}

void FeatureTree::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint hint)
{
    if (!isLetGo(editor))
        QTreeView::closeEditor(editor, hint);
}

/** Whether a child of the viewport is an editor of any delegate. */
bool FeatureTree::isEditor(const QWidget *child) const
{
    return GenParamDelegate::editedIndex(child) || indexWidget(indexAt(child->pos())) == child;
}

void FeatureTree::setModel(QAbstractItemModel *model)
{
    QItemSelectionModel *const former = selectionModel();
    QTreeView::setModel(model);
    QItemSelectionModel *const plain = selectionModel();
    if (former == plain)
        return;
    OpenCalls::retire(former);
    if (model) {
        setSelectionModel(new FeatureSelection(model, this));
        delete plain;
    }
    Q_EMIT modelReplaced();
}

FeatureSelection *FeatureTree::featureSelection() const
{
    return qobject_cast<FeatureSelection *>(selectionModel());
}

bool FeatureTree::event(QEvent *event)
{
    const OpenCalls::Call call;
    return QTreeView::event(event);
}

/** Searches the names, whichever column is current: a search of values would read all and open the editor of a match.
 */
void FeatureTree::keyboardSearch(const QString &search)
{
    m_sinceSearch.start();
    if (currentIndex().column() > GenParamTreeModel::NameColumn)
        moveCurrentTo(currentIndex().siblingAtColumn(GenParamTreeModel::NameColumn));
    QTreeView::keyboardSearch(search);
}

bool FeatureTree::isSearching() const
{
    return m_sinceSearch.isValid() && !m_sinceSearch.hasExpired(QApplication::keyboardInputInterval());
}

void FeatureTree::keyPressEvent(QKeyEvent *event)
{
    if (handleKey(*event))
        event->accept();
    else
        QTreeView::keyPressEvent(event);
}

bool FeatureTree::handleKey(const QKeyEvent &event)
{
    const bool isPlain = (event.modifiers() & ~Qt::KeypadModifier) == 0;
    if (!isPlain || !currentIndex().isValid() || state() == EditingState)
        return false;
    switch (event.key()) {
    case Qt::Key_F2:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return openValue(event);
    case Qt::Key_Left:
    case Qt::Key_Right:
        return moveBetweenColumns((event.key() == Qt::Key_Right) != isRightToLeft());
    case Qt::Key_Space:
        return handleSpace(event);
    default:
        return false;
    }
}

/** The value cell of the current row; invalid when it cannot be edited by keys. */
QModelIndex FeatureTree::editableValue() const
{
    const QModelIndex current = currentIndex();
    const QModelIndex value = current.sibling(current.row(), GenParamTreeModel::ValueColumn);
    const bool isEditable = !m_isReadOnly && (editTriggers() & EditKeyPressed) && (value.flags() & Qt::ItemIsEditable);
    return isEditable ? value : QModelIndex();
}

bool FeatureTree::openValue(const QKeyEvent &event)
{
    const QPersistentModelIndex value(editableValue());
    if (!value.isValid())
        return false;
    if (event.key() != Qt::Key_F2)
        Q_EMIT activated(currentIndex()); // as at any Return
    if (value.isValid() && value != currentIndex())
        moveCurrentTo(value);
    if (value.isValid() && value == currentIndex())
        edit(value, EditKeyPressed, nullptr);
    return true;
}

bool FeatureTree::moveBetweenColumns(bool forward)
{
    const QModelIndex current = currentIndex();
    int column = current.column();
    do {
        column += forward ? 1 : -1;
    } while (isColumnHidden(column));
    const QModelIndex target = current.siblingAtColumn(column);
    const bool isFeature = !isFirstColumnSpanned(current.row(), current.parent()) && !model()->hasChildren(current);
    if (!isFeature || !target.isValid())
        return false;
    moveCurrentTo(target);
    return true;
}

bool FeatureTree::handleSpace(const QKeyEvent &event)
{
    if (isSearching()) {
        keyboardSearch(event.text());
        return true;
    }
    const QPersistentModelIndex value(editableValue());
    if (!value.isValid() || value != currentIndex())
        return false;
    auto *const feature = featureAt(value);
    const QVariant content = FeatureHandler::of(feature).valueAtSpace(value.data(Qt::EditRole));
    if (!content.isValid())
        return false;
    // Reading may have taken the row away. A key held too long writes once.
    if (value.isValid() && !event.isAutoRepeat())
        model()->setData(value, content);
    return true;
}

bool FeatureTree::viewportEvent(QEvent *event)
{
    const OpenCalls::Call call;
    return QTreeView::viewportEvent(event);
}

bool FeatureTree::hasFocusInside() const
{
    const QWidget *widget = QApplication::focusWidget();
    while (widget && widget != this)
        widget = widget->parentWidget(); // of a pop-up too
    return widget;
}

void FeatureTree::moveCurrentTo(const QModelIndex &index)
{
    const QScopedValueRollback<bool> quiet(m_opensNothing, true);
    setCurrentIndex(index);
}

/** From the outermost category inwards, as the view can only open what it shows; slots may change rows each time. */
void FeatureTree::openCategory(const QModelIndex &category)
{
    const OpenCalls::Call call;
    std::vector<QPersistentModelIndex> categories;
    for (QModelIndex above = category; above.isValid(); above = above.parent())
        categories.emplace_back(above);
    for (auto closed = categories.rbegin(); closed != categories.rend(); ++closed) {
        if (closed->isValid() && closed->model() == model())
            expand(*closed);
    }
}

bool FeatureTree::jumpTo(const QModelIndex &index)
{
    const OpenCalls::Call call;
    const QPersistentModelIndex target(index);
    openCategory(index.parent());
    if (!target.isValid() || target.model() != model())
        return false;
    moveCurrentTo(target);
    if (!target.isValid() || target.model() != model())
        return false;
    scrollTo(target);
    return currentIndex() == target;
}

void FeatureTree::setReadOnly(bool readOnly)
{
    m_isReadOnly = readOnly;
    if (!readOnly)
        return;
    // Editors of other rows too, which a program may have opened.
    const QList<QWidget *> children = viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QPointer<QWidget> editor : children) {
        if (editor && isEditor(editor))
            closeEditor(editor, QAbstractItemDelegate::RevertModelCache);
    }
}

bool FeatureTree::edit(const QModelIndex &index, EditTrigger trigger, QEvent *event)
{
    if (m_isReadOnly || (m_opensNothing && trigger == CurrentChanged))
        return false;
    return QTreeView::edit(index, trigger, event);
}

/** Moves to the outermost closed category: the view itself opens the categories above the current item. */
void FeatureTree::moveCurrentIntoSight()
{
    const auto inSight = [this] {
        QModelIndex visible = currentIndex();
        for (QModelIndex above = visible.parent(); above.isValid() && above != rootIndex(); above = above.parent()) {
            if (!isExpanded(above))
                visible = above;
        }
        return visible;
    };
    if (inSight() == currentIndex())
        return;
    // Separately, because the write may change the rows.
    endEditing(currentIndex());
    const QModelIndex visible = inSight();
    if (visible != currentIndex())
        moveCurrentTo(visible);
}

void FeatureTree::dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QVector<int> &roles)
{
    if (!concerns(topLeft, bottomRight))
        return;
    QTreeView::dataChanged(topLeft, bottomRight, roles);
    if (isElsewhereToo(topLeft))
        viewport()->update();
}

/** Finds the rows before painting, which may change the values of rows that are painted already. */
void FeatureTree::paintEvent(QPaintEvent *event)
{
    executeDelayedItemsLayout();
    findRowsOnScreen();
    QTreeView::paintEvent(event);
}

void FeatureTree::setDecoration(Decoration decoration)
{
    m_decoration = std::move(decoration);
    viewport()->update();
}

/** The row is painted first, and what it asks may change everything. */
void FeatureTree::drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QPersistentModelIndex painted(m_decoration ? index : QModelIndex());
    QTreeView::drawRow(painter, option, index);
    if (m_decoration && painted.isValid() && painted.model() == model())
        m_decoration(*painter, option.rect, painted);
}

void FeatureTree::findRowsOnScreen()
{
    m_rowsOnScreen.clear();
    const QVector<Row> rows = rowsOnScreen();
    for (const Row &row : rows)
        ++m_rowsOnScreen[identityOf(row.index)];
}

/** A changed name always concerns the tree, which then checks whether the row has children. */
bool FeatureTree::concerns(const QModelIndex &topLeft, const QModelIndex &bottomRight) const
{
    const bool isOneValue = topLeft == bottomRight && topLeft.column() > GenParamTreeModel::NameColumn;
    return !isOneValue || m_rowsOnScreen.isEmpty() || !uniformRowHeights() || QAccessible::isActive()
        || m_rowsOnScreen.contains(identityOf(topLeft)) || isPersistentEditorOpen(topLeft);
}

/** Whether a row on the screen stands, or may stand, in another place than the one that Qt takes it for. */
bool FeatureTree::isElsewhereToo(const QModelIndex &index) const
{
    const int places = m_rowsOnScreen.value(identityOf(index));
    return places > 1 || (places == 1 && !visualRect(index).intersects(viewport()->rect()));
}
