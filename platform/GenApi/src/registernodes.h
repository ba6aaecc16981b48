// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include "portnode.h"
#include "values.h"

#include <GenApi/IRegister.h>
#include <GenApi/IString.h>

namespace OrvGenApi {

/** Where a register lies, and what is kept of its bytes. */
class RegisterData
{
public:
    /** One summand of an address. */
    struct AddressTerm
    {
        IntRef value;
        bool isIndex = false; ///< multiplied by the offset; by the register's length where there is none
        IntRef offset;
    };

    GenApi::EAccessMode access() const;

    /** What it ever allows. */
    GenApi::EAccessMode everAccess() const;

    GenApi::EAccessMode portAccess() const; ///< NI or NA where it is that, else RW

    /** What the nodes allow that say where it is: first for its address, then for its length. */
    GenApi::EAccessMode placeAccess() const;

    /** Both are checked: an address that overflows or a length that makes no sense throws. */
    int64_t address(const Node &owner) { return place(owner).address; }
    int64_t length(const Node &owner);

    /** The bytes, in the device's order. */
    std::string read(Node &owner, bool ignoreCache);
    void write(Node &owner, std::string bytes, Changes &changes);

    /** The same for a caller's buffer, whose length must be that of the register. */
    void get(Node &owner, uint8_t *buffer, int64_t length, bool ignoreCache);
    void set(Node &owner, const uint8_t *buffer, int64_t length, Changes &changes);

    /** Takes what the port keeps of the place where the register was found last. */
    void dropCache();
    bool isBigEndian() const { return m_bigEndian != (m_port && m_port->swapsEndianness()); }

private:
    friend class DescriptionLoader;

    /** Where the register lies, worked out once an evaluation: other registers may have to be read for it. */
    struct Place
    {
        int64_t address = 0;
        int64_t length = 0;
        uint64_t addressIn = 0; ///< the evaluation that worked out the address
        uint64_t lengthIn = 0;
    };

    PortNode::Kept &kept(const PortNode::Range &range);
    void drop(const PortNode::Range &range);
    const Place &place(const Node &owner);
    int64_t computeAddress(const Node &owner);
    void requirePort(const Node &owner) const;
    void requireLength(const Node &owner, const void *buffer, int64_t length);

    PortNode *m_port = nullptr;
    GenApi::EAccessMode m_accessMode = GenApi::RO;
    bool m_isFixed = false; ///< m_place holds for good
    bool m_bigEndian = false;
    PortNode::KeptRange *m_kept = nullptr; ///< found last, good in m_keptEpoch of the port
    uint64_t m_keptEpoch = 0;
    Place m_place;
    std::vector<AddressTerm> m_addressTerms;
    IntRef m_length;
    GenApi::ECachingMode m_cachable = GenApi::WriteThrough;
};

/** IRegister on the outside, over RegisterData. \a Base is a ValueNode of the value's own interface. */
template <typename Base>
class RegisterValue : public Base, virtual public GenApi::IRegister
{
public:
    using Base::Base;

    void Set(const uint8_t *pBuffer, int64_t Length, bool Verify) override
    {
        this->change("Set", [&](Changes &changes) {
            this->requireWritable(Verify);
            const bool isOpen = this->m_accessOpen;
            Base::dropCache();
            this->m_accessOpen = isOpen;
            m_register.set(*this, pBuffer, Length, changes);
        });
    }

    void Get(uint8_t *pBuffer, int64_t Length, bool Verify, bool IgnoreCache) override
    {
        (void)Verify;
        const Entry entry(*this, "Get");
        Node::FreshReading reading(*this, IgnoreCache);
        this->requireReadable(reading);
        m_register.get(*this, pBuffer, Length, IgnoreCache);
    }

    int64_t GetLength(bool Verify) override
    {
        (void)Verify;
        const Entry entry(*this, "GetLength");
        return m_register.length(*this);
    }

    int64_t GetAddress(bool Verify) override
    {
        (void)Verify;
        const Entry entry(*this, "GetAddress");
        return m_register.address(*this);
    }

    void dropCache() override
    {
        Base::dropCache();
        m_register.dropCache();
    }

protected:
    friend class DescriptionLoader;

