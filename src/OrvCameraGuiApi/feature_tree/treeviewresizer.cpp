// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/treeviewresizer.h>

#include <QHeaderView>
#include <QMouseEvent>
#include <QTreeView>

TreeViewResizer::TreeViewResizer(QTreeView *view)
    : QObject(view)
    , m_view(view)
    , m_viewport(view->viewport())
{
    m_view->installEventFilter(this);
    m_viewport->installEventFilter(this);
    m_viewport->setMouseTracking(true);
    // A header asks for room for its titles, which are not shown here.
    QHeaderView *const header = m_view->header();
    header->setMinimumSectionSize(qMin(m_minimumWidth, header->minimumSectionSize()));
}

QModelIndex TreeViewResizer::ifResizable(const QPoint &pos) const
{
    // The cell is looked up to the left of the edge and, intentionally, as far above.
    const int reach = m_hitHalfWidth + 1;
    const QModelIndex index = m_view->indexAt(pos - QPoint(reach, reach));
    if (!index.isValid() || qAbs(m_view->visualRect(index).right() - pos.x()) >= m_hitHalfWidth)
        return {};
    if (index.column() >= index.model()->columnCount(index.parent()) - 1)
        return {};
    return m_view->header()->sectionResizeMode(index.column()) == QHeaderView::Interactive ? index : QModelIndex();
}

bool TreeViewResizer::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_view && event->type() == QEvent::Show)
        Q_EMIT showed();
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowDeactivate)
        m_resizing = false;
    if (watched != m_viewport)
        return false;
    switch (event->type()) {
    case QEvent::MouseMove:
        return filterMove(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: // the second press of two quick ones
        return filterPress(*static_cast<QMouseEvent *>(event));
    case QEvent::MouseButtonRelease:
        return filterRelease(*static_cast<QMouseEvent *>(event));
    // The release then comes to nobody. A move without a button tells nothing: some systems report none in a drag.
    case QEvent::Hide:
    case QEvent::UngrabMouse:
        m_resizing = false;
        return false;
    default:
        return false;
    }
}

bool TreeViewResizer::filterMove(const QMouseEvent &event)
{
    if (!m_resizing) {
        const bool isOnEdge = ifResizable(event.localPos().toPoint()).isValid();
        m_viewport->setCursor(isOnEdge ? Qt::SplitHCursor : Qt::ArrowCursor);
        return false;
    }
    const int x = event.screenPos().toPoint().x();
    const int delta = x - m_lastX;
    m_lastX = x;
    QHeaderView *const header = m_view->header();
    header->resizeSection(m_column, qMax(m_minimumWidth, header->sectionSize(m_column) + delta));
    return true;
}

/** Another button than the left one starts nothing: its release would not end it. */
bool TreeViewResizer::filterPress(const QMouseEvent &event)
{
    const QModelIndex index =
        event.button() == Qt::LeftButton ? ifResizable(event.localPos().toPoint()) : QModelIndex();
    if (!index.isValid())
        return false;
    m_resizing = true;
    m_column = index.column();
    m_lastX = event.screenPos().toPoint().x();
    return true;
}

/** The view does not get the release of a press that it did not get either: it would take it for a click. */
bool TreeViewResizer::filterRelease(const QMouseEvent &event)
{
    if (!m_resizing || event.button() != Qt::LeftButton)
        return false;
    m_resizing = false;
    return true;
}
