// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownview.h"

#include <OrvCameraGuiApi/feature_tree/featuretree.h>

#include <QScrollBar>
#include <QStandardItemModel>

namespace {

/** A category with more rows than fit on the screen, and another. */
struct ShownTree
{
    ShownTree()
    {
        for (const int rows : {500, 5}) {
            auto *const category = new QStandardItem(QStringLiteral("category"));
            for (int row = 0; row < rows; ++row)
                category->appendRow(
                    {new QStandardItem(QStringLiteral("name")), new QStandardItem(QStringLiteral("0"))});
            model.appendRow(category);
        }
        model.setColumnCount(2);
        tree.setUniformRowHeights(true);
        tree.setModel(&model);
        tree.expandAll();
        tree.resize(300, 400);
        tree.show();
    }

    bool isPainted()
    {
        return QTest::qWaitForWindowExposed(&tree) && QTest::qWaitFor([this] { return paints.count > 0; });
    }

    QModelIndex cell(int row, int category = 0) const { return model.index(row, 1, model.index(category, 0)); }

    QModelIndex lowestOnScreen() const
    {
        return tree.indexAt(QPoint(0, tree.viewport()->height() - 2)).siblingAtColumn(1);
    }

    /** What is painted beside the corner, which is painted always, after the values have changed. */
    QRegion paintedAfter(const QModelIndexList &changed)
    {
        const QRect corner(0, 0, 1, 1);
        for (const QModelIndex &index : changed)
            model.setData(index, QStringLiteral("changed"));
        tree.viewport()->update(corner);
        const bool isPainted = QTest::qWaitFor([&] { return paints.region.contains(corner); });
        return isPainted ? paints.region - corner : QRegion(tree.rect());
    }

    /** In what is on the screen of the lowest row, too. */
    QPoint placeOf(const QModelIndex &index) const
    {
        return tree.visualRect(index).intersected(tree.viewport()->rect()).center();
    }

    bool isRepainted(const QModelIndex &index)
    {
        settle();
        return paintedAfter({index}).contains(placeOf(index));
    }

    bool isIgnored(const QModelIndex &index)
    {
        settle();
        return paintedAfter({index}).isEmpty();
    }

    /** Paints all that is waiting for it. */
    void settle()
    {
        paintedAfter({});
        paints.clear();
    }

    QStandardItemModel model;
    FeatureTree tree;
    PaintLog paints{tree.viewport()};
};

} // namespace

class TestFeatureTree : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void repaintsWhatIsOnTheScreen()
    {
        ShownTree shown;
        QVERIFY(shown.isPainted());
        QVERIFY(shown.isRepainted(shown.cell(0)));
        QVERIFY(shown.isRepainted(shown.lowestOnScreen()));
        QVERIFY(shown.isIgnored(shown.cell(400)));

        shown.tree.scrollTo(shown.cell(400));
        QVERIFY(shown.isRepainted(shown.cell(400)));
        QVERIFY(shown.isIgnored(shown.cell(0)));
        shown.tree.verticalScrollBar()->setValue(0);
        shown.tree.collapse(shown.cell(0).parent());
        QVERIFY(shown.isRepainted(shown.cell(4, 1)));
    }

    /** Between a change of what is on the screen and its paint. */
    void repaintsWhatHasJustCome()
    {
        ShownTree shown;
        QVERIFY(shown.isPainted());
        shown.settle();
        const QModelIndex stays = shown.lowestOnScreen();
        QScrollBar *const bar = shown.tree.verticalScrollBar();
        bar->setValue(bar->value() + (bar->singleStep() > 1 ? 2 * shown.tree.visualRect(stays).height() : 2));
        const QModelIndex comes = shown.lowestOnScreen();
        QVERIFY(comes.row() > stays.row());
        const QRegion painted = shown.paintedAfter({stays, comes});
        for (const QModelIndex &index : {stays, comes})
            QVERIFY(painted.contains(shown.placeOf(index)));
    }

    /** A category with one feature that is listed twice in a row, and once more far below. */
    void repaintsWhatStandsInSeveralPlaces()
    {
        const QByteArray plain = "<pFeature>Plain</pFeature>";
        ShownView shown("<Category Name=\"Root\">" + plain.repeated(9)
                        + "<pFeature>Both</pFeature><pFeature>Both</pFeature>" + plain.repeated(99)
                        + "<pFeature>Last</pFeature></Category>"
                          "<Category Name=\"Last\"><pFeature>Both</pFeature></Category>"
                          "<Category Name=\"Both\"><pFeature>Number</pFeature></Category>"
                          "<Integer Name=\"Number\"><Value>1</Value></Integer>"
                          "<Integer Name=\"Plain\"><Value>1</Value></Integer>");
        QVERIFY(shown.show());
        PaintLog paints(shown.tree->viewport());
        const QRect first = shown.tree->visualRect(shown.tree->model()->index(0, 1));
        const auto isRepainted = [&](int y) {
            for (int i = 0; i < 5; ++i)
                QCoreApplication::processEvents();
            paints.clear();
            shown.tree->visualRect(shown.tree->model()->index(0, 0)); // from where Qt looks for the next row
            const auto number = shown.node<GenApi::CIntegerPtr>("Number");
            number->SetValue(number->GetValue() + 1);
            const QPoint place(first.center().x(), y);
            return shown.tree->indexAt(place).siblingAtColumn(0).data().toString() == QLatin1String("Number")
                && QTest::qWaitFor([&] { return paints.region.contains(place); });
        };
        for (const int row : {10, 12})
            QVERIFY(isRepainted(row * first.height() + 2));
        shown.tree->scrollToBottom();
        int lowest = shown.tree->viewport()->height() - 1;
        while (!shown.tree->indexAt(QPoint(0, lowest)).isValid())
            --lowest;
        QVERIFY(isRepainted(lowest));
    }

    void updatesAnEditorThatIsScrolledAway()
    {
        ShownTree shown;
        QVERIFY(shown.isPainted());
        shown.tree.edit(shown.cell(1));
        const QPointer<QLineEdit> editor = shown.tree.viewport()->findChild<QLineEdit *>();
        QVERIFY(editor);
        shown.tree.scrollToBottom();
        QCoreApplication::processEvents();
        shown.model.setData(shown.cell(1), QStringLiteral("changed"));
        QVERIFY(editor);
        QCOMPARE(editor->text(), QStringLiteral("changed"));
    }
};

ORV_TEST_MAIN(TestFeatureTree)
#include "tst_featuretree.moc"
