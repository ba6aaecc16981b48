// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "barefeature.h"

#include <string>

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
    else if (m_type == GenApi::intfIEnumeration)
        m_enumeration = dynamic_cast<GenApi::IEnumeration *>(value);
    else if (m_type == GenApi::intfIString)
        m_string = dynamic_cast<GenApi::IString *>(value);
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

void BareFeature::change(int number)
{
    if (m_integer)
        m_integer->SetValue(number);
    else if (m_float)
        m_float->SetValue(number);
    else if (m_boolean)
        m_boolean->SetValue(number % 2 == 0);
    else if (m_enumeration)
        m_enumeration->SetIntValue(number % 3);
    else if (m_string)
        m_string->SetValue(std::to_string(number).c_str());
}
