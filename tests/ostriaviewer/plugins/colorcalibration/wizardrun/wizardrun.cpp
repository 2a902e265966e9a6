// SPDX-License-Identifier: Apache-2.0
// Starts the wizard, and finds and drives what is in it.
#include "wizardrun.h"

#include "qtwarnings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using namespace ColorCalibration;
using namespace Cameras::Emulation;

namespace {

constexpr int patience = 60000;

void hear(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (isWarningOfQt(type, context))
        ADD_FAILURE() << text.toStdString();
}

} // namespace

WizardRun::WizardRun()
{
    QSettings().clear();
    qInstallMessageHandler(hear);
}

WizardRun::~WizardRun()
{
    m_dialog.reset();
    m_data.reset();
    m_model.Close();
    qInstallMessageHandler(nullptr);
}

CameraModel WizardRun::fastModel(FeatureNames names)
{
    CameraModel model = modelWith(names);
    model.sensor.width = 480;
    model.sensor.height = 320;
    model.readoutTime = 100.0;
    return model;
}

void WizardRun::openCamera(FeatureNames names)
{
    m_camera = makeCamera(fastModel(names));
    open(m_camera);
}

void WizardRun::open(const Cameras::HostCameraPtr& camera)
{
    m_host = camera;
    m_pool = std::make_unique<Cameras::CameraPool>(QList<Cameras::HostCameraPtr>{m_host});
    m_pool->registerServices(m_registry);
    m_model.SetCameraStatusService(
        m_registry.find<Plugin::CameraPool::ICameraStatusService>().data());
    m_model.SetCameraControlService(
        m_registry.find<Plugin::CameraPool::ICameraControlService>().data());
    m_data = std::make_unique<QmlDataModelInterface>(&m_model);
    ASSERT_TRUE(m_pool->open(m_host)) << m_host->lastErrorText().toStdString();

    const auto parameters = m_host->parameterCollection();
    parameters->floatParameter("ExposureTime|ExposureTimeAbs")->setValue(4000);
    parameters->enumerationParameter("BalanceRatioSelector")->setValue("Red");
    parameters->floatParameter("BalanceRatio|BalanceRatioAbs")->setValue(1.25);
    parameters->floatParameter("Gamma")->setValue(0.75);
}

void WizardRun::run(const std::function<void()>& inWizard)
{
    ASSERT_TRUE(m_model.Open(m_host));
    if (m_dialog)
        m_data->resetScene();
    else
        m_dialog = std::make_unique<ColorCorrectionToolDlg>(
            m_data.get(), QSharedPointer<Plugin::MessageLogCore::IMessageLogService>(), nullptr);
    QTimer::singleShot(0, m_dialog.get(), [&] {
        inWizard();
        EXPECT_TRUE(HasFailure() || waitFor([this] { return !m_dialog->isVisible(); }));
        if (auto* left = box())
            left->close();
        m_dialog->close();
    });
    m_dialog->exec();
    EXPECT_EQ(m_host->isOpen(), !m_isCameraLost) << "the host's own";
    EXPECT_FALSE(m_host->isGrabbing());
}

void WizardRun::goTo(int step)
{
    ASSERT_TRUE(waitFor([this] { return item("upperLeft")->isVisible(); })) << "no first image";
    QSignalSpy found(m_data.get(), &QmlDataModelInterface::autoChartFindFinished);
    click("finderButton");
    ASSERT_TRUE(found.wait(patience));
    ASSERT_TRUE(found.first().first().toBool());
    for (int reached = 2; reached <= step; ++reached) {
        if (reached == 3) {
            ASSERT_NO_FATAL_FAILURE(adjustBrightness());
        }
        ASSERT_NO_FATAL_FAILURE(next(reached));
    }
}

void WizardRun::next(int step)
{
    const auto taken = m_model.TakenImages();
    click("nextButton");
    auto* problem = box();
    ASSERT_FALSE(problem) << problem->text().toStdString();
    ASSERT_EQ(m_data->activeStep(), step);
    ASSERT_TRUE(waitFor([&] { return m_model.TakenImages() > taken; }));
}

