// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include <OrvCameraGuiApi/widgets/int64validator.h>

#include <orvtest.h>

#include <limits>

namespace {

constexpr long long Smallest = std::numeric_limits<long long>::min();
constexpr long long Largest = std::numeric_limits<long long>::max();

} // namespace

class tst_Int64Validator : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void judges()
    {
        const struct
        {
            long long bottom, top;
            int base;
            const char *texts[3]; ///< for each QValidator::State in turn
        } rows[] = {
            {10, 100, 10, {"- -5 101 500 x 1e1", "5 0", "10 50 100"}},
            {-10, 100, 10, {"-11 101", "-", "-10 0 100"}},
            {-100, -10, 10, {"-101 101", "- -5 0 100", "-100 -10"}},
            {100, 10, 10, {"100 -", "50", ""}}, // exchanged bounds: nothing is in the range
            {-10, -100, 10, {"-100 11", "- -50", ""}},
            {Smallest, -1, 10, {"9223372036854775808", "- 9223372036854775807", "-9223372036854775808"}},
            {Smallest, Largest, 16, {"1,000 8000000000000000 g", "-", "-ff -8000000000000000 7FFFFFFFFFFFFFFF"}},
        };
        for (const auto &row : rows) {
            Int64Validator validator(row.bottom, row.top);
            validator.setBase(row.base);
            validator.setBase(1); // cannot be used
            validator.setBase(37);
            int pos = 0;
            QString none;
            QCOMPARE(validator.validate(none, pos), QValidator::Intermediate);
            for (const int state : {QValidator::Invalid, QValidator::Intermediate, QValidator::Acceptable}) {
                for (QString text : QString::fromLatin1(row.texts[state]).split(QLatin1Char(' '), Qt::SkipEmptyParts))
                    QVERIFY2(validator.validate(text, pos) == state, qPrintable(text));
            }
        }
    }

    void readsItsLocale()
    {
        Int64Validator validator;
        QLocale german(QLocale::German);
        german.setNumberOptions(QLocale::OmitGroupSeparator);
        validator.setLocale(german);
        bool ok = true;
        QCOMPARE(validator.toInt64(QStringLiteral("1.5"), &ok), 0); // no decimal fraction to be taken for 15
        QVERIFY(!ok);

        validator.setLocale(QLocale(QLocale::German)); // writes groups, yet a single separator may be a decimal sign
        QCOMPARE(validator.toInt64(QStringLiteral("-1.234.56")), -123456); // being edited
        QCOMPARE(validator.toInt64(QStringLiteral("1.234")), 1234);
        int pos = 0;
        for (const char *const text : {"1.5", ".5", "1234.56"}) {
            QVERIFY(validator.toInt64(QLatin1String(text), &ok) == 0 && !ok);
            QString typed = QLatin1String(text);
            QCOMPARE(validator.validate(typed, pos), QValidator::Intermediate);
        }

        // A minus sign of its own; with Qt 6 also marks of the direction around it, each of which may be deleted.
        for (const char *const name : {"sv_SE", "fa_IR", "ks_IN"}) {
            validator.setLocale(QLocale(QLatin1String(name)));
            for (QString minus(validator.locale().negativeSign()); !minus.isEmpty(); minus.remove(0, 1)) {
                QCOMPARE(validator.validate(minus, pos), QValidator::Intermediate);
                QCOMPARE(qAbs(validator.toInt64(minus + QLatin1Char('7'))), 7);
            }
            const QString minus(validator.locale().negativeSign());
            QCOMPARE(validator.toInt64(minus + QLatin1Char('7')), -7);
        }
    }
};

ORV_TEST_MAIN(tst_Int64Validator)

#include "tst_int64validator.moc"
