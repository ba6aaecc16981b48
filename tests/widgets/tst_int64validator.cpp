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
    void judges_data()
    {
        QTest::addColumn<long long>("bottom");
        QTest::addColumn<long long>("top");
        QTest::addColumn<int>("base");
        QTest::addColumn<QString>("acceptable");
        QTest::addColumn<QString>("intermediate");
        QTest::addColumn<QString>("invalid");
        const auto row = [](long long bottom, long long top, int base, const char *acceptable, const char *intermediate,
                            const char *invalid) {
            QTest::addRow("%lld to %lld, base %d", bottom, top, base)
                << bottom << top << base << QString::fromLatin1(acceptable) << QString::fromLatin1(intermediate)
                << QString::fromLatin1(invalid);
        };
        row(10, 100, 10, "10 50 100", "5 0", "- -5 101 500 x 1e1");
        row(-10, 100, 10, "-10 0 100", "-", "-11 101");
        row(-100, -10, 10, "-100 -10", "- -5 0 100", "-101 101");
        row(100, 10, 10, "", "50", "100 -"); // exchanged bounds: nothing is in the range
        row(-10, -100, 10, "", "- -50", "-100 11");
        row(Smallest, -1, 10, "-9223372036854775808", "- 9223372036854775807", "9223372036854775808");
        row(Smallest, Largest, 16, "-ff -8000000000000000 7FFFFFFFFFFFFFFF", "-", "1,000 8000000000000000 g");
    }
    void judges()
    {
        QFETCH(long long, bottom);
        QFETCH(long long, top);
        QFETCH(int, base);
        Int64Validator validator(bottom, top);
        validator.setBase(base);
        validator.setBase(1); // cannot be used
        validator.setBase(37);
        const auto verdict = [&validator](QString text) {
            int pos = 0;
            return validator.validate(text, pos);
        };
        QCOMPARE(verdict(QString()), QValidator::Intermediate);
        const char *const columns[] = {"invalid", "intermediate", "acceptable"}; // in the order of QValidator::State
        for (const int state : {QValidator::Invalid, QValidator::Intermediate, QValidator::Acceptable}) {
            const QString texts = *static_cast<QString *>(QTest::qData(columns[state], QMetaType::QString));
            for (const QString &text : texts.split(QLatin1Char(' '), Qt::SkipEmptyParts))
                QVERIFY2(verdict(text) == state, qPrintable(text));
        }
    }

    void readsItsLocale()
    {
        Int64Validator validator;
        QLocale german(QLocale::German);
        validator.setLocale(german);
        QCOMPARE(validator.toInt64(QStringLiteral("-1.234.56")), -123456); // being edited
        german.setNumberOptions(QLocale::OmitGroupSeparator);
        validator.setLocale(german);
        bool ok = true;
        QCOMPARE(validator.toInt64(QStringLiteral("1.5"), &ok), 0); // no decimal fraction to be taken for 15
        QVERIFY(!ok);

        validator.setLocale(
            QLocale(QLocale::German)); // writes groups, and yet one separator alone may be meant otherwise
        for (const char *const text : {"1.5", ".5", "1234.56"}) {
            QVERIFY(validator.toInt64(QLatin1String(text), &ok) == 0 && !ok);
            QString typed = QLatin1String(text);
            int cursor = 0;
            QCOMPARE(validator.validate(typed, cursor), QValidator::Intermediate);
        }
        QCOMPARE(validator.toInt64(QStringLiteral("1.234")), 1234);

        const QLocale swedish(QLocale::Swedish); // a minus sign of its own
        validator.setLocale(swedish);
        QString minus(swedish.negativeSign());
        int pos = 0;
        QCOMPARE(validator.validate(minus, pos), QValidator::Intermediate);
        QCOMPARE(validator.toInt64(minus + QLatin1Char('7')), -7);
    }
};

ORV_TEST_MAIN(tst_Int64Validator)

#include "tst_int64validator.moc"
