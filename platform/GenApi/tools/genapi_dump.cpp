// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

// Prints what a node map answers for every feature of a description, or what writing every feature does. Made for
// comparing implementations of GenApi: genapi_dump DESCRIPTION zero|ones|hash [writes|script]

#include <GenApi/GenApi.h>
#include <OrvGenApi/memoryport.h>
#include <OrvGenApi/nodemap.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <iostream>
#include <set>
#include <string>
#include <vector>

using namespace GenApi;

namespace {

const char *exceptionKind(const GenICam::GenericException &error)
{
    if (dynamic_cast<const GenICam::AccessException *>(&error))
        return "Access";
    if (dynamic_cast<const GenICam::OutOfRangeException *>(&error))
        return "OutOfRange";
    if (dynamic_cast<const GenICam::InvalidArgumentException *>(&error))
        return "InvalidArgument";
    if (dynamic_cast<const GenICam::LogicalErrorException *>(&error))
        return "LogicalError";
    if (dynamic_cast<const GenICam::RuntimeException *>(&error))
        return "Runtime";
    if (dynamic_cast<const GenICam::PropertyException *>(&error))
        return "Property";
    if (dynamic_cast<const GenICam::DynamicCastException *>(&error))
        return "DynamicCast";
    if (dynamic_cast<const GenICam::TimeoutException *>(&error))
        return "Timeout";
    return "Generic";
}

/** What \a get() returns, or the kind of the exception that it throws. */
template <typename Get>
std::string orError(const Get &get)
{
    try {
        return get();
    } catch (const GenICam::GenericException &error) {
        return std::string("!") + exceptionKind(error);
    }
}

std::string escaped(const std::string &text)
{
    std::string result;
    for (const char each : text) {
        const auto byte = static_cast<unsigned char>(each);
        char hex[8];
        if (each == '\t')
            result += "\\t";
        else if (each == '\n')
            result += "\\n";
        else if (each == '\r')
            result += "\\r";
        else if (each == '\\')
            result += "\\\\";
        else if (byte < 32 || byte >= 127) {
            std::snprintf(hex, sizeof hex, "\\x%02x", byte);
            result += hex;
        } else
            result += each;
    }
    return result;
}

std::string formatted(double value)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.9g", value);
    return text;
}

std::string accessName(IBase *object)
{
    static const char *const names[] = {"NI", "NA", "WO", "RO", "RW"};
    return orError([&] { return std::string(names[object->GetAccessMode()]); });
}

const char *kindName(EInterfaceType type)
{
    static const char *const names[] = {"Value",  "Base",     "Integer",  "Boolean",     "Command",   "Float",
                                        "String", "Register", "Category", "Enumeration", "EnumEntry", "Port"};
    return names[type];
}

const char *representationName(ERepresentation representation)
{
    static const char *const names[] = {"Linear",    "Logarithmic", "Boolean",    "PureNumber",
                                        "HexNumber", "IPV4Address", "MACAddress", "Undefined"};
    return names[representation];
}

const char *cachingName(ECachingMode mode)
{
    static const char *const names[] = {"NoCache", "WriteThrough", "WriteAround", "Undefined"};
    return names[mode];
}

std::string value(INode *node)
{
    switch (node->GetPrincipalInterfaceType()) {
    case intfIInteger:
        return orError([&] { return std::to_string(CIntegerPtr(node)->GetValue()); });
    case intfIFloat:
        return orError([&] { return formatted(CFloatPtr(node)->GetValue()); });
    case intfIBoolean:
        return orError([&] { return std::string(CBooleanPtr(node)->GetValue() ? "true" : "false"); });
    case intfIString:
        return orError([&] { return escaped(CStringPtr(node)->GetValue().c_str()); });
    case intfIEnumeration:
        return orError([&] {
            const CEnumerationPtr enumeration(node);
            const std::string symbolic = escaped(enumeration->ToString().c_str());
            return symbolic + "=" + std::to_string(enumeration->GetIntValue());
        });
    default:
        return "-";
    }
}

std::string joined(const std::vector<std::string> &parts, const char *separator)
{
    std::string result;
    for (const std::string &part : parts)
        result += (result.empty() ? "" : separator) + part;
    return result;
}

template <typename Get>
std::string incrementName(const Get &get)
{
    static const char *const modes[] = {"none", "fixed", "list"};
    return orError([&] { return std::string(modes[get()]); });
}

