// SPDX-License-Identifier: Apache-2.0
// What must hold for names, kinds and versions.
#include "testcamera.h"

#include <QThread>

#include <memory>
#include <thread>

using ParameterCollection = TestCamera;

namespace {

std::string versionNodes(const char* major, const char* minor, const char* subMinor)
{
    const auto node = [](const char* name, const char* value) {
        return std::string("<Integer Name=\"") + name + "\"><Value>" + value + "</Value></Integer>";
    };
    return node("DeviceSFNCVersionMajor", major) + node("DeviceSFNCVersionMinor", minor) +
           node("DeviceSFNCVersionSubMinor", subMinor);
}

} // namespace

TEST_F(ParameterCollection, FindsFeaturesWithAndWithoutTheNodeMapsName)
{
    EXPECT_FALSE(camera->floatParameter("Gain"_q)->isEmpty());
    const auto gain = camera->floatParameter("@CameraDevice/Gain"_q);
    EXPECT_FALSE(gain->isEmpty());
    EXPECT_EQ(gain->name(), "Gain"_q);
    EXPECT_EQ(gain->displayName(), "Analog Gain"_q);
    EXPECT_EQ(camera->floatParameter("Gamma"_q)->displayName(), "Gamma"_q);
    EXPECT_TRUE(camera->floatParameter("@StreamGrabber/Gain"_q)->isEmpty());
}

TEST_F(ParameterCollection, TakesTheFirstAlternativeThatTheCameraHas)
{
    const auto name = [this](const QString& names) {
        return camera->floatParameter(names)->name();
    };
    EXPECT_EQ(name("Gain|Gamma"_q), "Gain"_q);
    EXPECT_EQ(name("NoSuch|Gamma"_q), "Gamma"_q);
    EXPECT_EQ(name("@CameraDevice/NoSuch|@CameraDevice/Gamma"_q), "Gamma"_q);
    EXPECT_EQ(name("NoSuch|@CameraDevice/Gamma"_q), "Gamma"_q);
    EXPECT_EQ(camera->integerParameter("Absent|Width"_q)->name(), "Width"_q)
        << "a feature that is not implemented is none";
    EXPECT_TRUE(camera->floatParameter("@CameraDevice/NoSuch|NorThis"_q)->isEmpty());
    EXPECT_EQ(name("@CameraDevice/NoSuch|NorThis"_q), "NoSuch"_q);
}

TEST_F(ParameterCollection, GivesEmptyParametersForWhatTheCameraDoesNotHave)
{
    const auto parameter = camera->floatParameter("NoSuch"_q);
    ASSERT_FALSE(parameter.isNull());
    EXPECT_TRUE(parameter->isEmpty());
    EXPECT_FALSE(parameter->isAvailable());
    EXPECT_FALSE(parameter->isReadable());
    EXPECT_FALSE(parameter->isWritable());
    EXPECT_FALSE(parameter->trySetValue(1));
    const std::string reason = "NoSuch: the camera has no such feature.";
    EXPECT_EQ(refusalOf([&] { parameter->value(); }), reason);
    EXPECT_EQ(refusalOf([&] { parameter->minimum(); }), reason);
    EXPECT_EQ(refusalOf([&] { parameter->maximum(); }), reason);
    EXPECT_EQ(refusalOf([&] { parameter->setValue(1); }), reason);
}

TEST_F(ParameterCollection, EmptyParametersOfAllKindsThrowOnUse)
{
    const auto name = "NoSuch"_q;
    const auto integer = camera->integerParameter(name);
    EXPECT_NE(refusalOf([&] { integer->value(); }), "");
    EXPECT_NE(refusalOf([&] { integer->minimum(); }), "");
    EXPECT_NE(refusalOf([&] { integer->maximum(); }), "");
    EXPECT_NE(refusalOf([&] { integer->increment(); }), "");
    EXPECT_NE(refusalOf([&] { integer->setValue(1, true); }), "");
    const auto boolean = camera->booleanParameter(name);
    EXPECT_NE(refusalOf([&] { boolean->value(); }), "");
    EXPECT_NE(refusalOf([&] { boolean->setValue(true, true); }), "");
    const auto enumeration = camera->enumerationParameter(name);
    EXPECT_NE(refusalOf([&] { enumeration->value(); }), "");
    EXPECT_NE(refusalOf([&] { enumeration->entries(); }), "");
    EXPECT_NE(refusalOf([&] { enumeration->setValue("A"_q); }), "");
    EXPECT_FALSE(enumeration->trySetValue("A"_q));
    EXPECT_NE(refusalOf([&] { camera->commandParameter(name)->execute(); }), "");
    EXPECT_TRUE(camera->parameter(name)->isEmpty());
}

TEST_F(ParameterCollection, AFeatureOfAnotherKindIsEmpty)
{
    EXPECT_TRUE(camera->integerParameter("Gain"_q)->isEmpty());
    EXPECT_TRUE(camera->floatParameter("Width"_q)->isEmpty());
    EXPECT_TRUE(camera->integerParameter("ExposureAuto"_q)->isEmpty());
    EXPECT_TRUE(camera->booleanParameter("Width"_q)->isEmpty());
    EXPECT_TRUE(camera->commandParameter("LutEnable"_q)->isEmpty());
    EXPECT_TRUE(camera->enumerationParameter("DeviceName"_q)->isEmpty());
    EXPECT_TRUE(camera->floatParameter("Width|Gain"_q)->isEmpty())
        << "the first that the camera has counts";
}

TEST_F(ParameterCollection, FormulasAndConvertersCountByTheirInterface)
{
    EXPECT_FALSE(camera->integerParameter("Thrice"_q)->isEmpty());
    EXPECT_FALSE(camera->integerParameter("Percent"_q)->isEmpty());
    EXPECT_FALSE(camera->floatParameter("ExposureConverter"_q)->isEmpty());
    EXPECT_FALSE(camera->floatParameter("GainReg"_q)->isEmpty());
}

