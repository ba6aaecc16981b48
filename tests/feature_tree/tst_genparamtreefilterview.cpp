#include "orvtest.h"
#include "plainfilter.h"
#include "shownview.h"

#include <OrvCameraGuiApi/feature_tree/genparamdelegate.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QRandomGenerator>

namespace {

/**
 * Three levels of categories with integers and texts, some for experts and gurus, some, one category among them,
 * implemented as long as Amount is not 0.
 */
class Description
{
public:
    static QByteArray text()
    {
        Description description;
        description.addCategory("Root", 0);
        return description.m_nodes
            + "<IntSwissKnife Name=\"Switch\"><pVariable Name=\"A\">Amount</pVariable><Formula>A &gt; 0</Formula>"
              "</IntSwissKnife>";
    }

private:
    QByteArray properties()
    {
        const char *const visibilities[] = {"Beginner", "Expert", "Guru"};
        const char *const words[] = {"Gain", "Exposure", "Gamma Gain", "auto Exposure", "Top"};
        ++m_count;
        return QByteArray("<DisplayName>") + words[m_count % 5] + ' ' + QByteArray::number(m_count)
            + "</DisplayName><Visibility>" + visibilities[m_count % 4 ? 0 : m_count / 4 % 3] + "</Visibility>"
            + (m_count % 7 && m_count != 30 ? "" : "<pIsImplemented>Switch</pIsImplemented>");
    }

    void addCategory(const QByteArray &name, int depth)
    {
        QByteArray list = depth ? "" : "<pFeature>Amount</pFeature>";
        for (int i = 0; i < 4; ++i) {
            const QByteArray child = name + QByteArray::number(i);
            list += "<pFeature>" + child + "</pFeature>";
            if (i % 2 && depth < 3)
                addCategory(child, depth + 1);
            else if (i % 2)
                m_nodes += "<Integer Name=\"" + child + "\">" + properties() + "<Value>1</Value></Integer>";
            else
                m_nodes += "<String Name=\"" + child + "\">" + properties() + "<Value>text</Value></String>";
        }
        m_nodes += "<Category Name=\"" + name + "\">" + (depth ? properties() : QByteArray()) + list + "</Category>";
    }

    QByteArray m_nodes = "<Float Name=\"Amount\"><Value>1</Value></Float>";
    int m_count = 0;
};

bool isCategory(const QModelIndex &index)
{
    return index.siblingAtColumn(1).data().isNull();
}

/** What is asked of either stack. */
struct Stack
{
    virtual ~Stack() = default;
    virtual void setLevel(int level) = 0;
    virtual void setText(const QString &text) = 0;
    virtual void setOptions(bool caseSensitive, bool wholeWords) = 0;

    /** Whether the categories that are shown, and they alone, span both columns; of the plain stack nobody asks it. */
    virtual bool spansCategories() const { return true; }

    FeatureCamera *camera = nullptr;
    QTreeView *tree = nullptr;
};

struct OurStack : Stack
{
    OurStack()
        : shown(Description::text())
    {
        shown.view.setVisibility(OrvGui::Basic);
        camera = &shown;
        tree = shown.tree;
        shown.view.resize(600, 2500);
        shown.view.show();
    }

    void setLevel(int level) override { shown.view.setVisibility(OrvGui::Visibility(level)); }
    void setText(const QString &text) override { shown.part<QLineEdit>("filterLineEdit")->setText(text); }
    void setOptions(bool caseSensitive, bool wholeWords) override
    {
        shown.part<QCheckBox>("checkBoxCase")->setChecked(caseSensitive);
        shown.part<QCheckBox>("checkBoxWhole")->setChecked(wholeWords);
    }

    bool spansCategories() const override
    {
        const QModelIndexList rows = shown.rows();
        return std::all_of(rows.begin(), rows.end(), [this](const QModelIndex &index) {
            return tree->isFirstColumnSpanned(index.row(), index.parent()) == isCategory(index);
        });
    }

    ShownView shown;
};

/**
 * Leaves no editor behind whose row went with its category, after which Qt's tree would open no other, and no current
 * item in a category that is closed.
 */
class PlainTree : public QTreeView
{
public:
    PlainTree()
    {
        connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &closed) {
            QModelIndex above = currentIndex().parent();
            while (above.isValid() && above != closed)
                above = above.parent();
            if (above.isValid())
                setCurrentIndex(above);
        });
    }

