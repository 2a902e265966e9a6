// SPDX-License-Identifier: Apache-2.0
// Which cameras there are is remembered, and chosen in a dialog.
#include "camerasettings.h"
#include "camerasettingsdialog.h"
#include "viewertest.h"

#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>

#include <algorithm>
#include <cmath>

namespace Viewer {
namespace {

class CameraSettingsTest : public testing::Test
{
protected:
    CameraSettingsTest() { QSettings().clear(); }

    static CameraSettings someSettings()
    {
        CameraSettings settings;
        settings.backends = Backends::GenICam;
        settings.transport.packetSize = 1500;
        settings.transport.isSearching = false;
        settings.transport.interfaces = QStringList{"eth1"};
        settings.transport.addresses = QStringList{"192.0.2.1", "192.0.2.2"};
        return settings;
    }
};

TEST_F(CameraSettingsTest, BeginWithAllCamerasThatCanBeFound)
{
    const CameraSettings settings = readCameraSettings(ViewerSettings());
    EXPECT_EQ(settings.backends, Backends::All);
    EXPECT_EQ(settings.transport, Cameras::GenICam::TransportSettings());
    EXPECT_TRUE(settings.transport.isSearching);
}

TEST_F(CameraSettingsTest, AreRemembered)
{
    ViewerSettings kept;
    writeCameraSettings(kept, someSettings());
    const CameraSettings read = readCameraSettings(ViewerSettings());
    EXPECT_EQ(read.backends, Backends::GenICam);
    EXPECT_EQ(read.transport, someSettings().transport);
}

TEST_F(CameraSettingsTest, LeaveOutWhatMeansNothing)
{
    ViewerSettings kept;
    kept.setValue("Cameras/Backends", "others");
    kept.setValue("Cameras/PacketSize", 20000);
    kept.setValue("Cameras/Addresses",
                  QStringList{"192.0.2.1", "nowhere", "1.2.3", "192.0.2.1", "300.1.1.1"});
    const CameraSettings read = readCameraSettings(kept);
    EXPECT_EQ(read.backends, Backends::All);
    EXPECT_EQ(read.transport.packetSize, 0);
    EXPECT_EQ(read.transport.addresses, QStringList("192.0.2.1"));
}

class CameraSettingsDialogTest : public CameraSettingsTest
{
protected:
    template <typename Child>
    Child* child(const char* name)
    {
        auto* found = m_dialog->findChild<Child*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }

    void open(const CameraSettings& settings)
    {
        m_dialog =
            std::make_unique<CameraSettingsDialog>(settings, QStringList{"lo", "eth0", "eth1"});
        m_dialog->show();
        m_dialog->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_dialog.get(), patienceMs));
    }

    std::unique_ptr<CameraSettingsDialog> m_dialog;
};

TEST_F(CameraSettingsDialogTest, GivesBackWhatItWasGiven)
{
    for (const CameraSettings& settings : {CameraSettings(), someSettings()}) {
        open(settings);
        EXPECT_EQ(m_dialog->settings().backends, settings.backends);
        EXPECT_EQ(m_dialog->settings().transport, settings.transport);
    }
}

TEST_F(CameraSettingsDialogTest, KeepsAnInterfaceThatIsNotThereNow)
{
    CameraSettings settings;
    settings.transport.interfaces = QStringList{"usb0"};
    open(settings);
    EXPECT_EQ(m_dialog->settings().transport.interfaces, QStringList("usb0"));
    child<QListWidget>("interfaces")->item(1)->setCheckState(Qt::Checked);
    EXPECT_EQ(m_dialog->settings().transport.interfaces, (QStringList{"eth0", "usb0"}));
}

TEST_F(CameraSettingsDialogTest, TakesAddressesThatAreTyped)
{
    open({});
    auto* address = child<QLineEdit>("address");
    EXPECT_FALSE(child<QPushButton>("addAddress")->isEnabled());
    for (const char* typed : {"192.0.2.7", "192.0.2.7", "192.0.2.8"}) {
        QTest::keyClicks(address, typed);
        QTest::keyClick(address, Qt::Key_Return);
    }
    EXPECT_TRUE(m_dialog->isVisible());
    EXPECT_EQ(m_dialog->settings().transport.addresses, (QStringList{"192.0.2.7", "192.0.2.8"}));
    child<QListWidget>("addresses")->setCurrentRow(0);
    QTest::mouseClick(child<QPushButton>("removeAddress"), Qt::LeftButton);
    EXPECT_EQ(m_dialog->settings().transport.addresses, QStringList("192.0.2.8"));
}

