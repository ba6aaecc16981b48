// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "paramkinds.h"

namespace OrvCameraApi {

IntObject::IntObject(GenApi::INode *node, const ParamContext &context)
    : ParamObject(node, context, OrvGenParam::ParamTypeInt)
    , m_value(node)
{
}

OrvCamErr IntObject::SetValue(std::int64_t value)
{
    return attempt([&] { m_value->SetValue(value); });
}

std::int64_t IntObject::GetValue(OrvCamErr *err)
{
    return read(err, [this] { return m_value->GetValue(); });
}

std::int64_t IntObject::GetMin(OrvCamErr *err)
{
    return read(err, [this] { return m_value->GetMin(); });
}

std::int64_t IntObject::GetMax(OrvCamErr *err)
{
    return read(err, [this] { return m_value->GetMax(); });
}

std::int64_t IntObject::GetIncrement(OrvCamErr *err)
{
    return read(err, [this] { return m_value->GetInc(); });
}

BooleanObject::BooleanObject(GenApi::INode *node, const ParamContext &context)
    : ParamObject(node, context, OrvGenParam::ParamTypeBoolean)
    , m_value(node)
{
}

OrvCamErr BooleanObject::SetValue(bool value)
{
    return attempt([&] { m_value->SetValue(value); });
}

bool BooleanObject::GetValue(OrvCamErr *err)
{
    return read(err, [this] { return m_value->GetValue(); });
}

CommandObject::CommandObject(GenApi::INode *node, const ParamContext &context)
    : ParamObject(node, context, OrvGenParam::ParamTypeCommand)
    , m_value(node)
{
}

OrvCamErr CommandObject::Execute()
{
    return attempt([this] { m_value->Execute(); });
}

StringObject::StringObject(GenApi::INode *node, const ParamContext &context)
    : ParamObject(node, context, OrvGenParam::ParamTypeString)
    , m_value(node)
{
}

const char *StringObject::GetValue(OrvCamErr *err)
{
    return read(err, [this] {
        m_text = m_value->GetValue();
        return m_text.c_str();
    });
}

EnumEntryObject::EnumEntryObject(GenApi::INode *node, const ParamContext &context)
    : ParamObject(node, context, OrvGenParam::ParamTypeEnumEntry)
    , m_value(GenApi::CEnumEntryPtr(node)->GetValue())
    , m_symbolic(GenApi::CEnumEntryPtr(node)->GetSymbolic())
{
}

std::int64_t EnumEntryObject::GetValue(OrvCamErr *err)
{
    setError(err, OrvCamErr_Ok);
    return m_value;
}

const char *EnumEntryObject::GetValueStr(OrvCamErr *err)
{
    setError(err, OrvCamErr_Ok);
    return m_symbolic.c_str();
}

EnumObject::EnumObject(GenApi::INode *node, const ParamContext &context)
    : ParamObject(node, context, OrvGenParam::ParamTypeEnum)
    , m_value(node)
{
    GenApi::NodeList_t entries;
    m_value->GetEntries(entries);
    for (GenApi::INode *entry : entries)
        m_entries.push_back(std::make_unique<EnumEntryObject>(entry, context));
}

std::int32_t EnumObject::GetEnumEntriesCount(OrvCamErr *err)
{
    setError(err, OrvCamErr_Ok);
    return static_cast<std::int32_t>(m_entries.size());
}

OrvGenParam::EnumEntry *EnumObject::GetEnumEntryByIndex(std::int32_t index, OrvCamErr *err)
{
    const bool valid = index >= 0 && static_cast<std::size_t>(index) < m_entries.size();
    setError(err, valid ? OrvCamErr_Ok : OrvCamErr_InvalidIndex);
    return valid ? m_entries[static_cast<std::size_t>(index)].get() : nullptr;
}

std::int64_t EnumObject::GetValue(OrvCamErr *err)
{
    return read(err, [this] { return m_value->GetIntValue(); });
}

const char *EnumObject::GetValueStr(OrvCamErr *err)
{
    return read(err, [this] {
        m_text = GenApi::CEnumEntryPtr(m_value->GetCurrentEntry())->GetSymbolic();
        return m_text.c_str();
    });
}

OrvCamErr EnumObject::SetValue(std::int64_t value)
{
    return attempt([&] { m_value->SetIntValue(value); });
}

OrvCamErr EnumObject::SetValueStr(const char *symbolic)
{
    if (!symbolic)
        return OrvCamErr_InvalidArgument;
    return attempt([&] { m_value->FromString(symbolic); });
}

std::unique_ptr<ParamObject> makeParam(GenApi::INode *node, const ParamContext &context)
{
    switch (node->GetPrincipalInterfaceType()) {
    case GenApi::intfIInteger:
        return std::make_unique<IntObject>(node, context);
    case GenApi::intfIBoolean:
        return std::make_unique<BooleanObject>(node, context);
    case GenApi::intfICommand:
        return std::make_unique<CommandObject>(node, context);
    case GenApi::intfIString:
        return std::make_unique<StringObject>(node, context);
    case GenApi::intfIEnumeration:
        return std::make_unique<EnumObject>(node, context);
    default:
        return nullptr;
    }
}

} // namespace OrvCameraApi
