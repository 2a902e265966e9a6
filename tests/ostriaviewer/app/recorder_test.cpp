// SPDX-License-Identifier: Apache-2.0
// Recordings are whole, tell what is missing, and count as activity while they run.
#include "fulldisk.h"
#include "viewertest.h"

#include "picturefile.h"
#include "recorder.h"

#include <QCloseEvent>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>

#include <algorithm>
#include <array>

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

// What ends a recording waits in the event queue until the test waits for it.
TEST_F(RecorderTest, ShowsThatItEndsAndBeginsNothingMeanwhile)
{
    startRecording();
    ASSERT_TRUE(waitUntil([this] { return recording().entryList({"*.png"}).size() >= 2; }));
    QAction* record = window().recording().recordAction();
    auto* ending = child<QLabel>("ending");
    EXPECT_TRUE(record->isEnabled() && record->isChecked());
    EXPECT_EQ(ending->text(), "");
    QTest::keyClick(&window(), Qt::Key_F7);
    EXPECT_FALSE(record->isEnabled());
    EXPECT_FALSE(record->isChecked());
    EXPECT_EQ(ending->text(), "Writing the last pictures of " + m_first->displayName() + ".");
    EXPECT_TRUE(ending->isVisible());
    EXPECT_TRUE(isBusy());
    QTest::keyClick(&window(), Qt::Key_F7);
    EXPECT_TRUE(waitUntil([this] { return hasMessage("Recorded"); }));
    EXPECT_TRUE(record->isEnabled());
    EXPECT_FALSE(record->isChecked());
    EXPECT_EQ(ending->text(), "");
    EXPECT_TRUE(recording().exists()) << "one recording alone";
}

