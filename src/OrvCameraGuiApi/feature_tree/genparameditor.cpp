#include <OrvCameraGuiApi/feature_tree/genparameditor.h>

#include <OrvCameraGuiApi/addresses/ip4validator.h>
#include <OrvCameraGuiApi/widgets/namedcombobox.h>
#include <OrvCameraGuiApi/widgets/qtorvspinboxval64.h>

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

namespace {

/** Held here until it is complete: a getter that throws in between leaves nothing behind. */
template <typename Editor>
std::unique_ptr<Editor> makeFrameless()
{
    auto editor = std::make_unique<Editor>(static_cast<QWidget *>(nullptr));
    editor->setFrame(false);
    return editor;
}

/** Without the fraction, intentionally: so the choices of a floating-point list carry whole numbers. */
qint64 truncated(double value)
{
    constexpr double limit = 9223372036854775808.0;
    if (std::isnan(value))
        return 0;
    if (value >= limit)
        return std::numeric_limits<qint64>::max();
    return value < -limit ? std::numeric_limits<qint64>::min() : static_cast<qint64>(value);
}

/** A bound that a double spin box can hold; \a otherwise for one that is no number. */
double bound(double value, double otherwise)
{
    constexpr double most = std::numeric_limits<double>::max();
    return std::isnan(value) ? otherwise : std::clamp(value, -most, most);
}

ControlData addressEditor()
{
    auto edit = makeFrameless<QLineEdit>();
    edit->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    edit->setValidator(new IP4Validator(edit.get()));
    return {edit.release(), ControlData::LineEdit};
}

ControlData integerListEditor(GenApi::IInteger &number)
{
    auto box = makeFrameless<NamedComboBox>();
    const GenApi::int64_autovector_t values = number.GetListOfValidValues(true);
    const QString unit = fromGenICam(number.GetUnit());
    for (size_t i = 0; i < values.size(); ++i) {
        const qint64 value = values[i];
        box->addItem(QString::number(value) + unit, value);
    }
    return {box.release(), ControlData::ComboBox};
}

ControlData integerEditor(const GenParamFeature &feature)
{
    // An address in hexadecimal bytes has intentionally no editor of its own: it is edited as the number it is.
    const GenApi::CIntegerPtr number(feature.value());
    const GenApi::ERepresentation representation = feature.representation(*number);
    if (representation == GenApi::IPV4Address)
        return addressEditor();
    if (number->GetIncMode() == GenApi::listIncrement)
        return integerListEditor(*number);

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

ControlData booleanEditor()
{
    auto box = makeFrameless<NamedComboBox>();
    box->addItem(GenParamText::tr("True"), true);
    box->addItem(GenParamText::tr("False"), false);
    return {box.release(), ControlData::ComboBox};
}

ControlData commandEditor()
{
    auto button = std::make_unique<QPushButton>(GenParamText::tr("Execute"));
    button->setFlat(true);
    // A flat button paints no ground of its own, and the cell's text is the same as the button's.
    button->setAutoFillBackground(true);
    button->setAutoDefault(false);
    return {button.release(), ControlData::PushButton};
}

ControlData floatListEditor(GenApi::IFloat &number)
{
    auto box = makeFrameless<NamedComboBox>();
    const GenApi::double_autovector_t values = number.GetListOfValidValues(true);
    const QString unit = fromGenICam(number.GetUnit());
    for (size_t i = 0; i < values.size(); ++i)
        box->addItem(QString::number(values[i], 'g', 6) + unit, truncated(values[i]));
    return {box.release(), ControlData::ComboBox};
}

ControlData floatEditor(const GenParamFeature &feature)
{
    const GenApi::CFloatPtr number(feature.value());
    if (number->GetIncMode() == GenApi::listIncrement)
        return floatListEditor(*number);

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

ControlData enumerationEditor(const GenParamFeature &feature)
{
    auto box = makeFrameless<NamedComboBox>();
    GenApi::NodeList_t entries;
    GenApi::CEnumerationPtr(feature.value())->GetEntries(entries);
    for (size_t i = 0; i < entries.size(); ++i) {
        const GenApi::CEnumEntryPtr entry(entries[i]);
        if (entry.IsValid() && entry->GetAccessMode() > GenApi::NA)
            box->addItem(fromGenICam(entry->GetSymbolic()), qint64(entry->GetValue()));
    }
    return {box.release(), ControlData::ComboBox};
}

} // namespace

ControlData createGenParamEditor(const GenParamFeature &feature)
{
    switch (feature.type()) {
    case GenApi::intfIInteger:
        return integerEditor(feature);
    case GenApi::intfIBoolean:
        return booleanEditor();
    case GenApi::intfICommand:
        return commandEditor();
    case GenApi::intfIFloat:
        return floatEditor(feature);
    case GenApi::intfIString:
        return {makeFrameless<QLineEdit>().release(), ControlData::LineEdit};
    case GenApi::intfIEnumeration:
        return enumerationEditor(feature);
    default:
        return {};
    }
}
