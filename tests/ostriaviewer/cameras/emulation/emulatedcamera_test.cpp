// SPDX-License-Identifier: Apache-2.0
// An emulated camera's images follow its features, and its life is in order.
#include "emulationtest.h"
#include "frameprobe.h"
#include "genicamexception.h"
#include "pixeltype.h"

#include <QSet>

#include <cmath>
#include <future>

namespace Cameras::Emulation {
namespace {

using Ostria::PixelType;

void setFloat(EmulatedCamera& camera, const char* name, double value)
{
    camera.parameterCollection()->floatParameter(QString::fromLatin1(name))->setValue(value);
}

void setInteger(EmulatedCamera& camera, const char* name, qint64 value)
{
    camera.parameterCollection()
        ->integerParameter(QString::fromLatin1(name))
        ->setValue(value, true);
}

void choose(EmulatedCamera& camera, const char* name, const char* entry)
{
    camera.parameterCollection()
        ->enumerationParameter(QString::fromLatin1(name))
        ->setValue(QString::fromLatin1(entry));
}

Ostria::COstriaImage grab(const QSharedPointer<EmulatedCamera>& camera)
{
    FrameProbe probe(camera);
    EXPECT_TRUE(camera->grabSingle());
    EXPECT_TRUE(probe.waitFor(1));
    const auto results = probe.results();
    if (results.empty() || !results.front()->GrabSucceeded())
        throw std::runtime_error("no image");
    return results.front()->image();
}

// The mean of a channel, 0 to 1.
double mean(const Ostria::COstriaImage& image, int Ostria::PixelReading::*channel)
{
    double sum = 0.0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            sum += image.readPixel(x, y).*channel;
    const double fullScale = std::exp2(image.readPixel(0, 0).bitDepth) - 1.0;
    return sum / fullScale / image.width() / image.height();
}

double greenLevel(const QSharedPointer<EmulatedCamera>& camera)
{
    return mean(grab(camera), &Ostria::PixelReading::green);
}

class EmulatedCameraTest : public EmulationTest
{};

TEST_F(EmulatedCameraTest, TwiceTheExposureIsTwiceTheSignal)
{
    const auto camera = openCamera(smallModel());
    setFloat(*camera, "ExposureTime", 20.0);
    const double dark = greenLevel(camera);
    setFloat(*camera, "ExposureTime", 4020.0);
    const double once = greenLevel(camera) - dark;
    setFloat(*camera, "ExposureTime", 8020.0);
    const double twice = greenLevel(camera) - dark;
    EXPECT_GT(once, 0.02);
    EXPECT_NEAR(twice / once, 2.0, 0.05);
}

TEST_F(EmulatedCameraTest, SixDecibelsDoubleTheSignalOfEachGeneration)
{
    for (const FeatureNames names :
         {FeatureNames::FirstGeneration, FeatureNames::SecondGeneration}) {
        const auto camera = openCamera(smallModel(names));
        const bool first = names == FeatureNames::FirstGeneration;
        const char* exposure = first ? "ExposureTimeAbs" : "ExposureTime";
        setFloat(*camera, exposure, 20.0);
        const double dark = greenLevel(camera);
        setFloat(*camera, exposure, 4020.0);
        const double once = greenLevel(camera) - dark;
        if (first)
            setInteger(*camera, "GainRaw", 60);
        else
            setFloat(*camera, "Gain", 6.0);
        EXPECT_NEAR((greenLevel(camera) - dark) / once, std::pow(10.0, 0.3), 0.06);
    }
}

TEST_F(EmulatedCameraTest, ATestPatternStandsInForTheScene)
{
    const auto camera = openCamera(smallModel());
    choose(*camera, "TestPattern", "GreyHorizontalRamp");
    choose(*camera, "PixelFormat", "Mono12");
    const auto image = grab(camera);
    for (int x = 4; x < 92; ++x)
        EXPECT_NEAR(image.readPixel(x, 20).green, x, 1) << x;
}

TEST_F(EmulatedCameraTest, EachFormatArrivesAsItIsCalled)
{
    const QHash<QString, PixelType> types = {
        {QStringLiteral("Mono8"), PixelType::Mono8},
        {QStringLiteral("Mono12"), PixelType::Mono12},
        {QStringLiteral("BayerRG8"), PixelType::BayerRG8},
        {QStringLiteral("BayerRG12"), PixelType::BayerRG12},
        {QStringLiteral("YUV422_8"), PixelType::YUV422_8},
        {QStringLiteral("YUV422_YUYV_Packed"), PixelType::YUV422_8},
        {QStringLiteral("RGB8"), PixelType::RGB8},
        {QStringLiteral("RGB8Packed"), PixelType::RGB8},
        {QStringLiteral("BGR8"), PixelType::BGR8},
        {QStringLiteral("BGR8Packed"), PixelType::BGR8},
        {QStringLiteral("BGRa8"), PixelType::BGRa8},
        {QStringLiteral("BGRA8Packed"), PixelType::BGRa8},
    };
    for (CameraModel model : everydayModels()) {
        model.sensor.width = 96;
        model.sensor.height = 64;
        const auto camera = openCamera(model);
        const auto format =
            camera->parameterCollection()->enumerationParameter(QStringLiteral("PixelFormat"));
        EXPECT_GE(format->entries().size(), 2);
        for (const auto& entry : format->entries()) {
            ASSERT_TRUE(types.contains(entry.name)) << entry.name.toStdString();
            format->setValue(entry.name);
            const auto image = grab(camera);
            EXPECT_EQ(image.pixelType(), types.value(entry.name)) << entry.name.toStdString();
            EXPECT_EQ(image.width(), 96);
            EXPECT_EQ(image.height(), 64);
        }
    }
}

TEST_F(EmulatedCameraTest, ARegionIsDelivered)
{
    const auto camera = openCamera(smallModel());
    setInteger(*camera, "Width", 40);
    setInteger(*camera, "OffsetX", 16);
    setInteger(*camera, "Height", 24);
    choose(*camera, "TestPattern", "GreyHorizontalRamp");
    choose(*camera, "PixelFormat", "Mono12");
    const auto image = grab(camera);
    EXPECT_EQ(image.width(), 40);
    EXPECT_EQ(image.height(), 24);
    EXPECT_NEAR(image.readPixel(10, 10).green, 26, 1);
}

TEST_F(EmulatedCameraTest, ImagesComeOnAThreadOfTheCamerasOwn)
{
    const auto camera = openCamera(smallModel());
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->grabSingle());
    ASSERT_TRUE(probe.waitFor(1));
    EXPECT_NE(probe.thread(), std::this_thread::get_id());
    EXPECT_EQ(probe.camera().data(), camera.data());
    EXPECT_FALSE(camera->isGrabbing());
}

TEST_F(EmulatedCameraTest, ContinuousImagesComeUntilTheyAreStopped)
{
    const auto camera = openCamera(smallModel());
    setFloat(*camera, "ExposureTime", 20.0);
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    EXPECT_TRUE(camera->isGrabbing());
    EXPECT_FALSE(camera->grabSingle());
    ASSERT_TRUE(probe.waitFor(10));
    camera->stopGrabbing();
    EXPECT_FALSE(camera->isGrabbing());
    const std::size_t stopped = probe.count();
    ASSERT_TRUE(camera->grabSingle());
    ASSERT_TRUE(probe.waitFor(stopped + 1));
    EXPECT_EQ(probe.count(), stopped + 1);
    const auto results = probe.results();
    for (std::size_t i = 1; i < results.size(); ++i)
        EXPECT_GT(results[i]->frameNumber(), results[i - 1]->frameNumber());
}

TEST_F(EmulatedCameraTest, AChangedFeatureCountsFromTheNextFrame)
{
    const auto camera = openCamera(smallModel());
    setFloat(*camera, "ExposureTime", 20.0); // dark
    FrameProbe probe(camera);
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(2));
    choose(*camera, "TestPattern", "ColorBar");
    const std::size_t before = probe.count();
    ASSERT_TRUE(probe.waitFor(before + 3)); // one may have been under way, one have begun
    camera->stopGrabbing();
    EXPECT_GT(probe.results().back()->image().readPixel(2, 2).green, 150);
}

