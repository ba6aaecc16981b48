#include "barefeature.h"
#include "benchmarks.h"
#include "plainstack.h"

#include <OrvCameraGuiApi/feature_tree/categoryspans.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>
#include <OrvCameraGuiApi/feature_tree/treestate.h>

#include <QCoreApplication>
#include <QEvent>
#include <QSplitter>

#include <array>
#include <tuple>

namespace {

enum Action {
    SetModelAndExpand,
    Span,
    FirstPaint,
    ReadTexts,
    ChangeValues,
    Filter,
    ClearFilter,
    SearchFilter,
    ClearSearchFilter,
    SaveState,
    LoadState,
    actionCount
};

using Costs = std::array<Samples, actionCount>;

class PaintCounter : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint;
        return false;
    }

    int count = 0;
};

/** A filter over a model, and a tree that shows it. */
template <typename FilterModel>
class Stack
{
public:
    explicit Stack(QAbstractItemModel &model)
    {
        m_filter.setSourceModel(&model);
        tree.setUniformRowHeights(true);
        tree.setAlternatingRowColors(true);
        tree.setHeaderHidden(true);
        tree.resize(500, 800);
        tree.viewport()->installEventFilter(&m_paints);
    }

    void setModelAndExpand()
    {
        tree.setModel(&m_filter);
        tree.expandAll();
    }

    /** Does \a action and waits until what came of it is painted. */
    template <typename Act>
    void paintAfter(Act &&action)
    {
        m_paints.count = 0;
        action();
        while (m_paints.count == 0)
            QCoreApplication::processEvents();
    }

    void setFilter(const QString &text)
    {
        paintAfter([&] { m_filter.setFilterText(text); });
    }

    QTreeView tree;

private:
    FilterModel m_filter{nullptr};
    PaintCounter m_paints;
};

class OurStack : public Stack<GenParamTreeVisibilityFilterProxyModel>
{
public:
    OurStack(GenParamTreeModel &model, std::vector<BareFeature> &features)
        : Stack(model)
        , m_features(features)
    {
    }

    void span() { spanCategories(tree, QModelIndex(), 0, tree.model()->rowCount() - 1); }
    void saveState() { m_state = TreeState::save(tree, 0, m_splitter); }
    void loadState() { TreeState::loadExpansion(tree, m_state); }

    void changeValues(int number)
    {
        for (BareFeature &feature : m_features)
            feature.change(number);
    }

private:
    std::vector<BareFeature> &m_features;
    QSplitter m_splitter;
    QByteArray m_state;
};

class PlainStack : public Stack<PlainFilter>
{
public:
    PlainStack(QStandardItemModel &model, const std::vector<QStandardItem *> &values)
        : Stack(model)
        , m_values(values)
    {
    }

    void span() { spanPlainCategories(tree); }
    void saveState() { m_state = savePlainState(tree); }
    void loadState() { loadPlainState(tree, m_state); }

    void changeValues(int number)
    {
        const QString text = QString::number(number);
        for (QStandardItem *value : m_values)
            value->setText(text);
    }

private:
    const std::vector<QStandardItem *> &m_values;
    QByteArray m_state;
};

int countRows(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    const int rows = model.rowCount(parent);
    int count = rows;
    for (int row = 0; row < rows; ++row)
        count += countRows(model, model.index(row, 0, parent));
    return count;
}

int readTexts(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    const int rows = model.rowCount(parent);
    int length = 0;
    for (int row = 0; row < rows; ++row) {
        const QModelIndex name = model.index(row, 0, parent);
        length += name.data().toString().size() + model.index(row, 1, parent).data().toString().size();
        length += readTexts(model, name);
    }
    return length;
}

/** The values among \a parent's rows and below, depth first. */
void collectValues(const QAbstractItemModel &model, const QModelIndex &parent, std::vector<QModelIndex> &values)
{
    const int rows = model.rowCount(parent);
    for (int row = 0; row < rows; ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        if (model.hasChildren(index))
            collectValues(model, index, values);
        else
            values.push_back(index.siblingAtColumn(1));
    }
}

/** Everything once; \a filters false leaves out what the plain stack takes minutes for. */
template <typename AnyStack>
void useOnce(AnyStack &stack, Costs &costs, int round, bool filters)
{
    const auto measure = [&](Action action, auto &&act) { costs[action].add(millisecondsOf(act)); };
    measure(SetModelAndExpand, [&] { stack.setModelAndExpand(); });
    measure(Span, [&] { stack.span(); });
    measure(FirstPaint, [&] { stack.paintAfter([&] { stack.tree.show(); }); });
    int length = 0;
    measure(ReadTexts, [&] { length = readTexts(*stack.tree.model()); });
    require(length > 0, "there are no texts");
    measure(ChangeValues, [&] { stack.paintAfter([&] { stack.changeValues(100 + round); }); });
    const int rows = countRows(*stack.tree.model());
    const std::tuple<Action, Action, const char *> texts[] = {{Filter, ClearFilter, "99999"},
                                                              {SearchFilter, ClearSearchFilter, "*99999*"}};
    for (const auto &[filter, clear, text] : texts) {
        if (!filters)
            break;
        measure(filter, [&] { stack.setFilter(QLatin1String(text)); });
        require(countRows(*stack.tree.model()) < rows, "the filter has no effect");
        measure(clear, [&] { stack.setFilter(QString()); });
        require(countRows(*stack.tree.model()) == rows, "rows are lost");
    }
    measure(SaveState, [&] { stack.saveState(); });
    stack.paintAfter([&] { stack.tree.collapseAll(); });
    measure(LoadState, [&] { stack.paintAfter([&] { stack.loadState(); }); });
}

} // namespace

void measureFeatureTree(Table &table, const std::vector<int> &sizes)
{
    for (const int features : sizes) {
        const MemoryCamera camera(describeTree(features));
        GenParamTreeModel model(camera.map.get(), nullptr);
        const std::unique_ptr<QStandardItemModel> items = plainModelOf(model);
        std::vector<QModelIndex> cells;
        std::vector<BareFeature> bare;
        std::vector<QStandardItem *> values;
        collectValues(model, QModelIndex(), cells);
        for (const QModelIndex &cell : cells)
            bare.emplace_back(cell.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>());
        cells.clear();
        collectValues(*items, QModelIndex(), cells);
        for (const QModelIndex &cell : cells)
            values.push_back(items->itemFromIndex(cell));
        Costs ours;
        Costs plain;
        const int repetitions = 30000 / features + 5;
        for (int round = 0; round < repetitions; ++round) {
            {
                OurStack stack(model, bare);
                useOnce(stack, ours, round, true);
            }
            {
                PlainStack stack(*items, values);
                useOnce(stack, plain, round, features < 100000 || round == 0);
            }
        }
        const char *const names[] = {"set the model, expand all", "span", "first paint", "read texts", "change values",
                                     "filter", "clear filter", "search filter", "clear search filter", "save", "load"};
        for (int action = 0; action < actionCount; ++action)
            table.add(QStringLiteral("%1 features, %2").arg(features).arg(QLatin1String(names[action])),
                      QStringLiteral("ms"), ours[size_t(action)].median(), plain[size_t(action)].median(), 1);
    }
}
