// SPDX-License-Identifier: Apache-2.0
// A small camera with one of everything, over registers in memory.
#include "testcamera.h"

#include <QStringList>

namespace {

// The exposure time stands before the automatic that locks it, so that order matters.
const char* const features = R"(
<pFeature>Gain</pFeature><pFeature>Gamma</pFeature><pFeature>SensorWidth</pFeature>
<pFeature>Width</pFeature><pFeature>OffsetX</pFeature>
<pFeature>ExposureTime</pFeature><pFeature>ExposureAuto</pFeature><pFeature>Percent</pFeature>
<pFeature>LutEnable</pFeature><pFeature>LutIndex</pFeature><pFeature>Absent</pFeature>
<pFeature>PixelFormat</pFeature><pFeature>Level</pFeature><pFeature>Temperature</pFeature>
<pFeature>Key</pFeature><pFeature>Thrice</pFeature><pFeature>Scratch</pFeature>
<pFeature>BalanceRatioSelector</pFeature><pFeature>BalanceRatio</pFeature>
<pFeature>TransformSelector</pFeature><pFeature>TransformValueSelector</pFeature>
<pFeature>TransformValue</pFeature>
<pFeature>Save</pFeature><pFeature>Trigger</pFeature><pFeature>DeviceName</pFeature>)";

const char* const numberNodes = R"(
<Float Name="Gain"><DisplayName>Analog Gain</DisplayName><Streamable>Yes</Streamable>
  <pValue>GainReg</pValue><Min>0</Min><Max>24</Max></Float>
<FloatReg Name="GainReg"><Address>0x100</Address><Length>8</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Endianess>BigEndian</Endianess></FloatReg>
<Float Name="Gamma"><Streamable>Yes</Streamable><pValue>GammaReg</pValue><Max>4.1</Max></Float>
<FloatReg Name="GammaReg"><Address>0x108</Address><Length>4</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Endianess>BigEndian</Endianess></FloatReg>
<Integer Name="SensorWidth"><Streamable>Yes</Streamable><pValue>SensorWidthReg</pValue></Integer>
<IntReg Name="SensorWidthReg"><Address>0x118</Address><Length>4</Length><AccessMode>RO</AccessMode>
  <pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<Integer Name="Width"><Streamable>Yes</Streamable><pValue>WidthReg</pValue><Min>16</Min>
  <pMax>WidthMax</pMax><Inc>4</Inc></Integer>
<IntReg Name="WidthReg"><Address>0x110</Address><Length>4</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<IntSwissKnife Name="WidthMax"><pVariable Name="S">SensorWidthReg</pVariable>
  <pVariable Name="O">OffsetXReg</pVariable><Formula>S-O</Formula></IntSwissKnife>
<Integer Name="OffsetX"><Streamable>Yes</Streamable><pValue>OffsetXReg</pValue><Min>0</Min>
  <pMax>OffsetXMax</pMax><Inc>2</Inc></Integer>
<IntReg Name="OffsetXReg"><Address>0x114</Address><Length>4</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<IntSwissKnife Name="OffsetXMax"><pVariable Name="S">SensorWidthReg</pVariable>
  <pVariable Name="W">WidthReg</pVariable><Formula>S-W</Formula></IntSwissKnife>
<Float Name="ExposureTime"><Streamable>Yes</Streamable><pIsLocked>ExposureLocked</pIsLocked>
  <pValue>ExposureConverter</pValue><Min>0.01</Min><Max>1000</Max></Float>
<IntSwissKnife Name="ExposureLocked"><pVariable Name="A">ExposureAutoReg</pVariable>
  <Formula>A=2</Formula></IntSwissKnife>
<Converter Name="ExposureConverter"><FormulaTo>FROM*100</FormulaTo>
  <FormulaFrom>TO/100.0</FormulaFrom><pValue>ExposureRawReg</pValue></Converter>
<IntReg Name="ExposureRawReg"><Address>0x120</Address><Length>4</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<IntConverter Name="Percent"><FormulaTo>FROM*10</FormulaTo><FormulaFrom>TO/10</FormulaFrom>
  <pValue>ExposureRawReg</pValue></IntConverter>
