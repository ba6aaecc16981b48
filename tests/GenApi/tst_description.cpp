// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "session.h"

#include <orvtest.h>

using namespace GenApi;
using OrvGenApi::NodeMap;

namespace {

/** The message with which loading \a xml fails; empty when it does not fail. */
QByteArray failure(const QByteArray &xml)
{
    try {
        NodeMap::fromString(xml.toStdString(), "camera.xml");
    } catch (const GenICam::GenericException &error) {
        return error.GetDescription();
    }
    return {};
}

} // namespace

/** Descriptions that cannot be used, and such as only look as if reading them ended some day. */
class tst_Description : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void refuses()
    {
        const auto refused = [](const QByteArray &xml, const QByteArray &message) {
            const QByteArray actual = failure(xml);
            QVERIFY2(actual.isEmpty() == message.isEmpty() && actual.startsWith(message), message + ", not: " + actual);
        };
        const auto row = [&](const QByteArray &nodes, const char *message) {
            refused("<RegisterDescription>\n<Node Name='First'/>\n" + nodes + "\n</RegisterDescription>", message);
        };
        refused("", "camera.xml:1: no well-formed XML");
        refused("\n\n<a><b></a>", "camera.xml:3: no well-formed XML");
        refused("\n<Camera/>", "camera.xml:2: no GenICam description");
        row("<Integer/>", "camera.xml:3: a node of kind 'Integer' has no name");
        row("<Integer Name='N'><Value>1</Value></Integer>\n<Float Name='N'/>", "camera.xml:4: there are two nodes 'N'");
        row("<Integer Name='N'>\n<Value>one</Value></Integer>", "camera.xml:4: Value: 'one' is no integer");
        row("<Integer Name='N'><Max>0x10000000000000000</Max></Integer>", "camera.xml:3: Max: ");
        row("<Boolean Name='N'><Value>1</Value><OnValue>3</OnValue><OffValue>3</OffValue></Boolean>",
            "camera.xml:3: boolean 'N' has the same on and off value");
        row("<Integer Name='A'><Value>1</Value><pSelected>B</pSelected></Integer>"
            "<Integer Name='B'><Value>1</Value><pSelected>A</pSelected></Integer>",
            "camera.xml:3: the selectors go round in a circle: A -> B -> A");
        row("<Integer Name='A'><Value>1</Value><pMax>B</pMax><pSelected>C</pSelected></Integer>"
            "<Integer Name='B'><pValue>C</pValue></Integer><Integer Name='C'><Value>1</Value></Integer>",
            "camera.xml:3: the selectors go round in a circle: A -> A");
        row("<SwissKnife Name='N'><Formula>(1 + </Formula></SwissKnife>"
            "<Converter Name='M'><FormulaTo>FROM</FormulaTo><FormulaFrom>FROM</FormulaFrom></Converter>",
            "");
        row("<Enumeration Name='S'><EnumEntry Name='A'><Value>0</Value><pIsImplemented>V</pIsImplemented></EnumEntry>"
            "<Value>0</Value><pSelected>V</pSelected></Enumeration>"
            "<IntSwissKnife Name='V'><pVariable Name='A'>S</pVariable><Formula>A + 1</Formula></IntSwissKnife>",
            "");

        row("<MaskedIntReg Name='N'><Bit>64</Bit></MaskedIntReg>", "camera.xml:3: there is no bit 64");
        row("<Enumeration Name='E'><EnumEntry Name='A'/></Enumeration>", "camera.xml:3: entry 'A' has no value");
        row("<SwissKnife Name='N'><pVariable Name='A.Top'>N</pVariable><Formula>1</Formula></SwissKnife>",
            "camera.xml:3: no such property of a variable: 'Top'");
        row("<Integer Name='N'><pValue>N</pValue></Integer>", "camera.xml:3: the links go round in a circle: N -> N");
        row("<Integer Name='A'><pValue>B</pValue></Integer>\n<Boolean "
            "Name='B'><pIsLocked>C</pIsLocked><Value>1</Value></Boolean>"
            "<IntReg Name='C'><pAddress>A</pAddress></IntReg>",
            "camera.xml:3: the links go round in a circle: A -> B -> C -> A");
        row("<Integer Name='A'><Value>1</Value><pInvalidator>B</pInvalidator></Integer>"
            "<Integer Name='B'><pValue>A</pValue></Integer>",
            "");
        row(QByteArray("<Group>").repeated(200) + QByteArray("</Group>").repeated(200),
            "camera.xml:3: groups stand in groups too deeply");
    }

    void costDoesNotDouble()
    {
        // At 2**40 steps it would not come back.
        const auto row = [](const char *what, const QByteArray &level, const char *script, const char *answers) {
            QByteArray nodes = node("Integer", "N40", "<Value>1</Value><Min>0</Min><Max>9</Max>")
                + node("Integer", "Z", "<Value>0</Value>") + node("Integer", "Four", "<Value>4</Value>");
            for (int i = 0; i < 40; ++i) {
                QByteArray text = level;
                nodes += text.replace('#', "N" + QByteArray::number(i + 1)).replace('@', "N" + QByteArray::number(i));
            }
            check(what, nodes, script, answers);
        };
        // Every level ("@") refers twice to the next ("#").
        row("formulas",
            "<SwissKnife Name='@'><pVariable Name='A'>#</pVariable><pVariable Name='B'>#</pVariable><Formula>A / 2 + B "
            "/ "
            "2</Formula></SwissKnife>",
            "N0 N0* N0?", "1 1 RO");
        row("converters",
            "<Converter "
            "Name='@_'><FormulaTo>FROM</FormulaTo><FormulaFrom>TO</FormulaFrom><pValue>#</pValue></Converter>"
            "<Integer Name='@'><pValue>@_</pValue></Integer>",
            "N0: N0=1 N0*", "1 0..9/1 ok 1");
        row("limits", "<Integer Name='@'><pValue>#</pValue><pMin>Z</pMin><pMax>#</pMax></Integer>", "N0: N0=1 N0=0",
            "1 0..1/1 ok ok");
        row("conditions",
            "<Integer "
            "Name='@'><pValue>#</pValue><pIsAvailable>#</pIsAvailable><pIsLocked>Z</pIsLocked><pIsImplemented>#</"
            "pIsImplemented></Integer>",
            "N0? N0=1 N0", "RW ok 1");
        row("indices",
            "<Integer Name='@'><pIndex>#</pIndex><pValueIndexed "
            "Index='1'>#</pValueIndexed><pValueDefault>#</pValueDefault></Integer>",
            "N0: N0& N0? N0=1 N0*", "1 0..9/1 kept RW ok 1");
        row("addresses",
            reg("IntReg", "@", "1", "<pAddress>#</pAddress><pIndex pOffset='#'>#</pIndex><pLength>Four</pLength>"),
            "N0 N0* N0& N0=1 N0-", "0 0 unknown ok ok");
        row("copies", "<Integer Name='@'><pValue>#</pValue><pValueCopy>#</pValueCopy></Integer>", "N0=1 N0:=0 N0",
            "!Runtime !Runtime 0");
        row("categories", "<Category Name='@'><pFeature>#</pFeature><pFeature>#</pFeature></Category>", "N0?", "RO");
    }

    void limitsTheDepthOfLinks()
    {
        const auto chain = [](int length) {
            QByteArray nodes = node("Integer", "N0", "<Value>1</Value><Min>0</Min><Max>9</Max>");
            for (int i = 1; i < length; ++i) {
                nodes += node("Converter", "N" + QByteArray::number(i),
                              "<FormulaTo>FROM</FormulaTo><FormulaFrom>TO</FormulaFrom><pValue>N"
                                  + QByteArray::number(i - 1) + "</pValue>");
            }
            return nodes;
        };
        Session session(chain(300));
        QCOMPARE(session.run("N299: N299=2 N299* N299=10 N0"), QByteArray("1 0..9 ok 2 !OutOfRange 2"));
        Session deep(chain(20000));
        QCOMPARE(deep.run("N19999: N19999=2 N19999? N100"), QByteArray("!Runtime !Runtime RW 1"));
    }

    void entersCategoriesOfAnyDepth()
    {
        QByteArray nodes;
        for (int i = 0; i < 50000; ++i) {
            const QByteArray next = QByteArray::number(i + 1);
            nodes += "<Category Name='C" + QByteArray::number(i) + "'><pFeature>C" + next + "</pFeature></Category>";
        }
        Session session(nodes + node("Category", "C50000", "<pFeature>N</pFeature>")
                        + node("Integer", "N", "<Value>1</Value>"));
        QCOMPARE(session.run("C0? N=2"), QByteArray("RO ok"));
    }
};

ORV_PLAIN_TEST_MAIN(tst_Description)
#include "tst_description.moc"