void WizardRun::adjustBrightness()
{
    QSignalSpy adjusted(m_data.get(), &QmlDataModelInterface::autoAdjustGray80PercentPatchFinished);
    press(Qt::Key_Return);
    ASSERT_TRUE(adjusted.wait(patience));
    ASSERT_TRUE(waitFor([this] { return item("nextButton")->isEnabled(); }));
    EXPECT_NEAR(m_data->gray80PercentHitRate(), 100, 20);
}

QQuickItem* WizardRun::item(const char* name)
{
    auto* found = m_data->view()->rootObject()->findChild<QQuickItem*>(name);
    EXPECT_TRUE(found) << "no item of the name " << name;
    return found;
}

void WizardRun::click(const char* name)
{
    auto* target = item(name);
    ASSERT_TRUE(target->isEnabled()) << name;
    const QPointF middle(target->width() / 2, target->height() / 2);
    QTest::mouseClick(m_data->view(), Qt::LeftButton, {}, target->mapToScene(middle).toPoint());
}

void WizardRun::press(Qt::Key key)
{
    // No window manager gives the keys to a window that comes up, and its frame may take them.
    auto* view = m_data->view();
    ASSERT_TRUE(waitFor([view] {
        if (QGuiApplication::focusWindow() != view)
            view->requestActivate();
        return view->activeFocusItem() && view->activeFocusItem() != view->contentItem();
    }));
    pressAndRelease(view, key);
}

// Presses that follow each other within a millisecond would count as those of a held key.
void WizardRun::pressAndRelease(QWindow* window, Qt::Key key)
{
    sendKey(window, QEvent::KeyPress, key, laterTime());
    sendKey(window, QEvent::KeyRelease, key, laterTime());
}

void WizardRun::sendKey(QWindow* window, QEvent::Type type, Qt::Key key, ulong time, bool isRepeat)
{
    QKeyEvent event(type, key, Qt::NoModifier, QString(), isRepeat);
    event.setTimestamp(time);
    QCoreApplication::sendEvent(window, &event);
}

void WizardRun::confirm()
{
    ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
    auto* yes = box()->button(QMessageBox::Yes);
    ASSERT_TRUE(yes) << box()->text().toStdString();
    QTest::mouseClick(yes, Qt::LeftButton);
}

QMessageBox* WizardRun::box()
{
    return boxes().value(0);
}

QVector<QMessageBox*> WizardRun::boxes()
{
    QVector<QMessageBox*> open;
    for (auto* widget : QApplication::topLevelWidgets()) {
        auto* found = qobject_cast<QMessageBox*>(widget);
        if (found && found->isVisible())
            open << found;
    }
    return open;
}

void WizardRun::loseCamera()
{
    m_isCameraLost = true;
    m_camera->loseConnection();
}

void WizardRun::findCameraAgain()
{
    m_camera->reconnect();
    ASSERT_TRUE(m_pool->open(m_camera)) << m_camera->lastErrorText().toStdString();
    m_isCameraLost = false;
}

bool WizardRun::waitFor(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, patience);
}

QStringList WizardRun::settings()
{
    QString text;
    m_host->parameterCollection()->saveFeatures(text, "@CameraDevice");
    QStringList lines;
    for (const QString& line : text.split('\n'))
        if (!line.startsWith('#'))
            lines << line;
    return lines;
}

double WizardRun::value(const QString& feature, const QString& selector, const QString& entry)
{
    const auto parameters = m_host->parameterCollection();
    if (!selector.isEmpty())
        parameters->enumerationParameter(selector)->setValue(entry);
    return parameters->floatParameter(feature)->value();
}

double WizardRun::gain(int row, int column)
{
    return value("ColorTransformationValue", "ColorTransformationValueSelector",
                 QString("Gain%1%2").arg(row).arg(column));
}
