// Prints what a node map answers for every feature of a description, or what writing every feature does. Made for
// comparing implementations of GenApi: genapi_dump DESCRIPTION zero|ones|hash [writes]

#include <GenApi/GenApi.h>
#include <OrvGenApi/memoryport.h>
#include <OrvGenApi/nodemap.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
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

std::vector<std::string> integerExtras(IInteger *integer)
{
    std::vector<std::string> extras;
    extras.push_back("min=" + orError([&] { return std::to_string(integer->GetMin()); }));
    extras.push_back("max=" + orError([&] { return std::to_string(integer->GetMax()); }));
    const bool list = integer->GetIncMode() == listIncrement;
    extras.push_back(std::string("incmode=") + (list ? "list" : "fixed"));
    if (list) {
        extras.push_back("valid=" + orError([&] {
                             const int64_autovector_t values = integer->GetListOfValidValues();
                             std::vector<std::string> texts;
                             for (std::size_t i = 0; i < values.size(); ++i)
                                 texts.push_back(std::to_string(values[i]));
                             return joined(texts, ",");
                         }));
    } else {
        extras.push_back("inc=" + orError([&] { return std::to_string(integer->GetInc()); }));
    }
    extras.push_back(std::string("rep=") + representationName(integer->GetRepresentation()));
    extras.push_back("unit=" + escaped(integer->GetUnit().c_str()));
    return extras;
}

std::vector<std::string> floatExtras(IFloat *number)
{
    static const char *const modes[] = {"none", "fixed", "list"};
    static const char *const notations[] = {"Automatic", "Fixed", "Scientific", "Undefined"};
    std::vector<std::string> extras;
    extras.push_back("min=" + orError([&] { return formatted(number->GetMin()); }));
    extras.push_back("max=" + orError([&] { return formatted(number->GetMax()); }));
    extras.push_back(std::string("incmode=") + modes[number->GetIncMode()]);
    if (number->GetIncMode() == fixedIncrement)
        extras.push_back("inc=" + orError([&] { return formatted(number->GetInc()); }));
    extras.push_back("prec=" + std::to_string(number->GetDisplayPrecision()));
    extras.push_back(std::string("notation=") + notations[number->GetDisplayNotation()]);
    extras.push_back("unit=" + escaped(number->GetUnit().c_str()));
    extras.push_back(std::string("rep=") + representationName(number->GetRepresentation()));
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
        write.what = "max=" + orError([&] { return std::to_string(integer->GetMax()); });
        write.result = resultOf([&] { integer->SetValue(integer->GetMax()); });
        return true;
    }
    case intfIFloat: {
        const CFloatPtr number(node);
        write.what = "min=" + orError([&] { return formatted(number->GetMin()); });
        write.result = resultOf([&] { number->SetValue(number->GetMin()); });
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

void printWrites(const std::vector<Visit> &visits)
{
    std::set<std::string> fired;
    std::set<INode *> known;
    std::vector<INode *> features;
    for (const Visit &visit : visits) {
        if (!known.insert(visit.node).second)
            continue;
        features.push_back(visit.node);
        Register(visit.node, [&fired](INode *node) { fired.insert(node->GetName().c_str()); });
    }
    for (INode *node : features) {
        fired.clear();
        const std::string access = accessName(node);
        Write write;
        if (!performWrite(node, write))
            continue;
        const std::set<std::string> names = fired;
        std::cout << "W\t" << node->GetName().c_str() << '\t' << access << '\t' << write.what << '\t' << write.result
                  << '\t' << value(node) << '\t' << joined({names.begin(), names.end()}, ",") << '\n';
    }
}

OrvGenApi::MemoryPort::Background background(const char *pattern)
{
    if (std::strcmp(pattern, "ones") == 0)
        return [](uint64_t address) { return static_cast<uint8_t>(address % 4 == 3); };
    if (std::strcmp(pattern, "hash") == 0)
        return [](uint64_t address) {
            return static_cast<uint8_t>(static_cast<uint32_t>(address) * uint32_t(2654435761u) >> 24);
        };
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    const bool writes = argc == 4 && std::strcmp(argv[3], "writes") == 0;
    if (argc != 3 && !writes) {
        std::cerr << "usage: genapi_dump DESCRIPTION zero|ones|hash [writes]\n";
        return 2;
    }
    try {
        OrvGenApi::MemoryPort port(background(argv[2]));
        const std::unique_ptr<OrvGenApi::NodeMap> map = OrvGenApi::NodeMap::fromFile(argv[1]);
        map->connect(&port);
        const CCategoryPtr root(map->GetNode("Root"));
        const std::vector<Visit> visits = root.IsValid() ? walk(root) : std::vector<Visit>();
        if (writes) {
            printWrites(visits);
        } else {
            for (const Visit &visit : visits)
                printFeature(visit.node, visit.depth);
        }
    } catch (const GenICam::GenericException &error) {
        std::cout << "LOADFAIL " << exceptionKind(error) << '\n';
        return 1;
    }
    return 0;
}
