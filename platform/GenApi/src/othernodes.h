// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "values.h"

#include <GenApi/ICategory.h>
#include <GenApi/ICommand.h>
#include <GenApi/IEnumeration.h>

#include <optional>

namespace OrvGenApi {

/** A node without a value, to which others are linked. */
class PlainNode final : public Node
{
public:
    using Node::Node;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIBase; }
};

/** A group of features. Its visibility is that of its most visible feature, whatever its own description says. */
class CategoryNode final : public ValueNode<GenApi::ICategory>
{
public:
    using ValueNode::ValueNode;

    void GetFeatures(GenApi::FeatureList_t &Features) const override;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfICategory; }
    GenApi::EVisibility naturalVisibility() const override { return m_derivedVisibility; }
    bool isCacheValid() const override { return false; }
    std::string text(bool ignoreCache) override;
    void setText(const std::string &text, bool verify, Changes &changes) override;

protected:
    GenApi::EAccessMode computeAccessMode() const override;

private:
    friend class DescriptionLoader;

    bool isImplemented() const;
    bool hasImplemented() const;

    std::vector<Node *> m_features;
    GenApi::EVisibility m_derivedVisibility = GenApi::Invisible;
    mutable std::optional<bool> m_wasThere; ///< the last answer
    mutable uint64_t m_searchMark = 0; ///< the last search for an implemented feature that came here
};

/** A truth value kept as one of two integers. */
class BooleanNode final : public ValueNode<GenApi::IBoolean>
{
public:
    using ValueNode::ValueNode;

    void SetValue(bool Value, bool Verify) override;
    bool GetValue(bool Verify, bool IgnoreCache) const override;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIBoolean; }
    bool isNumber() const override { return true; }
    Node *valueNode() override { return m_value.node(); }
    bool isCacheValid() const override { return !m_value.node() || m_value.node()->isCacheValid(); }
    bool keepsFresh() const override { return m_value.node() && m_value.node()->keepsFresh(); }

    /** As a number: 1 or 0, whatever stands for it. */
    int64_t intValue(bool ignoreCache) override { return isOn(ignoreCache); }
    void setIntValue(int64_t value, bool verify, Changes &changes) override;
    void setText(const std::string &text, bool verify, Changes &changes) override;

protected:
    GenApi::EAccessMode valueAccess() const override
    {
        return m_value.node() ? m_value.node()->accessMode() : GenApi::RW;
    }

private:
    friend class DescriptionLoader;

    bool isOn(bool ignoreCache) const;

    IntRef m_value;
    int64_t m_onValue = 1;
    int64_t m_offValue = 0;
};

/** Writes a value to make the device do something. */
class CommandNode final : public ValueNode<GenApi::ICommand>
{
public:
    using ValueNode::ValueNode;

    void Execute(bool Verify) override;
    bool IsDone(bool Verify) override;
    GenICam::gcstring ToString(bool Verify, bool IgnoreCache) override;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfICommand; }
    bool isNumber() const override { return true; }
    bool isCacheValid() const override { return false; }
    int64_t intValue(bool ignoreCache) override { return m_value.value(ignoreCache); }
    void setIntValue(int64_t value, bool verify, Changes &changes) override;

    Node *valueNode() override { return m_value.node(); }

    /** Whether it is done can only be seen where its value can be read. */
    bool isPolled() override;

    /** 1 as long as the device is busy with it, else 0. */
    std::string text(bool ignoreCache) override;
    void setText(const std::string &text, bool verify, Changes &changes) override;

protected:
    GenApi::EAccessMode valueAccess() const override
    {
        return m_value.node() ? m_value.node()->accessMode() : GenApi::RW;
    }

    /** Nothing can be done without the value that is to be written. */
    GenApi::EAccessMode withParts(GenApi::EAccessMode own, bool isOpen) const override
    {
        const GenApi::EAccessMode mode = m_commandValue.node() ? m_commandValue.node()->accessMode() : GenApi::RW;
        if (isOpen || isReadable(mode))
            return own;
        return combined(own, mode == GenApi::NI ? mode : GenApi::NA);
    }

private:
    friend class DescriptionLoader;

    bool isDone();
    void execute(Changes &changes);
    void addEnd(Changes &changes);
    void end(bool verify);

    IntRef m_value;
    IntRef m_commandValue;
    bool m_running = false; ///< executed, and not seen to have ended
};