TEST_F(CameraSettingsDialogTest, SaysWhatIsNoAddress)
{
    open({});
    auto* address = child<QLineEdit>("address");
    QTest::keyClicks(address, "1.2.3");
    QTest::keyClick(address, Qt::Key_Return);
    EXPECT_TRUE(child<QLabel>("addressProblem")->isVisible());
    EXPECT_EQ(child<QLabel>("addressProblem")->text(),
              "\"1.2.3\" is no address of a camera. It consists of four numbers, such as "
              "192.168.1.20.");
    EXPECT_TRUE(m_dialog->settings().transport.addresses.isEmpty());
    QTest::keyClicks(address, ".4");
    EXPECT_FALSE(child<QLabel>("addressProblem")->isVisible());
    QTest::keyClick(address, Qt::Key_Return);
    EXPECT_EQ(m_dialog->settings().transport.addresses, QStringList("1.2.3.4"));
}

TEST_F(CameraSettingsDialogTest, TakesAnAddressThatWasTypedButNotAdded)
{
    open({});
    QTest::keyClicks(child<QLineEdit>("address"), "192.0.2.7");
    m_dialog->accept();
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_EQ(m_dialog->settings().transport.addresses, QStringList("192.0.2.7"));
}

TEST_F(CameraSettingsDialogTest, StaysOpenOverWhatIsNoAddress)
{
    open({});
    auto* address = child<QLineEdit>("address");
    QTest::keyClicks(address, "1.2.3");
    m_dialog->accept();
    EXPECT_TRUE(m_dialog->isVisible());
    EXPECT_TRUE(child<QLabel>("addressProblem")->isVisible());
    address->clear();
    m_dialog->accept();
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_TRUE(m_dialog->settings().transport.addresses.isEmpty());
}

TEST_F(CameraSettingsDialogTest, KnowsPacketSizesAndTheirAbsence)
{
    open({});
    auto* size = child<QSpinBox>("packetSize");
    EXPECT_EQ(size->text(), "as large as possible");
    size->setValue(9000);
    EXPECT_EQ(m_dialog->settings().transport.packetSize, 9000);
    size->setValue(size->minimum());
    EXPECT_EQ(m_dialog->settings().transport.packetSize, 0);
}

TEST_F(CameraSettingsDialogTest, AsksAboutNoNetworkWhereOnlyEmulatedCamerasAreWanted)
{
    open({});
    auto* backends = child<QComboBox>("backends");
    EXPECT_TRUE(child<QGroupBox>("search")->isEnabled());
    backends->setCurrentIndex(backends->findData("emulation"));
    EXPECT_FALSE(child<QGroupBox>("search")->isEnabled());
    EXPECT_FALSE(child<QSpinBox>("packetSize")->isEnabled());
}

/// Relative luminance, WCAG 2.1.
double luminance(const QColor& color)
{
    const auto linear = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

class CameraSettingsChecks : public CameraSettingsDialogTest,
                             public testing::WithParamInterface<Theme>
{
protected:
    CameraSettingsChecks() { applyTheme(GetParam()); }
    ~CameraSettingsChecks() override { applyTheme(Theme::Desktop); }
};

// WCAG 2.1, 1.4.11: what shows a control contrasts with what is beside it by 3 to 1.
TEST_P(CameraSettingsChecks, StandOutFromTheirList)
{
    open({});
    auto* list = child<QListWidget>("interfaces");
    QRect box = list->visualItemRect(list->item(1));
    box.setWidth(list->style()->pixelMetric(QStyle::PM_IndicatorWidth) + 2);
    const QImage picture = list->viewport()->grab(box).toImage();
    const double ground = luminance(list->palette().color(QPalette::Base));
    double best = 1.0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const double drawn = luminance(picture.pixelColor(x, y));
            best =
                std::max(best, (std::max(drawn, ground) + 0.05) / (std::min(drawn, ground) + 0.05));
        }
    }
    EXPECT_GE(best, 3.0);
}

