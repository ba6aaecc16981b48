#include <OrvCameraGuiApi/feature_tree/genparamfeature.h>

#include <OrvCameraGuiApi/addresses/ip4validator.h>
#include <OrvCameraGuiApi/addresses/mactext.h>
#include <OrvCameraGuiApi/feature_tree/controldata.h>

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

/** The whole number next to \a value; none when it is no number or does not fit. */
std::optional<qint64> toInteger(const QVariant &value)
{
    constexpr double limit = 9223372036854775808.0;
    bool ok = false;
    qint64 number = 0;
    switch (value.userType()) {
    case QMetaType::Double:
    case QMetaType::Float: {
        const double real = value.toDouble();
        ok = real >= -limit && real < limit;
        if (ok)
            number = std::llround(real);
        break;
    }
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        ok = value.toULongLong() <= quint64(std::numeric_limits<qint64>::max());
        number = value.toLongLong();
        break;
    default:
        number = value.toLongLong(&ok);
    }
    return ok ? std::make_optional(number) : std::nullopt;
}

} // namespace

int displayPrecision(const GenApi::IFloat &value)
{
    // A double's last decimals that Qt's boxes offer; a description may ask for any number.
    constexpr int64_t most = std::numeric_limits<double>::max_exponent10 + std::numeric_limits<double>::digits10;
    return int(std::clamp<int64_t>(value.GetDisplayPrecision(), 0, most));
}

GenApi::INode *nodeOf(GenApi::IValue *value)
{
    GenApi::INode *const node = value ? value->GetNode() : nullptr;
    return node ? node : static_cast<GenApi::INode *>(GenApi::CNodePtr());
}

/** The cast is for nodes that cannot tell their type: one that fails costs much more than asking. */
bool isCategory(GenApi::IValue *value)
{
    bool is = false;
    if (failureOf([&] { is = value && nodeOf(value)->GetPrincipalInterfaceType() == GenApi::intfICategory; }))
        is = dynamic_cast<GenApi::ICategory *>(value);
    return is;
}

GenApi::EInterfaceType GenParamFeature::type() const
{
    return m_value ? node()->GetPrincipalInterfaceType() : GenApi::intfIBase;
}

GenApi::ERepresentation GenParamFeature::representation(GenApi::IInteger &number) const
{
    if (m_namesDecide) {
        if (const auto representation = representationByName(m_name))
            return *representation;
    }
    return number.GetRepresentation();
}

QVariant GenParamFeature::displayText(GenApi::EInterfaceType type) const
{
    switch (type) {
    case GenApi::intfIInteger: {
        const GenApi::CIntegerPtr number(m_value);
        return integerText(*number, representation(*number));
    }
    case GenApi::intfIBoolean:
        return GenApi::CBooleanPtr(m_value)->GetValue() ? GenParamText::tr("True") : GenParamText::tr("False");
    case GenApi::intfICommand:
        return GenParamText::tr("Execute");
    case GenApi::intfIFloat: {
        const GenApi::CFloatPtr number(m_value);
        return QString(QString::number(number->GetValue(), 'f', displayPrecision(*number))
                       + fromGenICam(number->GetUnit()));
    }
    case GenApi::intfIString:
        return fromGenICam(GenApi::CStringPtr(m_value)->GetValue());
    case GenApi::intfIEnumeration:
        return fromGenICam(m_value->ToString());
    default:
        return {};
    }
}

QVariant GenParamFeature::editValue(GenApi::EInterfaceType type) const
{
    const auto listed = [](GenApi::EIncMode mode, const QVariant &value) {
        return mode == GenApi::listIncrement ? QVariant::fromValue(VariantData{value}) : value;
    };
    switch (type) {
    case GenApi::intfIInteger: {
        const GenApi::CIntegerPtr number(m_value);
        const GenApi::ERepresentation shownAs = representation(*number);
        if (shownAs == GenApi::IPV4Address || shownAs == GenApi::MACAddress)
            return integerText(*number, shownAs);
        return listed(number->GetIncMode(), qint64(number->GetValue()));
    }
    case GenApi::intfIBoolean:
        return GenApi::CBooleanPtr(m_value)->GetValue();
    case GenApi::intfIFloat: {
        const GenApi::CFloatPtr number(m_value);
        return listed(number->GetIncMode(), number->GetValue());
    }
    case GenApi::intfIString:
        return fromGenICam(GenApi::CStringPtr(m_value)->GetValue());
    case GenApi::intfIEnumeration:
        return quint64(GenApi::CEnumEntryPtr(GenApi::CEnumerationPtr(m_value)->GetCurrentEntry())->GetValue());
    default:
        return {};
    }
}

bool GenParamFeature::write(const QVariant &value) const
{
    const GenApi::EInterfaceType type = this->type();
    if (type == GenApi::intfICommand) {
        GenApi::CCommandPtr(m_value)->Execute();
        return true;
    }
    if (!value.isValid())
        return false;
    switch (type) {
    case GenApi::intfIInteger:
        return writeInteger(value);
    case GenApi::intfIBoolean:
        if (!value.canConvert<bool>())
            return false;
        GenApi::CBooleanPtr(m_value)->SetValue(value.toBool());
        return true;
    case GenApi::intfIFloat: {
        bool ok = false;
        const double number = value.toDouble(&ok);
        if (!ok || std::isnan(number))
            return false;
        GenApi::CFloatPtr(m_value)->SetValue(number, true);
        return true;
    }
    case GenApi::intfIString:
        if (!value.canConvert<QString>())
            return false;
        GenApi::CStringPtr(m_value)->SetValue(value.toString().toUtf8().constData(), true);
        return true;
    case GenApi::intfIEnumeration:
        return writeEnumeration(value);
    default:
        return false;
    }
}

bool GenParamFeature::writeInteger(const QVariant &value) const
{
    const GenApi::CIntegerPtr feature(m_value);
    std::optional<qint64> number;
    // Text is an address, whatever the feature: only what cannot be one, and is not meant to, is read as a number.
    if (value.userType() == QMetaType::QString)
        number = addressFromText(value.toString());
    if (!number && (value.userType() != QMetaType::QString || representation(*feature) != GenApi::IPV4Address))
        number = toInteger(value);
    if (!number)
        return false;
    feature->SetValue(*number, true);
    return true;
}

bool GenParamFeature::writeEnumeration(const QVariant &value) const
{
    const GenApi::CEnumerationPtr enumeration(m_value);
    if (value.userType() == QMetaType::ULongLong)
        // An entry's integer as the edit value gives it: a negative one comes as a large number.
        enumeration->SetIntValue(static_cast<int64_t>(value.toULongLong()), true);
    else if (const auto number = toInteger(value))
        enumeration->SetIntValue(*number, true);
    else if (value.canConvert<QString>())
        m_value->FromString(value.toString().toUtf8().constData(), true);
    else
        return false;
    return true;
}
