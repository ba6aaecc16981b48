// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "registernodes.h"

#include <algorithm>
#include <cstring>

namespace OrvGenApi {

using namespace GenApi;
using GenICam::gcstring;

namespace {

constexpr int64_t maximumLength = 16 * 1024 * 1024; ///< bytes; longer registers are taken for a fault

[[noreturn]] void throwProperty(const Node &owner, const std::string &what)
{
    ORV_THROW(PropertyException, std::string("register '") + owner.name() + "': " + what);
}

} // namespace

EAccessMode RegisterData::access() const
{
    return m_port ? combined(m_accessMode, m_port->accessMode()) : NI;
}

EAccessMode RegisterData::everAccess() const
{
    return m_port ? combined(m_accessMode, m_port->everAccess()) : NI;
}

EAccessMode RegisterData::portAccess() const
{
    return Node::availability(m_port);
}

EAccessMode RegisterData::placeAccess() const
{
    EAccessMode mode = RW;
    if (m_isFixed)
        return mode;
    for (const AddressTerm &term : m_addressTerms) {
        if (mode != NI)
            mode = combined(mode, Node::availabilityOf({term.value.node(), term.offset.node()}));
    }
    return mode == NI ? mode : combined(mode, Node::availability(m_length.node()));
}

int64_t RegisterData::length(const Node &owner)
{
    if (!m_isFixed && m_place.lengthIn != owner.map().evaluation()) {
        const int64_t length = m_length.value();
        if (length < 1 || length > maximumLength)
            throwProperty(owner, "a length of " + std::to_string(length) + " bytes is not possible");
        m_place.length = length;
        m_place.lengthIn = owner.map().evaluation();
    }
    return m_place.length;
}

const RegisterData::Place &RegisterData::place(const Node &owner)
{
    if (m_isFixed)
        return m_place;
    length(owner);
    if (m_place.addressIn != owner.map().evaluation()) {
        m_place.address = computeAddress(owner);
        m_place.addressIn = owner.map().evaluation();
    }
    const auto isConstant = [](const AddressTerm &term) { return !term.value.node() && !term.offset.node(); };
    m_isFixed = !m_length.node() && std::all_of(m_addressTerms.begin(), m_addressTerms.end(), isConstant);
    return m_place;
}

int64_t RegisterData::computeAddress(const Node &owner)
{
    int64_t sum = 0;
    bool overflow = false;
    for (const AddressTerm &term : m_addressTerms) {
        int64_t value = term.value.value();
        if (term.isIndex) {
            const int64_t offset = term.offset.isSet() ? term.offset.value() : length(owner);
            overflow |= __builtin_mul_overflow(value, offset, &value);
        }
        overflow |= __builtin_add_overflow(sum, value, &sum);
    }
    int64_t last = 0;
    if (overflow || __builtin_add_overflow(sum, length(owner) - 1, &last))
        throwProperty(owner, "its address overflows");
    return sum;
}

void RegisterData::requirePort(const Node &owner) const
{
    if (!m_port)
        throwProperty(owner, "it has no port");
    if (!m_port->isConnected())
        owner.throwNoAccess("available, nor is its port");
}

/** Registers seldom move: the port need not look for the range each time. */
PortNode::Kept &RegisterData::kept(const PortNode::Range &range)
{
    if (m_keptEpoch != m_port->keptEpoch() || !(m_kept->first == range)) {
        m_kept = &m_port->kept(range);
        m_keptEpoch = m_port->keptEpoch();
    }
    return m_kept->second;
}

void RegisterData::drop(const PortNode::Range &range)
{
    if (m_keptEpoch == m_port->keptEpoch() && m_kept->first == range)
        m_kept->second.reset();
    else
        m_port->drop(range);
}

std::string RegisterData::read(Node &owner, bool ignoreCache)
{
    requirePort(owner);
    const Place at = place(owner);
    const PortNode::Range range{at.address, at.length};
    const bool isKept = owner.cachingMode() != NoCache;
    if (!ignoreCache && isKept && kept(range))
        return *kept(range);
    drop(range);
    std::string bytes(static_cast<std::size_t>(at.length), '\0');
    m_port->read(bytes.data(), at.address, at.length);
    if (isKept && (!ignoreCache || owner.map().m_renewing))
        kept(range) = bytes;
    return bytes;
}

void RegisterData::write(Node &owner, std::string bytes, Changes &changes)
{
    requirePort(owner);
    const Place at = place(owner);
    const PortNode::Range range{at.address, at.length};
    drop(range);
    changes.add(owner); // before writing: when the port fails half-way, nothing that was kept can be trusted
    try {
        m_port->write(bytes.data(), at.address, static_cast<int64_t>(bytes.size()));
    } catch (...) {
        changes.notePortFailure();
        throw;
    }
    if (owner.cachingMode() == WriteThrough && static_cast<int64_t>(bytes.size()) == at.length)
        kept(range) = std::move(bytes);
}

void RegisterData::dropCache()
{
    if (m_port && m_place.addressIn != 0)
        drop({m_place.address, m_place.length});
}

/** A part of a register, from its start, is as good as the whole. */
void RegisterData::requireLength(const Node &owner, const void *buffer, int64_t length)
{
    if (!buffer || length < 0)
        ORV_THROW(InvalidArgumentException, std::string("register '") + owner.name() + "': no bytes");
    if (length > this->length(owner)) {
        ORV_THROW(OutOfRangeException,
                  std::string("register '") + owner.name() + "' has less than " + std::to_string(length) + " bytes");
    }
}

void RegisterData::get(Node &owner, uint8_t *buffer, int64_t length, bool ignoreCache)
{
    const std::string bytes = read(owner, ignoreCache);
    requireLength(owner, buffer, length);
    std::memcpy(buffer, bytes.data(), static_cast<std::size_t>(length));
}

void RegisterData::set(Node &owner, const uint8_t *buffer, int64_t length, Changes &changes)
{
    requireLength(owner, buffer, length);
    write(owner, std::string(reinterpret_cast<const char *>(buffer), static_cast<std::size_t>(length)), changes);
}

IntRegisterNode::Bits IntRegisterNode::bits()
{
    const int64_t length = m_register.length(*this);
    if (length > 8)
        throwProperty(*this, "an integer has at most 8 bytes, not " + std::to_string(length));
    const auto width = static_cast<int>(length * 8);
    if (m_lsb < 0)
        return {0, static_cast<unsigned>(width)};
    if (std::max(m_lsb, m_msb) >= width)
        throwProperty(*this, "bit " + std::to_string(std::max(m_lsb, m_msb)) + " is outside the register");
    // In a big-endian register bit 0 is the most significant one.
    const int first = m_register.isBigEndian() ? width - 1 - m_lsb : m_lsb;
    const int last = m_register.isBigEndian() ? width - 1 - m_msb : m_msb;
    return {static_cast<unsigned>(std::min(first, last)), static_cast<unsigned>(std::abs(last - first) + 1)};
}

uint64_t IntRegisterNode::rawOf(const std::string &bytes) const
{
    uint64_t raw = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        raw = raw << 8 | static_cast<uint8_t>(bytes[m_register.isBigEndian() ? i : bytes.size() - 1 - i]);
    return raw;
}

std::string IntRegisterNode::bytesOf(uint64_t raw, std::size_t length) const
{
    std::string bytes(length, '\0');
    for (std::size_t i = 0; i < length; ++i, raw >>= 8)
        bytes[m_register.isBigEndian() ? length - 1 - i : i] = static_cast<char>(raw & 255);
    return bytes;
}

int64_t IntRegisterNode::readInt(bool ignoreCache)
{
    const Bits field = bits();
    const uint64_t raw = rawOf(m_register.read(*this, ignoreCache)) >> field.lowest;
    if (field.count == 64)
        return static_cast<int64_t>(raw);
    const uint64_t sign = m_signed ? uint64_t(1) << (field.count - 1) : 0;
    const uint64_t value = raw & ((uint64_t(1) << field.count) - 1);
    return static_cast<int64_t>((value ^ sign) - sign);
}

void IntRegisterNode::writeInt(int64_t value, bool, Changes &changes)
{
    const Bits field = bits();
    const auto length = static_cast<std::size_t>(m_register.length(*this));
    uint64_t raw = static_cast<uint64_t>(value);
    if (m_lsb >= 0) { // also when it is all of them
        requireReadable(); // the other bits belong to other nodes
        const uint64_t mask = ((uint64_t(1) << field.count) - 1) << field.lowest;
        raw = (raw << field.lowest & mask) | (rawOf(m_register.read(*this, false)) & ~mask);
    }
    m_register.write(*this, bytesOf(raw, length), changes);
}

int64_t IntRegisterNode::intMin()
{
    const unsigned count = bits().count;
    return m_signed ? int64Min >> (64 - count) : 0;
}

int64_t IntRegisterNode::intMax()
{
    const unsigned count = bits().count;
    // An unsigned 64-bit register has a signed 64-bit interface.
    return m_signed || count == 64 ? int64Max >> (64 - count) : static_cast<int64_t>((uint64_t(1) << count) - 1);
}

double FloatRegisterNode::floatMax()
{
    return m_register.length(*this) == 4 ? std::numeric_limits<float>::max() : std::numeric_limits<double>::max();
}

double FloatRegisterNode::readFloat(bool ignoreCache)
{
    std::string bytes = m_register.read(*this, ignoreCache);
    if (m_register.isBigEndian())
        std::reverse(bytes.begin(), bytes.end());
    if (bytes.size() == sizeof(float)) {
        float value;
        std::memcpy(&value, bytes.data(), sizeof value);
        return value;
    }
    if (bytes.size() != sizeof(double))
        throwProperty(*this, "a floating-point number has 4 or 8 bytes, not " + std::to_string(bytes.size()));
    double value;
    std::memcpy(&value, bytes.data(), sizeof value);
    return value;
}

void FloatRegisterNode::writeFloat(double value, bool, Changes &changes)
{
    const auto length = static_cast<std::size_t>(m_register.length(*this));
    std::string bytes(length, '\0');
    if (length == sizeof(float)) {
        constexpr double limit = std::numeric_limits<float>::max();
        const float narrow = static_cast<float>(std::isfinite(value) ? std::clamp(value, -limit, limit) : value);
        std::memcpy(bytes.data(), &narrow, sizeof narrow);
    } else if (length == sizeof(double)) {
        std::memcpy(bytes.data(), &value, sizeof value);
    } else {
        throwProperty(*this, "a floating-point number has 4 or 8 bytes, not " + std::to_string(length));
    }
    if (m_register.isBigEndian())
        std::reverse(bytes.begin(), bytes.end());
    m_register.write(*this, std::move(bytes), changes);
}

void StringBase::SetValue(const gcstring &Value, bool Verify)
{
    change("SetValue", [&](Changes &changes) { setText(Value.c_str(), Verify, changes); });
}

gcstring StringBase::GetValue(bool Verify, bool IgnoreCache)
{
    const Entry entry(*this, "GetValue");
    FreshReading reading(*this, IgnoreCache);
    requireReadable(reading);
    const Verification verification(m_map, Verify);
    const std::string value = text(IgnoreCache);
    if (Verify)
        checkError();
    return gcstring(value);
}

int64_t StringBase::GetMaxLength(bool Verify)
{
    (void)Verify;
    const Entry entry(*this, "GetMaxLength");
    return maximumTextLength();
}

std::string StringNode::text(bool ignoreCache)
{
    if (!m_node)
        return m_text;
    m_node->requireReadable(ignoreCache);
    return m_node->text(ignoreCache);
}

void StringNode::setText(const std::string &text, bool verify, Changes &changes)
{
    requireWritable(verify);
    if (m_node) {
        m_node->setText(text, verify, changes);
    } else {
        m_text = text;
        changes.add(*this);
    }
    if (verify)
        checkError();
}

int64_t StringNode::maximumTextLength()
{
    constexpr int64_t unlimited = 0x3FFFFFFC;
    if (!isWritable(accessMode()))
        return static_cast<int64_t>(text(false).size());
    return m_node ? m_node->maximumTextLength() : unlimited;
}

std::string StringRegisterNode::text(bool ignoreCache)
{
    const std::string bytes = m_register.read(*this, ignoreCache);
    return bytes.substr(0, bytes.find('\0'));
}

int64_t StringRegisterNode::maximumTextLength()
{
    // Nothing longer than what it holds is ever in a text that cannot be written.
    if (isWritable(accessMode()))
        return m_register.length(*this);
    requireReadable();
    return static_cast<int64_t>(text(false).size());
}

void StringRegisterNode::setText(const std::string &text, bool verify, Changes &changes)
{
    requireWritable(verify);
    const auto length = static_cast<std::size_t>(m_register.length(*this));
    if (text.size() > length) {
        ORV_THROW(OutOfRangeException,
                  std::string("node '") + name() + "': the text has more than " + std::to_string(length) + " bytes");
    }
    std::string bytes = text;
    bytes.resize(length, '\0');
    m_register.write(*this, std::move(bytes), changes);
}

std::string RegisterNode::text(bool ignoreCache)
{
    constexpr char digits[] = "0123456789abcdef";
    std::string text = "0x";
    for (const char byte : m_register.read(*this, ignoreCache)) {
        text += digits[static_cast<uint8_t>(byte) >> 4];
        text += digits[static_cast<uint8_t>(byte) & 15];
    }
    return text;
}

void RegisterNode::setText(const std::string &text, bool verify, Changes &changes)
{
    std::string_view digits = trimmed(text);
    if (digits.substr(0, 2) == "0x" || digits.substr(0, 2) == "0X")
        digits.remove_prefix(2);
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        const std::optional<int64_t> byte = readInteger("0x" + std::string(digits.substr(i, 2)), HexNumber);
        if (!byte)
            break;
        bytes += static_cast<char>(*byte);
    }
    if (bytes.empty() || bytes.size() * 2 != digits.size())
        ORV_THROW(InvalidArgumentException, std::string("node '") + name() + "': not the bytes of a register");
    requireWritable(verify);
    bytes.resize(std::min(bytes.size(), static_cast<std::size_t>(m_register.length(*this))));
    m_register.write(*this, std::move(bytes), changes);
}

} // namespace OrvGenApi
