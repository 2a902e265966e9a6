// SPDX-License-Identifier: Apache-2.0
// A recording that memory runs out for says that, and advises nothing about the disk.
#include "allocationfailure.h"
#include "emulationtest.h"
#include "recorder.h"

#include <QDir>
#include <QTest>

namespace Viewer {
namespace {

constexpr int width = 250;
constexpr int height = 130;

class RecorderMemory : public Cameras::Emulation::EmulationTest
{
protected:
    QTemporaryDir m_target;
};

TEST_F(RecorderMemory, IsAdvisedAboutWhereAPictureHasNoRoom)
{
    const auto camera = makeCamera(Cameras::Emulation::smallModel());
    const auto frame = std::make_shared<Ostria::CGrabResult>(
        Ostria::COstriaImage(Ostria::PixelType::Mono8, width, height), 1);
    Recorder recorder;
    QString told;
    QObject::connect(&recorder, &Recorder::finished,
                     [&told](const RecordingResult& result) { told = result.error; });
    ASSERT_EQ(recorder.start(camera, m_target.path()), "");
    // Four channels of 8 bits, without padding at this width.
    const AllocationFailure failure(std::size_t{width} * height * 4);
    emit camera->cameraImageGrabbed(camera, frame);
    ASSERT_TRUE(QTest::qWaitFor([&told] { return !told.isEmpty(); }, 60000));
    EXPECT_EQ(failure.count(), 1);
    EXPECT_EQ(told, "There is not enough memory for the picture. Close other programs or choose a "
                    "smaller image size.");
    EXPECT_TRUE(QDir(m_target.path()).isEmpty());
}

} // namespace
} // namespace Viewer
