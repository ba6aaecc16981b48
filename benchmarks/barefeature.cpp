#include "barefeature.h"

BareFeature::BareFeature(GenApi::IValue *value)
    : m_value(value)
    , m_node(value->GetNode())
    , m_type(m_node->GetPrincipalInterfaceType())
{
    if (m_type == GenApi::intfIInteger)
        m_integer = dynamic_cast<GenApi::IInteger *>(value);
    else if (m_type == GenApi::intfIFloat)
        m_float = dynamic_cast<GenApi::IFloat *>(value);
    else if (m_type == GenApi::intfIBoolean)
        m_boolean = dynamic_cast<GenApi::IBoolean *>(value);
}

QString BareFeature::text() const
{
    switch (m_type) {
    case GenApi::intfICategory:
        return {};
    case GenApi::intfIInteger:
        return QString::number(qint64(m_integer->GetValue())) + QString::fromUtf8(m_integer->GetUnit().c_str());
    case GenApi::intfIFloat:
        return QString::number(m_float->GetValue(), 'f', int(m_float->GetDisplayPrecision()))
            + QString::fromUtf8(m_float->GetUnit().c_str());
    case GenApi::intfIBoolean:
        return m_boolean->GetValue() ? QStringLiteral("True") : QStringLiteral("False");
    default:
        return QString::fromUtf8(m_value->ToString().c_str());
    }
}
