// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "session.h"

#include <orvtest.h>

/** What a write or the passing of time leads to: reads at the port, kept values, callbacks. */
class tst_Changes : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void caching()
    {
        const auto cached = [](const char *mode) {
            return reg("IntReg", "R", "0", QByteArray("<Cachable>") + mode + "</Cachable>")
                + node("Integer", "N", "<pValue>R</pValue>")
                + node("IntSwissKnife", "K",
                       "<pVariable Name='A'>N</pVariable><pVariable Name='B'>R</pVariable><Formula>A + B</Formula>");
        };
        check("kept", cached("WriteThrough"), "R& R R& N N K K K& # N* # K* #",
              "unknown 0 kept 0 0 0 0 kept r1w0 0 r1w0 0 r1w0");
        check("a write is kept", cached("WriteThrough"), "N=5 R& N K K& #", "ok kept 5 10 kept r0w1");
        check("nothing is kept", cached("NoCache"), "R # R N K # N=5 # N K K& #",
              "0 r1w0 0 0 0 r3w0 ok r0w1 5 10 unknown r2w0");
        check("a computed value is dropped with what it is made of", cached("WriteThrough"), "K # N=2 K& K # R- K& K #",
              "0 r1w0 ok unknown 4 r0w1 ok unknown 4 r1w0");
        check("a field is written into what the device holds now",
              reg("MaskedIntReg", "A", "0", "<LSB>7</LSB><MSB>0</MSB>")
                  + reg("MaskedIntReg", "B", "0", "<LSB>31</LSB><MSB>24</MSB>"),
              "A B # A=1 B=2 # A* B*", "0 0 r1w0 ok ok r0w2 1 2");
        check("an invalidator", reg("IntReg", "R", "0") + reg("IntReg", "S", "4", "<pInvalidator>R</pInvalidator>"),
              "S # S R=1 S& S #", "0 r1w0 0 ok unknown 0 r1w1");
        check("what is selected",
              reg("IntReg", "S", "0", "<pSelected>N</pSelected>")
                  + reg("IntReg", "R", "0x10", "<pIndex Offset='4'>S</pIndex>")
                  + node("Integer", "N", "<pValue>R</pValue>"),
              "N=7 S=1 # N N # S=0 N", "ok ok r1w2 0 0 r1w0 ok 7");
        check("registers at one place share what was read",
              reg("IntReg", "A", "0") + reg("IntReg", "B", "0") + reg("IntReg", "C", "0", "<Length>2</Length>"),
              "A B # C # A=5 # B # B- B # A- C", "0 0 r1w0 0 r1w0 ok r0w1 0 r0w0 ok 5 r1w0 ok 0");
        check("reading past the caches keeps nothing, but what a formula makes of it", cached("WriteThrough"),
              "N N* N& R& # N # K K* K& R& #", "0 0 unknown unknown r2w0 0 r1w0 0 0 kept kept r1w0");
        check("a refused write drops what was kept", cached("WriteThrough"), "N N=-1 N& R& N # N=x N&",
              "0 !OutOfRange unknown kept 0 r1w0 !InvalidArgument kept");
        check("a self-clearing entry is asked for as long as it is current",
              reg("IntReg", "R", "0")
                  + node("Enumeration", "E",
                         "<EnumEntry Name='Off'><Value>0</Value></EnumEntry><EnumEntry Name='On'><Value>1</Value>"
                         "<IsSelfClearing>Yes</IsSelfClearing></EnumEntry><pValue>R</pValue>"),
              "E E # E=On # E E # E&", "Off Off r1w0 ok r0w1 On On r2w0 kept");
        check("a node that tells of errors is asked after checked writes",
              reg("IntReg", "R", "0") + node("Integer", "N", "<pError>E</pError><pValue>R</pValue>")
                  + node("Enumeration", "E", "<EnumEntry Name='Bad'><Value>1</Value></EnumEntry><Value>0</Value>"),
              "N=1 E=Bad N=2 R N:=3 R ^", "ok ok !Runtime 2 ok 3 E,N,N,N,R,R");
        check("conditions are cached as well",
              reg("IntReg", "R", "0") + node("Integer", "N", "<Value>1</Value><pIsLocked>R</pIsLocked>"),
              "N? N? # R=1 N? N=1 #", "RW RW r1w0 ok RO !Access r0w1");
    }

    void callbacks()
    {
        const QByteArray chain = reg("IntReg", "R", "0") + node("Integer", "N", "<pValue>R</pValue><Max>9</Max>")
            + node("Integer", "Copy", "<pValue>R</pValue>")
            + node("SwissKnife", "K", "<pVariable Name='A'>Copy</pVariable><Formula>A</Formula>")
            + node("Integer", "Limited", "<Value>1</Value><pMax>K</pMax>")
            + node("Category", "Root", "<pFeature>Limited</pFeature>") + node("Integer", "Other", "<Value>1</Value>");
        check("everything that depends, each once", chain, "N=1 ^ Limited=1 ^ Other=1 ^",
              "ok Copy,K,Limited,N,R,Root ok Limited,Root ok Other");
        check("nothing after a refusal", chain, "N=10 ^ K=1 ^ N=x ^", "!OutOfRange  !Access  !InvalidArgument ");
        check("nothing after reading", chain, "N N* K ^", "0 0 0 ");
        check("invalidating", chain, "Copy- ^", "ok Copy,K,Limited,Root");
        check("copies and the values an index may pick",
              reg("IntReg", "A", "0") + reg("IntReg", "B", "4") + node("Integer", "I", "<Value>0</Value>")
                  + node("Integer", "N",
                         "<pIndex>I</pIndex><pValueIndexed Index='0'>A</pValueIndexed><pValueIndexed "
                         "Index='1'>B</pValueIndexed>")
                  + node("Integer", "M", "<pValue>A</pValue><pValueCopy>B</pValueCopy>"),
              "N=1 ^ M=2 ^ I=1 N ^", "ok A,B,M,N ok A,B,M,N ok 2 I,N");
    }

    void polling()
    {
        const QByteArray polled =
            reg("IntReg", "R", "0", "<PollingTime>100</PollingTime><pBlockPolling>B</pBlockPolling>")
            + node("Integer", "N", "<pValue>R</pValue>") + node("Integer", "B", "<Value>0</Value>")
            + reg("IntReg", "Slow", "4", "<PollingTime>1000</PollingTime>");
        check("when the time has come", polled, "N # @99 ^ @1 ^ N # @50 @50 ^ @99 ^",
              "0 r1w0 ok  ok N,R 0 r1w0 ok ok N,R ok ");
        check(
            "enumerations and commands that are not given are not polled",
            reg("IntReg", "R", "0")
                + node(
                    "Enumeration", "E",
                    "<EnumEntry Name='A'><Value>0</Value></EnumEntry><pValue>R</pValue><PollingTime>10</PollingTime>")
                + node("Command", "C", "<pValue>R</pValue><CommandValue>1</CommandValue><PollingTime>10</PollingTime>"),
            "@10 ^ C! ^ @9 ^ @1 ^", "ok  ok C,E,R ok  ok C");
        check("an enumeration whose current entry may end by itself",
              node("Enumeration", "E",
                   "<EnumEntry Name='A'><Value>0</Value></EnumEntry><EnumEntry Name='B'><Value>1</Value>"
                   "<IsSelfClearing>Yes</IsSelfClearing></EnumEntry><Value>0</Value><PollingTime>10</PollingTime>"),
              "@10 ^ E=B ^ @10 ^", "ok  ok E ok E");
        check("each at its own pace", polled, "@950 ^ @50 ^", "ok N,R ok Slow");
        check("time does not run backwards, nor over", polled,
              "@-500 @9223372036854775807 ^ @99 @9223372036854775807 ^", "ok ok N,R,Slow ok ok N,R,Slow");
        check("blocked, and due as soon as it is not", polled, "B=1 ^ @100 ^ @100 ^ B=0 ^ @1 ^ @99 ^",
              "ok B,N,R ok  ok  ok B,N,R ok N,R ok ");
        check("a register not to be read does not end polling",
              reg("IntReg", "A", "0", "<PollingTime>1</PollingTime><pBlockPolling>Bad</pBlockPolling>")
                  + reg("IntReg", "Bad", "0", "<Length>0</Length>")
                  + reg("IntReg", "C", "0", "<PollingTime>1</PollingTime>"),
              "@1 ^", "ok C");
    }

    void commands()
    {
        const QByteArray command = reg("IntReg", "R", "0", "<Cachable>NoCache</Cachable>")
            + node("Command", "C", "<pValue>R</pValue><pCommandValue>V</pCommandValue>")
            + node("Integer", "V", "<Value>3</Value>");
        check("done when the device has taken the value back", command, "C! ^ R C. ^ R=0 ^ C. ^ C. ^",
              "ok C,R 3 running  ok C,R done C,R done ");
        check("written as text", command, "C C=anything C=0 R C=1 R C C.",
              "0 !InvalidArgument !InvalidArgument 0 ok 3 1 running");
        check("seen to be done by its text", command, "C! ^ R=0 ^ C ^ C ^", "ok C,R ok C,R 0 C,R 0 ");
        check("errors are told when the device is done, and nothing else then",
              reg("IntReg", "R", "0")
                  + node("Enumeration", "E", "<EnumEntry Name='Bad'><Value>1</Value></EnumEntry><Value>1</Value>")
                  + node("Command", "C", "<pError>E</pError><pValue>R</pValue><CommandValue>3</CommandValue>"),
              "C! C. ^ R=0 ^ C. C. ^ C=1", "ok running C,R ok C,R !Runtime !Runtime  !Runtime");
        check("nothing to read back",
              reg("IntReg", "R", "0", "<AccessMode>WO</AccessMode>")
                  + node("Command", "C", "<pValue>R</pValue><CommandValue>3</CommandValue>"),
              "C! # C. #", "ok r0w1 done r0w0");
    }

    void noticesWhatTheDeviceChanged()
    {
        Session session(reg("IntReg", "R", "0")
                        + node("IntSwissKnife", "K", "<pVariable Name='A'>R</pVariable><Formula>A * 2</Formula>")
                        + node("Command", "C", "<pValue>R</pValue><CommandValue>4</CommandValue>"));
        const auto set = [&session](uint8_t value) {
            const uint8_t bytes[] = {0, 0, 0, value};
            session.port.Write(bytes, 0, 4);
        };
        QCOMPARE(session.run("K"), QByteArray("0"));
        set(4);
        // Who asks past the caches sees it, and then all that depends on it do, without being called back.
        QCOMPARE(session.run("K ^ R* ^ K"), QByteArray("0  4  8"));
        set(2);
        QCOMPARE(session.run("K K* K"), QByteArray("8 4 4"));
        set(4);
        QCOMPARE(session.run("R K*"), QByteArray("2 8"));
        QCOMPARE(session.run("C! C."), QByteArray("ok running"));
        set(0);
        QCOMPARE(session.run("R C. R K"),
                 QByteArray("4 done 0 0")); // whether a command is done only the device can tell
    }
};

ORV_PLAIN_TEST_MAIN(tst_Changes)
#include "tst_changes.moc"
