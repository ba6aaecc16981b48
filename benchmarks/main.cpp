#include "benchmarks.h"

#include <Base/GCException.h>

#include <QApplication>
#include <QTemporaryFile>

namespace {

constexpr int featuresInAUsualDescription = 1500;

void measureAll(const QStringList &arguments)
{
    Table table;
    if (arguments.contains(QLatin1String("tree"))) {
        measureFeatureTree(table, {1000, 10000, 100000});
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
