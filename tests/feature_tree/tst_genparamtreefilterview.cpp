// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "shownview.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>

#include <QRandomGenerator>
#include <QRegularExpression>

namespace {

/**
 * Three levels of categories with integers and texts, some for experts and gurus, some, one category among them,
 * implemented as long as Amount is not 0. The features of category i are 4i+1 to 4i+4.
 */
QByteArray description()
{
    const char *const visibilities[] = {"Beginner", "Expert", "Guru"};
    const char *const words[] = {"Gain", "Exposure", "Gamma Gain", "auto Exposure", "Top"};
    const auto features = [](int category) {
        QByteArray list;
        for (int i = 4 * category + 1; i <= 4 * category + 4; ++i)
            list += "<pFeature>N" + QByteArray::number(i) + "</pFeature>";
        return list;
    };
    QByteArray nodes = "<Category Name=\"Root\"><pFeature>Amount</pFeature>" + features(0)
        + "</Category><Float Name=\"Amount\"><Value>1</Value></Float><IntSwissKnife Name=\"Switch\">"
          "<pVariable Name=\"A\">Amount</pVariable><Formula>A &gt; 0</Formula></IntSwissKnife>";
    for (int i = 1; i <= 64; ++i) {
        const bool isCategory = i % 2 && i <= 15;
        const QByteArray kind = isCategory ? "Category" : i % 2 ? "Integer" : "String";
        nodes += "<" + kind + " Name=\"N" + QByteArray::number(i) + "\"><DisplayName>" + words[i % 5] + ' '
            + QByteArray::number(i) + "</DisplayName><Visibility>" + visibilities[i % 4 ? 0 : i / 4 % 3]
            + "</Visibility>" + (i % 7 ? "" : "<pIsImplemented>Switch</pIsImplemented>")
            + (isCategory ? features(i) : "<Value>1</Value>") + "</" + kind + '>';
    }
    return nodes;
}

QAbstractItemModel *sourceOf(const ShownView &shown)
{
    return static_cast<QAbstractProxyModel *>(shown.tree->model())->sourceModel();
}

/** The rules at their plainest, over Qt's own proxy. */
class PlainFilter : public QSortFilterProxyModel
{
public:
    void refilter() { invalidateFilter(); }

    int level = 0;
    QString pattern = QStringLiteral("*");
    bool isCaseSensitive = false;
    bool wholeWords = false;

    bool filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const override
    {
        const GenApi::INode *const node = nodeOf(sourceModel()->index(sourceRow, 0, sourceParent));
        if (node->GetVisibility() > level || node->GetAccessMode() == GenApi::NI)
            return false;
        if (node->GetPrincipalInterfaceType() == GenApi::intfICategory || pattern.isEmpty())
            return true;
        const QString name = QString::fromUtf8(node->GetDisplayName().c_str());
        const QString wildcard = wholeWords ? pattern : QLatin1Char('*') + pattern + QLatin1Char('*');
        return QRegularExpression(QRegularExpression::wildcardToRegularExpression(wildcard),
                                  isCaseSensitive ? QRegularExpression::NoPatternOption
                                                  : QRegularExpression::CaseInsensitiveOption)
            .match(name)
            .hasMatch();
    }
};

/** Qt's own tree over it; leaves no current item in a category that is closed. */
class PlainTree : public QTreeView
{
public:
    explicit PlainTree(QAbstractItemModel *source)
    {
        filter.setSourceModel(source);
        setModel(&filter);
        setEditTriggers(NoEditTriggers);
        expandAll();
        connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &closed) {
            QModelIndex above = currentIndex().parent();
            while (above.isValid() && above != closed)
                above = above.parent();
            if (above.isValid())
                setCurrentIndex(above);
        });
    }

    PlainFilter filter;
};

QModelIndexList visibleRows(const QTreeView &tree)
{
    QModelIndexList rows;
    for (QModelIndex index = tree.model()->index(0, 0); index.isValid(); index = tree.indexBelow(index))
        rows += index;
    return rows;
}

/** All that a user sees of a tree but editors, a line a row. */
QStringList stateOf(const QTreeView &tree)
{
    QStringList state;
    for (const QModelIndex &index : visibleRows(tree)) {
        QString row = index.parent().data().toString() + QLatin1Char('/') + index.data().toString() + QLatin1Char('=')
            + index.siblingAtColumn(1).data().toString();
        if (tree.model()->hasChildren(index) && tree.isExpanded(index))
            row += QLatin1String(" expanded");
        for (const int column : {0, 1}) {
            const QModelIndex cell = index.siblingAtColumn(column);
            if (cell == tree.currentIndex())
                row += QStringLiteral(" current %1").arg(column);
            if (tree.selectionModel()->isSelected(cell))
                row += QStringLiteral(" selected %1").arg(column);
        }
        state += row;
    }
    return state << QLatin1String("current: ") + tree.currentIndex().siblingAtColumn(0).data().toString();
}