protected:
    void rowsAboutToBeRemoved(const QModelIndex &parent, int first, int last) override
    {
        QModelIndex going = currentIndex().parent();
        while (going.isValid() && going.parent() != parent)
            going = going.parent();
        if (going.isValid() && going.row() >= first && going.row() <= last)
            setCurrentIndex(QModelIndex());
        QTreeView::rowsAboutToBeRemoved(parent, first, last);
    }
};

struct PlainStack : Stack
{
    PlainStack()
        : features(Description::text())
        , model(features.map.get(), nullptr)
    {
        camera = &features;
        tree = &view;
        filter.setSourceModel(&model);
        view.setModel(&filter);
        view.setItemDelegateForColumn(GenParamTreeModel::ValueColumn, &delegate);
        view.setEditTriggers(QAbstractItemView::CurrentChanged | QAbstractItemView::DoubleClicked
                             | QAbstractItemView::SelectedClicked | QAbstractItemView::EditKeyPressed);
        view.setUniformRowHeights(true);
        view.setHeaderHidden(true);
        view.resize(600, 2500);
        view.expandAll();
        view.show();
    }

    void setLevel(int level) override
    {
        filter.level = level;
        filter.refilter();
    }
    void setText(const QString &text) override
    {
        filter.pattern.setPattern(text);
        filter.refilter();
    }
    void setOptions(bool caseSensitive, bool wholeWords) override
    {
        filter.pattern.setCaseSensitivity(caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive);
        filter.wholeWords = wholeWords;
        filter.refilter();
    }

    FeatureCamera features;
    GenParamTreeModel model;
    PlainFilter filter;
    PlainTree view;
    GenParamDelegate delegate;
};

QString nameOf(const QModelIndex &index)
{
    return index.siblingAtColumn(0).data().toString();
}

QStringList namesOf(const QAbstractItemModel &model)
{
    QStringList names;
    const QModelIndexList rows = rowsOf(model);
    std::transform(rows.begin(), rows.end(), std::back_inserter(names), nameOf);
    return names;
}

/** All that a user sees of a tree, a line a row. */
QStringList stateOf(const QTreeView &tree)
{
    QStringList state;
    const QList<QWidget *> editors = tree.viewport()->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QModelIndex index = tree.model()->index(0, 0); index.isValid(); index = tree.indexBelow(index)) {
        QString row = nameOf(index.parent()) + QLatin1Char('/') + nameOf(index) + QLatin1Char('=')
            + index.siblingAtColumn(1).data().toString();
        if (isCategory(index) && tree.isExpanded(index))
            row += QLatin1String(" expanded");
        for (const int column : {0, 1}) {
            const QModelIndex cell = index.siblingAtColumn(column);
            if (cell == tree.currentIndex())
                row += QStringLiteral(" current %1").arg(column);
            if (tree.selectionModel()->isSelected(cell))
                row += QStringLiteral(" selected %1").arg(column);
            for (const QWidget *editor : editors) {
                if (editor->isVisible() && tree.visualRect(cell).contains(editor->geometry().center()))
                    row += QStringLiteral(" edited %1").arg(column);
            }
        }
        state += row;
    }
    return state << QLatin1String("current: ") + nameOf(tree.currentIndex());
}

void act(Stack &stack, QRandomGenerator &random)
{
    const char *const texts[] = {"*", "", "gain", "G?m*", "expo", "nothing", "1", "Top"};
    QModelIndexList rows;
    for (QModelIndex index = stack.tree->model()->index(0, 0); index.isValid(); index = stack.tree->indexBelow(index))
        rows += index;
    const int choice = random.bounded(8);
    const QModelIndex row = rows.value(random.bounded(rows.size() + 1));
    const int value = random.bounded(16);
    switch (choice) {
    case 0:
        stack.setLevel(value % 3);
        break;
    case 1:
        stack.setOptions(value % 2 == 0, value / 2 % 4 == 0);
        break;
    case 2:
        stack.camera->node<GenApi::CFloatPtr>("Amount")->SetValue(value % 2);
        break;
    case 3:
        if (stack.tree->viewport()->isAncestorOf(QApplication::focusWidget())) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key(Qt::Key_0 + value % 10));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        }
        break;
    case 4:
    case 5:
        stack.tree->setCurrentIndex(row.siblingAtColumn(value % 2));
        break;
    case 6:
        stack.tree->setExpanded(row, value % 3 > 0);
        break;
    default:
        stack.setText(QString::fromLatin1(texts[value % 8]));
    }
}

