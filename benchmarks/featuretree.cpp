// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "barefeature.h"
#include "benchmarks.h"
#include "plainstack.h"

#include <OrvCameraGuiApi/feature_tree/categoryspans.h>
#include <OrvCameraGuiApi/feature_tree/featuretree.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvCameraGuiApi/feature_tree/genparamtreevisibilityfilterproxymodel.h>
#include <OrvCameraGuiApi/feature_tree/orvgenparamtreeview.h>
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
    SetTexts,
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
template <typename FilterModel, typename Tree>
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

    Tree tree;

private:
    FilterModel m_filter{nullptr};
    PaintCounter m_paints;
};

class OurStack : public Stack<GenParamTreeVisibilityFilterProxyModel, FeatureTree>
{
public:
    OurStack(GenParamTreeModel &model, std::vector<BareFeature> &features)
        : Stack(model)
        , m_features(features)
    {
    }

    void span() { setSpanForChildren(tree, QModelIndex()); }
    void saveState() { m_state = TreeState::save(tree, 0, m_splitter); }
    void loadState() { TreeState::loadExpansion(tree, m_state); }

    void changeValues(int number)
    {
        for (BareFeature &feature : m_features)
            feature.change(number);
    }

    void setTexts(int number) { changeValues(number); } // there are no texts to set

private:
    std::vector<BareFeature> &m_features;
    QSplitter m_splitter;
    QByteArray m_state;
};

/** Sets the text of an item whenever the feature changes, as whoever shows node maps by Qt's own classes has to. */
struct FollowFeature
{
    void operator()(GenApi::INode *) const { item->setText(feature->text()); }
    explicit operator bool() const { return item; }

    const BareFeature *feature;
    QStandardItem *item;
};

class PlainStack : public Stack<PlainFilter, QTreeView>
{
public:
    PlainStack(QStandardItemModel &model, std::vector<BareFeature> &features,
               const std::vector<QStandardItem *> &values)
        : Stack(model)
        , m_features(features)
        , m_values(values)
    {
        for (size_t i = 0; i < values.size(); ++i)
            m_callbacks.push_back(GenApi::Register(features[i].node(), FollowFeature{&features[i], values[i]}));
    }

    ~PlainStack()
    {
        for (const GenApi::CallbackHandleType callback : m_callbacks)
            GenApi::Deregister(callback);
    }

    void span() { spanPlainCategories(tree); }
    void saveState() { m_state = savePlainState(tree); }
    void loadState() { loadPlainState(tree, m_state); }

    void changeValues(int number)
    {
        for (BareFeature &feature : m_features)
            feature.change(number);
    }

    void setTexts(int number)
    {
        const QString text = QString::number(number);
        for (QStandardItem *value : m_values)
            value->setText(text);
    }

private:
    std::vector<BareFeature> &m_features;
    const std::vector<QStandardItem *> &m_values;
    std::vector<GenApi::CallbackHandleType> m_callbacks;
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
        length += int(name.data().toString().size() + model.index(row, 1, parent).data().toString().size());
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
    measure(SetTexts, [&] { stack.paintAfter([&] { stack.setTexts(200 + round); }); });
    const int rows = countRows(*stack.tree.model());
    const std::tuple<Action, Action, const char *> texts[] = {{Filter, ClearFilter, "99999"},
                                                              {SearchFilter, ClearSearchFilter, "*99999*"}};
    for (const auto &[filter, clear, text] : texts) {
        if (!filters)
            break;
        stack.paintAfter([&] { stack.tree.expandAll(); }); // the plain one forgets what it filters away
        measure(filter, [&, text = text] { stack.setFilter(QLatin1String(text)); });
        require(countRows(*stack.tree.model()) < rows, "the filter has no effect");
        measure(clear, [&] { stack.setFilter(QString()); });
        require(countRows(*stack.tree.model()) == rows, "rows are lost");
    }
    measure(SaveState, [&] { stack.saveState(); });
    stack.paintAfter([&] { stack.tree.collapseAll(); });
    measure(LoadState, [&] { stack.paintAfter([&] { stack.loadState(); }); });
}

/** The ratio that an action should not exceed, by the size of the tree; 0 for none. */
struct Row
{
    const char *name;
    double at1000;
    double at10000;
    double at100000;
};

