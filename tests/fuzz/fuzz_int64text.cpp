// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Integer text in a base within a range. An input is: base, two bounds of 8 bytes, the text.

#include "fuzzer.h"

#include <OrvCameraGuiApi/widgets/int64validator.h>

#include <cstring>
#include <optional>
#include <string>

namespace {

constexpr std::size_t HeadSize = 1 + 2 * sizeof(qint64);

/** The integer that plain ASCII text is, with a sign at most and no white space; in 128 bits, so that nothing wraps. */
std::optional<qint64> plainNumber(const std::string &text, int base)
{
    std::size_t i = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    if (i == text.size() || text.size() > 70)
        return std::nullopt;
    __int128 number = 0;
    for (; i < text.size(); ++i) {
        const char c = text[i];
        const int digit = c >= '0' && c <= '9' ? c - '0' : c >= 'a' && c <= 'z' ? c - 'a' + 10 : base;
        if (digit >= base)
            return std::nullopt;
        number = number * base + digit;
        if (number > __int128(1) << 64)
            return std::nullopt;
    }
    if (text[0] == '-')
        number = -number;
    return number == qint64(number) ? std::optional<qint64>(qint64(number)) : std::nullopt;
}

} // namespace

int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    if (size < HeadSize)
        return 0;
    static Int64Validator validator;
    validator.setBase(int(data[0]));
    const int base = validator.base();
    FUZZ_REQUIRE(base >= 2 && base <= 36);
    qint64 bottom = 0;
    qint64 top = 0;
    std::memcpy(&bottom, data + 1, sizeof bottom);
    std::memcpy(&top, data + 1 + sizeof bottom, sizeof top);
    validator.setRange(bottom, top);

    const std::string bytes(reinterpret_cast<const char *>(data) + HeadSize, size - HeadSize);
    const QString text = QString::fromUtf8(bytes.data(), int(bytes.size()));
    QString input = text;
    int pos = 3;
    const QValidator::State verdict = validator.validate(input, pos);
    FUZZ_REQUIRE(input == text && pos == 3);

    bool isNumber = false;
    const qint64 number = validator.toInt64(text, &isNumber);
    FUZZ_REQUIRE(isNumber || number == 0);
    FUZZ_REQUIRE((verdict == QValidator::Acceptable) == (isNumber && bottom <= number && number <= top));
    if (const std::optional<qint64> plain = plainNumber(bytes, base))
        FUZZ_REQUIRE(isNumber && number == *plain);
    FUZZ_REQUIRE(!text.isEmpty() || verdict == QValidator::Intermediate);
    return 0;
}