INSTANTIATE_TEST_SUITE_P(Viewer, CameraSettingsChecks, testing::Values(Theme::Light, Theme::Dark),
                         [](const auto& theme) { return nameOf(theme.param).toStdString(); });

using CameraSettingsInTheViewer = ViewerTest;

class CameraSettingsInUse : public ViewerTest
{
protected:
    /// Chooses other cameras than the emulated ones, and presses OK.
    void chooseRealCameras()
    {
        // The dialog before has the same name.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        child<QAction>("editCameraSettings")->trigger();
        auto* backends = child<QComboBox>("backends");
        backends->setCurrentIndex(backends->findData("genicam"));
        child<QGroupBox>("search")->setChecked(false);
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    }

    static bool isClosed(const QDialog* dialog)
    {
        return waitUntil([dialog] { return QApplication::activeModalWidget() != dialog; });
    }
};

TEST_F(CameraSettingsInUse, AskBeforeTheyCloseACameraAndLeaveAllAsItWas)
{
    startViewer();
    clickCamera(0);
    window().commands().startAction()->trigger();
    ASSERT_TRUE(m_first->isGrabbing());
    chooseRealCameras();
    auto* dialog = child<QDialog>("cameraSettings");
    QMessageBox* box = messageBox();
    ASSERT_TRUE(box);
    EXPECT_EQ(box->text(), "These settings close cameras that are in use:\n\n" +
                               m_first->displayName() +
                               " (acquiring)\n\nDo you want to close them and use the settings?");
    // Whoever presses Return without reading keeps his camera.
    QTest::keyClick(box, Qt::Key_Return);
    ASSERT_TRUE(isClosed(box));
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClick(dialog, Qt::Key_Escape);
    ASSERT_TRUE(isClosed(dialog));
    EXPECT_TRUE(m_first->isGrabbing());
    EXPECT_EQ(m_viewer->pool().cameras().size(), 2);
    EXPECT_FALSE(QSettings().contains("Viewer/Cameras/Backends"));
}

TEST_F(CameraSettingsInUse, CloseCamerasOnceTheUserAgrees)
{
    ViewerSettings().setValue("RecordingFolder", folder());
    startViewer();
    clickCamera(1);
    window().commands().openAction()->trigger();
    clickCamera(0);
    child<QAction>("record")->trigger();
    chooseRealCameras();
    auto* dialog = child<QDialog>("cameraSettings");
    QMessageBox* box = messageBox();
    ASSERT_TRUE(box);
    EXPECT_TRUE(box->text().contains(m_first->displayName() + " (recording)\n" +
                                     m_second->displayName() + " (open)\n"));
    for (QAbstractButton* button : box->buttons())
        if (button->text() == "&Close Cameras")
            QTest::mouseClick(button, Qt::LeftButton);
    ASSERT_TRUE(isClosed(box) && isClosed(dialog));
    EXPECT_FALSE(m_first->isOpen());
    EXPECT_FALSE(m_second->isOpen());
    EXPECT_TRUE(m_viewer->pool().cameras().isEmpty());
    EXPECT_TRUE(waitUntil([this] { return hasMessage("Recorded "); }));
    EXPECT_EQ(readCameraSettings(ViewerSettings()).backends, Backends::GenICam);
}

TEST_F(CameraSettingsInUse, AskNothingWhereNoOpenCameraGoes)
{
    startViewer();
    clickCamera(0);
    window().commands().startAction()->trigger();
    child<QAction>("editCameraSettings")->trigger();
    child<QGroupBox>("search")->setChecked(false);
    child<QSpinBox>("packetSize")->setValue(1500);
    QDialog* dialog = child<QDialog>("cameraSettings");
    QTest::keyClick(dialog, Qt::Key_Return);
    ASSERT_TRUE(isClosed(dialog));
    EXPECT_FALSE(messageBox());
    EXPECT_TRUE(m_first->isGrabbing());

    window().commands().closeAction()->trigger();
    chooseRealCameras();
    EXPECT_FALSE(messageBox());
    EXPECT_TRUE(waitUntil([this] { return m_viewer->pool().cameras().isEmpty(); }));
}

