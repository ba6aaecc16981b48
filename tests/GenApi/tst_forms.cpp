// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "session.h"

#include <GenApi/NodeMapFactory.h>

#include <orvtest.h>

#include <QTemporaryDir>

#include <cstring>
#include <map>
#include <sstream>

using namespace GenApi;
using GenICam::gcstring;
using GenICam::gcstring_vector;

namespace {

/** Two registers, a selector with what it selects, a knife, a converter, and a chunk port. */
QByteArray camera()
{
    return node("Category", "Root", "<pFeature>A</pFeature><pFeature>S</pFeature>")
        + node("Integer", "A",
               "<Streamable>Yes</Streamable><ToolTip>tip</ToolTip><pIsLocked>L</pIsLocked><pInvalidator>L</"
               "pInvalidator>"
               "<pValue>RA</pValue><Max>0x64</Max>")
        + reg("IntReg", "RA", "0x10", "<pIndex Offset='0x20'>L</pIndex>") + node("Integer", "L", "<Value>0</Value>")
        + node("Enumeration", "E",
               "<EnumEntry Name='One'><Value>0</Value></EnumEntry><EnumEntry Name='Two'><Value>1</Value></EnumEntry>"
               "<pValue>RE</pValue><pSelected>S</pSelected>")
        + reg("IntReg", "RE", "4")
        + reg("IntReg", "S", "0x40", "<Streamable>Yes</Streamable><pIndex Offset='4'>RE</pIndex>")
        + node("Converter", "C",
               "<pVariable Name='V'>L</pVariable><FormulaTo>FROM+V</FormulaTo><FormulaFrom>TO-V</FormulaFrom>"
               "<pValue>A</pValue>")
        + node("IntSwissKnife", "Bad", "<Formula>1 +</Formula>") + "<Port Name='Chunk'><ChunkID>beef</ChunkID></Port>";
}

QByteArray names(const NodeList_t &nodes)
{
    QByteArrayList found;
    for (INode *each : nodes)
        found << each->GetName().c_str();
    std::sort(found.begin(), found.end());
    return found.join(',');
}

/** Notes what is asked of it; the bytes are those of a map. */
template <typename Base>
struct LoggingPort : Base
{
    using Base::Write;
    EAccessMode GetAccessMode() const override { return RW; }
    void Read(void *buffer, int64_t address, int64_t length) override
    {
        for (int64_t i = 0; i < length; ++i)
            static_cast<uint8_t *>(buffer)[i] = bytes[address + i];
    }
    void Write(const void *buffer, int64_t address, int64_t length) override
    {
        log += 'w' + QByteArray::number(qint64(address), 16) + ' ';
        for (int64_t i = 0; i < length; ++i)
            bytes[address + i] = static_cast<const uint8_t *>(buffer)[i];
    }
    QByteArray said() { return std::exchange(log, {}).trimmed(); }

    std::map<int64_t, uint8_t> bytes;
    QByteArray log;
};

struct StackedPort : LoggingPort<IPortStacked>
{
    using LoggingPort::Write;
    void Write(PORT_REGISTER_STACK_ENTRY *entries, size_t count) override
    {
        log += 's' + QByteArray::number(qulonglong(count)) + ' ';
        for (size_t i = 0; i < count; ++i)
            Write(entries[i].pBuffer, static_cast<int64_t>(entries[i].Address), static_cast<int64_t>(entries[i].Size));
    }
};

struct WriteList : IPortWriteList
{
    void Write(const void *buffer, int64_t address, int64_t length) override
    {
        const auto *const bytes = static_cast<const char *>(buffer);
        writes.push_back({address, std::string(bytes, bytes + length)});
    }
    void Replay(IPort *port) override
    {
        for (const auto &[address, bytes] : writes)
            port->Write(bytes.data(), address, static_cast<int64_t>(bytes.size()));
    }
    void SetCookie(const int64_t) override { }
    int64_t GetCookie() override { return 0; }