    GenApi::EAccessMode valueAccess() const override { return m_register.access(); }
    GenApi::EAccessMode endAccess() const override { return m_register.everAccess(); }
    GenApi::EAccessMode firstAccess() const override { return m_register.portAccess(); }
    GenApi::EAccessMode readAccess() const override
    {
        const GenApi::EAccessMode mode = Base::readAccess();
        return mode == GenApi::NI ? mode : combined(mode, m_register.placeAccess());
    }
    bool checksBeforeKeeping() const override { return true; }
    bool dependsOnPort() const override { return true; }

    RegisterData m_register;
};

/** A whole register, or some of its bits, as an integer. */
class IntRegisterNode final : public RegisterValue<IntegerBase>
{
public:
    using RegisterValue::RegisterValue;

    int64_t intMin() override;
    int64_t intMax() override;
    GenApi::ERepresentation representation() override
    {
        return m_presentation.representationOf([]() -> Node * { return nullptr; });
    }
    const char *unit() override
    {
        return m_presentation.unitOf([]() -> Node * { return nullptr; });
    }

protected:
    int64_t readInt(bool ignoreCache) override;
    void writeInt(int64_t value, bool verify, Changes &changes) override;

private:
    friend class DescriptionLoader;

    /** The bits that belong to the value, counted from the least significant one. */
    struct Bits
    {
        unsigned lowest;
        unsigned count;
    };

    Bits bits();
    uint64_t rawOf(const std::string &bytes) const;
    std::string bytesOf(uint64_t raw, std::size_t length) const;

    Presentation m_presentation;
    int16_t m_lsb = -1; ///< as in the description; -1: the whole register
    int16_t m_msb = -1;
    bool m_signed = false;
};

/** A register as a floating-point number of 4 or 8 bytes. */
class FloatRegisterNode final : public RegisterValue<FloatBase>
{
public:
    using RegisterValue::RegisterValue;

    double floatMin() override { return -floatMax(); }
    double floatMax() override;
    GenApi::ERepresentation representation() override
    {
        return m_presentation.representationOf([]() -> Node * { return nullptr; });
    }
    const char *unit() override
    {
        return m_presentation.unitOf([]() -> Node * { return nullptr; });
    }
    GenApi::EDisplayNotation displayNotation() override
    {
        return m_presentation.notationOf([]() -> Node * { return nullptr; });
    }
    int64_t displayPrecision() override
    {
        return m_presentation.precisionOf([]() -> Node * { return nullptr; });
    }

protected:
    double readFloat(bool ignoreCache) override;
    void writeFloat(double value, bool verify, Changes &changes) override;

private:
    friend class DescriptionLoader;

    Presentation m_presentation;
};

/** Base of the nodes that are texts on the outside. */
class StringBase : public ValueNode<GenApi::IString>
{
public:
    using ValueNode::ValueNode;

    void SetValue(const GenICam::gcstring &Value, bool Verify) override;
    GenICam::gcstring GetValue(bool Verify, bool IgnoreCache) override;
    int64_t GetMaxLength(bool Verify) override;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIString; }
};

/** A text in the node itself or in another node. */
class StringNode final : public StringBase
{
public:
    using StringBase::StringBase;

    Node *valueNode() override { return m_node; }
    bool isCacheValid() const override { return !m_node || m_node->isCacheValid(); }
    std::string text(bool ignoreCache) override;
    void setText(const std::string &text, bool verify, Changes &changes) override;
    int64_t maximumTextLength() override;

protected:
    GenApi::EAccessMode valueAccess() const override { return m_node ? m_node->accessMode() : GenApi::RW; }

private:
    friend class DescriptionLoader;

    Node *m_node = nullptr;
    std::string m_text;
};

/** A register as text: up to the first zero byte, filled up with zeros. */
class StringRegisterNode final : public RegisterValue<StringBase>
{
public:
    using RegisterValue::RegisterValue;

    bool isCacheValid() const override { return false; }
    std::string text(bool ignoreCache) override;
    void setText(const std::string &text, bool verify, Changes &changes) override;
    int64_t maximumTextLength() override;
};

/** A range of bytes. */
class RegisterNode final : public RegisterValue<ValueNode<GenApi::IValue>>
{
public:
    using RegisterValue::RegisterValue;

    GenApi::EInterfaceType interfaceType() const override { return GenApi::intfIRegister; }
    bool isCacheValid() const override { return false; }
    std::string text(bool ignoreCache) override;
    void setText(const std::string &text, bool verify, Changes &changes) override;
};

} // namespace OrvGenApi
