// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "orvtest.h"
#include "windowmouse.h"

#include <OrvCameraGuiApi/feature_tree/treeviewresizer.h>

#include <QHeaderView>
#include <QStandardItemModel>
#include <QTreeView>

namespace {

/** Three columns of 100 pixels and ten rows. */
struct Tree
{
    Tree()
        : model(10, 3)
    {
        for (int row = 0; row < model.rowCount(); ++row)
            model.setItem(row, 0, new QStandardItem(QStringLiteral("row")));
        view.setModel(&model);
        view.setHeaderHidden(true);
        view.header()->setStretchLastSection(false);
        for (int column = 0; column < 3; ++column)
            view.setColumnWidth(column, 100);
        view.resize(500, 300);
        view.show();
        if (!QTest::qWaitForWindowExposed(&view))
            qFatal("The view does not appear");
    }

    /** Beside the right edge of that column, in a row that is not the first. */
    QPoint nearEdge(int column, int dx) const
    {
        const QRect cell = view.visualRect(model.index(3, column));
        return {cell.right() + dx, cell.center().y()};
    }

    QStandardItemModel model;
    QTreeView view;
    TreeViewResizer resizer{&view};
    QWidget *const viewport = view.viewport();
};

} // namespace

class TestTreeViewResizer : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void findsEdges()
    {
        Tree tree;
        const struct
        {
            int column;
            int dx;
            int hit;
        } rows[] = {{0, 0, 0}, {0, -4, 0}, {0, 4, 0}, {0, -5, -1}, {0, 5, -1}, {1, 2, 1}, {2, 0, -1}};
        for (const auto &row : rows) {
            const QPoint pos = tree.nearEdge(row.column, row.dx);
            QCOMPARE(tree.resizer.ifResizable(pos).column(), row.hit);
            WindowMouse::move(tree.viewport, pos);
            QCOMPARE(tree.viewport->cursor().shape(), row.hit < 0 ? Qt::ArrowCursor : Qt::SplitHCursor);
        }
        tree.view.header()->setSectionResizeMode(0, QHeaderView::Fixed);
        QVERIFY(!tree.resizer.ifResizable(tree.nearEdge(0, 0)).isValid());
        QVERIFY(!tree.resizer.ifResizable(QPoint(-100, 100000)).isValid());
    }

    void drags()
    {
        Tree tree;
        QSignalSpy pressed(&tree.view, &QTreeView::pressed);
        QSignalSpy clicked(&tree.view, &QTreeView::clicked);
        // A click before: the release of the drag must not count as a second one.
        WindowMouse::click(tree.viewport, tree.nearEdge(1, -40));
        const auto dragTo = [&tree](int x) { WindowMouse::move(tree.viewport, {x, tree.nearEdge(1, 0).y()}); };

        const QPoint edge = tree.nearEdge(1, 2);
        WindowMouse::press(tree.viewport, edge);
        dragTo(edge.x() + 20);
        QCOMPARE(tree.view.columnWidth(1), 120);
        dragTo(edge.x() + 15);
        QCOMPARE(tree.view.columnWidth(1), 115);
        dragTo(edge.x() - 400);
        QCOMPARE(tree.view.columnWidth(1), 10);
        dragTo(edge.x() - 380);
        QCOMPARE(tree.view.columnWidth(1), 30);
        WindowMouse::release(tree.viewport, {edge.x() - 380, edge.y()});
        dragTo(edge.x());
        QCoreApplication::processEvents();
        QCOMPARE(tree.view.columnWidth(1), 30);
        QCOMPARE(tree.view.columnWidth(0), 100);
        QCOMPARE(tree.view.columnWidth(2), 100);
        QCOMPARE(pressed.size(), 1);
        QCOMPARE(clicked.size(), 1);
    }

    /** A message or another window takes the mouse away in the middle of a drag. */
    void endsWithoutARelease()
    {
        for (const QEvent::Type type :
             {QEvent::WindowBlocked, QEvent::WindowDeactivate, QEvent::Hide, QEvent::UngrabMouse}) {
            Tree tree;
            const QPoint edge = tree.nearEdge(1, 2);
            WindowMouse::press(tree.viewport, edge);
            WindowMouse::move(tree.viewport, edge + QPoint(20, 0));
            QCOMPARE(tree.view.columnWidth(1), 120);
            QEvent event(type);
            QCoreApplication::sendEvent(tree.viewport, &event);
            WindowMouse::move(tree.viewport, edge + QPoint(60, 0));
            QCOMPARE(tree.view.columnWidth(1), 120);
            WindowMouse::release(tree.viewport, edge);
        }
    }

    void leavesOtherPressesToTheView()
    {
        Tree tree;
        QSignalSpy pressed(&tree.view, &QTreeView::pressed);
        const QPoint edge = tree.nearEdge(0, -1);
        WindowMouse::press(tree.viewport, edge, Qt::RightButton);
        WindowMouse::move(tree.viewport, edge + QPoint(30, 0));
        WindowMouse::release(tree.viewport, edge, Qt::RightButton);
        WindowMouse::click(tree.viewport, tree.nearEdge(2, -1));
        QCOMPARE(pressed.size(), 2);
        QCOMPARE(tree.view.columnWidth(0), 100);
    }
};

ORV_TEST_MAIN(TestTreeViewResizer)

#include "tst_treeviewresizer.moc"