TEST_F(RecorderTest, ShowsThatItEndsAlsoWhereTheHostEndsIt)
{
    startRecording();
    ASSERT_TRUE(waitUntil([this] { return recording().entryList({"*.png"}).size() >= 2; }));
    window().recording().stopAll();
    EXPECT_FALSE(window().recording().recordAction()->isEnabled());
    clickCamera(1);
    EXPECT_TRUE(window().recording().recordAction()->isEnabled()) << "of another camera";
    EXPECT_FALSE(child<QLabel>("ending")->text().isEmpty());
    EXPECT_TRUE(waitUntil([this] { return child<QLabel>("ending")->text().isEmpty(); }));
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

/// The window is closed while its first camera is recorded.
class ClosedWhileRecording : public RecorderTest
{
protected:
    void closeWhileRecording()
    {
        startRecording();
        ASSERT_TRUE(waitUntil([this] { return recording().entryList({"*.png"}).size() >= 2; }));
        window().close();
        ASSERT_TRUE(window().isVisible());
        ASSERT_TRUE(messageBox());
        EXPECT_EQ(messageBox()->windowTitle(), "Ostria Viewer");
        EXPECT_EQ(messageBox()->text(),
                  "Pictures of these cameras are being recorded:\n\n" + m_first->displayName() +
                      "\n\nDo you want to end the recording and close the viewer?");
        EXPECT_TRUE(messageBox()->defaultButton() == messageBox()->button(QMessageBox::Cancel));
    }

    static void answer(const QString& text)
    {
        for (QAbstractButton* button : messageBox()->buttons())
            if (button->text() == text)
                return button->click();
        FAIL() << "no button " << qPrintable(text);
    }
};

TEST_F(ClosedWhileRecording, AsksAndGoesOnIfItIsToGoOn)
{
    ASSERT_NO_FATAL_FAILURE(closeWhileRecording());
    const int written = recording().entryList({"*.png"}).size();
    answer("Cancel");
    EXPECT_TRUE(waitUntil([&] { return recording().entryList({"*.png"}).size() > written + 2; }));
    EXPECT_TRUE(window().isVisible());
    QTest::keyClick(&window(), Qt::Key_F7);
    EXPECT_TRUE(waitUntil([this] { return hasMessage("Recorded"); }));
    EXPECT_TRUE(window().isVisible()) << "who has gone on is not closed later";
    window().close();
    EXPECT_FALSE(window().isVisible());
}

TEST_F(ClosedWhileRecording, ClosesWhenAllIsWritten)
{
    ASSERT_NO_FATAL_FAILURE(closeWhileRecording());
    QObject::connect(&window().recording(), &RecordingCommands::reported, &window(),
                     [this] { EXPECT_TRUE(window().isVisible()); });
    answer("&End Recording");
    EXPECT_TRUE(waitUntil([this] { return !window().isVisible(); }));
    EXPECT_TRUE(hasMessage("Recorded"));
}

TEST_F(ClosedWhileRecording, StaysOpenForARecordingThatBeginsMeanwhile)
{
    ASSERT_NO_FATAL_FAILURE(closeWhileRecording());
    answer("&End Recording");
    // What ends the first recording still waits in the event queue.
    clickCamera(1);
    window().recording().recordAction()->trigger();
    EXPECT_TRUE(waitUntil([this] { return hasMessage("Recorded"); }));
    window().recording().recordAction()->trigger();
    EXPECT_TRUE(waitUntil([this] { return window().recording().recorded().isEmpty(); }));
    EXPECT_TRUE(window().isVisible());
}

TEST_F(ClosedWhileRecording, ClosesWhereTheRecordingHasEndedByItself)
{
    ASSERT_NO_FATAL_FAILURE(closeWhileRecording());
    m_first->loseConnection();
    ASSERT_TRUE(waitUntil([this] { return hasMessage("Recorded"); }));
    ASSERT_TRUE(window().isVisible());
    answer("&End Recording");
    EXPECT_FALSE(window().isVisible());
}

TEST_F(ClosedWhileRecording, StaysOpenWhereTheLastPicturesCouldNotBeWritten)
{
    ASSERT_NO_FATAL_FAILURE(closeWhileRecording());
    const FullDisk disk;
    constexpr std::uint64_t afterAllOthers = 1'000'000;
    emit m_first->cameraImageGrabbed(
        m_first, std::make_shared<Ostria::CGrabResult>(
                     Ostria::COstriaImage(Ostria::PixelType::Mono8, 8, 8), afterAllOthers));
    answer("&End Recording");
    ASSERT_TRUE(waitUntil([this] { return hasMessage("Make room on the disk"); }));
    ASSERT_TRUE(waitUntil([this] { return window().recording().recorded().isEmpty(); }));
    ASSERT_TRUE(window().isVisible());
    ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
    QTest::keyClick(messageBox(), Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_TRUE(window().isVisible());
}

// Of two recordings one may have failed, and that have been read, before the other has ended.
TEST_F(ClosedWhileRecording, StaysOpenWhereAnotherRecordingHasFailed)
{
    ASSERT_NO_FATAL_FAILURE(closeWhileRecording());
    answer("&End Recording");
    emit window().recording().reported("The recording of another camera ended.", true);
    ASSERT_TRUE(messageBox());
    EXPECT_EQ(messageBox()->text(), "The recording of another camera ended.");
    QTest::keyClick(messageBox(), Qt::Key_Return);
    ASSERT_FALSE(messageBox());
    EXPECT_TRUE(waitUntil([this] { return hasMessage("Recorded"); }));
    EXPECT_TRUE(window().isVisible());
}

TEST_F(ClosedWhileRecording, QuittingAsksNothing)
{
    startRecording();
    ASSERT_TRUE(waitUntil([this] { return recording().entryList({"*.png"}).size() >= 2; }));
    m_viewer->quit();
    EXPECT_FALSE(window().isVisible());
    m_viewer.reset();
    EXPECT_GE(recording().entryList({"*.png"}).size(), 2);
}

class StubbornDialog : public QDialog
{
protected:
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

TEST_F(ClosedWhileRecording, AsksAgainAfterQuittingWasRefused)
{
    startRecording();
    StubbornDialog dialog;
    dialog.setModal(true);
    dialog.show();
    m_viewer->quit();
    QCoreApplication::processEvents();
    dialog.hide();
    window().close();
    ASSERT_TRUE(window().isVisible());
    ASSERT_TRUE(messageBox());
    answer("Cancel");
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

TEST_F(RecorderTest, EndsWithAMessageWhenTheDiskIsFullAndLeavesNoHalfFile)
{
    startViewer();
    window().recording().setFolder(target());
    clickCamera(0);
    {
        const FullDisk disk;
        QTest::keyClick(&window(), Qt::Key_F7);
        EXPECT_TRUE(waitUntil([this] { return hasMessage("Make room on the disk"); }));
    }
    EXPECT_TRUE(recording().entryList(QDir::Files).isEmpty());
    ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
    QTest::keyClick(messageBox(), Qt::Key_Return);
}

TEST_F(RecorderTest, AdvisesAnotherFormatWhereAPictureCannotBeConverted)
{
    Recorder recorder;
    QString told;
    QObject::connect(&recorder, &Recorder::finished,
                     [&told](const RecordingResult& result) { told = result.error; });
    ASSERT_EQ(recorder.start(m_first, target() + "/taken"), "");
    emit m_first->cameraImageGrabbed(
        m_first, std::make_shared<Ostria::CGrabResult>(
                     Ostria::COstriaImage(Ostria::PixelType::BayerRG8, 8, 2), 1));
    ASSERT_TRUE(waitUntil([&told] { return !told.isEmpty(); }));
    EXPECT_EQ(told,
              "A picture could not be converted (A mosaic of 8 x 2 pixels is too small, "
              "interpolation needs 4 x 3). Choose another pixel format or another image size.");
}

TEST_F(RecorderTest, WritesThePixelsOfTheCamera)
{
    Ostria::COstriaImage image(Ostria::PixelType::RGB8, 2, 1);
    const std::array<std::uint8_t, 6> colors = {10, 20, 30, 250, 0, 7};
    std::copy(colors.begin(), colors.end(), image.writableData());
    {
        Recorder recorder;
        ASSERT_EQ(recorder.start(m_first, target() + "/taken"), "");
        emit m_first->cameraImageGrabbed(
            m_first, std::make_shared<Ostria::CGrabResult>(std::move(image), 1));
    }
    const QImage written(target() + "/taken/000001.png");
    ASSERT_EQ(written.size(), QSize(2, 1));
    EXPECT_EQ(written.pixel(0, 0), qRgb(10, 20, 30));
    EXPECT_EQ(written.pixel(1, 0), qRgb(250, 0, 7));
}

TEST_F(RecorderTest, TellsThatAPictureHasNoRoomInMemory)
{
    // Its bits fit, but no computer's QImage holds its rows in colors.
    EXPECT_THROW(writePictureFile(QImage(100'000'000, 1, QImage::Format_Mono), target() + "/a.png"),
                 std::bad_alloc);
    EXPECT_TRUE(QDir(target()).isEmpty());
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
