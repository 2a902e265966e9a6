// SPDX-License-Identifier: Apache-2.0
// What must hold when settings are loaded from text.
#include "testcamera.h"

#include <QStringList>

#include <random>

using FeatureStreamReader = TestCamera;

TEST_F(FeatureStreamReader, AppliesOneFeatureALine)
{
    EXPECT_EQ(load("# a comment\nGain\t2.25\nWidth\t644\nExposureAuto\tOnce\nLutEnable\t1\n"
                   "DeviceName\tleft camera\n"_q),
              QString());
    EXPECT_EQ(camera->floatParameter("Gain"_q)->value(), 2.25);
    EXPECT_EQ(camera->integerParameter("Width"_q)->value(), 644);
    EXPECT_EQ(camera->enumerationParameter("ExposureAuto"_q)->value(), "Once"_q);
    EXPECT_TRUE(camera->booleanParameter("LutEnable"_q)->value());
    EXPECT_TRUE(savedLines().contains("DeviceName\tleft camera\n"_q));
}

TEST_F(FeatureStreamReader, SkipsWhatCannotBeAppliedAndSaysWhere)
{
    EXPECT_EQ(load("NoSuch\t1\n"
                   "Gain 2\n"
                   "Gain\t99\n"
                   "Width\twide\n"
                   "ExposureAuto\tNever\n"
                   "LutEnable\ttrue\n"
                   "Temperature\t20\n"
                   "Save\t1\n"
                   "Gamma\tnan\n"
                   "\n"
                   "Level\t-7\n"_q),
              "Line 1: the camera has no feature \"NoSuch\".\n"
              "Line 2: \"Gain 2\" has no tab and no value.\n"
              "Line 3: Gain: 99 is above the maximum 24.\n"
              "Line 4: Width: an integer is expected.\n"
              "Line 5: ExposureAuto: there is no entry \"Never\".\n"
              "Line 6: LutEnable: 0 or 1 is expected.\n"
              "Line 7: Temperature: cannot be written, only read.\n"
              "Line 8: Save: has no value.\n"
              "Line 9: Gamma: the value is not a finite number.\n"_q);
    EXPECT_EQ(camera->integerParameter("Level"_q)->value(), -7);
    EXPECT_EQ(camera->floatParameter("Gain"_q)->value(), 1.5);
    EXPECT_EQ(port->word(Register::save), 0U);
}