<IntReg Name="Level"><Streamable>Yes</Streamable><Address>0x130</Address><Length>1</Length>
  <AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>Signed</Sign>
  <Endianess>BigEndian</Endianess></IntReg>
<FloatReg Name="Temperature"><Streamable>Yes</Streamable><Address>0x134</Address>
  <Length>4</Length><AccessMode>RO</AccessMode><pPort>Device</pPort>
  <Endianess>BigEndian</Endianess></FloatReg>
<IntReg Name="Key"><Streamable>Yes</Streamable><Address>0x138</Address><Length>4</Length>
  <AccessMode>WO</AccessMode><pPort>Device</pPort><Sign>Unsigned</Sign>
  <Endianess>BigEndian</Endianess></IntReg>
<IntSwissKnife Name="Thrice"><pVariable Name="W">WidthReg</pVariable>
  <Formula>3*W</Formula></IntSwissKnife>
<Integer Name="Scratch"><Value>5</Value></Integer>)";

const char* const otherNodes = R"(
<Enumeration Name="ExposureAuto"><Streamable>Yes</Streamable>
  <EnumEntry Name="Off"><Value>0</Value></EnumEntry>
  <EnumEntry Name="Once"><DisplayName>Just once</DisplayName><Value>1</Value></EnumEntry>
  <EnumEntry Name="Continuous"><Value>2</Value></EnumEntry>
  <pValue>ExposureAutoReg</pValue></Enumeration>
<IntReg Name="ExposureAutoReg"><Address>0x11c</Address><Length>4</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<Boolean Name="LutEnable"><Streamable>Yes</Streamable><pValue>LutEnableReg</pValue>
  <OnValue>1</OnValue><OffValue>0</OffValue></Boolean>
<IntReg Name="LutEnableReg"><Address>0x124</Address><Length>4</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<Integer Name="LutIndex"><Streamable>Yes</Streamable><pIsAvailable>LutEnable</pIsAvailable>
  <pValue>LutIndexReg</pValue><Min>0</Min><Max>9</Max></Integer>
<IntReg Name="LutIndexReg"><Address>0x128</Address><Length>4</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<Integer Name="Absent"><Streamable>Yes</Streamable><pIsImplemented>Zero</pIsImplemented>
  <Value>1</Value></Integer>
<Integer Name="Zero"><Value>0</Value></Integer>
<Enumeration Name="PixelFormat"><Streamable>Yes</Streamable>
  <EnumEntry Name="Mono8"><Value>8</Value></EnumEntry>
  <EnumEntry Name="Mono10"><pIsImplemented>Zero</pIsImplemented><Value>10</Value></EnumEntry>
  <EnumEntry Name="Mono12"><pIsAvailable>LutEnable</pIsAvailable><Value>12</Value></EnumEntry>
  <pValue>PixelFormatReg</pValue></Enumeration>
<IntReg Name="PixelFormatReg"><Address>0x12c</Address><Length>4</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<Command Name="Save"><pValue>SaveReg</pValue><CommandValue>1</CommandValue></Command>
<IntReg Name="SaveReg"><Address>0x400</Address><Length>4</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<Command Name="Trigger"><pValue>TriggerReg</pValue><CommandValue>7</CommandValue></Command>
<IntReg Name="TriggerReg"><Address>0x404</Address><Length>4</Length><AccessMode>WO</AccessMode>
  <pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<StringReg Name="DeviceName"><Streamable>Yes</Streamable><Address>0x500</Address>
  <Length>16</Length><AccessMode>RW</AccessMode><pPort>Device</pPort></StringReg>)";

const char* const selectorNodes = R"(
<Enumeration Name="BalanceRatioSelector"><Streamable>Yes</Streamable>
  <EnumEntry Name="Red"><Value>0</Value></EnumEntry>
  <EnumEntry Name="Green"><pIsAvailable>LutEnable</pIsAvailable><Value>1</Value></EnumEntry>
  <EnumEntry Name="Blue"><Value>2</Value></EnumEntry>
  <Value>0</Value><pSelected>BalanceRatio</pSelected></Enumeration>
