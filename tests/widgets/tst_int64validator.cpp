#include <OrvCameraGuiApi/widgets/int64validator.h>

#include <orvtest.h>

#include <limits>

namespace {

constexpr long long Smallest = std::numeric_limits<long long>::min();
constexpr long long Largest = std::numeric_limits<long long>::max();
constexpr auto Acceptable = QValidator::Acceptable;
constexpr auto Intermediate = QValidator::Intermediate;
constexpr auto Invalid = QValidator::Invalid;

} // namespace

class tst_Int64Validator : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void judges_data();
    void judges();
    void readsItsLocale();
    void announcesBounds();
    void keepsBaseThatCannotBeUsed();
};

void tst_Int64Validator::judges_data()
{
    QTest::addColumn<long long>("bottom");
    QTest::addColumn<long long>("top");
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");

    const auto row = [](long long bottom, long long top, int base, const char *text, QValidator::State state) {
        QTest::addRow("%lld..%lld base %d: \"%s\"", bottom, top, base, text)
            << bottom << top << base << QString::fromLatin1(text) << int(state);
    };
    row(10, 100, 10, "", Intermediate);
    row(10, 100, 10, "5", Intermediate);
    row(10, 100, 10, "-", Invalid);
    row(10, 100, 10, "-5", Invalid);
    row(10, 100, 10, "10", Acceptable);
    row(10, 100, 10, "100", Acceptable);
    row(10, 100, 10, "101", Invalid);
    row(-10, 100, 10, "-", Intermediate);
    row(-10, 100, 10, "-10", Acceptable);
    row(-10, 100, 10, "-11", Invalid);
    row(-10, 100, 10, "101", Invalid);
    row(-100, -10, 10, "-5", Intermediate);
    row(-100, -10, 10, "100", Intermediate);
    row(-100, -10, 10, "101", Invalid);
    row(-100, -10, 10, "-10", Acceptable);
    row(-100, -10, 10, "-101", Invalid);
    row(100, 10, 10, "50", Intermediate); // exchanged bounds: nothing is in the range
    row(100, 10, 10, "100", Invalid);
    row(-10, -100, 10, "-50", Intermediate);
    row(Smallest, -1, 10, "9223372036854775807", Intermediate);
    row(Smallest, Largest, 10, "-9223372036854775808", Acceptable);
    row(Smallest, Largest, 10, "9223372036854775808", Invalid);
    row(Smallest, Largest, 10, "ff", Invalid);
    row(Smallest, Largest, 10, "1e3", Invalid);
    row(Smallest, Largest, 16, "-ff", Acceptable);
    row(Smallest, Largest, 16, "-8000000000000000", Acceptable);
    row(Smallest, Largest, 16, "1,000", Invalid);
    row(Smallest, Largest, 2, "12", Invalid);
}

void tst_Int64Validator::judges()
{
    QFETCH(long long, bottom);
    QFETCH(long long, top);
    QFETCH(int, base);
    QFETCH(QString, text);
    Int64Validator validator(bottom, top);
    validator.setBase(base);
    int pos = 0;
    QTEST(int(validator.validate(text, pos)), "state");
}

void tst_Int64Validator::readsItsLocale()
{
    Int64Validator validator;
    QLocale german(QLocale::German);
    validator.setLocale(german);
    QCOMPARE(validator.toInt64(QStringLiteral("1.234.567")), 1234567);
    QCOMPARE(validator.toInt64(QStringLiteral("-1.23")), -123); // being edited

    german.setNumberOptions(QLocale::OmitGroupSeparator);
    validator.setLocale(german);
    bool ok = true;
    QCOMPARE(validator.toInt64(QStringLiteral("1.5"), &ok), 0); // no decimal fraction to be taken for 15
    QVERIFY(!ok);

    const QLocale swedish(QLocale::Swedish); // a minus sign of its own
    validator.setLocale(swedish);
    QString minus(swedish.negativeSign());
    QVERIFY(minus != QLatin1String("-"));
    int pos = 0;
    QCOMPARE(validator.validate(minus, pos), Intermediate);
    QCOMPARE(validator.toInt64(swedish.toString(-7)), -7);
    QCOMPARE(validator.toInt64(QStringLiteral("-7")), -7);
}

void tst_Int64Validator::announcesBounds()
{
    Int64Validator validator(0, 99);
    QStringList announced;
    connect(&validator, &Int64Validator::bottomChanged, &validator,
            [&](long long bottom) { announced.append(QStringLiteral("bottom %1").arg(bottom)); });
    connect(&validator, &Int64Validator::topChanged, &validator,
            [&](long long top) { announced.append(QStringLiteral("top %1").arg(top)); });
    validator.setRange(Smallest, 5);
    validator.setRange(Smallest, 5);
    validator.setProperty("top", Largest);
    const QStringList expected{QStringLiteral("bottom -9223372036854775808"), QStringLiteral("top 5"),
                               QStringLiteral("top 9223372036854775807")};
    QCOMPARE(announced, expected);
}

void tst_Int64Validator::keepsBaseThatCannotBeUsed()
{
    Int64Validator validator;
    validator.setBase(16);
    for (const int base : {std::numeric_limits<int>::min(), -2, 0, 1, 37}) {
        validator.setBase(base);
        QCOMPARE(validator.base(), 16);
    }
    validator.setBase(36);
    QCOMPARE(validator.toInt64(QStringLiteral("z")), 35);
}

ORV_TEST_MAIN(tst_Int64Validator)

#include "tst_int64validator.moc"
