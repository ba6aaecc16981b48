// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "benchmarks.h"

#include <Base/GCException.h>

#include <QApplication>
#include <QTemporaryFile>

namespace {

constexpr int featuresInAUsualDescription = 1500;

/** The numbers behind "tree", or the usual ones. */
std::vector<int> sizesOf(const QStringList &arguments)
{
    std::vector<int> sizes;
    for (const QString &argument : arguments) {
        if (const int size = argument.toInt(); size > 0)
            sizes.push_back(size);
    }
    return sizes.empty() ? std::vector<int>{1000, 10000, 100000} : sizes;
}

void measureAll(const QStringList &arguments)
{
    Table table;
    if (arguments.contains(QLatin1String("tree"))) {
        measureFeatureTree(table, sizesOf(arguments));
        countRegisterReads(table);
        table.print();
        return;
    }
    const struct
    {
        int features;
        int repetitions;
    } sizes[] = {{1000, 51}, {10000, 15}, {100000, 5}};
    for (const auto &size : sizes) {
        measureModelBuilding(table, size.features, size.repetitions);
        measureValueReading(table, size.features, size.repetitions);
    }
    QTemporaryFile generated;
    require(generated.open(), "cannot make a temporary file");
    generated.write(describeCamera(featuresInAUsualDescription));
    generated.close();
    measureLoading(table, arguments.value(1, generated.fileName()), 31);
    table.print();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    try {
        measureAll(app.arguments());
    } catch (const GenICam::GenericException &exception) {
        require(false, exception.GetDescription());
    }
    return 0;
}
