// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/feature_tree/featurehandler.h>

#include <OrvCameraGuiApi/addresses/ip4validator.h>
#include <OrvCameraGuiApi/addresses/mactext.h>
#include <OrvCameraGuiApi/feature_tree/framelesseditor.h>
#include <OrvCameraGuiApi/feature_tree/genparamwhatsthis.h>
#include <OrvCameraGuiApi/widgets/integers.h>
#include <OrvCameraGuiApi/widgets/namedcombobox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QDoubleSpinBox>
#include <QLineEdit>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <unordered_map>

namespace {

/** GigE Vision features that are addresses, though many descriptions declare them as plain numbers. */
std::optional<GenApi::ERepresentation> representationByName(std::string_view name)
{
    static const std::unordered_map<std::string_view, GenApi::ERepresentation> representations = {
        {"GevMACAddress", GenApi::MACAddress},
        {"GevCurrentIPAddress", GenApi::IPV4Address},
        {"GevCurrentSubnetMask", GenApi::IPV4Address},
        {"GevCurrentDefaultGateway", GenApi::IPV4Address},
        {"GevPersistentIPAddress", GenApi::IPV4Address},
        {"GevPersistentSubnetMask", GenApi::IPV4Address},
        {"GevPersistentDefaultGateway", GenApi::IPV4Address},
        {"GevPrimaryApplicationIPAddress", GenApi::IPV4Address},
        {"GevMCDA", GenApi::IPV4Address},
        {"GevSCDA", GenApi::IPV4Address},
    };
    const auto found = representations.find(name);
    if (found == representations.end())
        return std::nullopt;
    return found->second;
}

/** How \a number, which is \a feature, is shown. */
GenApi::ERepresentation representationOf(const GenParamFeature &feature, GenApi::IInteger &number)
{
    if (feature.namesDecide()) {
        if (const auto representation = representationByName(feature.utf8Name()))
            return *representation;
    }
    return number.GetRepresentation();
}

QString integerText(GenApi::IInteger &number, GenApi::ERepresentation representation)
{
    const qint64 value = number.GetValue();
    switch (representation) {
    case GenApi::IPV4Address:
        return IP4Validator::getIpStr(static_cast<unsigned int>(value & 0xffffffff));
    case GenApi::MACAddress:
        return macText(static_cast<quint64>(value));
    case GenApi::HexNumber:
        return QString::number(static_cast<quint64>(value), 16).toUpper();
    default:
        return QString::number(value) + fromGenICam(number.GetUnit());
    }
}

/** The number in a dotted address with all four parts. */
std::optional<qint64> addressFromText(const QString &text)
{
    // The conversion reads anything as some address, and the validator lets a field be empty.
    QString input = text;
    int position = 0;
    if (text.isEmpty() || IP4Validator().validate(input, position) != QValidator::Acceptable)
        return std::nullopt;
    return IP4Validator::getIp(text);
}

/** Marks the edit value of a number that can only be chosen from a list. */
QVariant listed(GenApi::EIncMode mode, const QVariant &value)
{
    return mode == GenApi::listIncrement ? QVariant::fromValue(VariantData{value}) : value;
}

/** A combo box of \a values; \a text and \a data make an item from each. */
template <typename List, typename Text, typename Data>
ControlData listEditor(const List &values, const QString &unit, Text text, Data data)
{
    auto box = makeFrameless<NamedComboBox>();
    for (size_t i = 0; i < values.size(); ++i)
        box->addItem(text(values[i]) + unit, data(values[i]));
    return {box.release(), ControlData::ComboBox};
}

/** Adds the limits, and the increment or the list of values; \a text formats a number, \a texts the list. */
template <typename Number, typename Text, typename Texts>
void describeRange(const Number &number, HelpLines &help, Text text, Texts texts)
{
    help.add([&] {
        return GenParamText::tr("<i>Limits</i>: Min: %1, Max: %2").arg(text(number->GetMin()), text(number->GetMax()));
    });
    help.add([&]() -> QStringList {
        switch (number->GetIncMode()) {
        case GenApi::fixedIncrement:
            return {GenParamText::tr("<i>Increment</i>: %1").arg(text(number->GetInc()))};
        case GenApi::listIncrement:
            return {GenParamText::tr("<i>Valid values</i>: %1").arg(texts(number->GetListOfValidValues()))};
        default:
            return {};
        }
    });
}

class IntegerHandler final : public FeatureHandler
{
public:
    QVariant text(const GenParamFeature &feature) const override
    {
        const GenApi::CIntegerPtr number(feature.value());
        return integerText(*number, representationOf(feature, *number));
    }