TEST_F(ParameterCollection, GivesAnyKindAsAParameter)
{
    using namespace Core::ParameterCollection;
    EXPECT_TRUE(dynamic_cast<IFloatParameter*>(camera->parameter("Gain"_q).data()));
    EXPECT_TRUE(dynamic_cast<IIntegerParameter*>(camera->parameter("Width"_q).data()));
    EXPECT_TRUE(dynamic_cast<IBooleanParameter*>(camera->parameter("LutEnable"_q).data()));
    EXPECT_TRUE(dynamic_cast<IEnumerationParameter*>(camera->parameter("PixelFormat"_q).data()));
    EXPECT_TRUE(dynamic_cast<ICommandParameter*>(camera->parameter("Save"_q).data()));
    EXPECT_FALSE(camera->parameter("DeviceName"_q)->isEmpty());
    EXPECT_TRUE(camera->parameter("DeviceName"_q)->isReadable());
}

TEST_F(ParameterCollection, StrangeNamesFindNothing)
{
    const QString names[] = {QString(),
                             "|"_q,
                             "||Gai"_q,
                             "@CameraDevice/"_q,
                             "Gain "_q,
                             QStringLiteral("Gain\0X"),
                             QString(QChar(0xD800)),
                             "Root"_q,
                             "Control"_q,
                             "Device"_q,
                             QString(100000, QLatin1Char('x'))};
    for (const QString& name : names)
        EXPECT_TRUE(camera->parameter(name)->isEmpty()) << name.left(20).toStdString();
}

TEST_F(ParameterCollection, TellsTheSfncVersion)
{
    use(describe("", versionNodes("2", "3", "0")));
    EXPECT_EQ(camera->sfncVersion(), QVersionNumber(2, 3, 0));
    use(describe("", versionNodes("1", "5", "1")));
    EXPECT_EQ(camera->sfncVersion(), QVersionNumber(1, 5, 1));
}

TEST_F(ParameterCollection, ACameraThatStatesNoSfncVersionFollowsTheLastOneWithoutIt)
{
    EXPECT_EQ(camera->sfncVersion(), QVersionNumber(1, 5, 1));
}

TEST_F(ParameterCollection, RefusesOtherNodeMapsInFeatureStreams)
{
    QString text = "untouched"_q;
    const std::string reason = "There is no node map \"@Other\".";
    EXPECT_EQ(refusalOf([&] { camera->saveFeatures(text, "@Other"_q); }), reason);
    EXPECT_EQ(text, "untouched"_q);
    EXPECT_EQ(refusalOf([&] { camera->loadFeatures("Gain\t2\n"_q, text, "@Other"_q); }), reason);
    EXPECT_EQ(camera->floatParameter("Gain"_q)->value(), 1.5);
}

TEST_F(ParameterCollection, AccessIsThatOfAllNodesThatAValueComesThrough)
{
    use(describe("",
                 R"(<Integer Name="Inner"><pIsLocked>Switch</pIsLocked><Value>1</Value></Integer>
<Integer Name="Outer"><pValue>Inner</pValue></Integer>
<Float Name="Computed"><pValue>Formula</pValue></Float>
<SwissKnife Name="Formula"><pVariable Name="S">State</pVariable><Formula>S/4.0</Formula></SwissKnife>
<Integer Name="Imposed"><ImposedAccessMode>RO</ImposedAccessMode><pValue>Inner</pValue></Integer>
<Enumeration Name="Mode"><EnumEntry Name="A"><Value>0</Value></EnumEntry><pValue>Fixed</pValue>
</Enumeration>
<Integer Name="Hidden"><pIsAvailable>Switch</pIsAvailable><Value>1</Value></Integer>
<Integer Name="ThroughHidden"><pValue>Hidden</pValue></Integer>
<Boolean Name="Switch"><pValue>State</pValue></Boolean>
<Integer Name="State"><Value>0</Value></Integer>
<IntReg Name="Fixed"><Address>0x600</Address><Length>4</Length><AccessMode>RO</AccessMode>
<pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>)"));
    EXPECT_FALSE(camera->floatParameter("Computed"_q)->isWritable());
    EXPECT_FALSE(camera->integerParameter("Imposed"_q)->isWritable());
    EXPECT_FALSE(camera->enumerationParameter("Mode"_q)->isWritable());
    EXPECT_FALSE(camera->enumerationParameter("Mode"_q)->trySetValue("A"_q));

    const auto outer = camera->integerParameter("Outer"_q);
    const auto throughHidden = camera->integerParameter("ThroughHidden"_q);
    EXPECT_TRUE(outer->isWritable());
    EXPECT_FALSE(throughHidden->isAvailable());
    camera->booleanParameter("Switch"_q)->setValue(true, true);
    EXPECT_FALSE(outer->isWritable());
    EXPECT_TRUE(throughHidden->isAvailable());
}

TEST_F(ParameterCollection, ParametersOfAnEndedThreadMayBeUsedAndReleasedByAnother)
{
    Core::ParameterCollection::FloatParameterPtr gain;
    // A thread of Qt's: what Qt keeps of a foreign thread's end counts as a leak.
    const std::unique_ptr<QThread> maker(
        QThread::create([&] { gain = camera->floatParameter("Gain"_q); }));
    maker->start();
    ASSERT_TRUE(maker->wait());
    gain->setValue(2.5);
    EXPECT_EQ(gain->value(), 2.5);
    gain.reset();
    EXPECT_EQ(camera->floatParameter("Gain"_q)->value(), 2.5);
}