std::vector<std::string> integerExtras(IInteger *integer)
{
    std::vector<std::string> extras;
    const std::string maximum = orError([&] { return std::to_string(integer->GetMax()); });
    extras.push_back("min=" + orError([&] { return std::to_string(integer->GetMin()); }));
    extras.push_back("max=" + maximum);
    const std::string mode = incrementName([&] { return integer->GetIncMode(); });
    extras.push_back("incmode=" + mode);
    if (mode == "list") {
        extras.push_back("valid=" + orError([&] {
                             const int64_autovector_t values = integer->GetListOfValidValues();
                             std::vector<std::string> texts;
                             for (std::size_t i = 0; i < values.size(); ++i)
                                 texts.push_back(std::to_string(values[i]));
                             return joined(texts, ",");
                         }));
    } else if (mode == "fixed") {
        extras.push_back("inc=" + orError([&] { return std::to_string(integer->GetInc()); }));
    }
    extras.push_back("rep=" + orError([&] { return std::string(representationName(integer->GetRepresentation())); }));
    extras.push_back("unit=" + orError([&] { return escaped(integer->GetUnit().c_str()); }));
    return extras;
}

std::vector<std::string> floatExtras(IFloat *number)
{
    static const char *const notations[] = {"Automatic", "Fixed", "Scientific", "Undefined"};
    std::vector<std::string> extras;
    const std::string maximum = orError([&] { return formatted(number->GetMax()); });
    extras.push_back("min=" + orError([&] { return formatted(number->GetMin()); }));
    extras.push_back("max=" + maximum);
    const std::string mode = incrementName([&] { return number->GetIncMode(); });
    extras.push_back("incmode=" + mode);
    if (mode == "fixed")
        extras.push_back("inc=" + orError([&] { return formatted(number->GetInc()); }));
    extras.push_back("prec=" + orError([&] { return std::to_string(number->GetDisplayPrecision()); }));
    extras.push_back("notation=" + orError([&] { return std::string(notations[number->GetDisplayNotation()]); }));
    extras.push_back("unit=" + orError([&] { return escaped(number->GetUnit().c_str()); }));
    extras.push_back("rep=" + orError([&] { return std::string(representationName(number->GetRepresentation())); }));
    return extras;
}

std::string entriesExtra(IEnumeration *enumeration)
{
    NodeList_t entries;
    enumeration->GetEntries(entries);
    std::vector<std::string> texts;
    for (INode *node : entries) {
        const CEnumEntryPtr entry(node);
        texts.push_back(escaped(entry->GetSymbolic().c_str()) + ":" + std::to_string(entry->GetValue()) + ":"
                        + accessName(node));
    }
    return "entries=" + joined(texts, ",");
}

std::vector<std::string> extrasOf(INode *node)
{
    std::vector<std::string> extras;
    switch (node->GetPrincipalInterfaceType()) {
    case intfIInteger:
        extras = integerExtras(CIntegerPtr(node));
        break;
    case intfIFloat:
        extras = floatExtras(CFloatPtr(node));
        break;
    case intfIString:
        extras.push_back("maxlen=" + orError([&] { return std::to_string(CStringPtr(node)->GetMaxLength()); }));
        break;
    case intfIEnumeration:
        extras.push_back(entriesExtra(CEnumerationPtr(node)));
        break;
    default:
        break;
    }
    FeatureList_t selecting;
    CSelectorPtr(node)->GetSelectingFeatures(selecting);
    std::vector<std::string> names;
    for (IValue *selector : selecting)
        names.push_back(selector->GetNode()->GetName().c_str());
    std::sort(names.begin(), names.end());
    if (!names.empty())
        extras.push_back("selectors=" + joined(names, ","));
    return extras;
}

void printFeature(INode *node, int depth)
{
    std::vector<std::string> fields = {"F",
                                       std::to_string(depth),
                                       node->GetName().c_str(),
                                       kindName(node->GetPrincipalInterfaceType()),
                                       accessName(node),
                                       std::to_string(node->GetVisibility()),
                                       node->IsStreamable() ? "S" : "-",
                                       cachingName(node->GetCachingMode()),
                                       escaped(node->GetDisplayName().c_str()),
                                       value(node)};
    const std::vector<std::string> extras = extrasOf(node);
    fields.insert(fields.end(), extras.begin(), extras.end());
    std::string line;
    for (const std::string &field : fields)
        line += (&field == &fields.front() ? "" : "\t") + field;
    std::cout << line << '\n';
}

struct Visit
{
    INode *node;
    int depth;
};