// No backup has it, so nothing would bring it back.
TEST_F(FeatureStreamReader, SkipsWhatIsNotSaved)
{
    use(describe("<pFeature>Saved</pFeature><pFeature>Unsaved</pFeature>"
                 "<pFeature>OfSaved</pFeature><pFeature>OfUnsaved</pFeature>",
                 R"(<Integer Name="Saved"><Streamable>Yes</Streamable><pValue>SavedReg</pValue>
</Integer>
<IntReg Name="SavedReg"><Address>0x600</Address><pIndex Offset="4">OfSaved</pIndex>
<Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort><Sign>Unsigned</Sign>
<Endianess>BigEndian</Endianess></IntReg>
<Integer Name="Unsaved"><Value>3</Value></Integer>
<Integer Name="Uncategorized"><Streamable>Yes</Streamable><Value>3</Value></Integer>
<Integer Name="OfSaved"><Value>0</Value><Min>0</Min><Max>1</Max><pSelected>Saved</pSelected></Integer>
<Integer Name="OfUnsaved"><Value>0</Value><Min>0</Min><Max>1</Max><pSelected>Unsaved</pSelected>
</Integer>)"));
    EXPECT_EQ(load("OfSaved\t1\nSaved\t7\nUnsaved\t7\nOfUnsaved\t1\nUncategorized\t7\n"_q),
              "Line 3: Unsaved: skipped, as it is not saved with the camera's settings.\n"
              "Line 4: OfUnsaved: skipped, as it is not saved with the camera's settings.\n"
              "Line 5: Uncategorized: skipped, as it is not saved with the camera's settings.\n"_q);
    EXPECT_EQ(port->word(0x604), 7U);
    EXPECT_EQ(camera->integerParameter("OfSaved"_q)->value(), 1) << "as the text has left it";
    EXPECT_EQ(camera->integerParameter("Unsaved"_q)->value(), 3);
    EXPECT_EQ(camera->integerParameter("OfUnsaved"_q)->value(), 0);
    EXPECT_EQ(camera->integerParameter("Uncategorized"_q)->value(), 3);
}

TEST_F(FeatureStreamReader, SkipsATextInThePlaceOfOneThatIsNotSaved)
{
    // "K\xFCr", which is no UTF-8, and a text of two lines.
    for (const std::uint32_t name : {0x4BFC7200U, 0x4B0A7200U}) {
        port->setWord(Register::deviceName, name);
        EXPECT_EQ(load("DeviceName\tleft\nGain\t3\n"_q),
                  "Line 1: DeviceName: skipped, as its present text could not be given back.\n"_q);
        EXPECT_EQ(port->word(Register::deviceName), name);
        EXPECT_EQ(camera->floatParameter("Gain"_q)->value(), 3.0);
    }
}

TEST_F(FeatureStreamReader, ReplacesOldErrors)
{
    QString errors = "old"_q;
    camera->loadFeatures("Gain\t2\n"_q, errors, "@CameraDevice"_q);
    EXPECT_EQ(errors, QString());
}

TEST_F(FeatureStreamReader, TakesLinesAsOtherSystemsWriteThem)
{
    EXPECT_EQ(load(QChar(QChar::ByteOrderMark) + "# x\r\nGain\t2.5\r\nExposureAuto\tOnce"_q),
              QString());
    EXPECT_EQ(camera->floatParameter("Gain"_q)->value(), 2.5);
    EXPECT_EQ(camera->enumerationParameter("ExposureAuto"_q)->value(), "Once"_q);
}

TEST_F(FeatureStreamReader, TextAfterASecondTabBelongsToTheValue)
{
    EXPECT_EQ(load("DeviceName\ta\tb\n"_q), QString());
    EXPECT_TRUE(savedLines().contains("DeviceName\ta\tb\n"_q));
    EXPECT_NE(load("Gain\t2\t3\n"_q), QString());
}

TEST_F(FeatureStreamReader, ReportsWhatTheDeviceRefuses)
{
    port->readOnly.insert(Register::gain);
    EXPECT_EQ(load("Gain\t2\nWidth\t320\n"_q), "Line 1: Gain: write protected.\n"_q);
    EXPECT_EQ(port->word(Register::width), 320U);
}

TEST_F(FeatureStreamReader, RestoresAllThatWasSaved)
{
    port->setWord(Register::lutEnable, 1);
    port->setWord(Register::pixelFormat, 12);
    port->setWord(Register::lutIndex, 4);
    port->setDouble(Register::gain, 1.0 / 3.0);
    port->setFloat(Register::gamma, 4.1F);
    port->setWord(Register::exposureRaw, 29);
    camera->enumerationParameter("TransformValueSelector"_q)->setValue("Gain02"_q);
    const QString saved = savedLines();
    const auto registers = port->bytes();

    for (std::uint64_t index = 0; index < 3; ++index)
        port->setFloat(Register::balanceRatio + 4 * index, 7.0F);
    for (std::uint64_t index = 0; index < 6; ++index)
        port->setFloat(Register::transform + 4 * index, -1.0F);
    EXPECT_EQ(load("Gain\t7\nGamma\t2\nWidth\t320\nOffsetX\t10\nExposureTime\t5\n"
                   "ExposureAuto\tContinuous\nPixelFormat\tMono8\nLutIndex\t0\nLutEnable\t0\n"
                   "Level\t9\nBalanceRatioSelector\tBlue\nTransformSelector\tRGBtoRGB\n"
                   "TransformValueSelector\tGain01\nDeviceName\tx\n"_q),
              QString());
    ASSERT_NE(savedLines(), saved);

    EXPECT_EQ(load(saved), QString());
    EXPECT_EQ(savedLines(), saved);
    EXPECT_EQ(port->bytes(), registers);
}

TEST_F(FeatureStreamReader, RestoresLimitsThatDependOnEachOther)
{
    port->setWord(Register::width, 1920);
    const QString wide = savedLines();
    port->setWord(Register::width, 100);
    port->setWord(Register::offsetX, 1800);
    const QString narrow = savedLines();

    EXPECT_EQ(load(wide), QString());
    EXPECT_EQ(port->word(Register::width), 1920U);
    EXPECT_EQ(port->word(Register::offsetX), 0U);
    EXPECT_EQ(load(narrow), QString());
    EXPECT_EQ(port->word(Register::width), 100U);
    EXPECT_EQ(port->word(Register::offsetX), 1800U);
}

TEST_F(FeatureStreamReader, RestoresAFeatureThatALaterLineUnlocks)
{
    const QString saved = savedLines();
    ASSERT_LT(saved.indexOf("ExposureTime"_q), saved.indexOf("ExposureAuto"_q));
    port->setWord(Register::exposureRaw, 5);
    port->setWord(Register::exposureAuto, 2);
    EXPECT_EQ(load(saved), QString());
    EXPECT_EQ(port->word(Register::exposureRaw), 1000U);
}

TEST_F(FeatureStreamReader, KeepsValuesOfASelectorThatCouldNotBeSet)
{
    EXPECT_EQ(load("BalanceRatioSelector\tRed\nBalanceRatio\t2\n"
                   "BalanceRatioSelector\tGreen\nBalanceRatio\t3\n"
                   "BalanceRatioSelector\tBlue\nBalanceRatio\t4\n"_q),
              "Line 3: BalanceRatioSelector: Green is not available with the camera's present "
              "settings.\n"
              "Line 4: BalanceRatio: skipped, as BalanceRatioSelector could not be set.\n"_q);
    camera->enumerationParameter("BalanceRatioSelector"_q)->setValue("Red"_q);
    EXPECT_EQ(camera->floatParameter("BalanceRatio"_q)->value(), 2.0);
}

TEST_F(FeatureStreamReader, ASelectorWithoutAValueLosesWhatFollowsIt)
{
    for (const QString& broken : {"BalanceRatioSelector"_q, "BalanceRatioSelector Blue"_q,
                                  "  BalanceRatioSelector  Blue"_q, "BalanceRatioSelector\t"_q,
                                  "BalanceRatioSelector \tBlue"_q, " BalanceRatioSelector\tBlue"_q,
                                  "BalanceRatioSelector=Blue"_q, "BalanceRatioSelector;Blue"_q}) {
        camera->enumerationParameter("BalanceRatioSelector"_q)->setValue("Red"_q);
        camera->floatParameter("BalanceRatio"_q)->setValue(1.0);
        const QStringList errors =
            load(broken + "\nBalanceRatio\t2\n"_q).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        ASSERT_EQ(errors.size(), 2) << broken.toStdString();
        EXPECT_EQ(errors.last(),
                  "Line 2: BalanceRatio: skipped, as BalanceRatioSelector could not be set."_q);
        EXPECT_EQ(camera->floatParameter("BalanceRatio"_q)->value(), 1.0) << broken.toStdString();
    }
    EXPECT_EQ(load("BalanceRatioSelector\nBalanceRatioSelector\tBlue\nBalanceRatio\t3\n"_q)
                  .count(QLatin1Char('\n')),
              1)
        << "the next one that has a value counts again";
    EXPECT_EQ(camera->floatParameter("BalanceRatio"_q)->value(), 3.0);
}

TEST_F(FeatureStreamReader, ATextThatIsTooLongIsRefusedWhole)
{
    ASSERT_EQ(load("DeviceName\t0123456789abcdef\n"_q), QString());
    const QString full = savedLines();
    EXPECT_EQ(load("DeviceName\t0123456789abcdefg\n"_q),
              "Line 1: DeviceName: the text is longer than 16 bytes.\n"_q);
    EXPECT_NE(load("DeviceName\t0123456789abcd\u6821\n"_q), QString()) << "bytes count";
    EXPECT_EQ(savedLines(), full);
}

TEST_F(FeatureStreamReader, ATextWithANulIsRefusedWhole)
{
    ASSERT_EQ(load("DeviceName\tleft\n"_q), QString());
    const QString named = savedLines();
    EXPECT_EQ(load(QStringLiteral("DeviceName\tri\0ght\nGain\t2\n")),
              "Line 1: DeviceName: the text has a NUL character.\n"_q);
    EXPECT_EQ(load(QStringLiteral("DeviceName\t\0")).count(QLatin1Char('\n')), 1);
    EXPECT_EQ(savedLines().section("DeviceName"_q, 1), named.section("DeviceName"_q, 1));
    EXPECT_EQ(camera->floatParameter("Gain"_q)->value(), 2.0);
}

TEST_F(FeatureStreamReader, GarbageHarmsNothing)
{
    const auto registers = port->bytes();
    EXPECT_EQ(load(QString()), QString());
    EXPECT_EQ(load("\n\n\r\n"_q), QString());
    EXPECT_NE(load(QString(5'000'000, QLatin1Char('x'))), QString());
    EXPECT_NE(load(QString(1'000'000, QChar(0))), QString());
    EXPECT_NE(load(QStringLiteral("Gain\0\t7\n")), QString());
    std::mt19937 random(7);
    QString noise;
    for (int index = 0; index < 1'000'000; ++index)
        noise.append(QChar(static_cast<ushort>(random() & 0xff)));
    EXPECT_NE(load(noise), QString());
    EXPECT_EQ(port->bytes(), registers);
}

TEST_F(FeatureStreamReader, KeepsTheListOfErrorsReadable)
{
    QString many;
    for (int index = 0; index < 100'000; ++index)
        many += "NoSuch\t1\n"_q;
    const QString errors = load(many);
    EXPECT_EQ(errors.count(QLatin1Char('\n')), 1001);
    EXPECT_TRUE(errors.endsWith("And 99000 more lines.\n"_q));
    EXPECT_LT(load(QString(1000, QChar(1))).size(), 100);
    const QString longValue = "PixelFormat\t"_q + QString(1'000'000, QLatin1Char('x')) + "\n"_q;
    EXPECT_EQ(load(longValue), "Line 1: PixelFormat: there is no entry \""_q +
                                   QString(40, QLatin1Char('x')) + QChar(0x2026) + "\".\n"_q);
}

TEST_F(FeatureStreamReader, ShowsOfANameWhatCanBeRead)
{
    EXPECT_EQ(load(QStringLiteral("a\u0001b\u0007\n")),
              QStringLiteral("Line 1: \"a\uFFFDb\uFFFD\" has no tab and no value.\n"));
    EXPECT_EQ(load(QString(41, QLatin1Char('n')) + "\t1\n"_q),
              "Line 1: the camera has no feature \""_q + QString(40, QLatin1Char('n')) +
                  QStringLiteral("\u2026\".\n"));
}

// A later line may have unlocked one; where it has not, trying again is of no use.
TEST_F(FeatureStreamReader, TriesARefusedTextOnceMore)
{
    int gains = 0;
    port->onWrite = [&](std::uint64_t address) {
        gains += address == Register::gain ? 1 : 0;
    };
    EXPECT_NE(load("Gain\t2\nWidth\twide\n"_q), QString());
    EXPECT_EQ(gains, 2);
    gains = 0;
    EXPECT_EQ(load("Gain\t2\nWidth\t320\n"_q), QString());
    EXPECT_EQ(gains, 1);
}

// Thousands of refusals are no settings that depend on each other, and take seconds a time.
TEST_F(FeatureStreamReader, TriesATextWithThousandsOfRefusalsOnce)
{
    int gains = 0;
    port->onWrite = [&](std::uint64_t address) {
        gains += address == Register::gain ? 1 : 0;
    };
    const QString refused = "Gamma\t9\n"_q;
    EXPECT_EQ(load("Gain\t2\n"_q + refused.repeated(1000)).count(QLatin1Char('\n')), 1000);
    EXPECT_EQ(gains, 2);
    gains = 0;
    EXPECT_TRUE(load("Gain\t2\n"_q + refused.repeated(1001)).endsWith("And 1 more lines.\n"_q));
    EXPECT_EQ(gains, 1);
}

TEST_F(FeatureStreamReader, ReadsAMillionLines)
{
    QString many;
    for (int index = 0; index < 500'000; ++index)
        many += "# nothing\r\nNoSuch\t1\r\n"_q;
    const QString errors = load(many + "Gain\t2.5\r\n"_q);
    EXPECT_TRUE(errors.startsWith("Line 2: the camera has no feature \"NoSuch\".\nLine 4: "_q));
    EXPECT_TRUE(errors.endsWith("And 499000 more lines.\n"_q));
    EXPECT_EQ(camera->floatParameter("Gain"_q)->value(), 2.5);
}

TEST_F(FeatureStreamReader, ThrowsWhenTheConnectionIsLostOnTheWay)
{
    port->onWrite = [this](std::uint64_t) {
        map->disconnect();
    };
    EXPECT_EQ(refusalOf([&] { load("Gain\t2\nWidth\t320\n"_q); }),
              "The connection to the camera is lost.");
}

// Of a camera behind a cable that has gone, whoever closes the node map learns only later.
TEST_F(FeatureStreamReader, ThrowsWhenTheCameraIsLostBeforeItsNodeMapIsClosed)
{
    port->onWrite = [this](std::uint64_t) {
        port->isLost = true;
    };
    EXPECT_EQ(refusalOf([&] { load("Gain\t2\nWidth\t320\nGamma\t2\n"_q); }),
              "The connection to the camera is lost.");
    EXPECT_EQ(port->writes, 1);
}

TEST_F(FeatureStreamReader, ThrowsForALostCameraWhateverTheTextIs)
{
    map->disconnect();
    for (const QString& text : {QString(), "# nothing\n"_q, "NoSuch\t1\n"_q})
        EXPECT_EQ(refusalOf([&] { load(text); }), "The connection to the camera is lost.")
            << text.toStdString();
}
