#include "benchmarks.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>
#include <OrvGenApi/testing/faults.h>

#include <QStandardItemModel>

namespace {

/** The texts of a row and of those below it. */
struct Row
{
    QString name;
    QString value;
    std::vector<Row> children;
};

std::vector<Row> readRows(const GenParamTreeModel &model, const QModelIndex &parent = QModelIndex())
{
    std::vector<Row> rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex name = model.index(row, GenParamTreeModel::NameColumn, parent);
        rows.push_back({name.data().toString(), name.sibling(row, GenParamTreeModel::ValueColumn).data().toString(),
                        readRows(model, name)});
    }
    return rows;
}

/** Items with texts of their own: sharing those of \a row would hide what they take. */
QList<QStandardItem *> makeItems(const Row &row)
{
    auto *const name = new QStandardItem(QString(row.name.constData(), row.name.size()));
    for (const Row &child : row.children)
        name->appendRow(makeItems(child));
    return {name, new QStandardItem(QString(row.value.constData(), row.value.size()))};
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
    const MemoryCamera camera(features);
    const std::vector<Row> texts = readRows(GenParamTreeModel(camera.map.get(), nullptr));
    const int rows = features + int(texts.size());

    const auto makeOurs = [&] { return std::make_unique<GenParamTreeModel>(camera.map.get(), nullptr); };
    const auto hasCallbacks = [&] { return OrvGenApi::testing::registeredCallbacks(*camera.map) == size_t(rows); };
    const auto makeStandard = [&] {
        auto model = std::make_unique<QStandardItemModel>(0, 2);
        for (const Row &row : texts)
            model->appendRow(makeItems(row));
        return model;
    };
    Cost ours;
    Cost standard;
    for (int i = 0; i < repetitions; ++i) {
        measure(ours, rows, makeOurs, hasCallbacks);
        measure(standard, rows, makeStandard, [] { return true; });
    }
    const auto what = [features](const char *of) {
        return QStringLiteral("%1 features, %2").arg(features).arg(QLatin1String(of));
    };
    table.add(what("build the model"), QStringLiteral("ms"), ours.milliseconds.median(), standard.milliseconds.median(),
              0.40);
    table.add(what("heap of the model"), QStringLiteral("bytes a row"), ours.bytes.median() / rows,
              standard.bytes.median() / rows, 0.40);
}