    QVariant editValue(const GenParamFeature &feature) const override;
    bool write(const GenParamFeature &feature, const QVariant &value) const override;
    ControlData createEditor(const GenParamFeature &feature) const override;
    void describe(const GenParamFeature &feature, HelpLines &help) const override;
};

QVariant IntegerHandler::editValue(const GenParamFeature &feature) const
{
    const GenApi::CIntegerPtr number(feature.value());
    const GenApi::ERepresentation representation = representationOf(feature, *number);
    if (representation == GenApi::IPV4Address || representation == GenApi::MACAddress)
        return integerText(*number, representation);
    return listed(number->GetIncMode(), qint64(number->GetValue()));
}

bool IntegerHandler::write(const GenParamFeature &feature, const QVariant &value) const
{
    const GenApi::CIntegerPtr integer(feature.value());
    const bool isText = value.userType() == QMetaType::QString;
    std::optional<qint64> number;
    // Text is an address, whatever the feature: it is read as a number only when it cannot be an address, and the
    // feature is none.
    if (isText)
        number = addressFromText(value.toString());
    if (!number && (!isText || representationOf(feature, *integer) != GenApi::IPV4Address))
        number = toInteger(value);
    if (!number)
        return false;
    integer->SetValue(*number, true);
    return true;
}

ControlData addressEditor()
{
    auto edit = makeFrameless<QLineEdit>();
    edit->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    edit->setValidator(new IP4Validator(edit.get()));
    return {edit.release(), ControlData::LineEdit};
}

ControlData IntegerHandler::createEditor(const GenParamFeature &feature) const
{
    // An address in hexadecimal bytes has intentionally no editor of its own: it is edited as the number it is.
    const GenApi::CIntegerPtr number(feature.value());
    const GenApi::ERepresentation representation = representationOf(feature, *number);
    if (representation == GenApi::IPV4Address)
        return addressEditor();
    if (number->GetIncMode() == GenApi::listIncrement) {
        const auto text = [](qint64 value) { return QString::number(value); };
        const auto data = [](qint64 value) { return value; };
        return listEditor(number->GetListOfValidValues(true), fromGenICam(number->GetUnit()), text, data);
    }
    auto box = makeFrameless<QtOrvSpinBoxVal64>();
    box->setAccelerated(true);
    box->setKeyboardTracking(false);
    box->setIgnoreFocusOut(true);
    if (representation == GenApi::HexNumber)
        box->setDisplayIntegerBase(16);
    const qint64 step = std::max<qint64>(1, number->GetInc());
    box->setSingleStep(step);
    if (step > 1)
        box->setValidateStepping(true);
    box->setRange(number->GetMin(), number->GetMax());
    return {box.release(), ControlData::SpinBox64};
}

void IntegerHandler::describe(const GenParamFeature &feature, HelpLines &help) const
{
    help.addType(GenParamText::tr("Integer"));
    const GenApi::CIntegerPtr number(feature.value());
    const auto text = [](int64_t value) { return QString::number(value); };
    const auto texts = [&](const GenApi::int64_autovector_t &values) {
        const int base = representationOf(feature, *number) == GenApi::HexNumber ? 16 : 10;
        return commaSeparated(values, [base](int64_t value) { return QString::number(value, base); });
    };
    describeRange(number, help, text, texts);
}

/** The digits to show, within what Qt can format: a description may ask for any number. */
int displayPrecision(const GenApi::IFloat &number)
{
    // A double's last decimals that Qt's boxes offer.
    constexpr int64_t most = std::numeric_limits<double>::max_exponent10 + std::numeric_limits<double>::digits10;
    return int(std::clamp<int64_t>(number.GetDisplayPrecision(), 0, most));
}

/** Without the fraction, intentionally: so the choices of a floating-point list carry whole numbers. */
qint64 truncated(double value)
{
    if (std::isnan(value))
        return 0;
    if (Integers::fits64(value))
        return static_cast<qint64>(value);
    return value > 0 ? Integers::Largest64 : Integers::Smallest64;
}

/** A bound that a double spin box can hold; \a otherwise for one that is no number. */
double bound(double value, double otherwise)
{
    constexpr double most = std::numeric_limits<double>::max();
    return std::isnan(value) ? otherwise : std::clamp(value, -most, most);
}

/** As many as \a step needs, within what a double can tell apart. */
int decimalsFor(double step, int decimals)
{
    constexpr int most = 15;
    const auto isExact = [step](int count) {
        const double scaled = step * std::pow(10, count);
        return std::abs(scaled - std::round(scaled)) <= 1e-6 * std::max(1., std::abs(scaled));
    };
    for (int count = decimals; count <= most; ++count) {
        if (isExact(count) && step * std::pow(10, count) > 0.5)
            return count;
    }
    return decimals;
}

/** Leaves a bound as it is where so many digits exceed the precision of a double. */
void roundInwards(QDoubleSpinBox &box, double minimum, double maximum)
{
    const double unit = std::pow(10, box.decimals());
    const double low = std::ceil(minimum * unit - 1e-6) / unit;
    const double high = std::floor(maximum * unit + 1e-6) / unit;
    constexpr double largest = 1e15; // beyond that every double is a whole number of units
    if (std::isfinite(low) && std::abs(minimum * unit) < largest && low <= box.maximum())
        box.setMinimum(low);
    if (std::isfinite(high) && std::abs(maximum * unit) < largest && high >= box.minimum())
        box.setMaximum(high);
}

class FloatHandler final : public FeatureHandler
{
public:
    QVariant text(const GenParamFeature &feature) const override
    {
        const GenApi::CFloatPtr number(feature.value());
        return QString(QString::number(number->GetValue(), 'f', displayPrecision(*number))
                       + fromGenICam(number->GetUnit()));
    }

