// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownview.h"

#include <OrvCameraGuiApi/feature_tree/genparamdelegate.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QLayout>

namespace {

using Step = std::function<void(ShownView &)>;

/** Features whose range, choices and presence others decide; two that their category lists twice. */
QByteArray changingNodes()
{
    return R"(<Category Name="Root"><pFeature>Plain</pFeature></Category>
<Category Name="Plain"><pFeature>Width</pFeature><pFeature>Ratio</pFeature><pFeature>Mode</pFeature>
  <pFeature>Twice</pFeature><pFeature>Other</pFeature><pFeature>Twice</pFeature><pFeature>Before</pFeature>
  <pFeature>Passing</pFeature><pFeature>Kind</pFeature></Category>
<Integer Name="Width"><Value>50</Value><Min>0</Min><pMax>Most</pMax><pInc>Grain</pInc></Integer>
<Float Name="Ratio"><Value>0.5</Value><Min>0</Min><pMax>Most</pMax></Float>
<Enumeration Name="Mode"><EnumEntry Name="Off"><Value>0</Value></EnumEntry>
  <EnumEntry Name="Rare"><pIsAvailable>There</pIsAvailable><Value>1</Value></EnumEntry><Value>0</Value></Enumeration>
<Integer Name="Twice"><pIsImplemented>There</pIsImplemented><Value>5</Value></Integer>
<Integer Name="Other"><Value>7</Value></Integer>
<Integer Name="Before"><Value>1</Value></Integer>
<Integer Name="Passing"><pIsImplemented>Here</pIsImplemented><Value>3</Value></Integer>
<Enumeration Name="Kind"><EnumEntry Name="Left"><Value>0</Value></EnumEntry>
  <EnumEntry Name="Right"><Value>1</Value></EnumEntry><Value>0</Value></Enumeration>
<Integer Name="Most"><Value>100</Value></Integer><Integer Name="Grain"><Value>1</Value></Integer>
<Integer Name="There"><Value>1</Value></Integer><Integer Name="Here"><Value>1</Value></Integer>)";
}

/** Of all features but the one that comes and goes. */
QStringList valuesOf(const ShownView &shown)
{
    QStringList values;
    const QModelIndexList rows = rowsOf(*static_cast<QAbstractProxyModel *>(shown.tree->model())->sourceModel());
    for (const QModelIndex &row : rows) {
        if (nodeName(row) != QLatin1String("Passing"))
            values += row.siblingAtColumn(1).data().toString();
    }
    return values;
}

void set(const ShownView &shown, const char *name, qint64 value)
{
    shown.node<GenApi::CIntegerPtr>(name)->SetValue(value);
}

} // namespace