template <typename Kind>
QVector<QStringList> play(quint32 seed, int length)
{
    Kind stack;
    QRandomGenerator random(seed);
    QVector<QStringList> states;
    if (!QTest::qWaitForWindowActive(stack.tree->window()))
        return states;
    stack.tree->setFocus();
    stack.tree->setCurrentIndex(stack.tree->model()->index(0, 0));
    for (int i = 0; i < length; ++i) {
        act(stack, random);
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        states += stateOf(*stack.tree);
        if (!stack.spansCategories())
            states.last() += QLatin1String("spans are wrong");
    }
    return states;
}

} // namespace

class TestGenParamTreeFilterView : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    /** The same rows, values, current item, selection, expansion and editor, whatever happens. */
    void followsThePlainStack_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 1; seed <= 12; ++seed)
            QTest::addRow("%u", seed) << seed;
    }

    void followsThePlainStack()
    {
        QFETCH(const quint32, seed);
        constexpr int length = 60;
        const QVector<QStringList> ours = play<OurStack>(seed, length);
        const QVector<QStringList> plain = play<PlainStack>(seed, length);
        QCOMPARE(ours.size(), length);
        for (int i = 0; i < length; ++i)
            QCOMPARE(ours[i], plain[i]);
    }

    void keepsAnEditorInProgress()
    {
        ShownView shown(Description::text());
        QVERIFY(shown.show());
        const QPointer<QWidget> editor = shown.type("Gain 10", "not yet");
        QVERIFY(editor);
        for (const char *text : {"gain", "Gain 10", "*", ""})
            shown.part<QLineEdit>("filterLineEdit")->setText(QString::fromLatin1(text));
        shown.view.setVisibility(OrvGui::Basic);
        QCoreApplication::processEvents();
        QVERIFY(editor && editor->isVisible());
        QVERIFY(shown.tree->visualRect(shown.cell("Gain 10")).contains(editor->geometry().center()));
        QCOMPARE(editor->property("text").toString(), QStringLiteral("not yet"));
        QCOMPARE(shown.cell("Gain 10").data().toString(), QStringLiteral("text"));
    }

    /** What was entered changes which rows there are, while the filter is changing them. */
    void writesWhatIsEnteredInARowThatGoes()
    {
        ShownView shown(Description::text());
        QVERIFY(shown.show());
        const int implemented = shown.rows().size();
        QVERIFY(shown.type("Amount", "0"));
        shown.part<QLineEdit>("filterLineEdit")->setText(QStringLiteral("gain"));
        QCOMPARE(shown.node<GenApi::CFloatPtr>("Amount")->GetValue(), 0.);
        QCOMPARE(shown.tree->currentIndex().row(), 0);

        GenParamTreeVisibilityFilterProxyModel fresh(nullptr);
        fresh.setSourceModel(static_cast<QAbstractProxyModel *>(shown.tree->model())->sourceModel());
        fresh.setFilterVisibility(OrvGui::Guru);
        fresh.setFilterText(QStringLiteral("gain"));
        QCOMPARE(namesOf(*shown.tree->model()), namesOf(fresh));
        shown.part<QLineEdit>("filterLineEdit")->clear();
        QVERIFY(shown.rows().size() < implemented);
    }

    /** The row that the current item moves to goes by the value that is written because it moves. */
    void movesToARowThatGoes()
    {
        for (const int column : {GenParamTreeModel::NameColumn, GenParamTreeModel::ValueColumn}) {
            ShownView shown(Description::text());
            QVERIFY(shown.show());
            QVERIFY(shown.type("Amount", "0"));
            const QPersistentModelIndex going(shown.cell("Gamma Gain 42", column));
            QVERIFY(going.isValid());
            shown.tree->setCurrentIndex(going);
            QVERIFY(!going.isValid());
            QCOMPARE(shown.tree->currentIndex().parent().data().toString(), QStringLiteral("Top 44"));
            QVERIFY(shown.enter("Amount", "1"));
        }
    }

    /** Whoever hears that the current item moves on may end it all. */
    void isTakenApartWhileRowsGo()
    {
        for (const bool byFilter : {true, false}) {
            ShownView shown(Description::text());
            QVERIFY(shown.show());
            const QModelIndexList rows = shown.rows();
            const auto gain = std::find_if(rows.begin(), rows.end(), [](const QModelIndex &index) {
                return index.data().toString() == QLatin1String("Gamma Gain 12");
            });
            QVERIFY(gain != rows.end());
            shown.click(*gain);
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
