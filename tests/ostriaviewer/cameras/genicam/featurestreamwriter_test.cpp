// SPDX-License-Identifier: Apache-2.0
// What must hold for the text that a camera's settings are saved as.
#include "logrecorder.h"
#include "testcamera.h"

#include <QStringList>

class FeatureStreamWriter : public TestCamera
{
protected:
    QString m_text;
};

TEST_F(FeatureStreamWriter, WritesFeaturesInTheOrderOfTheCategoryTree)
{
    // By hand from the description: not the read-only sensor width and temperature, the write-only
    // key, the unavailable LUT index, what is not streamable or not implemented, nor commands.
    EXPECT_EQ(savedLines(), "Gain\t1.5\n"
                            "Gamma\t1\n"
                            "Width\t640\n"
                            "OffsetX\t0\n"
                            "ExposureTime\t10\n"
                            "ExposureAuto\tOff\n"
                            "LutEnable\t0\n"
                            "PixelFormat\tMono8\n"
                            "Level\t0\n"
                            "BalanceRatioSelector\tRed\n"
                            "BalanceRatio\t1\n"
                            "BalanceRatioSelector\tBlue\n"
                            "BalanceRatio\t1.5\n"
                            "BalanceRatioSelector\tRed\n"
                            "TransformSelector\tRGBtoRGB\n"
                            "TransformValueSelector\tGain00\n"
                            "TransformValue\t0\n"
                            "TransformValueSelector\tGain01\n"
                            "TransformValue\t1\n"
                            "TransformValueSelector\tGain02\n"
                            "TransformValue\t2\n"
                            "TransformValueSelector\tGain00\n"
                            "TransformSelector\tRGBtoYUV\n"
                            "TransformValueSelector\tGain00\n"
                            "TransformValue\t3\n"
                            "TransformValueSelector\tGain01\n"
                            "TransformValue\t4\n"
                            "TransformValueSelector\tGain02\n"
                            "TransformValue\t5\n"
                            "TransformValueSelector\tGain00\n"
                            "TransformSelector\tRGBtoYUV\n"
                            "DeviceName\t\n"_q);
}

TEST_F(FeatureStreamWriter, BeginsWithCommentsAboutTheCamera)
{
    camera->saveFeatures(m_text, "@CameraDevice"_q);
    const QStringList lines = m_text.split(QLatin1Char('\n'));
    ASSERT_GT(lines.size(), 4);
    EXPECT_TRUE(lines[0].startsWith("# "_q));
    EXPECT_EQ(lines[1], "# Model: Test Camera"_q);
    EXPECT_EQ(lines[2], "# SFNC: 1.5.1"_q);
    EXPECT_TRUE(lines[3].startsWith("# Date: "_q));
    EXPECT_FALSE(lines[4].startsWith(QLatin1Char('#')));
    EXPECT_TRUE(m_text.endsWith(QLatin1Char('\n')));
}

TEST_F(FeatureStreamWriter, AModelNameCannotBreakOutOfItsComment)
{
    camera = Cameras::GenICam::createParameterCollection(map, "A\nGain\t24"_q);
    EXPECT_TRUE(savedLines().startsWith("Gain\t1.5\n"_q));
    camera->saveFeatures(m_text, "@CameraDevice"_q);
    EXPECT_TRUE(m_text.contains("\n# Model: A Gain 24\n"_q));
}

TEST_F(FeatureStreamWriter, LeavesLockedFeaturesOutAndTakesAvailableEntriesIn)
{
    port->setWord(Register::exposureAuto, 2);
    port->setWord(Register::lutEnable, 1);
    const QString lines = savedLines();
    EXPECT_FALSE(lines.contains("ExposureTime"_q));
    EXPECT_TRUE(lines.contains("LutIndex\t0\n"_q));
    EXPECT_TRUE(lines.contains("BalanceRatioSelector\tGreen\nBalanceRatio\t1.25\n"_q));
}

TEST_F(FeatureStreamWriter, PutsSelectorsBack)
{
    const auto selector = camera->enumerationParameter("TransformValueSelector"_q);
    selector->setValue("Gain01"_q);
    savedLines();
    EXPECT_EQ(selector->value(), "Gain01"_q);
    EXPECT_EQ(camera->enumerationParameter("TransformSelector"_q)->value(), "RGBtoYUV"_q);
    EXPECT_EQ(camera->enumerationParameter("BalanceRatioSelector"_q)->value(), "Red"_q);
    EXPECT_EQ(port->writes, 0);
}

TEST_F(FeatureStreamWriter, PutsSelectorsBackWhenReadingFails)
{
    camera->enumerationParameter("BalanceRatioSelector"_q)->setValue("Blue"_q);
    port->refused.insert(Register::balanceRatio);
    m_text = "untouched"_q;
    EXPECT_EQ(refusalOf([&] { camera->saveFeatures(m_text, "@CameraDevice"_q); }),
              "BalanceRatio: access denied.");
    EXPECT_EQ(m_text, "untouched"_q);
    EXPECT_EQ(camera->enumerationParameter("BalanceRatioSelector"_q)->value(), "Blue"_q);
}

