// SPDX-License-Identifier: Apache-2.0
// Recordings are whole, tell what is missing, and count as activity while they run.
#include "viewertest.h"

#include "recorder.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>

#include <csignal>
#include <sys/resource.h>

namespace Viewer {
namespace {

class RecorderTest : public ViewerTest
{
protected:
    QString target() const { return m_target.path(); }

    /// The files of the only recording.
    QDir recording() const
    {
        const QStringList folders =
            QDir(target()).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        EXPECT_EQ(folders.size(), 1);
        return QDir(target() + '/' + folders.value(0));
    }

    void startRecording()
    {
        startViewer();
        window().recording().setFolder(target());
        clickCamera(0);
        QTest::keyClick(&window(), Qt::Key_F7);
    }

    bool isBusy()
    {
        return m_viewer->registry()
            ->find<Plugin::CameraPool::ICameraStatusService>()
            ->isAcquiringOrRecording(m_first);
    }

    QTemporaryDir m_target;
};

TEST_F(RecorderTest, WritesWholePicturesNumberedAsTheCameraNumbersThem)
{
    startRecording();
    EXPECT_TRUE(waitUntil([this] { return shownState(0) == "recording"; }));
    EXPECT_TRUE(isBusy());
    EXPECT_TRUE(waitUntil([this] { return recording().entryList({"*.png"}).size() >= 3; }));
    QTest::keyClick(&window(), Qt::Key_F7);
    EXPECT_TRUE(waitUntil([this] { return hasMessage("Recorded"); }));
    EXPECT_TRUE(waitUntil([this] { return shownState(0) == "acquiring"; }));
    for (const QString& name : recording().entryList(QDir::Files)) {
        EXPECT_TRUE(QRegularExpression("^\\d{6,}\\.png$").match(name).hasMatch())
            << qPrintable(name);
        EXPECT_EQ(QImage(recording().filePath(name)).size(), QSize(96, 64)) << qPrintable(name);
    }
}

TEST_F(RecorderTest, EndsWithTheHostsStopOfAllActivity)
{
    startRecording();
    ASSERT_TRUE(waitUntil([this] { return shownState(0) == "recording"; }));
    m_viewer->registry()
        ->find<Plugin::CameraPool::ICameraStreamControlService>()
        ->stopAllAcquisitionsAndRecordings();
    EXPECT_FALSE(m_first->isGrabbing());
    EXPECT_TRUE(waitUntil([this] { return !isBusy(); }));
    EXPECT_TRUE(waitUntil([this] { return hasMessage("Recorded"); }));
}

TEST_F(RecorderTest, EndsWithACameraThatIsTakenOutOfTheList)
{
    startRecording();
    ASSERT_TRUE(waitUntil([this] { return recording().entryList({"*.png"}).size() >= 2; }));
    m_viewer->pool().remove(m_first);
    EXPECT_TRUE(waitUntil([this] { return hasMessage("Recorded"); }));
    EXPECT_FALSE(m_viewer->pool().recordings()->isRecording(m_first.data()));
    EXPECT_FALSE(m_first->isOpen());
}

TEST_F(RecorderTest, EndsWithALostCameraAndKeepsWhatThereIs)
{
    m_first->faults().loseConnectionAfter(3);
    startRecording();
    EXPECT_TRUE(waitUntil([this] { return hasMessage("Recorded 3 pictures"); }));
    EXPECT_EQ(recording().entryList({"*.png"}).size(), 3);
    EXPECT_FALSE(isBusy());
}

TEST_F(RecorderTest, CountsFramesThatTheCameraFailedToDeliver)
{
    m_first->faults().failFrames(2);
    m_first->faults().loseConnectionAfter(4);
    startRecording();
    EXPECT_TRUE(waitUntil([this] { return hasMessage("2 failed in the camera"); }));
}

TEST_F(RecorderTest, TellsThatTheFolderCannotBeMade)
{
    QFile file(target() + "/file");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    startViewer();
    window().recording().setFolder(file.fileName());
    clickCamera(0);
    QTest::keyClick(&window(), Qt::Key_F7);
    ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
    EXPECT_TRUE(messageBox()->text().contains("cannot be made"));
    QTest::keyClick(messageBox(), Qt::Key_Return);
    EXPECT_FALSE(isBusy());
    EXPECT_FALSE(window().recording().recordAction()->isChecked());
}

// A limit on the size of files fails writes as a full disk does.
TEST_F(RecorderTest, EndsWithAMessageWhenTheDiskIsFullAndLeavesNoHalfFile)
{
    auto* previous = std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit;
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlimit full = {0, limit.rlim_max};
    startViewer();
    window().recording().setFolder(target());
    clickCamera(0);
    setrlimit(RLIMIT_FSIZE, &full);
    QTest::keyClick(&window(), Qt::Key_F7);
    const bool isTold = waitUntil([this] { return hasMessage("Make room on the disk"); });
    setrlimit(RLIMIT_FSIZE, &limit);
    std::signal(SIGXFSZ, previous);
    EXPECT_TRUE(isTold);
    EXPECT_TRUE(recording().entryList(QDir::Files).isEmpty());
    ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
    QTest::keyClick(messageBox(), Qt::Key_Return);
}

TEST_F(RecorderTest, WritesWhatItHasTakenBeforeItEnds)
{
    ASSERT_TRUE(m_first->open());
    m_first->faults().loseConnectionAfter(10);
    {
        Recorder recorder;
        EXPECT_EQ(recorder.start(m_first, target() + "/taken"), "");
        ASSERT_TRUE(m_first->startGrabbing());
        ASSERT_TRUE(waitUntil([this] { return !m_first->isOpen(); }));
    }
    EXPECT_EQ(QDir(target() + "/taken").entryList({"*.png"}).size(), 10);
}

} // namespace
} // namespace Viewer