<Float Name="BalanceRatio"><Streamable>Yes</Streamable><pValue>BalanceRatioReg</pValue>
  <Min>0</Min><Max>8</Max></Float>
<FloatReg Name="BalanceRatioReg"><Address>0x200</Address>
  <pIndex Offset="4">BalanceRatioSelector</pIndex><Length>4</Length><AccessMode>RW</AccessMode>
  <pPort>Device</pPort><Endianess>BigEndian</Endianess></FloatReg>
<Enumeration Name="TransformSelector"><Streamable>Yes</Streamable>
  <EnumEntry Name="RGBtoRGB"><Value>0</Value></EnumEntry>
  <EnumEntry Name="RGBtoYUV"><Value>1</Value></EnumEntry>
  <Value>1</Value><pSelected>TransformValueSelector</pSelected>
  <pSelected>TransformValue</pSelected></Enumeration>
<Enumeration Name="TransformValueSelector">
  <EnumEntry Name="Gain00"><Value>0</Value></EnumEntry>
  <EnumEntry Name="Gain01"><Value>1</Value></EnumEntry>
  <EnumEntry Name="Gain02"><Value>2</Value></EnumEntry>
  <Value>0</Value><pSelected>TransformValue</pSelected></Enumeration>
<Float Name="TransformValue"><Streamable>Yes</Streamable><pValue>TransformValueReg</pValue></Float>
<FloatReg Name="TransformValueReg"><pAddress>TransformAddress</pAddress><Length>4</Length>
  <AccessMode>RW</AccessMode><pPort>Device</pPort><Endianess>BigEndian</Endianess></FloatReg>
<IntSwissKnife Name="TransformAddress"><pVariable Name="T">TransformSelector</pVariable>
  <pVariable Name="V">TransformValueSelector</pVariable>
  <Formula>0x300+12*T+4*V</Formula></IntSwissKnife>)";

} // namespace

std::string describe(const std::string& pFeatures, const std::string& nodes)
{
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<RegisterDescription ModelName="Test" VendorName="Test" StandardNameSpace="None"
  SchemaMajorVersion="1" SchemaMinorVersion="1" SchemaSubMinorVersion="0" MajorVersion="1"
  MinorVersion="0" SubMinorVersion="0" ProductGuid="1" VersionGuid="2"
  xmlns="http://www.genicam.org/GenApi/Version_1_1">
<Category Name="Root" NameSpace="Standard"><pFeature>Control</pFeature></Category>
<Category Name="Control">)" +
           pFeatures + "</Category>" + nodes + R"(<Port Name="Device"/></RegisterDescription>)";
}

std::string testDescription()
{
    return describe(features, std::string(numberNodes) + otherNodes + selectorNodes);
}

TestCamera::TestCamera()
{
    port->setDouble(Register::gain, 1.5);
    port->setFloat(Register::gamma, 1.0F);
    port->setWord(Register::width, 640);
    port->setWord(Register::sensorWidth, 1920);
    port->setWord(Register::exposureRaw, 1000);
    port->setWord(Register::pixelFormat, 8);
    port->setFloat(Register::temperature, 41.5F);
    for (unsigned index = 0; index < 3; ++index)
        port->setFloat(Register::balanceRatio + 4 * index,
                       1.0F + 0.25F * static_cast<float>(index));
    for (unsigned index = 0; index < 6; ++index)
        port->setFloat(Register::transform + 4 * index, static_cast<float>(index));
    use(testDescription());
}

void TestCamera::use(const std::string& description, std::chrono::milliseconds commandTimeout)
{
    map = Cameras::GenICam::NodeMap::create(port, description, commandTimeout);
    camera = Cameras::GenICam::createParameterCollection(map, "Test Camera"_q);
}

QString TestCamera::savedLines()
{
    QString text;
    camera->saveFeatures(text, "@CameraDevice"_q);
    QStringList lines;
    for (const QString& line : text.split(QLatin1Char('\n')))
        if (!line.startsWith(QLatin1Char('#')))
            lines.append(line);
    return lines.join(QLatin1Char('\n'));
}

QString TestCamera::load(const QString& text)
{
    QString errors;
    camera->loadFeatures(text, errors, "@CameraDevice"_q);
    return errors;
}
