// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "paramobject.h"

#include <memory>
#include <string>
#include <vector>

namespace OrvCameraApi {

class IntObject final : public ParamObject, public OrvGenParam::Int
{
public:
    IntObject(GenApi::INode *node, const ParamContext &context);

    OrvCamErr SetValue(std::int64_t value) override;
    std::int64_t GetValue(OrvCamErr *err) override;
    std::int64_t GetMin(OrvCamErr *err) override;
    std::int64_t GetMax(OrvCamErr *err) override;
    std::int64_t GetIncrement(OrvCamErr *err) override;

private:
    const GenApi::CIntegerPtr m_value;
};

class BooleanObject final : public ParamObject, public OrvGenParam::Boolean
{
public:
    BooleanObject(GenApi::INode *node, const ParamContext &context);

    OrvCamErr SetValue(bool value) override;
    bool GetValue(OrvCamErr *err) override;

private:
    const GenApi::CBooleanPtr m_value;
};

class CommandObject final : public ParamObject, public OrvGenParam::Command
{
public:
    CommandObject(GenApi::INode *node, const ParamContext &context);

    OrvCamErr Execute() override;

private:
    const GenApi::CCommandPtr m_value;
};

class StringObject final : public ParamObject, public OrvGenParam::String
{
public:
    StringObject(GenApi::INode *node, const ParamContext &context);

    const char *GetValue(OrvCamErr *err) override;

private:
    const GenApi::CStringPtr m_value;
    GenICam::gcstring m_text; ///< keeps the last answer of GetValue() alive
};

class EnumEntryObject final : public ParamObject, public OrvGenParam::EnumEntry
{
public:
    EnumEntryObject(GenApi::INode *node, const ParamContext &context);

    std::int64_t GetValue(OrvCamErr *err) override;
    const char *GetValueStr(OrvCamErr *err) override;

private:
    const std::int64_t m_value;
    const GenICam::gcstring m_symbolic;
};

class EnumObject final : public ParamObject, public OrvGenParam::Enum
{
public:
    EnumObject(GenApi::INode *node, const ParamContext &context);

    std::int32_t GetEnumEntriesCount(OrvCamErr *err) override;
    OrvGenParam::EnumEntry *GetEnumEntryByIndex(std::int32_t index, OrvCamErr *err) override;
    std::int64_t GetValue(OrvCamErr *err) override;
    const char *GetValueStr(OrvCamErr *err) override;
    OrvCamErr SetValue(std::int64_t value) override;
    OrvCamErr SetValueStr(const char *symbolic) override;

private:
    const GenApi::CEnumerationPtr m_value;
    std::vector<std::unique_ptr<EnumEntryObject>> m_entries;
    GenICam::gcstring m_text; ///< keeps the last answer of GetValueStr() alive
};

/**
 * Makes the parameter for a node. Null when no kind fits: for floating-point numbers, categories and raw registers.
 * Throws what the node throws.
 */
std::unique_ptr<ParamObject> makeParam(GenApi::INode *node, const ParamContext &context);

} // namespace OrvCameraApi