class TestTreeWrites : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** The row with the current item goes, by what is done elsewhere. */
    void keysStayWhereTheyAreTyped()
    {
        const Step steps[] = {
            [](ShownView &shown) {
                shown.part<QLineEdit>("filterLineEdit")->setFocus();
                shown.press(QStringLiteral("kind1"));
                QCOMPARE(shown.part<QLineEdit>("filterLineEdit")->text(), QStringLiteral("kind1"));
            },
            [](ShownView &shown) {
                auto *const host = shown.part<QLineEdit>("host");
                host->setFocus();
                shown.press(QStringLiteral("1"));
                set(shown, "Here", 0);
                shown.press(QStringLiteral("23\r"));
                QCOMPARE(host->text(), QStringLiteral("123"));
            },
            [](ShownView &shown) {
                auto *const level = shown.part<QComboBox>("cbVisibility");
                level->setFocus();
                shown.press(QStringLiteral("^^^^"));
                QCOMPARE(level->currentIndex(), 0);
                shown.press(QStringLiteral("\t"));
            },
        };
        for (const Step &step : steps) {
            for (const int column : {0, 1}) {
                ShownView shown(
                    changingNodes().replace("<Value>3</Value>", "<Visibility>Guru</Visibility><Value>3</Value>"));
                auto *const host = new QLineEdit(&shown.view);
                host->setObjectName(QStringLiteral("host"));
                shown.view.layout()->addWidget(host);
                QVERIFY(shown.show());
                shown.click(shown.cell("Passing", column));
                const QStringList values = valuesOf(shown);
                step(shown);
                QVERIFY(!shown.cell("Passing").isValid());
                QVERIFY(shown.tree->currentIndex().isValid());
                QVERIFY(!shown.editor());
                QCOMPARE(valuesOf(shown), values);
                // What the user does in the tree opens editors as ever.
                shown.part<QLineEdit>("filterLineEdit")->clear();
                QVERIFY(shown.open("Mode"));
            }
        }
    }

    void leavesClosedCategories()
    {
        for (const bool byState : {false, true}) {
            ShownView shown(changingNodes());
            QVERIFY(shown.show());
            QVERIFY(shown.open("Width"));
            const QStringList values = valuesOf(shown);
            if (byState)
                shown.view.loadState("&amp;V2");
            else
                QTest::mouseClick(shown.part<QToolButton>("pbCollapseAll"), Qt::LeftButton);
            QVERIFY(!shown.tree->isExpanded(shown.cell("Plain", 0)));
            QCOMPARE(shown.tree->currentIndex(), shown.cell("Plain", 0));
            shown.tree->setFocus();
            shown.press(QStringLiteral("~12\r"));
            QVERIFY(!shown.editor());
            QCOMPARE(valuesOf(shown), values);
        }
    }

    void fitsUntouchedEditors()
    {
        ShownView shown(changingNodes());
        QVERIFY(shown.show());
        const QPointer<QWidget> width = shown.open("Width");
        QVERIFY(width);
        set(shown, "Most", 1000);
        set(shown, "Grain", 10);
        set(shown, "Width", 500);
        QTest::keyClick(width, Qt::Key_Up);
        QTest::keyClick(width, Qt::Key_Return);
        QTRY_VERIFY(!width);
        QCOMPARE(shown.cell("Width").data().toString(), QStringLiteral("510"));

        // Stepped away and back, which is an entry, while the feature got another value.
        shown.click(shown.cell("Other", 0));
        const QPointer<QWidget> again = shown.open("Width");
        QVERIFY(again && again != width);
        QTest::keyClick(again, Qt::Key_Up);
        QTest::keyClick(again, Qt::Key_Down);
        set(shown, "Width", 700);
        QTest::keyClick(again, Qt::Key_Return);
        QTRY_VERIFY(!again);
        QCOMPARE(shown.cell("Width").data().toString(), QStringLiteral("510"));

        auto *const ratio = shown.open<QDoubleSpinBox>("Ratio");
        QVERIFY(ratio);
        QCOMPARE(ratio->maximum(), 1000.);
        set(shown, "Most", 2000);
        QCOMPARE(ratio->maximum(), 2000.);
        shown.press(QStringLiteral("7"));
        set(shown, "Most", 3000);
        QCOMPARE(ratio->maximum(), 2000.); // touched
        QTest::keyClick(ratio, Qt::Key_Escape);

        auto *const mode = shown.open<QComboBox>("Mode");
        QVERIFY(mode);
        QCOMPARE(mode->count(), 2);
        set(shown, "There", 0);
        shown.node("Mode")->InvalidateNode();
        QCOMPARE(mode->count(), 1);
        QCOMPARE(mode->currentText(), QStringLiteral("Off"));
        set(shown, "There", 1);
        shown.node("Mode")->InvalidateNode();
        QCOMPARE(mode->count(), 2);
        QCOMPARE(shown.editor(), mode);
    }

    void knowsWhatIsListedTwice()
    {
        ShownView shown(changingNodes());
        QVERIFY(shown.show());
        const QModelIndex plain = shown.cell("Plain", 0);
        const QPersistentModelIndex second = plain.model()->index(5, 1, plain);
        shown.click(second);
        const auto *const box = qobject_cast<QtOrvSpinBoxVal64 *>(shown.editor());
        QVERIFY(box);
        set(shown, "Twice", 9);
        QCOMPARE(box->value(), 9);
        QTest::keyClick(shown.editor(), Qt::Key_Up);
        QTest::keyClick(shown.editor(), Qt::Key_Return);
        QTRY_VERIFY(!shown.editor());
        QCOMPARE(shown.node<GenApi::CIntegerPtr>("Twice")->GetValue(), 10);
        set(shown, "There", 0);
        QVERIFY(!second.isValid() && !shown.cell("Twice").isValid());
        set(shown, "There", 1);
        QCOMPARE(shown.tree->model()->rowCount(shown.cell("Plain", 0)), 9);

        // Without the filter.
        GenParamTreeModel model(shown.map.get(), nullptr);
        const QModelIndex listed = model.index(5, 0, model.index(0, 0));
        QCOMPARE(listed.siblingAtColumn(1).data().toString(), QStringLiteral("10"));
        QCOMPARE(nodeName(listed.siblingAtColumn(1)), QStringLiteral("Twice"));
        QVERIFY(!listed.siblingAtColumn(2).isValid());
        QTreeView tree;
        GenParamDelegate delegate;
        tree.setModel(&model);
        tree.setItemDelegateForColumn(1, &delegate);
        const std::unique_ptr<QWidget> editor(delegate.createEditor(&tree, {}, listed.siblingAtColumn(1)));
        delegate.setEditorData(editor.get(), listed.siblingAtColumn(1));
        static_cast<QtOrvSpinBoxVal64 *>(editor.get())->setValue(12);
        delegate.setModelData(editor.get(), &model, listed.siblingAtColumn(1));
        QCOMPARE(shown.node<GenApi::CIntegerPtr>("Twice")->GetValue(), 12);
        QCOMPARE(shown.node<GenApi::CIntegerPtr>("Other")->GetValue(), 7);
    }

    /** With its second half the mouse is over an arrow of the box that the first one has opened. */
    void doubleClickOpensOnly()
    {
        ShownView shown;
        QVERIFY(shown.show());
        const QRect cell = shown.tree->visualRect(shown.cell("Exposure Time"));
        QWidget *const viewport = shown.tree->viewport();
        // The upper arrow, and beside the edge of the column.
        const QPoint arrow = viewport->mapTo(&shown.view, cell.topRight() + QPoint(-8, cell.height() / 4));
        QTest::mouseDClick(shown.view.windowHandle(), Qt::LeftButton, {}, arrow);
        auto *const box = qobject_cast<QtOrvSpinBoxVal64 *>(shown.editor());
        QVERIFY(box);
        QCOMPARE(box->value(), 0);
        QTest::mouseClick(shown.view.windowHandle(), Qt::LeftButton, {}, arrow);
        QCOMPARE(box->value(), 4);
    }
};

ORV_TEST_MAIN(TestTreeWrites)
#include "tst_treewrites.moc"
