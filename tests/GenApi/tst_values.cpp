// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "session.h"

#include <orvtest.h>

namespace {

/** Memory holds its own addresses. */
void checkAddresses(const char *what, const QByteArray &nodes, const char *script, const char *answers)
{
    check(what, nodes, script, answers, Session::Memory::Addresses);
}

} // namespace

/** What nodes are worth: registers, ranges, numbers computed from others, texts. */
class tst_Values : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void registers()
    {
        const QByteArray little = "<Endianess>LittleEndian</Endianess>";
        const QByteArray isSigned = "<Sign>Signed</Sign>";
        const auto bits = [](int lsb, int msb) {
            return "<LSB>" + QByteArray::number(lsb) + "</LSB><MSB>" + QByteArray::number(msb) + "</MSB>";
        };
        checkAddresses("big endian", reg("IntReg", "N", "0x10"), "N:", "269554195 0..4294967295/1"); // 0x10111213
        checkAddresses("little endian", reg("IntReg", "N", "0x10", little),
                       "N:", "319951120 0..4294967295/1"); // 0x13121110
        checkAddresses("one byte, signed", reg("IntReg", "N", "128", isSigned + "<Length>1</Length>"),
                       "N:", "-128 -128..127/1");
        checkAddresses("five bytes, little endian", reg("IntReg", "N", "1", little + "<Length>5</Length>"), "N:",
                       "21542142465 0..1099511627775/1"); // 0x0504030201
        checkAddresses("eight bytes have a signed interface", reg("IntReg", "N", "0xF0", "<Length>8</Length>"), "N:",
                       "-1084818905618843913 0..9223372036854775807/1"); // 0xF0F1F2F3F4F5F6F7
        checkAddresses("bits count from the top in big endian", reg("MaskedIntReg", "N", "0x10", bits(15, 8)),
                       "N:", "17 0..255/1");
        checkAddresses("and from the bottom in little endian", reg("MaskedIntReg", "N", "0x10", little + bits(0, 11)),
                       "N:",
                       "272 0..4095/1"); // 0x...110
        checkAddresses("signed field", reg("MaskedIntReg", "N", "0xF0", little + isSigned + bits(28, 31)),
                       "N:", "-1 -8..7/1");
        checkAddresses("a whole register as field",
                       reg("MaskedIntReg", "N", "0xF0", "<Length>8</Length>" + bits(63, 0)),
                       "N:", "-1084818905618843913 0..9223372036854775807/1");
        checkAddresses("one bit", reg("MaskedIntReg", "N", "0x10", "<Bit>31</Bit>"), "N:", "1 0..1/1");
        checkAddresses("a bit that is not there", reg("MaskedIntReg", "N", "0x10", "<Bit>32</Bit>"),
                       "N N:", "!Property !Property");
        checkAddresses("writing a field leaves the others",
                       reg("MaskedIntReg", "N", "0x10", bits(15, 8)) + reg("IntReg", "W", "0x10"),
                       "N=255 N W N=256 N:=256 W*",
                       "ok 255 285151763 !OutOfRange ok 268440083"); // 0x10FF1213, 0x10001213
        checkAddresses(
            "entries of a structure have an access of their own",
            "<StructReg><Address>0x10</Address><Length>2</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
            "<Endianess>BigEndian</Endianess><StructEntry Name='A'><LSB>7</LSB><MSB>0</MSB></StructEntry><StructEntry "
            "Name='B'><Bit>15</Bit><AccessMode>RO</AccessMode></StructEntry></StructReg>",
            "A? A: B? B:", "RW 16 0..255/1 RO 1 0..1/1");
        const QByteArray overlay = reg("IntReg", "W", "0x10");
        checkAddresses("float, big endian", reg("FloatReg", "F", "0x10") + overlay, "F=1.5 W F",
                       "ok 1069547520 1.5"); // 3FC00000
        checkAddresses("double", reg("FloatReg", "F", "0x10", "<Length>8</Length>") + overlay, "F=-0.1 W F",
                       "ok 3216611737 -0.1"); // 0xBFB99999
        checkAddresses("too large for a float", reg("FloatReg", "F", "0x10"), "F=4e38 F:=4e38 F",
                       "!OutOfRange ok 3.40282e+38");
        checkAddresses("neither float nor double", reg("FloatReg", "F", "0x10", "<Length>3</Length>"), "F F=1",
                       "!Property !Property");
    }

    void addresses()
    {
        const auto byteAt = [](const QByteArray &address) {
            return node("IntReg", "N", address + "<Length>1</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>");
        };
        const QByteArray five = node("Integer", "Five", "<Value>5</Value>");
        const QByteArray two = node("Integer", "Two", "<Value>2</Value>");
        const QByteArray knife = "<IntSwissKnife Name='K'><pVariable Name='F'>Five</pVariable><Formula>F * 2</Formula>"
                                 "</IntSwissKnife>";
        checkAddresses("addresses add up",
                       five + byteAt("<Address>3</Address><Address>0x10</Address><pAddress>Five</pAddress>"), "N",
                       "24");
        checkAddresses("index in units of the length",
                       five + reg("IntReg", "N", "1", "<pIndex>Five</pIndex><Length>2</Length>"), "N",
                       "2828"); // 0x0B0C
        checkAddresses("index with a node as offset", five + two + byteAt("<pIndex pOffset='Two'>Five</pIndex>"),
                       "N Two=3 N", "10 ok 15");
        checkAddresses("formulas of the same name",
                       five + byteAt(knife) + reg("IntReg", "M", "1", knife + "<Length>1</Length>"), "N M", "10 11");
        checkAddresses("dynamic length", two + reg("IntReg", "N", "1", "<pLength>Two</pLength>"), "N Two=1 N: Two=9 N",
                       "258 ok 1 0..255/1 ok !Property");
        checkAddresses(
            "an address that overflows",
            five + reg("IntReg", "N", "0x7FFFFFFFFFFFFFFF") + reg("IntReg", "M", "0x7FFFFFFFFFFFFFFC")
                + reg("IntReg", "O", "0x4000000000000000", "<pIndex Offset='0x4000000000000000'>Five</pIndex>"),
            "N? N N=1 M O", "RW !Property !Property 4244504319 !Property"); // M: 0xFCFDFEFF
        checkAddresses("no length",
                       reg("Register", "N", "0", "<Length>0</Length>")
                           + reg("StringReg", "S", "0", "<Length>-1</Length>"),
                       "N N=0x00 S S=x", "!Property !Property !Property !Property");
    }

    void numbers()
    {
        const QByteArray source =
            node("Integer", "S", "<Value>7</Value><Min>-8</Min><Max>100</Max><Inc>3</Inc><Unit>mm</Unit>");
        const QByteArray half = node("Float", "H", "<Value>2.5</Value><Min>-3.5</Min><Max>9.4</Max>");
        check("limits of its own", node("Integer", "N", "<Value>4</Value><Min>-4</Min><Max>0x10</Max><Inc>2</Inc>"),
              "N: N=6 N=7 N=18 N=-6 N:=7 N", "4 -4..16/2 ok !OutOfRange !OutOfRange !OutOfRange ok 7");
        check("limits by links",
              source + node("Integer", "N", "<Value>5</Value><pMin>S</pMin><pMax>M</pMax><pInc>I</pInc>")
                  + node("Integer", "M", "<Value>27</Value>") + node("Integer", "I", "<Value>10</Value>"),
              "N: S=1 N: N=11 N=12", "5 7..27/10 ok 5 1..27/10 ok !OutOfRange");
        check("limits without end are the largest numbers",
              node("SwissKnife", "Low", "<Formula>LN(0)</Formula>")
                  + node("SwissKnife", "High", "<Formula>-LN(0)</Formula>")
                  + node("Float", "N", "<Value>1</Value><pMin>Low</pMin><pMax>High</pMax>")
                  + node("Float", "Zero", "<Value>1</Value><Min>0</Min>")
                  + node("Converter", "C",
                         "<FormulaTo>EXP(FROM)</FormulaTo><FormulaFrom>LN(TO)</FormulaFrom><pValue>Zero</pValue>"),
              "N: C:", "1 -1.79769e+308..1.79769e+308 0 -1.79769e+308..709.783");
        check("a float over an integer takes its steps", source + node("Float", "N", "<pValue>S</pValue>"),
              "N=9.4 S N=12.9 S", "ok 7 ok 13");
        check("an increment of 0", node("Integer", "N", "<Value>0</Value><Inc>0</Inc>"), "N=1 N:=1",
              "!LogicalError ok");
        check("index",
              source + node("Integer", "I", "<Value>0</Value>")
                  + node("Integer", "N",
                         "<pIndex>I</pIndex><ValueIndexed Index='0'>10</ValueIndexed><pValueIndexed "
                         "Index='0x1'>S</pValueIndexed><ValueDefault>-1</ValueDefault>"),
              "N N=11 N I=1 N: N=13 S I=2 N N=0 I=3 N I=0 N", "10 ok 11 ok 7 -8..100/3 ok 13 ok -1 ok ok 0 ok 11");
        check("index that picks nothing",
              node("Integer", "I", "<Value>0</Value>")
                  + node("Integer", "N", "<pIndex>I</pIndex><ValueIndexed Index='0'>10</ValueIndexed>"),
              "N? I=1 N? N N=1 N:=1 N: N&", "RW ok NA !Access !Access !Access !Access unknown");
        check("copies",
              half + reg("IntReg", "R", "0") + node("Integer", "N", "<pValue>H</pValue><pValueCopy>R</pValueCopy>"),
              "N=8 H R N=10 N:", "ok 8 8 !OutOfRange 8 0..9/1");
        check("integer over float", half + node("Integer", "N", "<pValue>H</pValue>"), "N: N=-3 H N=9 N=10",
              "3 -4..9/1 ok -3 ok !OutOfRange");
        check("float over integer", source + node("Float", "N", "<pValue>S</pValue><Max>50.5</Max>"),
              "N: N=11.9 S N=-8 S N=51", "7 -8..50.5/3 ok 10 ok -8 !OutOfRange");
        check("float grid", node("Float", "N", "<Value>0</Value><Min>-1</Min><Max>1</Max><Inc>0.1</Inc>"),
              "N: N=0.3 N=0.35 N=1.1 N=nan N=inf", "0 -1..1/0.1 ok ok !OutOfRange !InvalidArgument !InvalidArgument");
        const QByteArray mode =
            node("Enumeration", "E",
                 "<EnumEntry Name='Low'><Value>1</Value><NumericValue>0.5</NumericValue></EnumEntry>"
                 "<EnumEntry Name='High'><Value>4</Value></EnumEntry><pValue>R</pValue>")
            + reg("IntReg", "R", "0");
        check("float over enumeration", mode + node("Float", "N", "<pValue>E</pValue><Min>0</Min><Max>9</Max>"),
              "R=1 N: R=4 N N=0.5 E R N=4 E N=2 E R=3 N", "ok 0.5 0..9 ok 4 ok Low 1 ok High ok Low ok !LogicalError");
        check("boolean over enumeration",
              mode + node("Boolean", "B", "<pValue>E</pValue><OnValue>4</OnValue><OffValue>1</OffValue>")
                  + node("Integer", "N", "<pValue>B</pValue>"),
              "B R=1 B R=4 B B=0 E N: N=1 E N=2",
              "!LogicalError ok 0 ok 1 ok Low 0 -9223372036854775808..9223372036854775807/1 ok High ok");
    }

    void lists()
    {
        const QByteArray list = node("Integer", "L",
                                     "<Value>8</Value><Min>1</Min><Max>64</Max>"
                                     "<ValidValueSet>64; 0x10;1;2;8;128;-4</ValidValueSet>");
        const auto converter = [](const char *kind, const char *to, const char *from, const char *slope = "Automatic") {
            return node(kind, "C",
                        QByteArray("<FormulaTo>") + to + "</FormulaTo><FormulaFrom>" + from
                            + "</FormulaFrom><pValue>L</pValue><Slope>" + slope + "</Slope>");
        };
        check("integer", list, "L: L=3 L=128", "8 1..64{1,2,8,16,64} ok !OutOfRange");
        check("float", list + node("Float", "N", "<pValue>L</pValue><Min>1.5</Min>"), "N:", "8 1.5..64{2,8,16,64}");
        check("converter", list + converter("Converter", "FROM * 2", "TO / 2"), "C: C=1 L",
              "4 0.5..32{0.5,1,4,8,32} ok 2");
        check("converter that turns the order", list + converter("IntConverter", "-FROM", "-TO", "Decreasing"),
              "C:", "-8 -64..-1{-64,-16,-8,-2,-1}");
        check("empty", node("Integer", "L", "<Value>8</Value><ValidValueSet> ; </ValidValueSet>"),
              "L:", "8 -9223372036854775808..9223372036854775807{}");
    }

    void formulas()
    {
        const QByteArray a = node("Integer", "A", "<Value>8</Value><Min>2</Min><Max>20</Max><Inc>3</Inc>");
        const auto converter = [](const char *slope) {
            return node(
                "Converter", "C",
                QByteArray("<FormulaTo>40 / FROM</FormulaTo><FormulaFrom>40 / TO</FormulaFrom><pValue>A</pValue>")
                    + slope);
        };
        check(
            "properties of a variable",
            a + node("Enumeration", "E", "<EnumEntry Name='On'><Value>1000</Value></EnumEntry><Value>1000</Value>")
                + node("IntSwissKnife", "K",
                       "<pVariable Name='V'>A</pVariable><pVariable Name='V.Min'>A</pVariable><pVariable "
                       "Name='V.Max'>A</pVariable><pVariable Name='V.Inc'>A</pVariable><pVariable "
                       "Name='M.Enum.On'>E</pVariable><Formula>M.Enum.On + V.Max*100 + V.Min*10 + V.Inc - V</Formula>"),
            "K A=2 K K? K=1", "3015 ok 3021 RO !Access");
        check("slope found out", a + converter(""), "C: C=20 A C=1.9", "5 2..20 ok 2 !OutOfRange");
        check("varying slope has no limits",
              a + converter("<Slope>Varying</Slope>") + node("Integer", "N", "<pValue>C</pValue>"), "N N: C=1",
              "5 !Runtime !OutOfRange");
        check("exact beyond 53 bits",
              node("Integer", "B", "<Value>0x7FFFFFFFFFFFFFFE</Value>")
                  + node("IntConverter", "C",
                         "<FormulaTo>FROM - 1</FormulaTo><FormulaFrom>TO + 1</FormulaFrom><pValue>B</pValue>"
                         "<Slope>Increasing</Slope>"),
              "C C:=-9223372036854775807 B", "9223372036854775807 ok -9223372036854775808");
        check("a formula that cannot be parsed fails when it is asked",
              node("IntSwissKnife", "K", "<Formula>1 +</Formula>") + node("Integer", "N", "<pValue>K</pValue>")
                  + node("Integer", "M", "<Value>1</Value>"),
              "K? K N N: M", "RO !LogicalError !LogicalError !LogicalError 1");
        check("every variable is read",
              node("Integer", "Z", "<Value>0</Value>")
                  + node("IntSwissKnife", "Bad", "<pVariable Name='Z'>Z</pVariable><Formula>1 / Z</Formula>")
                  + node("IntSwissKnife", "K", "<pVariable Name='A'>Bad</pVariable><Formula>7</Formula>"),
              "K Z=1 K", "!LogicalError ok 7");
        check("an integer converter without a slope has no room",
              node("Integer", "A", "<Value>3</Value>")
                  + node("IntConverter", "C",
                         "<FormulaTo>FROM</FormulaTo><FormulaFrom>TO</FormulaFrom><pValue>A</pValue>"),
              "C: C=1", "3 0..0/1 !OutOfRange");
        check("division by zero",
              node("Integer", "Z", "<Value>0</Value>")
                  + node("IntSwissKnife", "K", "<pVariable Name='Z'>Z</pVariable><Formula>1 / Z</Formula>")
                  + node("Integer", "N", "<Value>1</Value><pMax>K</pMax>"),
              "K? K N: N=1 Z=1 N=1", "RO !LogicalError !LogicalError !LogicalError ok ok");
    }

    void texts()
    {
        const auto integer = [](const char *representation) {
            return node("Integer", "N",
                        QByteArray("<Value>10</Value><Representation>") + representation + "</Representation>");
        };
        check("decimal", integer("PureNumber"), "N=0x1F N N=-7 N N=1.5 N N= N=x N=9223372036854775808 N N=0xg",
              "ok 31 ok -7 ok 1 !InvalidArgument !InvalidArgument ok 9223372036854775807 !InvalidArgument");
        check("hexadecimal", integer("HexNumber"), "N N=255 N N=-1 N N=0 N", "0xa ok 0xff ok 0xffffffffffffffff ok 0");
        check("IPv4", integer("IPV4Address"), "N N=192.168.0.254 N N=256.0.0.1 N=1.2.3 N=7",
              "0.0.0.10 ok 192.168.0.254 !InvalidArgument !InvalidArgument !InvalidArgument");
        check("truth", integer("Boolean"), "N N=false N N=1", "true ok false !InvalidArgument");
        check("MAC", integer("MACAddress"), "N N=00:11:1c:FF:01:02 N N=0:1 N",
              "00:00:00:00:00:0a ok 00:11:1c:ff:01:02 !InvalidArgument 00:11:1c:ff:01:02");
        check(
            "notations",
            node("Float", "A", "<Value>1234.5678</Value>")
                + node(
                    "Float", "F",
                    "<pValue>A</pValue><DisplayNotation>Fixed</DisplayNotation><DisplayPrecision>2</DisplayPrecision>")
                + node("Float", "S",
                       "<pValue>A</pValue><DisplayNotation>Scientific</DisplayNotation><DisplayPrecision>1</"
                       "DisplayPrecision>"),
            "A F S F=1e-3 F A=x A=1,5 A A=1e A=0x10 A",
            "1234.57 1234.57 1.2e+03 ok 0.00 !InvalidArgument ok 1 !InvalidArgument ok 0");
        check(
            "a rounded text is within the limits",
            node("Float", "N",
                 "<Value>1</Value><Min>0.123456789</Min><Max>12345.678901</Max><DisplayNotation>Fixed</DisplayNotation>"
                 "<DisplayPrecision>2</DisplayPrecision>"),
            "N=0.123456789 N N=12345.678901 N", "ok 0.13 ok 12345.67");
        check("boolean", node("Boolean", "B", "<Value>true</Value>"), "B B=false B B=1.5 B B=True B=2",
              "1 ok 0 ok 1 !InvalidArgument !InvalidArgument");
        check("enumeration",
              node("Enumeration", "E",
                   "<EnumEntry Name='Old'><Value>1</Value></EnumEntry><EnumEntry Name='New'>"
                   "<Value>1</Value></EnumEntry><pValue>R</pValue>")
                  + reg("IntReg", "R", "0"),
              "E E=Old R E E=Absent", "!InvalidArgument ok 1 New !InvalidArgument");
        const QByteArray text =
            reg("StringReg", "S", "0") + reg("Register", "R", "0") + node("String", "T", "<pValue>S</pValue>");
        check("string register", text, "S=ab S R T=wxyz R* S=vwxyz T",
              "ok ab 0x61620000 ok 0x7778797a !OutOfRange wxyz");
        check("register", text, "R=0x41004243 R S R=58 R R=zz R=0x410 R=0x4100424344 R",
              "ok 0x41004243 A ok 0x58004243 !InvalidArgument !InvalidArgument ok 0x41004243");
    }
};

ORV_PLAIN_TEST_MAIN(tst_Values)
#include "tst_values.moc"