    QVariant editValue(const GenParamFeature &feature) const override
    {
        const GenApi::CFloatPtr number(feature.value());
        return listed(number->GetIncMode(), number->GetValue());
    }

    bool write(const GenParamFeature &feature, const QVariant &value) const override;
    ControlData createEditor(const GenParamFeature &feature) const override;
    void refineEditor(QWidget &editor, GenApi::IValue &feature) const override;
    void describe(const GenParamFeature &feature, HelpLines &help) const override;
};

bool FloatHandler::write(const GenParamFeature &feature, const QVariant &value) const
{
    bool ok = false;
    const double number = value.toDouble(&ok);
    if (!ok || std::isnan(number))
        return false;
    GenApi::CFloatPtr(feature.value())->SetValue(number, true);
    return true;
}

ControlData FloatHandler::createEditor(const GenParamFeature &feature) const
{
    const GenApi::CFloatPtr number(feature.value());
    if (number->GetIncMode() == GenApi::listIncrement) {
        const auto text = [](double value) { return QString::number(value, 'g', 6); };
        return listEditor(number->GetListOfValidValues(true), fromGenICam(number->GetUnit()), text, truncated);
    }
    auto box = makeFrameless<QDoubleSpinBox>();
    box->setAccelerated(true);
    // Before the range, which is rounded to them.
    box->setDecimals(displayPrecision(*number));
    constexpr double most = std::numeric_limits<double>::max();
    box->setRange(bound(number->GetMin(), -most), bound(number->GetMax(), most));
    box->setSuffix(fromGenICam(number->GetUnit()));
    if (number->HasInc()) {
        const double step = number->GetInc();
        if (step > 0)
            box->setSingleStep(step);
    }
    return {box.release(), ControlData::DoubleSpinBox};
}

/** The bounds are rounded inwards, and there are more decimals where the increment needs them. */
void FloatHandler::refineEditor(QWidget &editor, GenApi::IValue &feature) const
{
    auto *const box = qobject_cast<QDoubleSpinBox *>(&editor);
    if (!box)
        return;
    const GenApi::CFloatPtr number(&feature);
    const double step = number->HasInc() ? number->GetInc() : 0;
    if (step > 0) {
        box->setDecimals(decimalsFor(step, box->decimals()));
        box->setSingleStep(step);
    }
    roundInwards(*box, number->GetMin(), number->GetMax());
}

void FloatHandler::describe(const GenParamFeature &feature, HelpLines &help) const
{
    help.addType(GenParamText::tr("Float"));
    const GenApi::CFloatPtr number(feature.value());
    const auto text = [&](double value) { return QString::number(value, 'g', displayPrecision(*number)); };
    const auto texts = [](const GenApi::double_autovector_t &values) {
        return commaSeparated(values, [](double value) { return QString::number(value, 'g', 6); });
    };
    describeRange(number, help, text, texts);
}

} // namespace

std::vector<HandledType> numberHandlers()
{
    static const IntegerHandler integer;
    static const FloatHandler real;
    return {{GenApi::intfIInteger, &integer}, {GenApi::intfIFloat, &real}};
}
