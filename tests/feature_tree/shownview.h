// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "featurecamera.h"
#include "orvtest.h"
#include "windowmouse.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>

#include <QAbstractProxyModel>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPaintEvent>
#include <QTextBrowser>
#include <QToolButton>
#include <QTreeView>
#include <QtTest>

#include <algorithm>
#include <map>

/** What is painted of a widget. */
class PaintLog : public QObject
{
public:
    explicit PaintLog(QWidget *widget) { widget->installEventFilter(this); }

    void clear()
    {
        count = 0;
        region = QRegion();
    }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            ++count;
            region += static_cast<QPaintEvent *>(event)->region();
        }
        return false;
    }

    uint64_t count = 0;
    QRegion region;
};

/** A camera and a view that shows it, all of it. */
struct ShownView : FeatureCamera
{
    explicit ShownView(const QByteArray &nodes = allKinds())
        : FeatureCamera(nodes)
        , view(map.get())
        , tree(view.treeView())
    {
        view.setVisibility(OrvGui::Guru);
        tree->expandAll();
    }

    bool show()
    {
        view.resize(500, 800);
        view.show();
        return QTest::qWaitForWindowActive(&view) && tree->viewport()->grab().width() > 0;
    }

    template <typename Widget>
    Widget *part(const char *name) const
    {
        return view.findChild<Widget *>(QLatin1String(name));
    }

    QModelIndexList rows() const { return rowsOf(*tree->model()); }

    /** The cell of the row that shows or has \a name; invalid when there is none. */
    QModelIndex cell(const char *name, int column = GenParamTreeModel::ValueColumn) const
    {
        const QModelIndexList all = rows();
        for (const QModelIndex &index : all) {
            if (index.data().toString() == QLatin1String(name) || nodeName(index) == QLatin1String(name))
                return index.siblingAtColumn(column);
        }
        return {};
    }

    void click(const QModelIndex &index) const
    {
        tree->scrollTo(index);
        WindowMouse::click(tree->viewport(), tree->visualRect(index).center());
    }

    /** The editor that is open, or null. */
    QWidget *editor() const
    {
        const auto children = tree->viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        const auto open =
            std::find_if(children.begin(), children.end(), [](QWidget *child) { return child->isVisible(); });
        return open == children.end() ? nullptr : *open;
    }

    /** Clicks the value cell; null when no such editor opens. */
    template <typename Editor = QWidget>
    Editor *open(const char *name) const
    {
        click(cell(name));
        return qobject_cast<Editor *>(editor());
    }

    /** With Tab into the tree, and Down until that row is current. */
    bool walkTo(const QModelIndex &row) const
    {
        for (int i = 0; i < 20 && !tree->hasFocus(); ++i)
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        const QModelIndex name = row.siblingAtColumn(GenParamTreeModel::NameColumn);
        for (int i = 0; i < 40 && tree->hasFocus() && tree->currentIndex() != name; ++i)
            QTest::keyClick(tree, Qt::Key_Down);
        return tree->hasFocus() && name.isValid() && tree->currentIndex() == name;
    }

    void clickOutside() const { WindowMouse::click(part<QWidget>("whatsThisLabel"), QPoint(5, 5)); }

    /**
     * As a user does, into whatever has the focus now: "^" "_" "<" ">" are the arrow keys, "~" is F2, "*" selects all
     * and "|" is a click outside.
     */
    void press(const QString &keys) const
    {
        const std::map<char, Qt::Key> special = {{'^', Qt::Key_Up},    {'_', Qt::Key_Down}, {'<', Qt::Key_Left},
                                                 {'>', Qt::Key_Right}, {'~', Qt::Key_F2},   {'\r', Qt::Key_Return}};
        for (const QChar key : keys) {
            QWidget *const focus = QApplication::focusWidget();
            const auto found = special.find(key.toLatin1());
            if (key == QLatin1Char('|'))
                clickOutside();
            else if (key == QLatin1Char('*'))
                QTest::keyClick(focus, Qt::Key_A, Qt::ControlModifier);
            else if (found != special.end())
                QTest::keyClick(focus, found->second);
            else
                QTest::keyClick(focus, key.toLatin1());
        }
    }

    /** Opens the editor of the cell with the mouse and types; null when no editor opens. */
    QWidget *type(const char *name, const char *text) const
    {
        click(cell(name));
        if (QApplication::focusWidget() == tree) // the cell was the current one before
            QTest::keyClick(tree, Qt::Key_F2);
        QWidget *const editor = QApplication::focusWidget();
        if (!editor || !tree->viewport()->isAncestorOf(editor))
            return nullptr;
        QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(editor, QLatin1String(text));
        return editor;
    }

    /** The same, and Enter; false when no editor opened, or it stayed open. */
    bool enter(const char *name, const char *text) const
    {
        const QPointer<QWidget> editor = type(name, text);
        if (!editor)
            return false;
        QTest::keyClick(editor, Qt::Key_Return);
        return QTest::qWaitFor([&] { return !editor || !editor->isVisible(); });
    }

    /** Whether something in the row is drawn in red, as pure as it can be read. */
    bool isRed(const QModelIndex &index) const
    {
        const QRect cell = tree->visualRect(index);
        const QImage row = tree->viewport()->grab(cell).toImage();
        for (int y = 0; y < row.height(); ++y) {
            for (int x = 0; x < row.width(); ++x) {
                const QColor color = row.pixelColor(x, y);
                if (color.red() >= 200 && color.green() == 0 && color.blue() == 0)
                    return true;
            }
        }
        return false;
    }

    OrvGui::OrvGenParamTreeView view;
    QTreeView *const tree;
};