    std::vector<std::pair<int64_t, std::string>> writes;
};

/** As a generator makes it from a description. */
class CameraParams
{
protected:
    virtual ~CameraParams() = default;
    virtual void _Initialize(INodeMap *map)
    {
        A.SetReference(map->GetNode("A"));
        E.SetReference(map->GetNode("E"));
        Missing.SetReference(map->GetNode("Missing"));
    }

public:
    CIntegerRef A;
    CValueRef E;
    CFloatRef Missing;
};

QByteArray fired;

void noteCall(INode *called)
{
    fired += called->GetName().c_str();
}

} // namespace

/** What programs write that were made with the headers of the reference implementation; all of it compiles there too.
 */
class tst_Forms : public OrvTest::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void textsListsAndExceptions()
    {
        gcstring text("a,b;;c");
        text += 'd';
        QCOMPARE(text.find(',') + text.find("c"), size_t(6));
        QVERIFY(text.find('x') == gcstring::npos && text.substr(2, 1) == "b" && text.compare("b") < 0);
        gcstring_vector tokens;
        GenICam::Tokenize(text, tokens, ",;");
        QVERIFY(tokens.size() == 3 && tokens.contains("cd"));
        tokens.erase(0);
        std::stringstream stream;
        stream << tokens[0] << ' ' << text;
        stream >> text;
        QCOMPARE(text.c_str(), "b");
        QCOMPARE(GenICam::UrlDecode(GenICam::UrlEncode("a b\\%")).c_str(), "a b/%");
        QCOMPARE(GenICam::INTEGRAL_CAST<int16_t>(-5), int16_t(-5));
        QVERIFY_EXCEPTION_THROWN(GenICam::INTEGRAL_CAST<int16_t>(1 << 20), GenICam::RuntimeException);
        QVERIFY_EXCEPTION_THROWN(CHECK_RANGE_I64(5, 0, 10, 2), GenICam::OutOfRangeException);
        QVERIFY_EXCEPTION_THROWN(CHECK_RANGE_FLT(5, 6, 10), GenICam::OutOfRangeException);
        CHECK_RANGE_I64(INT64_MAX, INT64_MIN, INT64_MAX, 5);
        try {
            throw TIMEOUT_EXCEPTION("%s after %d ms", "late", 5);
        } catch (const GenICam::GenericException &error) {
            QCOMPARE(error.GetDescription(), "late after 5 ms");
            QVERIFY(std::strstr(error.what(), "TimeoutException") && error.GetSourceLine() > 0);
        }
    }

    void propertiesAndLinks()
    {
        // A property, or the number of a kind of links; the value, then what is said about it.
        const std::tuple<const char *, const char *, const char *> rows[] = {
            {"A", "Max", "100|"},
            {"A", "ToolTip", "tip|"},
            {"A", "NodeType", "Integer|"},
            {"A", "NameSpace", "Custom|"},
            {"A", "pTerminal", "RA|"},
            {"A", "IsFeature", "Yes|"},
            {"A", "Nothing", ""},
            {"RA", "Address", "16|"},
            {"RA", "pIndex", "L|32"},
            {"RA", "Cachable", "WriteThrough|"},
            {"S", "pSelecting", "E|"},
            {"E", "pEnumEntry", "EnumEntry_E_One\tEnumEntry_E_Two|"},
            {"EnumEntry_E_Two", "Symbolic", "Two|"},
            {"C", "pVariable", "L|V"},
            {"Root", "pFeature", "A\tS|"},
            {"A", "0", "C,Root"},
            {"A", "1", "L,RA"},
            {"A", "2", "RA"},
            {"RA", "3", "Device,L"},
            {"S", "3", "Device,E,RE"},
            {"E", "3", "EnumEntry_E_One,EnumEntry_E_Two,RE"},
            {"L", "4", "A,C,RA,Root"},
            {"C", "5", "RA"},
            {"Bad", "5", ""},
            {"C", "6", "A,L"},
            {"RE", "0", "E,S"},
            {"EnumEntry_E_One", "0", "E"},
        };
        const Session session(camera());
        for (const auto &[name, question, answer] : rows) {
            INode *const asked = session.map->GetNode(name);
            NodeList_t nodes;
            gcstring value;
            gcstring attribute;
            gcstring_vector known;
            const bool isProperty = !isdigit(*question) && asked->GetProperty(question, value, attribute);
            if (isdigit(*question))
                asked->GetChildren(nodes, static_cast<ELinkType>(*question - '0'));
            asked->GetPropertyNames(known);
            QCOMPARE(known.contains(question), isProperty);
            const QByteArray found = isProperty ? QByteArray((value + "|" + attribute).c_str()) : names(nodes);
            QCOMPARE(QByteArray(name) + ' ' + question + ": " + found,
                     QByteArray(name) + ' ' + question + ": " + answer);
        }
    }

    /** The text that is read again is not always that of the file. */
    void otherEncodings()
    {
        const QString text =
            QString::fromUtf8("<RegisterDescription>%1</RegisterDescription>")
                .arg(QString::fromUtf8(node("String", "N", "<ToolTip>\xC3\xBC</ToolTip><Value>x</Value>")));
        const QByteArray latin = "<?xml version='1.0' encoding='ISO-8859-1'?>" + text.toLatin1();
        const QByteArray utf16 =
            QByteArray("\xFF\xFE", 2) + QByteArray(reinterpret_cast<const char *>(text.utf16()), text.size() * 2);
        for (const QByteArray &encoded : {latin, utf16, "\xEF\xBB\xBF" + text.toUtf8()}) {
            CNodeMapRef map;
            map._LoadXMLFromString(gcstring(encoded.constData(), static_cast<size_t>(encoded.size())));
            gcstring value;
            gcstring attribute;
            QVERIFY(map._GetNode("N")->GetProperty("ToolTip", value, attribute));
            QCOMPARE(value.c_str(), "\xC3\xBC");
        }
    }

    void ways()
    {
        const QByteArray good =
            QByteArray::fromBase64("UEsDBBQAAAAIAAAAIQCDFtyMAwAAAAEAAAAKAAAAcmVhZG1lLnR4dKsAAFBLAwQUAAA"
                                   "ACAAAACEAeZqlrEsAAABqAAAABQAAAGQueG1sswlKTc8s"
                                   "LkktckktTi7KLCjJzM9T8M1PSc3xS8xNtVWPyiwoSE1Rt7PxzCtJTU8tUoAI+"
                                   "wFFwhJzSlPtzG30IQwbfagSIAuLoXYAUEsBAhQDFAAAAAgAAAAh"
                                   "AIMW3IwDAAAAAQAAAAoAAAAAAAAAAAAAAIABAAAAAHJlYWRtZS50eHRQSwECFAMUAAA"
                                   "ACAAAACEAeZqlrEsAAABqAAAABQAAAAAAAAAAAAAAgAEr"
                                   "AAAAZC54bWxQSwUGAAAAAAIAAgBrAAAAmQAAAAAA");
        QByteArray damaged = good;
        damaged[100] = char(damaged[100] ^ 0x55);
        for (const QByteArray &zip :
             {good, damaged, good.left(200), QByteArray("<RegisterDescription/>"), QByteArray()}) {
            QTemporaryDir folder;
            QFile file(folder.filePath(QStringLiteral("d.zip")));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(zip) == zip.size());
            file.close();
            CNodeMapRef fromFile;
            CNodeMapRef fromData;
            if (zip != good) {
                QVERIFY_EXCEPTION_THROWN(fromFile._LoadXMLFromZIPFile(qPrintable(file.fileName())),
                                         GenICam::RuntimeException);
                QVERIFY_EXCEPTION_THROWN(fromData._LoadXMLFromZIPData(zip.data(), size_t(zip.size())),
                                         GenICam::RuntimeException);
                continue;
            }
            fromFile._LoadXMLFromZIPFile(qPrintable(file.fileName()));
            fromData._LoadXMLFromZIPData(zip.data(), size_t(zip.size()));
            for (const CNodeMapRef &map : {fromFile, fromData}) {
                QCOMPARE(CIntegerPtr(map._GetNode("N"))->GetValue(), int64_t(7));
                QCOMPARE(CDeviceInfoPtr(map._Ptr)->GetModelName().c_str(), "Zipped");
            }
        }
    }

    void factories()
    {
        CNodeMapFactory empty;
        QVERIFY(empty.IsEmpty());
        QVERIFY_EXCEPTION_THROWN(empty.CreateNodeMap(), GenICam::LogicalErrorException);
        CLock lock;
        CNodeMapFactory factory(gcstring(description(camera()).constData()));
        QVERIFY(!factory.IsLoaded());
        CNodeMapRef map(factory.CreateNodeMap(lock, "Mine"));
        QVERIFY(factory.IsLoaded() && factory.IsPreprocessed());
        QCOMPARE(&map._Ptr->GetLock(), &lock);
        QCOMPARE(map._GetDeviceName().c_str(), "Mine");
        gcstring_vector errors;
        QVERIFY(!map._ParseSwissKnifes(&errors) && errors.size() == 1 && errors[0].find("Bad") != GCSTRING_NPOS);
        CNodeUserDataPtr data(map._GetNode("A"));
        QVERIFY(!data->SetUserData(&errors) && data->GetUserData() == &errors);
        map = CNodeMapFactory::CreateEmptyNodeMap();
        QCOMPARE(map._Ptr->GetNumNodes(), uint64_t(0));
    }

    void injection()
    {
        const auto group = [](const char *priority) {
            return QByteArray("<Group><Integer Name='L' MergePriority='") + priority
                + "'><Value>5</Value></Integer></Group>";
        };
        // The features of Root, then the value of L.
        const std::pair<QByteArray, QByteArray> rows[] = {
            {node("Category", "Root", "<ToolTip>no</ToolTip><pFeature>New</pFeature>")
                 + node("Integer", "New", "<Value>1</Value>"),
             "A,New,S 0"},
            {node("Integer", "L", "<Value>5</Value>"), "!Runtime"}, // a conflict
            {group("1"), "A,S 5"},
            {group("-1"), "A,S 0"},
        };
        for (const auto &[injected, result] : rows) {
            CNodeMapRef map;
            QByteArray found;
            try {
                map._LoadXMLFromStringInject(
                    description(camera()).constData(),
                    QByteArray("<RegisterDescription>" + injected + "</RegisterDescription>").constData());
                NodeList_t features;
                map._GetNode("Root")->GetChildren(features);
                found = names(features) + ' ' + CValuePtr(map._GetNode("L"))->ToString().c_str();
            } catch (const GenICam::GenericException &error) {
                found = '!' + kindOf(error);
            }
            QCOMPARE(found, result);
        }
    }

    void referencesOfAKindOfCamera()
    {
        CNodeMapRefT<CameraParams> camera1("Camera");
        QVERIFY(!IsImplemented(camera1.A));
        QVERIFY_EXCEPTION_THROWN(camera1.A.GetValue(), GenICam::AccessException);
        camera1._LoadXMLFromString(description(camera()).constData());
        LoggingPort<CPortImpl> port;
        QVERIFY(camera1._Connect(&port));
        camera1.A = 7;
        QCOMPARE(camera1.A() + *camera1.A + camera1.A.GetMax(), int64_t(114));
        camera1.E.FromString("Two");
        QCOMPARE(camera1.E.ToString().c_str(), "Two");
        QVERIFY(!IsImplemented(camera1.Missing));
        QVERIFY_EXCEPTION_THROWN(camera1.Missing = 1.5, GenICam::AccessException);
        const CNodeMapRefT<CameraParams> copy(camera1);
        camera1._Destroy();
        QCOMPARE(const_cast<CIntegerRef &>(copy.A).GetValue(), int64_t(7));
    }

    void recordsAndReplays()
    {
        const Session session(camera());
        LoggingPort<CPortImpl> port;
        QVERIFY(session.map->Connect(&port));
        WriteList list;
        const CPortRecorderPtr recorder(session.map->GetNode("Device"));
        recorder->StartRecording(&list);
        session.get<IInteger>("A")->SetValue(3);
        recorder->StopRecording();
        session.get<IInteger>("A")->SetValue(4);
        QCOMPARE(port.said(), QByteArray("w10 w10"));
        recorder->Replay(&list);
        QCOMPARE(session.get<IInteger>("A")->GetValue(), int64_t(3));
        port.bytes[0x13] = 9;
        port.InvalidateNode(); // it knows its node
        QCOMPARE(session.get<IInteger>("A")->GetValue(), int64_t(9));
        const CChunkPortPtr chunk(session.map->GetNode("Chunk"));
        QCOMPARE(chunk->GetChunkID().c_str(), "beef");
        QCOMPARE(int(chunk->CacheChunkData()), int(No));
        const CPortConstructPtr construct(session.map->GetNode("Chunk"));
        construct->SetPortImpl(&port);
        QCOMPARE(int(CPortPtr(session.map->GetNode("Chunk"))->GetAccessMode()), int(RW));
    }

    void writesTogether()
    {
        const Session session(camera());
        StackedPort port;
        QVERIFY(session.map->Connect(&port));
        CNodeWriteConcatenatorRef values(session.map->NewNodeWriteConcatenator());
        values._Add("A", int64_t(5));
        values._Add("E", "Two");
        values._Add("Nobody", true);
        QVERIFY(session.map->ConcatenatedWrite(values));
        QCOMPARE(port.said(), QByteArray("s2 w10 w4"));
        values._Clear();
        values._Add("A", 101.0); // above the maximum: does not hold back the other
        values._Add("E", int64_t(0));
        gcstring_vector errors;
        QVERIFY(!session.map->ConcatenatedWrite(values, true, &errors) && errors.size() == 1);
        QCOMPARE(port.said(), QByteArray("s1 w4"));
        session.get<IInteger>("A")->SetValue(6);
        QCOMPARE(port.said(), QByteArray("w10"));
        QVERIFY_EXCEPTION_THROWN(CNodeWriteConcatenatorRef()._Clear(), GenICam::AccessException);
    }

    void suppressesCallbacks()
    {
        const Session session(node("Integer", "N", "<Value>0</Value>"));
        Register(session.map->GetNode("N"), noteCall); // a function by its name
        fired.clear();
        const auto set = [&](ECallbackSuppressMode mode, int times) {
            session.map->SetSuppressCallbackMode(mode);
            for (int i = 0; i < times; ++i)
                session.get<IInteger>("N")->SetValue(i);
            return std::exchange(fired, {});
        };
        QCOMPARE(set(csmActive, 2), QByteArray());
        QCOMPARE(set(csmOnce, 3), QByteArray("NN"));
        QCOMPARE(set(csmOff, 1), QByteArray("N"));
    }

    void keepsFeatures()
    {
        Session session(camera());
        session.run("E=One S=11 E=Two S=12 A=5");
        CFeatureBag bag;
        QCOMPARE(bag.StoreToBag(session.map.get()), int64_t(4));
        std::stringstream stream;
        stream << bag;
        QVERIFY(stream.str().find("A\t5\nS\t{E=One}\t11\nS\t{E=Two}\t12\nE\tTwo\n") != std::string::npos);
        QCOMPARE(session.run("E E=One S=0 A=0"), QByteArray("Two ok ok ok")); // the selector was put back
        CFeatureBag read;
        stream >> read;
        QVERIFY(read == bag && read.LoadFromBag(session.map.get()));
        QCOMPARE(session.run("E S E=One S A"), QByteArray("Two 12 ok 11 5"));
        std::istringstream odd("# " GENAPI_PERSISTENCE_MAGIC "\n# by hand\nA\t777\nNobody\t1\nS\t{E=No}\t3\nE\tTwo\n");
        odd >> read;
        gcstring_vector errors;
        QVERIFY(!read.LoadFromBag(session.map.get(), true, &errors));
        QCOMPARE(errors.size(), size_t(3));
        QCOMPARE(session.run("E A"), QByteArray("Two 5"));
        std::istringstream foreign("A\t5\n");
        QVERIFY_EXCEPTION_THROWN(foreign >> read, GenICam::RuntimeException);
    }
};

ORV_PLAIN_TEST_MAIN(tst_Forms)
#include "tst_forms.moc"
