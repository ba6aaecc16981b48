// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "barefeature.h"
#include "benchmarks.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

void measureValueReading(Table &table, int features, int repetitions)
{
    const MemoryCamera camera(describeCamera(features));
    const GenParamTreeModel model(camera.map.get(), nullptr);
    std::vector<QModelIndex> cells;
    std::vector<BareFeature> bare;
    for (int category = 0; category < model.rowCount(); ++category) {
        const QModelIndex parent = model.index(category, 0);
        for (int row = 0; row < model.rowCount(parent); ++row) {
            cells.push_back(model.index(row, GenParamTreeModel::ValueColumn, parent));
            bare.emplace_back(cells.back().data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>());
        }
    }
    require(cells.size() == size_t(features), "features are missing");

    Samples ours;
    Samples other;
    std::vector<QString> ourTexts(cells.size());
    std::vector<QString> bareTexts(cells.size());
    for (int i = 0; i < repetitions; ++i) {
        ours.add(millisecondsOf([&] {
            for (size_t cell = 0; cell < cells.size(); ++cell)
                ourTexts[cell] = model.data(cells[cell]).toString();
        }));
        other.add(millisecondsOf([&] {
            for (size_t feature = 0; feature < bare.size(); ++feature)
                bareTexts[feature] = bare[feature].text();
        }));
        require(ourTexts == bareTexts, "the model shows other texts than GenApi");
    }
    table.add(QStringLiteral("%1 features, read all values").arg(features), QStringLiteral("ns a value"),
              ours.median() * 1e6 / features, other.median() * 1e6 / features, 3);
}
