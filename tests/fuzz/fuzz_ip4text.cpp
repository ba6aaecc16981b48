// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// IPv4 text: the verdict and the address against a reading of the text by other means.

#include "fuzzer.h"

#include <OrvCameraGuiApi/addresses/ip4validator.h>

#include <QRegularExpression>

int LLVMFuzzerInitialize(int *, char ***)
{
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    static const IP4Validator validator;
    static const QRegularExpression address(
        QStringLiteral("\\A\\s*\\+?0*(\\d{1,3})\\s*\\.\\s*\\+?0*(\\d{1,3})\\s*\\.\\s*\\+?0*(\\d{1,3})\\s*\\."
                       "\\s*\\+?0*(\\d{1,3})\\s*\\z"),
        QRegularExpression::UseUnicodePropertiesOption);

    const QString text = QString::fromLatin1(reinterpret_cast<const char *>(data), int(size));
    QString input = text;
    int pos = 3;
    const QValidator::State verdict = validator.validate(input, pos);
    FUZZ_REQUIRE(input == text && pos == 3);

    bool isAddress = text.isEmpty();
    unsigned int expected = 0;
    const QRegularExpressionMatch match = address.match(text);
    if (match.hasMatch()) {
        isAddress = true;
        for (int i = 1; i <= 4; ++i) {
            const unsigned int octet = match.captured(i).toUInt();
            isAddress = isAddress && octet <= 255;
            expected = expected * 256 + octet;
        }
    }
    FUZZ_REQUIRE((verdict == QValidator::Acceptable) == isAddress);
    const unsigned int read = IP4Validator::getIp(text);
    FUZZ_REQUIRE(!isAddress || read == expected);

    const QString canonical = IP4Validator::getIpStr(read);
    FUZZ_REQUIRE(IP4Validator::getIp(canonical) == read);
    input = canonical;
    FUZZ_REQUIRE(validator.validate(input, pos) == QValidator::Acceptable);
    // Whoever types an address from left to right is never told that it is wrong.
    if (verdict == QValidator::Acceptable) {
        for (int length = 0; length < text.size(); ++length) {
            input = text.left(length);
            FUZZ_REQUIRE(validator.validate(input, pos) != QValidator::Invalid
                         || input.trimmed().endsWith(QLatin1Char('+')));
        }
    }
    return 0;
}