TEST_F(EmulatedCameraTest, AClosedCameraDoesNothing)
{
    const auto camera = makeCamera(smallModel());
    EXPECT_FALSE(camera->isOpen());
    EXPECT_FALSE(camera->isGrabbing());
    EXPECT_FALSE(camera->startGrabbing());
    EXPECT_FALSE(camera->grabSingle());
    EXPECT_FALSE(camera->grabSingle(10));
    EXPECT_EQ(camera->parameterCollection(), nullptr);
    camera->stopGrabbing();
    camera->close();
    EXPECT_EQ(camera->lastErrorText(), QString());
}

TEST_F(EmulatedCameraTest, HasNamesOfItsOwn)
{
    QSet<QString> names;
    for (const CameraModel& model : everydayModels()) {
        const auto camera = makeCamera(model);
        EXPECT_EQ(camera->modelName(), model.name);
        names.insert(camera->displayName());
    }
    EXPECT_EQ(names.size(), everydayModels().size());
}

TEST_F(EmulatedCameraTest, ClosingEndsALongExposure)
{
    const auto camera = openCamera(smallModel());
    FrameProbe probe(camera);
    camera->faults().delayFrames(-1, std::chrono::hours(1));
    for (int i = 0; i < 20; ++i) {
        ASSERT_TRUE(camera->open());
        ASSERT_TRUE(camera->startGrabbing());
        camera->close();
        EXPECT_FALSE(camera->isGrabbing());
    }
    EXPECT_EQ(probe.count(), 0U);
}

