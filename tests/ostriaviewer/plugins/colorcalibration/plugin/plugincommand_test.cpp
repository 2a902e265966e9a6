// SPDX-License-Identifier: Apache-2.0
// Tests of the command that starts the wizard.
#include "plugintest.h"

#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QWindow>

namespace {

const QString question =
    "<p>To use the Color Calibrator, you have to stop continuous image acquisition as well as any "
    "recordings.<p/>Do you want to stop the camera and start using the Color Calibrator?";

bool isWizard(const QDialog& window)
{
    return window.inherits("ColorCalibration::ColorCorrectionToolDlg");
}

class PluginCommandTest : public PluginTest
{
protected:
    void startWith(const QSharedPointer<FaultyCamera>& chosen,
                   const QList<Core::Service::ServicePtr>& without = {})
    {
        m_camera = chosen;
        m_enumeration->groups = {{"none", {}}, {"all", {chosen}}};
        start(without);
        select(chosen);
    }
    /// Triggers the command and closes the wizard at once; its titles in turn.
    QStringList titlesOfWizards()
    {
        QStringList titles;
        trigger([&titles](QDialog& window) {
            EXPECT_TRUE(isWizard(window)) << window.windowTitle().toStdString();
            titles << window.windowTitle();
            m_windows.insert(&window);
            window.close();
        });
        return titles;
    }