TEST_F(CameraSettingsInUse, CountAgainOnlyWhereTheyAskForOtherCameras)
{
    Cameras::CameraPool pool({});
    const DeviceSelectorService selector;
    CameraSources sources(pool, selector, {m_first, m_second});
    QSignalSpy applied(&sources, &CameraSources::applied);
    CameraSettings settings;
    settings.backends = Backends::Emulation;
    sources.apply(settings);
    EXPECT_EQ(pool.cameras().size(), 2);
    EXPECT_EQ(applied.count(), 1);
    sources.apply(settings);
    settings.transport.packetSize = 1500;
    sources.apply(settings);
    EXPECT_EQ(applied.count(), 1);
    EXPECT_EQ(sources.settings().transport.packetSize, 1500);
    settings.transport.isSearching = false;
    sources.apply(settings);
    EXPECT_EQ(applied.count(), 2);
}

TEST_F(CameraSettingsInTheViewer, CountAtOnceAndAreKept)
{
    startViewer();
    ASSERT_EQ(m_viewer->pool().cameras().size(), 2);
    child<QAction>("editCameraSettings")->trigger();
    auto* backends = child<QComboBox>("backends");
    backends->setCurrentIndex(backends->findData("genicam"));
    child<QGroupBox>("search")->setChecked(false);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    EXPECT_TRUE(waitUntil([this] { return m_viewer->pool().cameras().isEmpty(); }));
    EXPECT_EQ(child<QTreeWidget>("cameras")->topLevelItemCount(), 0);
    EXPECT_EQ(readCameraSettings(ViewerSettings()).backends, Backends::GenICam);
    EXPECT_FALSE(readCameraSettings(ViewerSettings()).transport.isSearching);
}

// Also those without a cable or an address: settings are made for later, too.
TEST_F(CameraSettingsInTheViewer, OfferAllNetworkInterfacesOfTheSystem)
{
    startViewer();
    child<QAction>("editCameraSettings")->trigger();
    const auto* list = child<QListWidget>("interfaces");
    QStringList offered;
    for (int row = 0; row < list->count(); ++row)
        offered.append(list->item(row)->text());
    offered.sort();
    const QStringList known =
        QDir("/sys/class/net").entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    ASSERT_FALSE(known.isEmpty());
    EXPECT_EQ(offered, known);
    child<CameraSettingsDialog>("cameraSettings")->reject();
}

// As after a newer viewer, whose file is left as it is.
TEST_F(CameraSettingsInTheViewer, AreShownAsTheyCountWhereTheyAreNotKept)
{
    QSettings().setValue("Viewer/Version", 1000);
    startViewer();
    child<QAction>("editCameraSettings")->trigger();
    auto* dialog = child<QDialog>("cameraSettings");
    child<QSpinBox>("packetSize")->setValue(1500);
    child<QGroupBox>("search")->setChecked(false);
    QTest::keyClick(dialog, Qt::Key_Return);
    ASSERT_TRUE(waitUntil([] { return !QApplication::activeModalWidget(); }));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    child<QAction>("editCameraSettings")->trigger();
    EXPECT_EQ(child<QSpinBox>("packetSize")->value(), 1500);
    EXPECT_FALSE(child<QGroupBox>("search")->isChecked());
    EXPECT_EQ(child<QComboBox>("backends")->currentData(), "emulation");
    EXPECT_EQ(readCameraSettings(ViewerSettings()).transport.packetSize, 0);
}

TEST_F(CameraSettingsInTheViewer, DoNotKeepWhatOneStartWasAskedFor)
{
    startViewer();
    child<QAction>("editCameraSettings")->trigger();
    EXPECT_EQ(child<QComboBox>("backends")->currentData(), "all");
    child<QSpinBox>("packetSize")->setValue(1500);
    QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
    ASSERT_TRUE(waitUntil([] { return !QApplication::activeModalWidget(); }));
    EXPECT_EQ(readCameraSettings(ViewerSettings()).backends, Backends::All);
    EXPECT_EQ(readCameraSettings(ViewerSettings()).transport.packetSize, 1500);
    EXPECT_EQ(m_viewer->pool().cameras().size(), 2);
}

} // namespace
} // namespace Viewer
