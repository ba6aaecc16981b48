// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "benchmarks.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int featuresPerCategory = 50;

// Of the trees: so many features in a category, and so many categories in one of the levels above.
constexpr int treeFanOut = 20;
constexpr int treeLevels = 3;
constexpr int lastTreeNumber = 99999;

constexpr int registersPerCondition = 10;

/** Feature \a number, with what it needs besides itself; its kind follows from the number. */
QByteArray describeFeature(int number, const QByteArray &name)
{
    const QByteArray texts = "<ToolTip>What " + name + " does</ToolTip><Description>A longer text about " + name
        + "</Description><DisplayName>Display " + name + "</DisplayName>";
    switch (number % 10) {
    case 0:
    case 1:
        return "<Float Name=\"" + name + "\">" + texts + "<Value>" + QByteArray::number(number) + ".25</Value><Min>0"
            + "</Min><Max>1000000</Max><Unit>dB</Unit><DisplayPrecision>3</DisplayPrecision></Float>\n";
    case 2:
        return "<Boolean Name=\"" + name + "\">" + texts + "<Value>1</Value></Boolean>\n";
    case 3:
        return "<Enumeration Name=\"" + name + "\">" + texts
            + "<EnumEntry Name=\"Off\"><Value>0</Value></EnumEntry><EnumEntry Name=\"Once\"><Value>1</Value>"
              "</EnumEntry><EnumEntry Name=\"Continuous\"><Value>2</Value></EnumEntry><Value>2</Value>"
              "</Enumeration>\n";
    case 4:
        return "<String Name=\"" + name + "\">" + texts + "<Value>text of " + name + "</Value></String>\n";
    default:
        return "<Integer Name=\"" + name + "\">" + texts + "<pValue>" + name + "Reg</pValue><Min>0</Min><Max>65535"
            + "</Max><Unit>us</Unit></Integer>\n<IntReg Name=\"" + name + "Reg\"><Address>0x"
            + QByteArray::number(0x1000 + 4 * number, 16)
            + "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>Unsigned</Sign>"
              "<Endianess>BigEndian</Endianess></IntReg>\n";
    }
}

QByteArray document(const QByteArray &nodes)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<RegisterDescription ModelName=\"Benchmark\" "
           "VendorName=\"Orv\" ToolTip=\"\" StandardNameSpace=\"None\" SchemaMajorVersion=\"1\" "
           "SchemaMinorVersion=\"1\" SchemaSubMinorVersion=\"0\" MajorVersion=\"1\" MinorVersion=\"0\" "
           "SubMinorVersion=\"0\" ProductGuid=\"1\" VersionGuid=\"1\" "
           "xmlns=\"http://www.genicam.org/GenApi/Version_1_1\">\n"
        + nodes + "<Port Name=\"Device\"/>\n</RegisterDescription>\n";
}

QByteArray describeCategory(const QByteArray &name, const std::vector<QByteArray> &features)
{
    QByteArray text = "<Category Name=\"" + name + "\">";
    for (const QByteArray &feature : features)
        text += "<pFeature>" + feature + "</pFeature>";
    return text + "</Category>\n";
}

/** Puts \a features into categories, those into others, and the last into the root. */
QByteArray describeCategories(std::vector<QByteArray> features)
{
    QByteArray text;
    for (int level = 0; level < treeLevels; ++level) {
        std::vector<QByteArray> categories;
        for (size_t first = 0; first < features.size(); first += treeFanOut) {
            const size_t last = std::min(first + treeFanOut, features.size());
            categories.push_back("Level" + QByteArray::number(level) + "Number"
                                 + QByteArray::number(int(categories.size())));
            text += describeCategory(categories.back(),
                                     {features.begin() + ptrdiff_t(first), features.begin() + ptrdiff_t(last)});
        }
        features = std::move(categories);
    }
    return text + describeCategory("Root", features);
}

/** Register \a number, 4 bytes that are read whenever they are asked for; what else is told about it is \a rest. */
QByteArray describeRegister(const QByteArray &name, int number, const QByteArray &rest = QByteArray())
{
    return "<IntReg Name=\"" + name + "\">" + rest + "<Address>" + QByteArray::number(number * registerSize)
        + "</Address><Length>" + QByteArray::number(registerSize)
        + "</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Cachable>NoCache</Cachable></IntReg>\n";
}

} // namespace

QByteArray describeCamera(int features)
{
    std::vector<QByteArray> categories;
    std::vector<QByteArray> names;
    QByteArray nodes;
    for (int number = 0; number < features; ++number) {
        names.push_back("SomeFeature" + QByteArray::number(number));
        nodes += describeFeature(number, names.back());
        if (names.size() == featuresPerCategory || number + 1 == features) {
            categories.push_back("Category" + QByteArray::number(int(categories.size())));
            nodes += describeCategory(categories.back(), names);
            names.clear();
        }
    }
    return document(describeCategory("Root", categories) + nodes);
}

QByteArray describeTree(int features)
{
    std::vector<QByteArray> names;
    QByteArray nodes;
    for (int number = 0; number < features; ++number) {
        const QByteArray name = "SomeFeature" + QByteArray::number(lastTreeNumber + 1 - features + number);
        names.push_back(name);
        if (number % (features / polledFeatures) == polledFeatures / 2)
            nodes += describeRegister(name, number + secondBank,
                                      "<PollingTime>" + QByteArray::number(pollingTime) + "</PollingTime>");
        else
            nodes += describeFeature(number, name);
    }
    return document(describeCategories(names) + nodes);
}

QByteArray describeRegisters(int features)
{
    std::vector<QByteArray> names;
    QByteArray nodes;
    for (int number = 0; number < features; ++number) {
        names.push_back("Register" + QByteArray::number(number));
        if (number % registersPerCondition != 0) {
            nodes += describeRegister(names.back(), number);
            continue;
        }
        const QByteArray condition = names.back() + "Condition";
        nodes += describeRegister(names.back(), number, "<pIsLocked>" + condition + "</pIsLocked>")
            + describeRegister(condition, number + secondBank);
    }
    return document(describeCategories(names) + nodes);
}

MemoryCamera::MemoryCamera(const QByteArray &description)
{
    map = OrvGenApi::NodeMap::fromString({description.constData(), size_t(description.size())});
    require(map->connect(&port), "the description has no port");
}
