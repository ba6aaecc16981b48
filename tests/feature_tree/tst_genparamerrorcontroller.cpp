#include <OrvCameraGuiApi/feature_tree/genparamerrorcontroller.h>

#include "orvtest.h"

class TestGenParamErrorController : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsANameWhileItHasErrors();
    void listsInOrder();
};

void TestGenParamErrorController::keepsANameWhileItHasErrors()
{
    const QString name = QStringLiteral("Gain");
    GenParamErrorController errors;
    errors.SetError(name, QStringLiteral("written"), 256);
    QVERIFY(errors.SetError(name, QStringLiteral("read"), 0));
    QVERIFY(!errors.SetError(name, QStringLiteral("again"), 0));
    QCOMPARE(errors.firstMessage(name), QStringLiteral("read"));
    QVERIFY(!errors.ClearError(name, 2));
    QVERIFY(!errors.ClearError(QStringLiteral("Other"), 0));
    QVERIFY(errors.ClearError(name, 0));
    QVERIFY(!errors.ClearError(name, 0));
    QVERIFY(errors.hasError(name));
    QCOMPARE(errors.firstMessage(name), QStringLiteral("written"));
    QVERIFY(errors.ClearError(name, 256));
    QVERIFY(!errors.hasError(name));
    QVERIFY(!errors.hasErrors());
}

void TestGenParamErrorController::listsInOrder()
{
    GenParamErrorController errors;
    QCOMPARE(errors.GetErrorInfo(), QString());
    errors.SetError(QStringLiteral("Width"), QStringLiteral("out of %3 range %1"), 256);
    errors.SetError(QStringLiteral("Width"), QStringLiteral("none"), 9);
    errors.SetError(QStringLiteral("Gain"), QString(), 0);
    QCOMPARE(errors.GetErrorInfo(),
             QStringLiteral("{Gain}{id:0}:  \n{Width}{id:9}: none \n{Width}{id:256}: out of %3 range %1 \n"));
}

ORV_TEST_MAIN(TestGenParamErrorController)

#include "tst_genparamerrorcontroller.moc"
