// SPDX-License-Identifier: Apache-2.0
// What the host loads: the command that starts the wizard.
#include "ccolorcalibrationplugin.h"

#include "cameratexts.h"
#include "iparameterservice.h"
#include "modalbox.h"

#include <QApplication>
#include <QIcon>

#include <algorithm>

namespace Plugin::ColorCalibration {

using ::ColorCalibration::BoxIcon;
using ::ColorCalibration::ColorCorrectionModel;
using ::ColorCalibration::ColorCorrectionToolDlg;
using ::ColorCalibration::QmlDataModelInterface;
using ::ColorCalibration::showModalBox;
using Core::CameraPoolComponents::CameraInfoPtr;
using Core::CameraPoolComponents::ICamera;
using Core::CameraPoolComponents::ICameraInfo;

CColorCalibrationPlugin::CColorCalibrationPlugin(QObject* parent)
    : ALocalizedPlugin(QStringLiteral("ColorCalibration"), parent)
{}

CColorCalibrationPlugin::~CColorCalibrationPlugin()
{
    // Windows must not be destroyed after the application has gone; the process ends then anyway.
    if (!QCoreApplication::instance())
        return;
    // Each before what it works on, and the model before the services.
    delete m_dialog;
    delete m_dataModel;
    delete m_model;
}

template <typename Service>
QSharedPointer<Service> CColorCalibrationPlugin::find() const
{
    const auto registry = m_registry.toStrongRef();
    return registry ? registry->find<Service>() : QSharedPointer<Service>();
}

bool CColorCalibrationPlugin::setServiceRegistry(
    const QWeakPointer<Core::Service::CServiceRegistry>& registry)
{
    m_registry = registry;
    m_messageLog = find<MessageLogCore::IMessageLogService>();
    return !m_messageLog.isNull();
}

bool CColorCalibrationPlugin::initialize()
{
    if (const auto menus = find<AppCore::IMenuService>())
        addAction(*menus);
    if (const auto selector = find<CameraSelector::IDeviceSelectorService>())
        connect(selector.data(), &CameraSelector::IDeviceSelectorService::selectionChanged, this,
                &CColorCalibrationPlugin::onDeviceChanged);
    if (const auto status = find<CameraPool::ICameraStatusService>())
        connect(status.data(), &CameraPool::IDeviceStatusService::deviceOpened, this,
                &CColorCalibrationPlugin::onDeviceChanged);
    return true;
}

void CColorCalibrationPlugin::addAction(AppCore::IMenuService& menus)
{
    using AppCore::CContext;
    using AppCore::CId;
    auto* contextMenu =
        menus.actionContainer(CId(QStringLiteral("OstriaViewer.CameraSelectorContextMenu")));
    auto* toolsMenu = menus.actionContainer(CId(QStringLiteral("OstriaViewer.Menu.Tools")));
    m_action = new QAction(tr("Color Calibrator"), this);
    m_action->setVisible(false);
    m_action->setIcon(QIcon(QStringLiteral(":/ColCal/icons/cct_icon_22x22.png")));
    auto* command = menus.registerAction(m_action, CId(QStringLiteral("ColorCalibration.Start")),
                                         {CContext(CId(QStringLiteral("AppCore.Global.Context")))});
    connect(m_action, &QAction::triggered, this, &CColorCalibrationPlugin::onStartTriggered);
    if (contextMenu)
        contextMenu->addToGroup(
            command, CId(QStringLiteral("OstriaViewer.Group.CameraSelectorContextMenu.Misc")));
    if (toolsMenu)
        toolsMenu->addToGroup(command, CId(QStringLiteral("OstriaViewer.Group.Tools.Tools")));
}

bool CColorCalibrationPlugin::extensionsInitialized(const QSharedPointer<QStringList>&)
{
    return true;
}

void CColorCalibrationPlugin::setLanguage(const QString& language)
{
    ALocalizedPlugin::setLanguage(language);
    if (m_action)
        m_action->setText(tr("Color Calibrator"));
}

void CColorCalibrationPlugin::onDeviceChanged(Core::CameraPoolComponents::DeviceBaseInfoPtr device)
{
    const CameraInfoPtr camera = device.dynamicCast<ICameraInfo>();
    const auto parameters = find<ParameterCollectionPool::IParameterService>();
    if (m_action)
        m_action->setVisible(m_support.isSupported(camera, parameters.data()));
    if (camera)
        m_camera = camera;
}

void CColorCalibrationPlugin::onStartTriggered()
{
    // The host may trigger the command again from its own windows while ours is open.
    if (m_isStarting || !m_camera)
        return;
    const QPointer<CColorCalibrationPlugin> self(this);
    m_isStarting = true;
    try {
        start();
    } catch (const std::exception& problem) {
        showModalBox(BoxIcon::Error, tr("Color Calibrator"), QString::fromUtf8(problem.what()),
                     QMessageBox::Ok, QMessageBox::Ok, Qt::PlainText);
    }
    if (self)
        m_isStarting = false;
}

void CColorCalibrationPlugin::start()
{
    if (!stopWhatRuns())
        return;
    // The selection may change while the wizard is open; it stays with its camera.
    const CameraInfoPtr camera = m_camera;
    createModels();
    if (!openCamera(camera))
        return;
    try {
        runDialog(camera->displayName());
    } catch (...) {
        m_dataModel->abandon();
        m_model->Close();
        throw;
    }
}

bool CColorCalibrationPlugin::stopWhatRuns()
{
    const auto status = find<CameraPool::ICameraStatusService>();
    const auto enumeration = find<CameraPool::ICameraEnumerationService>();
    const auto streams = find<CameraPool::ICameraStreamControlService>();
    if (!status || !enumeration)
        return true;
    int active = 0;
    for (const CameraPool::DeviceGroup& group : enumeration->deviceGroups())
        active += static_cast<int>(std::count_if(
            group.cameras.begin(), group.cameras.end(),
            [&](const CameraInfoPtr& info) { return status->isAcquiringOrRecording(info); }));
    if (active == 0)
        return true;
    const auto answer = showModalBox(
        BoxIcon::Question, tr("Color Calibrator"),
        tr("<p>To use the Color Calibrator, you have to stop continuous image acquisition as well "
           "as any recordings.<p/>Do you want to stop the camera and start using the Color "
           "Calibrator?"),
        QMessageBox::Yes | QMessageBox::No, QMessageBox::No, Qt::RichText);
    if (answer != QMessageBox::Yes)
        return false;
    if (streams)
        streams->stopAllAcquisitionsAndRecordings();
    return true;
}

void CColorCalibrationPlugin::createModels()
{
    if (!m_model) {
        m_status = find<CameraPool::ICameraStatusService>();
        m_control = find<CameraPool::ICameraControlService>();
        m_model = new ColorCorrectionModel(this);
        m_model->SetCameraStatusService(m_status.data());
        m_model->SetCameraControlService(m_control.data());
    }
    if (!m_dataModel)
        m_dataModel = new QmlDataModelInterface(m_model);
}

bool CColorCalibrationPlugin::openCamera(const CameraInfoPtr& camera)
{
    // What is left of an earlier failure is not why this one happens.
    camera->clearLastError();
    if (m_model->Open(camera.dynamicCast<ICamera>()))
        return true;
    QString reason = camera->lastErrorText();
    if (reason.isEmpty())
        reason = Core::CameraPoolComponents::CameraTexts::notOpened();
    showModalBox(BoxIcon::Error, tr("Color Calibrator"), reason, QMessageBox::Ok, QMessageBox::Ok,
                 Qt::PlainText);
    camera->clearLastError();
    return false;
}

void CColorCalibrationPlugin::runDialog(const QString& cameraName)
{
    if (m_dialog)
        m_dataModel->resetScene();
    else
        m_dialog =
            new ColorCorrectionToolDlg(m_dataModel, m_messageLog, QApplication::activeWindow());
    m_dialog->setWindowTitle(QStringLiteral("%1 - %2").arg(tr("Color Calibrator"), cameraName));
    m_dialog->exec();
}

} // namespace Plugin::ColorCalibration