/** Does the same to both. */
void act(ShownView &ours, PlainTree &plain, QRandomGenerator &random)
{
    const char *const texts[] = {"*", "", "gain", "G?m*", "expo", "nothing", "1", "Top"};
    const int choice = random.bounded(8);
    const int value = random.bounded(16);
    const int row = random.bounded(int(visibleRows(plain).size()) + 1);
    switch (choice) {
    case 0:
        ours.view.setVisibility(OrvGui::Visibility(value % 3));
        plain.filter.level = value % 3;
        break;
    case 1:
        ours.part<QCheckBox>("checkBoxCase")->setChecked(value % 2 == 0);
        ours.part<QCheckBox>("checkBoxWhole")->setChecked(value / 2 % 4 == 0);
        plain.filter.isCaseSensitive = value % 2 == 0;
        plain.filter.wholeWords = value / 2 % 4 == 0;
        break;
    case 2:
        ours.node<GenApi::CFloatPtr>("Amount")->SetValue(value % 2);
        break;
    case 3:
    case 4:
    case 5:
        for (QTreeView *const tree : {ours.tree, static_cast<QTreeView *>(&plain)})
            tree->setCurrentIndex(visibleRows(*tree).value(row).siblingAtColumn(value % 2));
        break;
    case 6:
        for (QTreeView *const tree : {ours.tree, static_cast<QTreeView *>(&plain)})
            tree->setExpanded(visibleRows(*tree).value(row), value % 3 > 0);
        break;
    default:
        ours.part<QLineEdit>("filterLineEdit")->setText(QString::fromLatin1(texts[value % 8]));
        plain.filter.pattern = QString::fromLatin1(texts[value % 8]);
    }
    plain.filter.refilter();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class TestGenParamTreeFilterView : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** The same rows, values, current item, selection and expansion, whatever happens. */
    void followsThePlainTree()
    {
        for (quint32 seed = 1; seed <= 12; ++seed) {
            ShownView ours(description());
            ours.view.setVisibility(OrvGui::Basic);
            ours.view.resize(600, 2500);
            ours.view.show();
            PlainTree plain(sourceOf(ours));
            QVERIFY(QTest::qWaitForWindowActive(&ours.view));
            for (QTreeView *const tree : {ours.tree, static_cast<QTreeView *>(&plain)})
                tree->setCurrentIndex(tree->model()->index(0, 0));
            QRandomGenerator random(seed);
            for (int i = 0; i < 60; ++i) {
                act(ours, plain, random);
                const QStringList state = stateOf(*ours.tree);
                const QStringList expected = stateOf(plain);
                if (state != expected)
                    qInfo("seed %u, step %d", seed, i);
                QCOMPARE(state, expected);
                for (const QModelIndex &index : ours.rows())
                    QCOMPARE(ours.tree->isFirstColumnSpanned(index.row(), index.parent()),
                             index.siblingAtColumn(1).data().isNull());
            }
        }
    }

    void keepsAnEditorInProgress()
    {
        ShownView shown(description());
        QVERIFY(shown.show());
        const QPointer<QWidget> editor = shown.type("Gamma Gain 22", "not yet");
        QVERIFY(editor);
        for (const char *text : {"gain", "Gamma Gain 22", "*", ""})
            shown.part<QLineEdit>("filterLineEdit")->setText(QString::fromLatin1(text));
        shown.view.setVisibility(OrvGui::Basic);
        QCoreApplication::processEvents();
        QVERIFY(editor && editor->isVisible());
        QVERIFY(shown.tree->visualRect(shown.cell("Gamma Gain 22")).contains(editor->geometry().center()));
        QCOMPARE(editor->property("text").toString(), QStringLiteral("not yet"));
        QCOMPARE(shown.cell("Gamma Gain 22").data().toString(), QStringLiteral("1"));
    }

    /** What was entered changes which rows there are, while the filter is changing them. */
    void writesWhatIsEnteredInARowThatGoes()
    {
        ShownView shown(description());
        QVERIFY(shown.show());
        const auto implemented = shown.rows().size();
        QVERIFY(shown.type("Amount", "0"));
        shown.part<QLineEdit>("filterLineEdit")->setText(QStringLiteral("gain"));
        QCOMPARE(shown.node<GenApi::CFloatPtr>("Amount")->GetValue(), 0.);
        QCOMPARE(shown.tree->currentIndex().row(), 0);

        GenParamTreeVisibilityFilterProxyModel fresh(nullptr);
        fresh.setSourceModel(sourceOf(shown));
        fresh.setFilterVisibility(OrvGui::Guru);
        fresh.setFilterText(QStringLiteral("gain"));
        const auto namesOf = [](const QAbstractItemModel &model) {
            QStringList names;
            for (const QModelIndex &index : rowsOf(model))
                names += index.data().toString();
            return names;
        };
        QCOMPARE(namesOf(*shown.tree->model()), namesOf(fresh));
        shown.part<QLineEdit>("filterLineEdit")->clear();
        QVERIFY(shown.rows().size() < implemented);
    }

    /** The row that the current item moves to goes by the value that is written because it moves. */
    void movesToARowThatGoes()
    {
        for (const int column : {GenParamTreeModel::NameColumn, GenParamTreeModel::ValueColumn}) {
            ShownView shown(description());
            QVERIFY(shown.show());
            QVERIFY(shown.type("Amount", "0"));
            const QPersistentModelIndex going(shown.cell("Exposure 21", column));
            QVERIFY(going.isValid());
            shown.tree->setCurrentIndex(going);
            QVERIFY(!going.isValid());
            QCOMPARE(shown.tree->currentIndex().parent().data().toString(), QStringLiteral("Gain 5"));
            QVERIFY(shown.enter("Amount", "1"));
        }
    }

    /** Whoever hears that the current item moves on may end it all. */
    void isTakenApartWhileRowsGo()
    {
        for (const bool byFilter : {true, false}) {
            ShownView shown(description());
            QVERIFY(shown.show());
            shown.click(shown.cell("Gain 30", GenParamTreeModel::NameColumn));
            connect(shown.tree->selectionModel(), &QItemSelectionModel::currentChanged, &shown.view,
                    [&shown] { shown.view.clearParams(); });
            if (byFilter)
                shown.part<QLineEdit>("filterLineEdit")->setText(QStringLiteral("Top"));
            else
                shown.node<GenApi::CFloatPtr>("Amount")->SetValue(0);
            QTRY_VERIFY(!shown.tree->model());
        }
    }
};

ORV_TEST_MAIN(TestGenParamTreeFilterView)
#include "tst_genparamtreefilterview.moc"
