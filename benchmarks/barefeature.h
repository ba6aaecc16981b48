// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <GenApi/GenApi.h>

#include <QString>

/** A feature as one would show it without a model: GenApi's getters, and formatting what they answer. */
class BareFeature
{
public:
    /** Looks up the one interface that the feature's kind needs. */
    explicit BareFeature(GenApi::IValue *value);

    bool isCategory() const { return m_type == GenApi::intfICategory; }
    QString name() const { return QString::fromUtf8(m_node->GetDisplayName().c_str()); }
    GenApi::INode *node() const { return m_node; }

    QString text() const;

    /** Sets a value that is another one for another \a number. */
    void change(int number);

private:
    GenApi::IValue *m_value;
    GenApi::INode *m_node;
    GenApi::EInterfaceType m_type;
    GenApi::IInteger *m_integer = nullptr;
    GenApi::IFloat *m_float = nullptr;
    GenApi::IBoolean *m_boolean = nullptr;
    GenApi::IEnumeration *m_enumeration = nullptr;
    GenApi::IString *m_string = nullptr;
};
