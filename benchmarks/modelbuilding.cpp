// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "barefeature.h"
#include "benchmarks.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvGenApi/testing/faults.h>

#include <QStandardItemModel>

namespace {

/** The texts of a row and the rows below it. */
struct Row
{
    QString name;
    QString value;
    std::vector<Row> children;
};

GenApi::FeatureList_t featuresOf(GenApi::IValue *category)
{
    GenApi::FeatureList_t features;
    GenApi::CCategoryPtr(category)->GetFeatures(features);
    return features;
}

std::vector<Row> readRows(GenApi::IValue *category)
{
    std::vector<Row> rows;
    for (GenApi::IValue *value : featuresOf(category)) {
        const BareFeature feature(value);
        rows.push_back({feature.name(), feature.text(), feature.isCategory() ? readRows(value) : std::vector<Row>()});
    }
    return rows;
}

// Rows are given to their category before that is given to the model, which is the fastest way to fill one.

/** Items with texts of their own: sharing those of \a row would hide what they take. */
QList<QStandardItem *> itemsOf(const Row &row)
{
    auto *const name = new QStandardItem(QString(row.name.constData(), row.name.size()));
    for (const Row &child : row.children)
        name->appendRow(itemsOf(child));
    return {name, new QStandardItem(QString(row.value.constData(), row.value.size()))};
}

QList<QStandardItem *> itemsOf(GenApi::IValue *value)
{
    const BareFeature feature(value);
    auto *const name = new QStandardItem(feature.name());
    if (feature.isCategory()) {
        for (GenApi::IValue *child : featuresOf(value))
            name->appendRow(itemsOf(child));
    }
    return {name, new QStandardItem(feature.text())};
}

template <typename Rows>
std::unique_ptr<QAbstractItemModel> makeStandardModel(const Rows &rows)
{
    auto model = std::make_unique<QStandardItemModel>(0, 2);
    for (const auto &row : rows)
        model->appendRow(itemsOf(row));
    return model;
}

int countRows(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    const int rows = model.rowCount(parent);
    int count = rows;
    for (int row = 0; row < rows; ++row)
        count += countRows(model, model.index(row, 0, parent));
    return count;
}

struct Cost
{
    Samples milliseconds;
    Samples bytes;
};

/** Counts after the clock has stopped that all is there: rows, and what \a isComplete looks for. */
template <typename Make, typename Check>
void measure(Cost &cost, int rows, const Make &make, const Check &isComplete)
{
    tidyHeap();
    const qint64 before = heapInUse();
    std::unique_ptr<QAbstractItemModel> model;
    cost.milliseconds.add(millisecondsOf([&] { model = make(); }));
    cost.bytes.add(double(heapInUse() - before));
    require(countRows(*model) == rows && isComplete(), "a model is not complete");
}

} // namespace

void measureModelBuilding(Table &table, int features, int repetitions)
{
    const MemoryCamera camera(describeCamera(features));
    const GenApi::CValuePtr root(camera.map->GetNode("Root"));
    const std::vector<Row> texts = readRows(root);
    const int rows = features + int(texts.size());

    const auto hasCallbacks = [&] { return OrvGenApi::testing::registeredCallbacks(*camera.map) == size_t(rows); };
    const auto isComplete = [] { return true; };
    Cost ours;
    Cost standard;
    Cost filling;
    for (int i = 0; i < repetitions; ++i) {
        measure(
            ours, rows, [&] { return std::make_unique<GenParamTreeModel>(camera.map.get(), nullptr); }, hasCallbacks);
        measure(
            standard, rows, [&] { return makeStandardModel(featuresOf(root)); }, isComplete);
        measure(
            filling, rows, [&] { return makeStandardModel(texts); }, isComplete);
    }
    const auto add = [&](const char *what, const Samples &one, const Samples &other, double scale, double bound) {
        table.add(QStringLiteral("%1 features, %2").arg(features).arg(QLatin1String(what)),
                  QLatin1String(scale == 1 ? "ms" : "bytes a row"), one.median() * scale, other.median() * scale,
                  bound);
    };
    add("build the model", ours.milliseconds, standard.milliseconds, 1, 0.40);
    add("the same, texts at hand", ours.milliseconds, filling.milliseconds, 1, 0);
    add("heap of the model", ours.bytes, standard.bytes, 1.0 / rows, 0.40);
}