    QSharedPointer<FaultyCamera> m_camera;
    static inline QSet<QDialog*> m_windows;
};

TEST_F(PluginCommandTest, RunsTheWizardWithoutAQuestionWhereNothingRuns)
{
    startWith(camera("cVTX 1"));
    EXPECT_EQ(titlesOfWizards(), QStringList("Color Calibrator - cVTX 1"));
    EXPECT_EQ(m_control->opens, 1);
    EXPECT_EQ(m_control->closes, 1) << "given back when the wizard ends";
    EXPECT_EQ(m_control->handles, 0);
    EXPECT_FALSE(m_camera->open);
    EXPECT_EQ(m_streams->stops, 0);
}

TEST_F(PluginCommandTest, LeavesACameraOpenThatTheHostHadOpen)
{
    startWith(camera("cVTX 1"));
    m_status->cameraIsOpen = true;
    m_camera->open = true;
    titlesOfWizards();
    EXPECT_EQ(m_control->accesses, 1);
    EXPECT_EQ(m_control->closes, 0);
    EXPECT_TRUE(m_camera->open);
}

TEST_F(PluginCommandTest, ASecondStartReusesTheDialogUnderANewTitle)
{
    m_windows.clear();
    startWith(camera("cVTX 1"));
    titlesOfWizards();
    select(camera("cVTX %2"));
    EXPECT_EQ(titlesOfWizards(), QStringList("Color Calibrator - cVTX %2"));
    EXPECT_EQ(m_windows.size(), 1);
}

TEST_F(PluginCommandTest, TheWizardSpeaksTheLanguageOfItsStart)
{
    startWith(camera("cVTX 1"));
    auto* localized = qobject_cast<Core::Plugin::ALocalizedPlugin*>(m_plugin);
    QStringList seen;
    const auto look = [&seen](QDialog& window) {
        seen << window.windowTitle();
        QSet<const QObject*> scenes;
        for (const QWindow* each : QGuiApplication::allWindows())
            scenes.insert(each->findChild<QObject*>("root"));
        scenes.remove(nullptr);
        for (const QObject* scene : scenes)
            seen << scene->property("tStep1").toString();
        window.close();
    };
    for (const char* language : {"ja", "ko", "zh", "xx"}) {
        localized->setLanguage(language);
        trigger(look);
    }
    EXPECT_EQ(seen, QStringList({"カラーキャリブレーター - cVTX 1", "グリッドの配置",
                                 "컬러 캘리브레이터 - cVTX 1", "그리드 배치", "色彩校准器 - cVTX 1",
                                 "放置网格", "Color Calibrator - cVTX 1", "Position Grid"}));
}

TEST_F(PluginCommandTest, AsksBeforeItStopsWhatRuns)
{
    startWith(camera("cVTX 1"));
    m_status->busy = {m_camera};
    QStringList windows;
    trigger([&](QDialog& window) {
        if (isWizard(window)) {
            windows << "wizard";
            EXPECT_EQ(m_streams->stops, 1) << "stopped before the wizard";
            window.close();
            return;
        }
        windows << "question";
        auto* box = qobject_cast<QMessageBox*>(&window);
        ASSERT_TRUE(box);
        EXPECT_EQ(box->windowTitle(), "Color Calibrator");
        EXPECT_EQ(box->text(), question);
        EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
        EXPECT_EQ(box->iconPixmap().size(), QSize(32, 32));
        EXPECT_EQ(m_streams->stops, 0);
        box->button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(windows, QStringList({"question", "wizard"}));
}

TEST_F(PluginCommandTest, NoAndEscapeEndTheCommand)
{
    startWith(camera("cVTX 1"));
    m_status->busy = {m_camera};
    for (const bool escape : {false, true}) {
        int windows = 0;
        trigger([&](QDialog& window) {
            ++windows;
            if (escape)
                window.reject();
            else
                qobject_cast<QMessageBox*>(&window)->button(QMessageBox::No)->click();
        });
        EXPECT_EQ(windows, 1);
    }
    EXPECT_EQ(m_streams->stops, 0);
    EXPECT_EQ(m_control->opens + m_control->accesses, 0);
}

TEST_F(PluginCommandTest, WithoutTheServicesThatStopThereIsNoQuestionOrNoStop)
{
    startWith(camera("cVTX 1"), {m_enumeration});
    m_status->busy = {m_camera};
    EXPECT_EQ(titlesOfWizards().size(), 1) << "no list of cameras, so no question";
}

TEST_F(PluginCommandTest, WithoutAStreamServiceTheUsersYesStillStartsTheWizard)
{
    startWith(camera("cVTX 1"), {m_streams});
    m_status->busy = {m_camera};
    QStringList windows;
    trigger([&](QDialog& window) {
        windows << window.metaObject()->className();
        if (auto* box = qobject_cast<QMessageBox*>(&window))
            box->button(QMessageBox::Yes)->click();
        else
            window.close();
    });
    EXPECT_EQ(windows, QStringList({"QMessageBox", "ColorCalibration::ColorCorrectionToolDlg"}));
}

TEST_F(PluginCommandTest, WithoutAStatusServiceTheWizardStarts)
{
    startWith(camera("cVTX 1"), {m_status});
    EXPECT_EQ(titlesOfWizards().size(), 1);
    EXPECT_EQ(m_control->closes, 1);
}

TEST_F(PluginCommandTest, ACameraThatCannotBeOpenedIsToldWithItsOwnReason)
{
    startWith(camera("cVTX 1"));
    m_control->refuses = true;
    m_control->onRefusal = [this] {
        m_camera->error = "Another program uses <Gain> of the camera.";
    };
    QStringList texts;
    trigger([&](QDialog& window) {
        auto* box = qobject_cast<QMessageBox*>(&window);
        ASSERT_TRUE(box);
        texts << box->windowTitle() + ": " + box->text();
        EXPECT_EQ(box->textFormat(), Qt::PlainText) << "nothing in angle brackets gets lost";
        EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
        EXPECT_EQ(box->iconPixmap().size(), QSize(32, 32));
        EXPECT_FALSE(m_camera->error.isEmpty()) << "cleared after the box";
        box->button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(texts, QStringList("Color Calibrator: Another program uses <Gain> of the camera."));
    EXPECT_TRUE(m_camera->error.isEmpty());
    m_control->refuses = false;
    EXPECT_EQ(titlesOfWizards().size(), 1) << "the next start works";
}

TEST_F(PluginCommandTest, ACameraThatSaysNothingIsNotToldWithTheReasonOfBefore)
{
    startWith(camera("cVTX 1"));
    m_control->refuses = true;
    m_camera->error = "The picture was taken too late.";
    QString text;
    trigger([&text](QDialog& window) {
        auto* box = qobject_cast<QMessageBox*>(&window);
        ASSERT_TRUE(box);
        text = box->text();
        box->button(QMessageBox::Ok)->click();
    });
    EXPECT_FALSE(text.isEmpty());
    EXPECT_FALSE(text.contains("too late")) << qPrintable(text);
}

TEST_F(PluginCommandTest, WithoutAControlServiceNoCameraCanBeOpened)
{
    startWith(camera("cVTX 1"), {m_control});
    int boxes = 0;
    trigger([&boxes](QDialog& window) {
        auto* box = qobject_cast<QMessageBox*>(&window);
        ASSERT_TRUE(box);
        EXPECT_EQ(box->text(), "The camera could not be opened. Close it in other programs, open "
                               "it in the viewer, then try again.")
            << "a camera without a reason still gets words that say what to do";
        ++boxes;
        window.accept();
    });
    EXPECT_EQ(boxes, 1);
}

TEST_F(PluginCommandTest, SomethingElseSelectedKeepsTheLastCamera)
{
    startWith(camera("cVTX 1"));
    select(QSharedPointer<Lamp>::create());
    EXPECT_FALSE(action()->isVisible());
    EXPECT_EQ(titlesOfWizards(), QStringList("Color Calibrator - cVTX 1"));
    select({});
    EXPECT_FALSE(action()->isVisible());
}

TEST_F(PluginCommandTest, WithoutACameraNothingHappens)
{
    start();
    trigger([](QDialog&) { FAIL() << "no window may appear"; });
    EXPECT_EQ(m_control->opens, 0);
}

TEST_F(PluginCommandTest, ACommandWithinTheCommandDoesNothing)
{
    startWith(camera("cVTX 1"));
    int windows = 0;
    trigger([&](QDialog& window) {
        ++windows;
        action()->trigger();
        EXPECT_EQ(QApplication::activeModalWidget(), &window);
        window.close();
    });
    EXPECT_EQ(windows, 1);
    EXPECT_EQ(m_control->opens, 1);
}

TEST_F(PluginCommandTest, ALostCameraEndsTheWizard)
{
    startWith(camera("cVTX 1"));
    bool lost = false;
    int boxes = 0;
    trigger([&](QDialog& window) {
        if (!isWizard(window)) {
            ++boxes;
            window.accept();
        } else if (!lost) {
            lost = true;
            QTimer::singleShot(0, [this] { m_camera->loseConnection(); });
        }
    });
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(m_control->handles, 0);
}

TEST_F(PluginCommandTest, UnloadingAfterARunLeavesNothing)
{
    startWith(camera("cVTX 1"));
    titlesOfWizards();
    const QPointer<QObject> plugin = m_plugin;
    EXPECT_TRUE(m_loader.unload());
    EXPECT_FALSE(plugin);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
    EXPECT_FALSE(m_menus->command->action()) << "the command ends with the plugin";

    m_plugin = qobject_cast<Core::Plugin::IPlugin*>(m_loader.instance());
    ASSERT_TRUE(m_plugin);
    m_plugin->setServiceRegistry(m_registry);
    m_plugin->initialize();
    select(m_camera);
    EXPECT_EQ(titlesOfWizards().size(), 1) << "loaded again it works again";
}

} // namespace
