// SPDX-License-Identifier: Apache-2.0
// Starts the wizard and waits for its pictures.
#include "shownwizard.h"

#include "iparametercollection.h"
#include "qmlostriacamera.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QMouseEvent>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <atomic>

using Cameras::Emulation::EmulatedCamera;
using ColorCalibration::QmlDataModelInterface;

namespace {

constexpr int patience = 20000;

} // namespace

ShownWizard::ShownWizard(double exposure)
{
    QSettings().clear();
    Cameras::Emulation::EmulationOptions options;
    options.settingsFolder = m_folder.path();
    m_camera = EmulatedCamera::create(Cameras::Emulation::everydayModels().at(1), options);
    m_pool = std::make_unique<Cameras::CameraPool>(QList<Cameras::HostCameraPtr>{m_camera});
    m_pool->registerServices(m_registry);
    m_model.SetCameraStatusService(
        m_registry.find<Plugin::CameraPool::ICameraStatusService>().data());
    m_model.SetCameraControlService(
        m_registry.find<Plugin::CameraPool::ICameraControlService>().data());
    m_camera->open();
    m_camera->parameterCollection()
        ->floatParameter(QStringLiteral("ExposureTime"))
        ->setValue(exposure);
    m_data = std::make_unique<QmlDataModelInterface>(&m_model);
    if (!m_model.Open(m_camera))
        return;
    m_dialog = std::make_unique<ColorCalibration::ColorCorrectionToolDlg>(
        m_data.get(), QSharedPointer<Plugin::MessageLogCore::IMessageLogService>(), nullptr);
    m_dialog->show();
    m_ready = QTest::qWaitForWindowExposed(m_dialog.get(), patience) && placeGrid();
}

ShownWizard::~ShownWizard()
{
    m_dialog.reset();
    m_data.reset();
    m_model.Close();
}

bool ShownWizard::placeGrid()
{
    if (!QTest::qWaitFor([this] { return item("upperLeft")->isVisible(); }, patience))
        return false;
    QSignalSpy found(m_data.get(), &QmlDataModelInterface::autoChartFindFinished);
    click("finderButton");
    return found.wait(patience) && found.first().first().toBool();
}

double ShownWizard::untilShown(const std::function<void()>& work)
{
    // A picture that is under way when the work ends does not show it.
    std::atomic<bool> done{false};
    std::atomic<bool> begun{false};
    QEventLoop loop;
    const auto begin = QObject::connect(
        view(), &QQuickWindow::beforeSynchronizing, view(), [&] { begun = done.load(); },
        Qt::DirectConnection);
    const auto end = QObject::connect(
        view(), &QQuickWindow::frameSwapped, view(),
        [&] {
            if (begun)
                QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection);
        },
        Qt::DirectConnection);
    QElapsedTimer timer;
    timer.start();
    work();
    done = true;
    view()->update();
    QTimer limit;
    QObject::connect(&limit, &QTimer::timeout, &loop, [this, &loop] {
        m_ready = false;
        loop.quit();
    });
    limit.start(patience);
    loop.exec();
    const double milliseconds = static_cast<double>(timer.nsecsElapsed()) / 1e6;
    QObject::disconnect(begin);
    QObject::disconnect(end);
    return milliseconds;
}

void ShownWizard::awaitImage()
{
    QSignalSpy arrived(m_data->camera(), &ColorCalibration::QMLOstriaCamera::imageChanged);
    arrived.wait(patience);
}

QQuickItem* ShownWizard::item(const char* name) const
{
    return view()->rootObject()->findChild<QQuickItem*>(QString::fromLatin1(name));
}

void ShownWizard::click(const char* name)
{
    auto* target = item(name);
    const QPointF middle(target->width() / 2, target->height() / 2);
    QTest::mouseClick(view(), Qt::LeftButton, {}, target->mapToScene(middle).toPoint());
}

QVariant ShownWizard::call(const char* object, const char* function)
{
    QVariant result;
    QMetaObject::invokeMethod(item(object), function, Q_RETURN_ARG(QVariant, result));
    return result;
}

void ShownWizard::sendMouse(QEvent::Type type, const QPoint& place)
{
    const bool moves = type == QEvent::MouseMove;
    const bool held = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, place, place, view()->mapToGlobal(place),
                      moves ? Qt::NoButton : Qt::LeftButton, held ? Qt::LeftButton : Qt::NoButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(view(), &event);
}

void ShownWizard::showPage(const char* circle)
{
    auto* progress = item("progress");
    const auto* active = progress->property("active").value<QQuickItem*>();
    QMetaObject::invokeMethod(progress, "moveTo", Q_ARG(QVariant, active->property(circle)));
}