TEST_F(FeatureStreamWriter, TellsASelectorThatCouldNotBePutBack)
{
    class Stuck : public MemoryPort
    {
    public:
        void read(std::uint64_t address, void* data, std::size_t size) override
        {
            // In the middle of the selector's positions.
            if (address == 0x608)
                refused.insert({0x610, 0x608});
            MemoryPort::read(address, data, size);
        }
    };
    port = std::make_shared<Stuck>();
    use(describe("<pFeature>S</pFeature><pFeature>V</pFeature>",
                 R"(<Integer Name="S"><pValue>SReg</pValue><Min>0</Min><Max>2</Max>
<pSelected>V</pSelected></Integer>
<IntReg Name="SReg"><Address>0x610</Address><Length>4</Length><AccessMode>RW</AccessMode>
<pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess>
<Cachable>WriteThrough</Cachable></IntReg>
<IntReg Name="V"><Streamable>Yes</Streamable><Address>0x600</Address><pIndex Offset="4">S</pIndex>
<Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>Unsigned</Sign>
<Endianess>BigEndian</Endianess></IntReg>)"));
    port->setWord(0x610, 1);
    const LogRecorder log;
    EXPECT_NE(refusalOf([&] { savedLines(); }), "");
    ASSERT_EQ(log.entries().size(), 1);
    EXPECT_EQ(log.entries().constFirst().level, Core::Logging::Warning);
    EXPECT_EQ(log.entries().constFirst().category, "Cameras"_q);
    EXPECT_EQ(log.entries().constFirst().text.toStdString(),
              "Test: S could not be put back while settings were read; set it to \"1\". "
              "(S: access denied.)");
}

// What is left out of a backup is not put back later.
TEST_F(FeatureStreamWriter, FailsWhereTheCameraDoesNotTellWhetherAFeatureIsLocked)
{
    port->refused.insert(Register::exposureAuto);
    use(describe("<pFeature>F</pFeature>",
                 R"(<Integer Name="F"><pIsLocked>LockReg</pIsLocked><Streamable>Yes</Streamable>
<Value>1</Value></Integer>
<IntReg Name="LockReg"><Address>0x11c</Address><Length>4</Length><AccessMode>RO</AccessMode>
<pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>)"));
    EXPECT_EQ(refusalOf([&] { savedLines(); }), "F: access denied.");
    EXPECT_FALSE(camera->integerParameter("F"_q)->isWritable());
}

TEST_F(FeatureStreamWriter, FailsWhereTheCameraDoesNotTellWhetherAFeatureIsThere)
{
    port->refused.insert(Register::lutEnable);
    use(describe("<pFeature>F</pFeature>",
                 R"(<Integer Name="F"><pIsAvailable>Reg</pIsAvailable><Streamable>Yes</Streamable>
<Value>1</Value></Integer>
<IntReg Name="Reg"><Address>0x124</Address><Length>4</Length><AccessMode>RO</AccessMode>
<pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>)"));
    EXPECT_EQ(refusalOf([&] { savedLines(); }), "F: access denied.");
    EXPECT_FALSE(camera->integerParameter("F"_q)->isAvailable());
}

TEST_F(FeatureStreamWriter, DoesNotMoveASelectorThatCouldNotGoBack)
{
    // Green is the present entry, but not available any more.
    camera->booleanParameter("LutEnable"_q)->setValue(true, true);
    camera->enumerationParameter("BalanceRatioSelector"_q)->setValue("Green"_q);
    camera->booleanParameter("LutEnable"_q)->setValue(false, true);
    savedLines();
    EXPECT_EQ(camera->enumerationParameter("BalanceRatioSelector"_q)->value(), "Green"_q);
}

TEST_F(FeatureStreamWriter, WritesFloatsThatComeBackExactly)
{
    const auto gain = camera->floatParameter("Gain"_q);
    for (const double value : {0.1, 1.0 / 3.0, 5e-324, 23.999999999999996, 1e-7}) {
        gain->setValue(value);
        const QString line = savedLines().section(QLatin1Char('\n'), 0, 0);
        EXPECT_EQ(line.section(QLatin1Char('\t'), 1).toDouble(), value) << line.toStdString();
        EXPECT_FALSE(line.contains(QLatin1Char(',')));
    }
}

TEST_F(FeatureStreamWriter, CountsIntegerSelectorsThroughTheirRange)
{
    use(describe("<pFeature>S</pFeature><pFeature>V</pFeature>",
                 R"(<Integer Name="S"><Value>3</Value><Min>1</Min><Max>5</Max><Inc>2</Inc>
<pSelected>V</pSelected></Integer>
<IntReg Name="V"><Streamable>Yes</Streamable><Address>0x600</Address><pIndex Offset="4">S</pIndex>
<Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>Unsigned</Sign>
<Endianess>BigEndian</Endianess></IntReg>)"));
    port->setWord(0x604, 11);
    port->setWord(0x60c, 33);
    port->setWord(0x614, 55);
    EXPECT_EQ(savedLines(), "S\t1\nV\t11\nS\t3\nV\t33\nS\t5\nV\t55\nS\t3\n"_q);
}

// In the text it would stand changed, and be written back so.
TEST_F(FeatureStreamWriter, LeavesTextsOutWhoseBytesWouldNotComeBack)
{
    // "K\xFCr" is no UTF-8; a byte order mark before "A" would be lost.
    for (const std::uint32_t name : {0x4BFC7200U, 0xEFBBBF41U}) {
        port->setWord(Register::deviceName, name);
        const QString saved = savedLines();
        EXPECT_FALSE(saved.contains("DeviceName"_q)) << saved.toStdString();
        EXPECT_EQ(load(saved), QString());
        EXPECT_EQ(port->word(Register::deviceName), name);
    }
    // The same sign in UTF-8, and the one that stands for what cannot be read.
    for (const std::uint32_t name : {0x4BC3BC72U, 0xEFBFBD00U}) {
        port->setWord(Register::deviceName, name);
        const QString saved = savedLines();
        EXPECT_TRUE(saved.contains("DeviceName\t"_q));
        port->setWord(Register::deviceName, 0);
        EXPECT_EQ(load(saved), QString());
        EXPECT_EQ(port->word(Register::deviceName), name);
    }
}

TEST_F(FeatureStreamWriter, LeavesHugeSelectorsWhereTheyAre)
{
    use(describe("<pFeature>S</pFeature><pFeature>V</pFeature>",
                 R"(<Integer Name="S"><Value>3</Value><pSelected>V</pSelected></Integer>
<Integer Name="V"><Streamable>Yes</Streamable><Value>7</Value></Integer>)"));
    EXPECT_EQ(savedLines(), "S\t3\nV\t7\nS\t3\n"_q);
}

TEST_F(FeatureStreamWriter, SwitchesBooleanSelectors)
{
    use(describe("<pFeature>S</pFeature><pFeature>V</pFeature>",
                 R"(<Boolean Name="S"><pValue>I</pValue><pSelected>V</pSelected></Boolean>
<Integer Name="I"><Value>1</Value></Integer>
<IntReg Name="V"><Streamable>Yes</Streamable><Address>0x600</Address><pIndex Offset="4">I</pIndex>
<Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>Unsigned</Sign>
<Endianess>BigEndian</Endianess></IntReg>)"));
    port->setWord(0x604, 9);
    EXPECT_EQ(savedLines(), "S\t0\nV\t0\nS\t1\nV\t9\nS\t1\n"_q);
}

TEST_F(FeatureStreamWriter, WritesLockedSelectorsPresentPositionWithoutALineOfTheirs)
{
    use(describe("<pFeature>S</pFeature><pFeature>V</pFeature>",
                 R"(<Integer Name="S"><pIsLocked>One</pIsLocked><Streamable>Yes</Streamable>
<Value>1</Value><Min>0</Min><Max>1</Max><pSelected>V</pSelected></Integer>
<Integer Name="One"><Value>1</Value></Integer>
<Integer Name="V"><Streamable>Yes</Streamable><Value>7</Value></Integer>)"));
    EXPECT_EQ(savedLines(), "V\t7\n"_q);
}

TEST_F(FeatureStreamWriter, NestsSelectorsThatKnowNothingOfEachOther)
{
    use(describe("<pFeature>A</pFeature><pFeature>B</pFeature><pFeature>V</pFeature>",
                 R"(<Integer Name="A"><Value>0</Value><Min>0</Min><Max>1</Max>
<pSelected>V</pSelected></Integer>
<Integer Name="B"><Value>1</Value><Min>0</Min><Max>1</Max><pSelected>V</pSelected></Integer>
<IntReg Name="V"><Streamable>Yes</Streamable><Address>0x600</Address><pIndex Offset="8">A</pIndex>
<pIndex Offset="4">B</pIndex><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>
<Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>)"));
    for (unsigned index = 0; index < 4; ++index)
        port->setWord(0x600 + 4 * index, index);
    EXPECT_EQ(savedLines(), "A\t0\nB\t0\nV\t0\nB\t1\nV\t1\nB\t1\n"
                            "A\t1\nB\t0\nV\t2\nB\t1\nV\t3\nB\t1\nA\t0\n"_q);
}

TEST_F(FeatureStreamWriter, EndsWhereCategoriesAndSelectorsGoInCircles)
{
    use(describe("<pFeature>Root</pFeature><pFeature>A</pFeature><pFeature>B</pFeature>"
                 "<pFeature>A</pFeature>",
                 R"(<Integer Name="A"><Streamable>Yes</Streamable><Value>0</Value><Min>0</Min>
<Max>1</Max><pSelected>B</pSelected></Integer>
<Integer Name="B"><Streamable>Yes</Streamable><Value>0</Value><Min>0</Min><Max>1</Max>
<pSelected>A</pSelected></Integer>)"));
    savedLines();
    EXPECT_EQ(camera->integerParameter("A"_q)->value(), 0);
    EXPECT_EQ(camera->integerParameter("B"_q)->value(), 0);
}
