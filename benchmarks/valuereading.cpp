#include "benchmarks.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

namespace {

/** A feature with its interfaces looked up beforehand; all but that of its kind are null. */
struct BareFeature
{
    explicit BareFeature(GenApi::IValue *feature)
        : value(feature)
        , integer(dynamic_cast<GenApi::IInteger *>(feature))
        , number(dynamic_cast<GenApi::IFloat *>(feature))
        , boolean(dynamic_cast<GenApi::IBoolean *>(feature))
    {
    }

    QString text() const;

    GenApi::IValue *value;
    GenApi::IInteger *integer;
    GenApi::IFloat *number;
    GenApi::IBoolean *boolean;
};

QString BareFeature::text() const
{
    if (integer)
        return QString::number(qint64(integer->GetValue())) + QString::fromUtf8(integer->GetUnit().c_str());
    if (number) {
        return QString::number(number->GetValue(), 'f', int(number->GetDisplayPrecision()))
            + QString::fromUtf8(number->GetUnit().c_str());
    }
    if (boolean)
        return boolean->GetValue() ? QStringLiteral("True") : QStringLiteral("False");
    return QString::fromUtf8(value->ToString().c_str());
}

} // namespace

void measureValueReading(Table &table, int features, int repetitions)
{
    const MemoryCamera camera(features);
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