/** All features in tree order; those below a category only where it comes up first. */
std::vector<Visit> walk(ICategory *root)
{
    std::vector<Visit> visits;
    std::set<const INode *> entered;
    const auto enter = [&](const auto &self, ICategory *category, int depth) -> void {
        FeatureList_t features;
        category->GetFeatures(features);
        for (IValue *feature : features) {
            INode *const node = feature->GetNode();
            visits.push_back({node, depth});
            if (const auto child = dynamic_cast<ICategory *>(feature); child && entered.insert(node).second)
                self(self, child, depth + 1);
        }
    };
    enter(enter, root, 0);
    return visits;
}

/** One write: its description, and the deed. Nothing where this kind of node is passed over. */
struct Write
{
    std::string what;
    std::string result;
};

template <typename Deed>
std::string resultOf(const Deed &deed)
{
    return orError([&] {
        deed();
        return std::string("ok");
    });
}

bool writeEnumeration(IEnumeration *enumeration, Write &write)
{
    NodeList_t entries;
    enumeration->GetEntries(entries);
    IEnumEntry *last = nullptr;
    for (INode *node : entries) {
        if (accessName(node)[0] == 'R')
            last = CEnumEntryPtr(node);
    }
    if (!last)
        return false;
    write.what = escaped(last->GetSymbolic().c_str());
    write.result = resultOf([&] { enumeration->SetIntValue(last->GetValue()); });
    return true;
}

/** False when nodes of this kind are passed over. */
bool performWrite(INode *node, Write &write)
{
    switch (node->GetPrincipalInterfaceType()) {
    case intfIInteger: {
        const CIntegerPtr integer(node);
        int64_t maximum = 0;
        write.what = "max=" + orError([&] { return std::to_string(maximum = integer->GetMax()); });
        write.result = resultOf([&] { integer->SetValue(maximum); });
        return true;
    }
    case intfIFloat: {
        const CFloatPtr number(node);
        double minimum = 0;
        write.what = "min=" + orError([&] { return formatted(minimum = number->GetMin()); });
        write.result = resultOf([&] { number->SetValue(minimum); });
        return true;
    }
    case intfIBoolean:
        write.what = "true";
        write.result = resultOf([&] { CBooleanPtr(node)->SetValue(true); });
        return true;
    case intfIEnumeration:
        return writeEnumeration(CEnumerationPtr(node), write);
    case intfIString:
        write.what = "x";
        write.result = resultOf([&] { CStringPtr(node)->SetValue("x"); });
        return true;
    case intfICommand:
        write.what = "execute";
        write.result = resultOf([&] { CCommandPtr(node)->Execute(); });
        return true;
    default:
        return false;
    }
}

/** The distinct features in tree order, each with a callback that notes its name. */
std::vector<INode *> watched(const std::vector<Visit> &visits, std::set<std::string> &fired)
{
    std::set<INode *> known;
    std::vector<INode *> features;
    for (const Visit &visit : visits) {
        if (!known.insert(visit.node).second)
            continue;
        features.push_back(visit.node);
        Register(visit.node,
                 std::function<void(INode *)>([&fired](INode *node) { fired.insert(node->GetName().c_str()); }));
    }
    return features;
}

std::string joined(const std::set<std::string> &names)
{
    return joined(std::vector<std::string>(names.begin(), names.end()), ",");
}

void printWrites(const std::vector<Visit> &visits)
{
    std::set<std::string> fired;
    for (INode *node : watched(visits, fired)) {
        fired.clear();
        const std::string access = accessName(node);
        Write write;
        if (!performWrite(node, write))
            continue;
        const std::set<std::string> names = fired;
        std::cout << "W\t" << node->GetName().c_str() << '\t' << access << '\t' << write.what << '\t' << write.result
                  << '\t' << value(node) << '\t' << joined(names) << '\n';
    }
}

/** Does sequences of operations with every feature, and prints after each what has become of it. */
class Script
{
public:
    Script(INodeMap &map, OrvGenApi::MemoryPort &port)
        : m_map(map)
        , m_port(port)
    {
    }

    void run(const std::vector<Visit> &visits);

private:
    template <typename Deed>
    void answer(const std::string &what, const Deed &deed);
    template <typename Deed>
    void act(const std::string &what, const Deed &deed);
    void setText(const std::string &text);
    void setTexts(std::initializer_list<const char *> texts);

    void play(IInteger *integer);
    void play(IFloat *number);
    void play(IBoolean *boolean);
    void play(IEnumeration *enumeration);
    void play(ICommand *command);
    void play(IString *string);
    void play(IRegister *bytes);
    void play(INode *node);

    INodeMap &m_map;
    OrvGenApi::MemoryPort &m_port;
    std::set<std::string> m_fired;
    IValue *m_value = nullptr; ///< that is acted on; null: the map
};

