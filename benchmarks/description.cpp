#include "benchmarks.h"

namespace {

constexpr int featuresPerCategory = 50;

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

} // namespace

QByteArray describeCamera(int features)
{
    QByteArray root;
    QByteArray categories;
    QByteArray nodes;
    for (int number = 0; number < features; ++number) {
        const QByteArray name = "SomeFeature" + QByteArray::number(number);
        if (number % featuresPerCategory == 0) {
            const QByteArray category = "Category" + QByteArray::number(number / featuresPerCategory);
            root += "<pFeature>" + category + "</pFeature>";
            categories += (number ? "</Category>\n<Category Name=\"" : "<Category Name=\"") + category + "\">";
        }
        categories += "<pFeature>" + name + "</pFeature>";
        nodes += describeFeature(number, name);
    }
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<RegisterDescription ModelName=\"Benchmark\" "
           "VendorName=\"Orv\" ToolTip=\"\" StandardNameSpace=\"None\" SchemaMajorVersion=\"1\" "
           "SchemaMinorVersion=\"1\" SchemaSubMinorVersion=\"0\" MajorVersion=\"1\" MinorVersion=\"0\" "
           "SubMinorVersion=\"0\" ProductGuid=\"1\" VersionGuid=\"1\" "
           "xmlns=\"http://www.genicam.org/GenApi/Version_1_1\">\n<Category Name=\"Root\">"
        + root + "</Category>\n" + categories + "</Category>\n" + nodes
        + "<Port Name=\"Device\"/>\n</RegisterDescription>\n";
}

MemoryCamera::MemoryCamera(int features)
{
    const QByteArray xml = describeCamera(features);
    map = OrvGenApi::NodeMap::fromString({xml.constData(), size_t(xml.size())});
    require(map->connect(&port), "the description has no port");
}
