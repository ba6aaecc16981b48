// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "session.h"

#include <orvtest.h>

using namespace GenApi;

/** What may be done with a node, and who sees it. */
class tst_Access : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void access()
    {
        const QByteArray on = node("Boolean", "On", "<Value>1</Value>");
        const QByteArray writeOnly = reg("IntReg", "W", "0", "<AccessMode>WO</AccessMode>");
        const auto plain = [](const char *conditions) {
            return node("Integer", "N", QByteArray("<Value>7</Value><Min>0</Min>") + conditions);
        };
        check("locked: still to be read", on + plain("<pIsLocked>On</pIsLocked>"), "N? N=1 N:=2 N On=0 N? N=1",
              "RO !Access ok 2 ok RW ok");
        check("a locked write-only node",
              on + writeOnly
                  + node("Command", "C", "<pIsLocked>On</pIsLocked><pValue>W</pValue><CommandValue>1</CommandValue>"),
              "C? C! On=0 C? C! C", "NA !Access ok WO ok !Access");
        check("not available", on + plain("<pIsAvailable>On</pIsAvailable>"), "N? On=0 N? N N: N=1 On=1 N",
              "RW ok NA !Access !Access !Access ok 7");
        check("not implemented wins",
              on + plain("<pIsAvailable>Z</pIsAvailable><pIsImplemented>Z</pIsImplemented>")
                  + node("Integer", "Z", "<Value>0</Value>"),
              "N? Z=1 N?", "NI ok RW");
        check("what hangs on a condition that cannot be read is not available",
              writeOnly + plain("<pIsAvailable>W</pIsAvailable>")
                  + node("Integer", "M", "<Value>1</Value><pIsLocked>W</pIsLocked>"),
              "W=1 N? M? M=2 M:=2", "ok NA NA !Access ok");
        check("an enumeration is as available as its entries",
              on
                  + node("Enumeration", "E",
                         "<EnumEntry Name='A'><Value>0</Value><pIsAvailable>On</pIsAvailable></EnumEntry>"
                         "<EnumEntry "
                         "Name='B'><Value>1</Value><pIsImplemented>Z</pIsImplemented></EnumEntry><Value>0</Value>")
                  + node("Integer", "Z", "<Value>0</Value>"),
              "E? EnumEntry_E_A? EnumEntry_E_B? E=B On=0 E? Z=1 E? E=A E=B E",
              "RW RO NI !Access ok NA ok RW !Access ok B");
        check("all conditions count, and as much as they can be told",
              plain("<pIsImplemented>I</pIsImplemented><pIsAvailable>V</pIsAvailable><pIsLocked>L</pIsLocked>")
                  + node("Integer", "I", "<Value>1</Value><pIsAvailable>X</pIsAvailable>")
                  + node("Integer", "V", "<Value>1</Value>")
                  + node("Integer", "L", "<Value>0</Value><pIsImplemented>X</pIsImplemented>")
                  + node("Integer", "X", "<Value>1</Value>"),
              "N? L=1 N? V=0 N? X=0 N? N:=1 N:=x", "RW ok RO ok NA ok NI !Access !InvalidArgument");
        check("a condition that throws does so once",
              node("Boolean", "Cond", "<pValue>V</pValue>") + node("Integer", "V", "<Value>6</Value>")
                  + plain("<pIsAvailable>Cond</pIsAvailable>"),
              "N? N? N V=0 N? V=6 N?", "!LogicalError RW 7 ok NA ok !LogicalError");
        check("what is needed for anything else is needed to be there",
              node("Integer", "Z", "<Value>0</Value>")
                  + node("Integer", "M", "<Value>9</Value><pIsAvailable>Z</pIsAvailable>") + plain("<pMax>M</pMax>")
                  + node("Float", "F", "<Value>1</Value><pError>M</pError>")
                  + reg("IntReg", "R", "0", "<pAddress>M</pAddress>")
                  + node("SwissKnife", "K",
                         "<pVariable "
                         "Name='A'>M</pVariable><Formula>1</Formula>")
                  + node("Command", "C", "<Value>0</Value><pCommandValue>M</pCommandValue>"),
              "N? F? R? K? C? Z=1 N? F? R? K? C?", "NA NA NA NA NA ok RW RW RW RO RW");
        check(
            "a value that an index picks is there for who can read the index",
            node("Integer", "Z", "<Value>0</Value>") + writeOnly
                + node("Integer", "N", "<pIsAvailable>Z</pIsAvailable><pIndex>Z</pIndex><ValueDefault>3</ValueDefault>")
                + node("Integer", "M", "<pIndex>W</pIndex><ValueDefault>3</ValueDefault>"),
            "N? N N=4 M?", "RW 3 ok NA");
        check("unchecked writes go past locks, not past what never is",
              on + node("Integer", "N", "<pIsLocked>On</pIsLocked><pValue>R</pValue>")
                  + reg("IntReg", "R", "0", "<pIsAvailable>Z</pIsAvailable>") + node("Integer", "Z", "<Value>0</Value>")
                  + node("Integer", "M", "<ImposedAccessMode>RO</ImposedAccessMode><pValue>R</pValue>")
                  + node("Command", "C", "<pIsLocked>On</pIsLocked><Value>0</Value><CommandValue>1</CommandValue>"),
              "N:=5 Z=1 R M:=6 R C:=1", "ok ok 5 !Access 5 !Access");
        const QByteArray broken = node("Boolean", "Broken", "<pValue>Six</pValue>")
            + node("Integer", "Six", "<Value>6</Value>") + node("Integer", "Z", "<Value>0</Value>")
            + reg("IntReg", "Reg", "0")
            + reg("IntReg", "Const", "0", "<AccessMode>RO</AccessMode>"); // Broken throws when it is read
        check("entries with a condition further below that is read anew each time",
              broken + reg("IntReg", "Fresh", "0", "<Cachable>NoCache</Cachable>")
                  + node("Boolean", "C", "<pIsLocked>L</pIsLocked><pValue>Six</pValue>")
                  + node("Integer", "L", "<pIsLocked>Fresh</pIsLocked><Value>0</Value>")
                  + node(
                      "Enumeration", "E",
                      "<EnumEntry Name='A'><Value>0</Value><pIsAvailable>C</pIsAvailable></EnumEntry><Value>0</Value>"),
              "E? E? E? E?", "!LogicalError RW !LogicalError RW");
        check("a formula refuses a write where it is to happen, and reading it past the caches tries nothing anew",
              broken + node("IntSwissKnife", "K", "<pIsLocked>Broken</pIsLocked><Formula>1</Formula>")
                  + node("SwissKnife", "S", "<Formula>1</Formula>"),
              "K? K* K=x K=1 K:=1 S=1 S:=1", "!LogicalError 1 !InvalidArgument !Access !Access !Access !LogicalError");
        check("a category that has been seen stays, and leaves it to the feature to tell",
              broken + node("Category", "C", "<pFeature>N</pFeature>")
                  + node("Integer", "N", "<pIsAvailable>B</pIsAvailable><Value>1</Value>")
                  + node("Boolean", "B", "<pValue>Reg</pValue>"),
              "C? Reg=6 C? N? N? Reg=0 C? N?", "RO ok RO !LogicalError RW ok RO NA");
        check("a category is there with its features, and asks no further than needed",
              broken + plain("<pIsImplemented>Z</pIsImplemented>") + node("Category", "C", "<pFeature>N</pFeature>")
                  + node("Category", "D", "<pFeature>I</pFeature><pFeature>M</pFeature>")
                  + node("Category", "I", "<pFeature>Six</pFeature><pFeature>M</pFeature>")
                  + node("Integer", "M", "<pIsImplemented>Broken</pIsImplemented><Value>0</Value>"),
              "C? Z=1 C? Z=0 C? N? D? M?", "NI ok RO ok NI NI RO !LogicalError");
        check(
            "a choice that hangs on what it chooses",
            "<Enumeration Name='S'><EnumEntry Name='A'><Value>0</Value></EnumEntry><EnumEntry Name='B'><Value>1</Value>"
            "<pIsImplemented>V</pIsImplemented></EnumEntry><pValue>R</pValue></Enumeration>"
                + reg("IntReg", "R", "0") + reg("IntReg", "V", "8", "<pAddress>O</pAddress>")
                + node("IntSwissKnife", "O", "<pVariable Name='A'>S</pVariable><Formula>A * 4</Formula>"),
            "S? S V EnumEntry_S_B? S=B V=1 EnumEntry_S_B? S=B EnumEntry_S_B?", "RW A 0 NI !Access ok RO ok NI");
        check("a port for chunks comes and goes",
              "<Port Name='Chunk'><ChunkID>1f</ChunkID></Port>" + reg("IntReg", "R", "0", "<pPort>Chunk</pPort>"),
              "R? R", "NA !Access");
        check("a limit that cannot be read", writeOnly + node("Integer", "N", "<Value>1</Value><pMax>W</pMax>"),
              "N N: N=1 N:=2 N", "1 !Access !Access ok 2");
        check(
            "links to nothing",
            plain("<pMax>Nobody</pMax>") + node("Integer", "M", "<pValue>N</pValue>")
                + node("SwissKnife", "K", "<pVariable Name='X'>Nobody</pVariable><Formula>X</Formula>")
                + node("Converter", "C", "<FormulaTo>FROM</FormulaTo><FormulaFrom>TO</FormulaFrom><pValue>K</pValue>"),
            "N? N M? K? K C? C: C=1 C:=1", "NI !Access NI NI !Access NI !Access !Access !Access");
        check("links to what is no number",
              node("Category", "Cat", "<pFeature>N</pFeature>") + plain("<pIsAvailable>Cat</pIsAvailable>")
                  + node("String", "S", "<pValue>Device</pValue>") + reg("IntReg", "R", "0", "<pPort>N</pPort>")
                  + node("Boolean", "B", "<pValue>S</pValue>"),
              "Cat? N? S? S:=x R? R:=1 B? B:=1", "NI NI NI !Access NI !Access NI !Access");
        check("nothing to be the value",
              node("Integer", "I", "") + node("Float", "F", "") + node("Boolean", "B", "")
                  + node("Command", "C", "<Value>1</Value>") + node("Enumeration", "E", ""),
              "I? F? B? C? E?", "NI NI NI NI NI");
    }

    void categories()
    {
        const auto row = [](const char *what, const QByteArray &nodes, const char *access, EVisibility visibility) {
            check(what, nodes, "C?", access);
            QVERIFY2(Session(nodes).map->GetNode("C")->GetVisibility() == visibility, what);
        };
        const QByteArray guru = node("Integer", "G", "<Value>1</Value><Visibility>Guru</Visibility>");
        const QByteArray expert = node("Integer", "X", "<Value>1</Value><Visibility>Expert</Visibility>");
        const QByteArray absent = node("Integer", "A", "<Value>1</Value><pIsImplemented>Z</pIsImplemented>")
            + node("Integer", "Z", "<Value>0</Value>");
        row("empty", node("Category", "C", "<Visibility>Beginner</Visibility><pFeature>Nobody</pFeature>"), "NI",
            Invisible);
        row("the most visible feature counts",
            guru + expert + node("Category", "C", "<pFeature>G</pFeature><pFeature>X</pFeature>"), "RO", Expert);
        row("however deep",
            guru + expert + node("Category", "C", "<pFeature>G</pFeature><pFeature>D</pFeature>")
                + node("Category", "D", "<pFeature>E</pFeature>") + node("Category", "E", "<pFeature>X</pFeature>"),
            "RO", Expert);
        row("what stands in it may be looked at whatever its own conditions",
            expert + node("Integer", "Z", "<Value>0</Value>")
                + node("Category", "C", "<pIsAvailable>Z</pIsAvailable><pFeature>X</pFeature>"),
            "RO", Expert);
        row("plain nodes are something", "<Node Name='P'/>" + node("Category", "C", "<pFeature>P</pFeature>"), "RO",
            Beginner);
        row("nothing implemented",
            absent + node("Category", "C", "<pFeature>A</pFeature><pFeature>D</pFeature>")
                + node("Category", "D", "<pFeature>C</pFeature>"),
            "NI", Beginner);
        row("an inner one that is not implemented",
            expert + absent + node("Category", "C", "<pFeature>D</pFeature>")
                + node("Category", "D", "<pIsImplemented>Z</pIsImplemented><pFeature>X</pFeature>"),
            "NI", Expert);
    }

    void selectors()
    {
        const Session session(
            node("Integer", "S", "<Value>0</Value><pSelected>T</pSelected><pSelected>N</pSelected>")
            + node("Integer", "T", "<Value>0</Value><pSelected>N</pSelected><pSelected>Nobody</pSelected>")
            + node("Integer", "N", "<Value>0</Value>") + node("Float", "Over", "<pValue>N</pValue>")
            + node("Command", "Limited", "<Value>0</Value><pCommandValue>Over</pCommandValue>"));
        const auto names = [&](const char *name, void (ISelector::*list)(FeatureList_t &) const) {
            FeatureList_t features;
            (session.get<ISelector>(name)->*list)(features);
            QByteArray result;
            for (IValue *feature : features)
                result += feature->GetNode()->GetName().c_str();
            return result;
        };
        QCOMPARE(names("S", &ISelector::GetSelectedFeatures), QByteArray("TNOverLimited"));
        QCOMPARE(names("N", &ISelector::GetSelectingFeatures), QByteArray("ST"));
        QCOMPARE(names("T", &ISelector::GetSelectingFeatures), QByteArray("S"));
        QVERIFY(session.get<ISelector>("T")->IsSelector());
        QCOMPARE(names("Over", &ISelector::GetSelectingFeatures), QByteArray("ST")); // reads what is selected
        QCOMPARE(names("Limited", &ISelector::GetSelectingFeatures), QByteArray("ST"));
        QVERIFY(!session.get<ISelector>("N")->IsSelector());
    }

    void names()
    {
        const Session session(
            "<Group Comment='x'><Group>"
            "<Integer Name='N' NameSpace='Standard'><Value>0</Value><ToolTip>a &amp; b</ToolTip></Integer>"
            "</Group></Group><Later><Integer Name='Inner'><Value>0</Value></Integer></Later>"
            "<Node Name='Plain'/><Category Name='Root'><pFeature>N</pFeature></Category>");
        INode *const found = session.map->GetNode("Std::N");
        QVERIFY(found);
        QCOMPARE(found, session.map->GetNode("N"));
        QCOMPARE(found->GetName(true).c_str(), "Std::N");
        QCOMPARE(found->GetDisplayName().c_str(), "N");
        QCOMPARE(found->GetToolTip().c_str(), "a & b");
        QVERIFY(found->IsFeature());
        QVERIFY(!session.map->GetNode("Plain")->IsFeature());
        QVERIFY(!session.map->GetNode("Inner"));
        QVERIFY(!session.map->GetNode(nullptr));
    }
};

ORV_PLAIN_TEST_MAIN(tst_Access)
#include "tst_access.moc"
