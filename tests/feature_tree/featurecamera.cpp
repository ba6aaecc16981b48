// SPDX-FileCopyrightText: 2026 The authors of OrvCameraGuiApi
// SPDX-License-Identifier: BSD-3-Clause

#include "featurecamera.h"

#include <OrvCameraGuiApi/feature_tree/genparamtreemodel.h>

namespace {

/** A register of 8 bytes at \a address. */
QByteArray reg(const char *name, int address, const char *mode = "RW")
{
    return QByteArray("<IntReg Name=\"") + name + "\"><Address>" + QByteArray::number(address)
        + "</Address><Length>8</Length><AccessMode>" + mode
        + "</AccessMode><pPort>Device</pPort><Sign>Signed</Sign><Endianess>BigEndian</Endianess></IntReg>";
}

} // namespace

FeatureCamera::FeatureCamera(const QByteArray &nodes)
{
    const QByteArray xml = "<RegisterDescription ModelName=\"Camera\" VendorName=\"Test\" ToolTip=\"\" "
                           "StandardNameSpace=\"None\" SchemaMajorVersion=\"1\" SchemaMinorVersion=\"1\" "
                           "SchemaSubMinorVersion=\"0\" MajorVersion=\"1\" MinorVersion=\"0\" SubMinorVersion=\"0\" "
                           "ProductGuid=\"1\" VersionGuid=\"1\" xmlns=\"http://www.genicam.org/GenApi/Version_1_1\">"
        + nodes + "<Port Name=\"Device\"/></RegisterDescription>";
    map = OrvGenApi::NodeMap::fromString({xml.constData(), size_t(xml.size())});
    map->connect(&port);
}

QByteArray FeatureCamera::allKinds()
{
    return R"(
<Category Name="Root"><pFeature>Numbers</pFeature><pFeature>Others</pFeature><pFeature>Access</pFeature></Category>
<Category Name="Numbers"><ToolTip>All that counts</ToolTip><DisplayName>Plain Numbers</DisplayName>
  <pFeature>Exposure</pFeature><pFeature>GevSCDA</pFeature><pFeature>GevMACAddress</pFeature><pFeature>Mask</pFeature>
  <pFeature>Binning</pFeature><pFeature>Gain</pFeature><pFeature>Ratio</pFeature>
  <pFeature>Fraction</pFeature></Category>
<Category Name="Others"><pFeature>Flag</pFeature><pFeature>Start</pFeature><pFeature>Label</pFeature>
  <pFeature>Mode</pFeature><pFeature>Blob</pFeature></Category>
<Category Name="Access"><pFeature>Key</pFeature><pFeature>Serial</pFeature><pFeature>Gone</pFeature></Category>
<Integer Name="Exposure"><ToolTip>How long</ToolTip><Description>Time &lt; one frame &amp; more</Description>
  <DisplayName>Exposure Time</DisplayName><Streamable>Yes</Streamable><pValue>ExposureReg</pValue><Min>-4</Min>
  <Max>4000</Max><Inc>4</Inc><Unit>us</Unit></Integer>
<Integer Name="GevSCDA"><pValue>AddressReg</pValue></Integer>
<Integer Name="GevMACAddress"><pValue>MacReg</pValue></Integer>
<Integer Name="Mask"><pValue>MaskReg</pValue><Representation>HexNumber</Representation></Integer>
<Integer Name="Binning"><Value>2</Value><Min>1</Min><Max>5</Max><Unit>px</Unit>
  <ValidValueSet>1;2;4;8</ValidValueSet></Integer>
<Float Name="Gain"><Value>1.5</Value><Min>0.25</Min><Max>8.25</Max><Inc>0.25</Inc><Unit>dB</Unit>
  <DisplayPrecision>3</DisplayPrecision></Float>
<Float Name="Ratio"><Value>0.5</Value><DisplayPrecision>99999999</DisplayPrecision></Float>
<Float Name="Fraction"><pValue>Scaled</pValue><Unit>mm</Unit></Float>
<Converter Name="Scaled"><FormulaTo>FROM / 1.375</FormulaTo><FormulaFrom>TO * 1.375</FormulaFrom>
  <pValue>Binning</pValue><Slope>Increasing</Slope></Converter>
<Boolean Name="Flag"><pValue>FlagReg</pValue></Boolean>
<Command Name="Start"><pValue>StartReg</pValue><CommandValue>7</CommandValue></Command>
<StringReg Name="Label"><Address>0x80</Address><Length>16</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort></StringReg>
<Enumeration Name="Mode"><EnumEntry Name="Off"><Value>0</Value></EnumEntry>
  <EnumEntry Name="Continuous"><Value>10</Value></EnumEntry>
  <EnumEntry Name="Never"><pIsAvailable>Zero</pIsAvailable><Value>3</Value></EnumEntry>
  <pValue>ModeReg</pValue><pSelected>Exposure</pSelected></Enumeration>
<Register Name="Blob"><Address>0xA0</Address><Length>8</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort></Register>
<Integer Name="Key"><pValue>KeyReg</pValue></Integer>
<Integer Name="Serial"><pValue>SerialReg</pValue></Integer>
<Integer Name="Gone"><pIsAvailable>Zero</pIsAvailable><Value>5</Value></Integer>
<Integer Name="Zero"><Value>0</Value></Integer>
)" + reg("ExposureReg", 0x00)
        + reg("AddressReg", 0x08) + reg("MacReg", 0x10) + reg("MaskReg", 0x18) + reg("FlagReg", 0x20)
        + reg("StartReg", 0x28, "WO") + reg("ModeReg", 0x30) + reg("KeyReg", 0x38, "WO") + reg("SerialReg", 0x40, "RO");
}

QModelIndexList rowsOf(const QAbstractItemModel &model, const QModelIndex &parent)
{
    QModelIndexList all;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        all += model.index(row, GenParamTreeModel::NameColumn, parent);
        all += rowsOf(model, all.last());
    }
    return all;
}

GenApi::INode *nodeOf(const QModelIndex &index)
{
    return dynamic_cast<GenApi::INode *>(index.data(GenParamTreeModel::ValueInterfaceRole).value<GenApi::IValue *>());
}

QString nodeName(const QModelIndex &index)
{
    return QString::fromUtf8(nodeOf(index)->GetName().c_str());
}

QModelIndex cellOf(const QAbstractItemModel &model, const GenApi::INode *node, int column)
{
    const QModelIndexList all = rowsOf(model);
    for (const QModelIndex &index : all) {
        if (nodeOf(index) == node)
            return index.siblingAtColumn(column);
    }
    return {};
}