/** Prints what \a deed answers. */
template <typename Deed>
void Script::answer(const std::string &what, const Deed &deed)
{
    m_fired.clear();
    const std::string result = orError(deed);
    const std::set<std::string> fired = m_fired;
    std::string name = "-";
    std::string text = "-";
    std::string kept = "-";
    if (m_value) {
        name = m_value->GetNode()->GetName().c_str();
        kept = orError([&] { return std::string(m_value->IsValueCacheValid() ? "kept" : "-"); });
        text = orError([&] { return escaped(m_value->ToString().c_str()); }); // last: it reads
    }
    std::cout << "S\t" << name << '\t' << what << '\t' << result << '\t' << text << '\t' << kept << '\t'
              << joined(fired) << '\n';
}

template <typename Deed>
void Script::act(const std::string &what, const Deed &deed)
{
    answer(what, [&] {
        deed();
        return std::string("ok");
    });
}

void Script::setText(const std::string &text)
{
    act("text " + text, [&] { m_value->FromString(text.c_str()); });
}

void Script::setTexts(std::initializer_list<const char *> texts)
{
    for (const char *text : texts)
        setText(text);
}

/** \a value and \a step wrap around. */
int64_t plus(int64_t value, uint64_t step)
{
    return static_cast<int64_t>(static_cast<uint64_t>(value) + step);
}

void Script::play(IInteger *integer)
{
    answer("fresh", [&] { return std::to_string(integer->GetValue(false, true)); });
    answer("verified", [&] { return std::to_string(integer->GetValue(true)); });
    act("set min", [&] { integer->SetValue(integer->GetMin()); });
    act("set max+1", [&] { integer->SetValue(plus(integer->GetMax(), 1)); });
    act("set min+1", [&] { integer->SetValue(plus(integer->GetMin(), 1)); });
    act("set 5 unverified", [&] { integer->SetValue(5, false); });
    setTexts({"0x10", "12", "-1", "true", "abc", "1.5"});
}

void Script::play(IFloat *number)
{
    answer("fresh", [&] { return formatted(number->GetValue(false, true)); });
    answer("verified", [&] { return formatted(number->GetValue(true)); });
    act("set max", [&] { number->SetValue(number->GetMax()); });
    act("set min-1", [&] { number->SetValue(number->GetMin() - 1); });
    act("set 2.6", [&] { number->SetValue(2.6); });
    act("set 2.6 unverified", [&] { number->SetValue(2.6, false); });
    setTexts({"1.5", "3", "1e1", "x"});
}

void Script::play(IBoolean *boolean)
{
    act("set true", [&] { boolean->SetValue(true); });
    act("set false", [&] { boolean->SetValue(false); });
    setTexts({"1", "true", "True", "0", "x"});
}

void Script::play(IEnumeration *enumeration)
{
    NodeList_t entries;
    enumeration->GetEntries(entries);
    if (entries.empty())
        return;
    const CEnumEntryPtr first(entries[0]);
    const CEnumEntryPtr last(entries[entries.size() - 1]);
    answer("verified", [&] { return std::to_string(enumeration->GetIntValue(true)); });
    act("set first", [&] { enumeration->SetIntValue(first->GetValue()); });
    act("set last", [&] { enumeration->SetIntValue(last->GetValue()); });
    act("set 777", [&] { enumeration->SetIntValue(777); });
    act("set 777 unverified", [&] { enumeration->SetIntValue(777, false); });
    setText(first->GetSymbolic().c_str());
    setText("Nope");
    answer("entry text", [&] { return escaped(last->ToString().c_str()); });
    answer("current", [&] { return std::string(enumeration->GetCurrentEntry() ? "entry" : "none"); });
}

void Script::play(ICommand *command)
{
    const auto done = [&] { return std::string(command->IsDone() ? "done" : "busy"); };
    answer("done", done);
    act("execute", [&] { command->Execute(); });
    answer("done", done);
    m_port.clear();
    answer("done after the device cleared", done);
    setTexts({"0", "1", "x"});
}

void Script::play(IString *string)
{
    act("set abc", [&] { string->SetValue("abc"); });
    act("set long",
        [&] { string->SetValue("0123456789012345678901234567890123456789012345678901234567890123456789"); });
    setText("t");
    answer("verified", [&] { return escaped(string->GetValue(true).c_str()); });
}

void Script::play(IRegister *bytes)
{
    uint8_t buffer[32] = {1, 2, 3};
    answer("length", [&] { return std::to_string(bytes->GetLength()); });
    act("set", [&] { bytes->Set(buffer, bytes->GetLength()); });
    act("set too much", [&] { bytes->Set(buffer, bytes->GetLength() + 1); });
    answer("get", [&] {
        bytes->Get(buffer, bytes->GetLength());
        return std::to_string(buffer[0]) + "," + std::to_string(buffer[1]);
    });
}

