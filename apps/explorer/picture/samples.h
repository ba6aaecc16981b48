// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#pragma once

#include <QtGlobal>

#include <algorithm>

/** How the samples of a picture lie in its bytes. */
enum class Packing {
    Bytes, ///< one each
    Words, ///< in the low end of two bytes, the lower one first
    Bits, ///< without gaps, from the low end of the first byte: the formats with a "p"
    Pairs ///< two in three bytes, the middle one with the low bits of both: GigE Vision's "Packed"
};

/**
 * Writes \a count samples of \a data from number \a first on, in the whole range of \a Sample: 8 or 16 bits. An
 * unsigned gets them as they are. Reads no byte that none of them has a part in.
 */
template <typename Sample>
using Unpacker = void (*)(const uchar *data, quint64 first, int count, Sample *out);

namespace Unpacking {

/** Groups of samples that begin and end with a byte; at() reads the bytes of one sample only. */
struct ByteGroup
{
    static constexpr int bits = 8, samples = 1, bytes = 1;
    static unsigned at(const uchar *group, int) { return *group; }
};

template <int bitsOfSample>
struct WordGroup
{
    static constexpr int bits = bitsOfSample, samples = 1, bytes = 2;
    static unsigned at(const uchar *group, int) { return unsigned(group[0]) | unsigned(group[1]) << 8; }
};

template <int bitsOfSample>
struct BitGroup
{
    static constexpr int bits = bitsOfSample, samples = 8 / (bits - 8), bytes = bits / (bits - 8);
    static unsigned at(const uchar *group, int i)
    {
        const int bit = i * bits;
        const unsigned both = unsigned(group[bit / 8]) | unsigned(group[bit / 8 + 1]) << 8;
        return both >> bit % 8 & ((1U << bits) - 1);
    }
};

template <int bitsOfSample>
struct PairGroup
{
    static constexpr int bits = bitsOfSample, samples = 2, bytes = 3;
    static unsigned at(const uchar *group, int i)
    {
        const unsigned low = unsigned(group[1]) >> i * 4 & ((1U << (bits - 8)) - 1);
        return unsigned(group[i * 2]) << (bits - 8) | low;
    }
};

template <typename Sample, int bits>
Sample scaled(unsigned value)
{
    if constexpr (sizeof(Sample) > 2)
        return value;
    value = std::min(value, (1U << bits) - 1);
    if constexpr (sizeof(Sample) == 1)
        return Sample(value >> (bits - 8));
    else
        return Sample(value << (16 - bits) | value >> (2 * bits - 16));
}

template <typename Group, typename Sample>
void unpack(const uchar *data, quint64 first, int count, Sample *out)
{
    const uchar *group = data + first / Group::samples * Group::bytes;
    Sample *const end = out + count;
    const auto sample = [&group](int i) { return scaled<Sample, Group::bits>(Group::at(group, i)); };
    if (const int begun = int(first % Group::samples)) {
        for (int i = begun; i < Group::samples && out < end; ++i)
            *out++ = sample(i);
        group += Group::bytes;
    }
    for (; end - out >= Group::samples; out += Group::samples, group += Group::bytes) {
        for (int i = 0; i < Group::samples; ++i)
            out[i] = sample(i);
    }
    for (int i = 0; out < end; ++i)
        *out++ = sample(i);
}

template <template <int> class Group, typename Sample>
Unpacker<Sample> packed(int bits)
{
    return bits == 10 ? unpack<Group<10>, Sample> : unpack<Group<12>, Sample>;
}

} // namespace Unpacking

/** \a bits: of a sample. */
template <typename Sample>
Unpacker<Sample> unpackerOf(Packing packing, int bits)
{
    using namespace Unpacking;
    switch (packing) {
    case Packing::Words:
        return bits == 16 ? unpack<WordGroup<16>, Sample> : packed<WordGroup, Sample>(bits);
    case Packing::Bits:
        return packed<BitGroup, Sample>(bits);
    case Packing::Pairs:
        return packed<PairGroup, Sample>(bits);
    case Packing::Bytes:
        break;
    }
    return unpack<ByteGroup, Sample>;
}