constexpr Row rows[actionCount] = {
    {"set the model, expand all", 1.0, 1.0, 1.0},
    {"span all categories", 0.45, 0.45, 0.45},
    {"first paint", 0, 0, 0},
    {"read all texts", 3.0, 3.0, 3.0},
    {"change all values, painted", 0.45, 0.45, 0.45},
    {"the same, texts at hand", 0, 0, 0},
    {"filter \"99999\"", 0, 1.0 / 20, 1.0 / 250},
    {"filter cleared", 0, 1.2, 0.35},
    {"filter \"*99999*\"", 0, 1.0 / 20, 1.0 / 250},
    {"that filter cleared", 0, 1.2, 0.35},
    {"save the state", 0.55, 0.55, 0.55},
    {"load the state, painted", 1.1, 1.1, 1.1},
};

double boundOf(const Row &row, int features)
{
    return features >= 100000 ? row.at100000 : features >= 10000 ? row.at10000 : row.at1000;
}

std::vector<QModelIndex> valuesOf(const QAbstractItemModel &model)
{
    std::vector<QModelIndex> values;
    collectValues(model, QModelIndex(), values);
    return values;
}

std::vector<BareFeature> featuresOf(const GenParamTreeModel &model)
{
    std::vector<BareFeature> features;
    for (const QModelIndex &cell : valuesOf(model))
        features.emplace_back(cell.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>());
    return features;
}

/** Both stacks in turn over the same tree of that many features. */
void measureStacks(int features, Costs &ours, Costs &plain)
{
    // Each has a node map of its own, so that none pays for the other's callbacks.
    const MemoryCamera camera(describeTree(features));
    const MemoryCamera plainCamera(describeTree(features));
    GenParamTreeModel model(camera.map.get(), nullptr);
    std::vector<BareFeature> ourFeatures = featuresOf(model);
    std::vector<BareFeature> plainFeatures = featuresOf(GenParamTreeModel(plainCamera.map.get(), nullptr));
    const std::unique_ptr<QStandardItemModel> items = plainModelOf(model);
    std::vector<QStandardItem *> values;
    for (const QModelIndex &cell : valuesOf(*items))
        values.push_back(items->itemFromIndex(cell));

    const int repetitions = 30000 / features + 5;
    for (int round = 0; round < repetitions; ++round) {
        {
            OurStack stack(model, ourFeatures);
            useOnce(stack, ours, round, true);
        }
        {
            PlainStack stack(*items, plainFeatures, values);
            useOnce(stack, plain, round, features < 100000 || round == 0);
        }
    }
}

/** The view after a poll that finds the values of ten features changed. */
double millisecondsOfPoll(int features)
{
    MemoryCamera camera(describeTree(features));
    OrvGui::OrvGenParamTreeView view(camera.map.get());
    PaintCounter paints;
    view.treeView()->expandAll();
    view.show();
    view.treeView()->viewport()->installEventFilter(&paints);
    while (paints.count == 0)
        QCoreApplication::processEvents();
    Samples samples;
    for (int round = 0; round < 51; ++round) {
        const uint64_t reads = camera.port.readCount();
        samples.add(millisecondsOf([&] {
            camera.map->Poll(pollingTime);
            view.treeView()->viewport()->update(0, 0, 1, 1); // so that there is something to wait for
            paints.count = 0;
            while (paints.count == 0)
                QCoreApplication::processEvents();
        }));
        require(camera.port.readCount() - reads <= 10 * polledFeatures, "a poll reads more than what it fires");
    }
    return samples.median();
}

} // namespace

void measureFeatureTree(Table &table, const std::vector<int> &sizes)
{
    std::vector<Costs> costs;
    for (const int features : sizes) {
        Costs ours;
        Costs plain;
        measureStacks(features, ours, plain);
        for (size_t action = 0; action < actionCount; ++action)
            table.add(QStringLiteral("%1 features, %2").arg(features).arg(QLatin1String(rows[action].name)),
                      QStringLiteral("ms"), ours[action].median(), plain[action].median(),
                      boundOf(rows[action], features));
        costs.push_back(ours);
    }
    if (sizes.size() < 2)
        return;
    const auto growth = [&](const char *what, Action action, size_t to, size_t from, double bound) {
        table.add(QStringLiteral("%1, %2 against %3 features").arg(QLatin1String(what)).arg(sizes[to]).arg(sizes[from]),
                  QStringLiteral("ms"), costs[to][action].median(), costs[from][action].median(), bound);
    };
    const size_t last = sizes.size() - 1;
    growth("first paint", FirstPaint, last, 0, 1.3);
    growth("span all categories", Span, last, last - 1, 0);
    growth("filter \"99999\"", Filter, last, last - 1, 20);
    growth("filter \"*99999*\"", SearchFilter, last, last - 1, 20);
    table.add(QStringLiteral("poll with 10 changes, %1 against %2 features").arg(sizes[last]).arg(sizes[0]),
              QStringLiteral("ms"), millisecondsOfPoll(sizes[last]), millisecondsOfPoll(sizes[0]), 2);
}