/** One choice of an enumeration. */
class EnumEntryNode final : public ValueNode<GenApi::IEnumEntry>
{
public:
    using ValueNode::ValueNode;

    int64_t GetValue() override;
    GenICam::gcstring GetSymbolic() const override;
    double GetNumericValue() override;
    bool IsSelfClearing() override;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIEnumEntry; }
    bool isNumber() const override { return true; }
    int64_t intValue(bool) override { return m_value; }
    std::string text(bool) override { return std::to_string(m_value); }
    void setText(const std::string &text, bool verify, Changes &changes) override;

protected:
    GenApi::EAccessMode openAccess() const override { return combined(GenApi::RO, imposedAccess()); }
    bool staysOpen() const override { return !accessVaries(); }
    GenApi::EAccessMode firstAccess() const override { return GenApi::RW; }
    GenApi::EAccessMode valueAccess() const override { return GenApi::RO; }

private:
    friend class DescriptionLoader;
    friend class EnumerationNode;

    double numericValue() const { return m_numericValue.value_or(static_cast<double>(m_value)); }

    const char *m_symbolic = "";
    int64_t m_value = 0;
    std::optional<double> m_numericValue;
    bool m_selfClearing = false;
};

/** A choice of named integers. */
class EnumerationNode final : public ValueNode<GenApi::IEnumeration>
{
public:
    using ValueNode::ValueNode;

    void GetEntries(GenApi::NodeList_t &Entries) override;
    void GetSymbolics(GenApi::StringList_t &Symbolics) override;
    void SetIntValue(int64_t Value, bool Verify) override;
    int64_t GetIntValue(bool Verify, bool IgnoreCache) override;
    GenApi::IEnumEntry *GetEntryByName(const GenICam::gcstring &Symbolic) override;
    GenApi::IEnumEntry *GetEntry(int64_t IntValue) override;
    GenApi::IEnumEntry *GetCurrentEntry(bool Verify, bool IgnoreCache) override;
    void FromString(const GenICam::gcstring &ValueStr, bool Verify) override;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIEnumeration; }
    bool isNumber() const override { return true; }
    Node *valueNode() override { return m_value.node(); }
    bool isCacheValid() const override { return !m_value.node() || m_value.node()->isCacheValid(); }
    bool keepsFresh() const override { return m_value.node() && m_value.node()->keepsFresh(); }
    int64_t intValue(bool ignoreCache) override;
    void setIntValue(int64_t value, bool verify, Changes &changes) override;

    /** As a number of other nodes: the numeric value of the current entry; written, that of the nearest one. */
    int64_t intNumber(bool ignoreCache) override;
    void setIntNumber(int64_t value, bool verify, Changes &changes) override;
    double floatValue(bool ignoreCache) override;
    void setFloatValue(double value, bool verify, Changes &changes) override;
    double floatMin() override;
    double floatMax() override;
    std::pair<double, double> floatRange() override;
    GenApi::EIncMode incrementMode() override { return GenApi::noIncrement; }
    /** Intentionally: what an entry stands for is polled where it is kept, unless it may end by itself. */
    bool isPolled() override;
    void checkValue() override;
    std::string text(bool ignoreCache) override;
    void setText(const std::string &text, bool verify, Changes &changes) override;
    int64_t entryValue(std::string_view symbolic) override;

protected:
    GenApi::EAccessMode valueAccess() const override
    {
        return m_value.node() ? m_value.node()->accessMode() : GenApi::RW;
    }

    bool staysOpen() const override { return !accessVaries(); }

    /** Nothing can be chosen where no entry is: then the enumeration is not available or not implemented itself. */
    GenApi::EAccessMode withParts(GenApi::EAccessMode own, bool isOpen) const override;

private:
    friend class DescriptionLoader;

    /** Sets the value, whose own mode has been looked at when \a verify. */
    void choose(int64_t value, bool verify, Changes &changes);
    EnumEntryNode *find(int64_t value) const;
    EnumEntryNode *find(std::string_view symbolic) const;

    std::vector<EnumEntryNode *> m_entries;
    IntRef m_value;
    bool m_hasSelfClearing = false;
};

} // namespace OrvGenApi