TEST_F(EmulatedCameraTest, ATimeOutThatIsTooShortDoesNotHurtTheNextImage)
{
    const auto camera = openCamera(smallModel());
    FrameProbe probe(camera);
    setFloat(*camera, "ExposureTime", 1000000.0);
    ASSERT_TRUE(camera->grabSingle(1));
    setFloat(*camera, "ExposureTime", 20.0);
    ASSERT_TRUE(camera->grabSingle());
    ASSERT_TRUE(probe.waitFor(1));
    EXPECT_EQ(probe.count(), 1U);
}

TEST_F(EmulatedCameraTest, OpensAndClosesAHundredTimes)
{
    const auto camera = makeCamera(smallModel());
    for (int i = 0; i < 100; ++i) {
        ASSERT_TRUE(camera->open());
        ASSERT_TRUE(camera->open());
        EXPECT_TRUE(camera->isOpen());
        if (i % 10 == 0)
            grab(camera);
        camera->close();
        EXPECT_FALSE(camera->isOpen());
    }
}

TEST_F(EmulatedCameraTest, EndsWhileItGrabs)
{
    for (int i = 0; i < 20; ++i) {
        auto camera = openCamera(smallModel());
        setFloat(*camera, "ExposureTime", 20.0);
        std::promise<void> gone;
        QObject::connect(camera.data(), &QObject::destroyed, [&] { gone.set_value(); });
        FrameProbe probe(camera);
        ASSERT_TRUE(camera->startGrabbing());
        ASSERT_TRUE(probe.waitFor(1));
        camera.reset(); // a delivery may hold it a moment longer
        ASSERT_EQ(gone.get_future().wait_for(patience), std::future_status::ready);
    }
}

TEST_F(EmulatedCameraTest, AReceiverMayDropTheLastReference)
{
    auto camera = openCamera(smallModel());
    std::promise<void> gone;
    QObject::connect(camera.data(), &QObject::destroyed, [&] { gone.set_value(); });
    std::mutex mutex;
    FrameProbe probe(camera, [&] {
        const std::lock_guard lock(mutex);
        camera.reset();
    });
    {
        const std::lock_guard lock(mutex);
        ASSERT_TRUE(camera->startGrabbing());
    }
    EXPECT_EQ(gone.get_future().wait_for(patience), std::future_status::ready);
}

TEST_F(EmulatedCameraTest, AReceiverMayStopAndClose)
{
    const auto camera = openCamera(smallModel());
    FrameProbe probe(camera, [&] {
        camera->stopGrabbing();
        camera->close();
    });
    ASSERT_TRUE(camera->startGrabbing());
    ASSERT_TRUE(probe.waitFor(1));
    camera->close();
    EXPECT_EQ(probe.count(), 1U);
}

TEST_F(EmulatedCameraTest, AnotherSceneIsSeenInTheNextFrame)
{
    const auto camera = openCamera(smallModel());
    const double before = greenLevel(camera);
    SceneSettings night;
    night.lightLevel = 0.0;
    camera->setScene(Scene(night));
    EXPECT_LT(greenLevel(camera), before / 2.0);
    EXPECT_EQ(camera->scene().settings().lightLevel, 0.0);
}

TEST_F(EmulatedCameraTest, UsersOnManyThreadsGetAlong)
{
    const auto camera = openCamera(smallModel());
    setFloat(*camera, "ExposureTime", 20.0);
    FrameProbe probe(camera);
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; ++i)
        threads.emplace_back([&, i] {
            for (int round = 0; round < 60; ++round) {
                if (i == 0)
                    camera->startGrabbing();
                else if (i == 1)
                    camera->stopGrabbing();
                else
                    setFloat(*camera, "Gain", round % 24);
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    camera->stopGrabbing();
    EXPECT_TRUE(camera->parameterCollection()
                    ->enumerationParameter(QStringLiteral("PixelFormat"))
                    ->isWritable());
    EXPECT_EQ(camera->parameterCollection()->floatParameter(QStringLiteral("Gain"))->value(),
              59 % 24);
}

} // namespace
} // namespace Cameras::Emulation