void Script::play(INode *node)
{
    switch (node->GetPrincipalInterfaceType()) {
    case intfIInteger:
        return play(dynamic_cast<IInteger *>(node));
    case intfIFloat:
        return play(dynamic_cast<IFloat *>(node));
    case intfIBoolean:
        return play(dynamic_cast<IBoolean *>(node));
    case intfIEnumeration:
        return play(dynamic_cast<IEnumeration *>(node));
    case intfICommand:
        return play(dynamic_cast<ICommand *>(node));
    case intfIString:
        return play(dynamic_cast<IString *>(node));
    case intfIRegister:
        return play(dynamic_cast<IRegister *>(node));
    default:
        act("text", [] {});
    }
}

void Script::run(const std::vector<Visit> &visits)
{
    const std::vector<INode *> features = watched(visits, m_fired);
    const auto forEach = [&](const auto &deed) {
        for (INode *node : features) {
            m_value = dynamic_cast<IValue *>(node);
            deed(node);
        }
        m_value = nullptr;
    };
    forEach([&](INode *node) { play(node); });
    forEach([&](INode *node) { act("invalidate", [&] { node->InvalidateNode(); }); });
    for (const int milliseconds : {50, 100, 200, 500, 1000})
        act("poll " + std::to_string(milliseconds), [&] { m_map.Poll(milliseconds); });
    act("invalidate all", [&] { m_map.InvalidateNodes(); });
    forEach([](INode *node) { printFeature(node, 0); });
}

bool isPattern(const std::string &name)
{
    return name == "zero" || name == "ones" || name == "hash";
}

OrvGenApi::MemoryPort::Background background(const std::string &pattern)
{
    if (pattern == "ones")
        return [](uint64_t address) { return static_cast<uint8_t>(address % 4 == 3); };
    if (pattern == "hash")
        return [](uint64_t address) {
            return static_cast<uint8_t>(static_cast<uint32_t>(address) * uint32_t(2654435761u) >> 24);
        };
    return {};
}

constexpr const char *usage = "Usage: genapi_dump DESCRIPTION zero|ones|hash [writes|script]\n";

constexpr const char *help = "Prints what the features of a GenICam description answer, a feature a line.\n"
                             "\n"
                             "The registers are in memory and begin as zeros, as ones or as a pattern that\n"
                             "depends on the address (hash).\n"
                             "\n"
                             "  writes         print what writing each feature does instead\n"
                             "  script         do sequences of operations with each feature instead and print\n"
                             "                 what becomes of it\n"
                             "  -h, --help     print this text\n"
                             "  -v, --version  print the version\n"
                             "\n"
                             "Ends with 0, with 1 if the description cannot be loaded, with 2 after a usage\n"
                             "that is not as above. With GENAPI_DUMP_COUNTS in the environment the accesses to\n"
                             "registers are counted on the standard error.\n";

/** Whether \a argument asks for a text, which is printed then. */
bool printsText(const std::string &argument)
{
    if (argument == "-h" || argument == "--help")
        std::cout << usage << help;
    else if (argument == "-v" || argument == "--version")
        std::cout << "genapi_dump " ORV_VERSION "\n";
    else
        return false;
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 2 && printsText(argv[1]))
        return 0;
    const std::string mode = argc == 4 ? argv[3] : "";
    if (argc < 3 || argc > 4 || !isPattern(argv[2]) || (!mode.empty() && mode != "writes" && mode != "script")) {
        std::cerr << usage;
        return 2;
    }
    try {
        OrvGenApi::MemoryPort port(background(argv[2]));
        const std::unique_ptr<OrvGenApi::NodeMap> map = OrvGenApi::NodeMap::fromFile(argv[1]);
        map->connect(&port);
        const CCategoryPtr root(map->GetNode("Root"));
        const std::vector<Visit> visits = root.IsValid() ? walk(root) : std::vector<Visit>();
        if (mode == "writes") {
            printWrites(visits);
        } else if (mode == "script") {
            Script(*map, port).run(visits);
        } else {
            for (const Visit &visit : visits)
                printFeature(visit.node, visit.depth);
        }
        if (std::getenv("GENAPI_DUMP_COUNTS"))
            std::cerr << "reads " << port.readCount() << " writes " << port.writeCount() << '\n';
    } catch (const GenICam::GenericException &error) {
        std::cout << "LOADFAIL\t!" << exceptionKind(error) << '\n';
        std::cerr << error.what() << '\n';
        return 1;
    }
    return 0;
}
