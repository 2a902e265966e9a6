// SPDX-License-Identifier: Apache-2.0
// What the host loads: the command that starts the wizard.
#pragma once

#include "camerasupport.h"
#include "colorcorrectionmodel.h"
#include "colorcorrectiontooldlg.h"
#include "icameraservices.h"
#include "ideviceselectorservice.h"
#include "imenuservice.h"
#include "imessagelogservice.h"
#include "iplugin.h"
#include "qmldatamodelinterface.h"
#include "resourcebundles.h"

#include <QAction>
#include <QPointer>

namespace Plugin::ColorCalibration {

/// Puts one command into the host's menus, shown while a camera is selected that can be calibrated,
/// and runs the wizard on that camera. Model, scene and dialog are made by the first start and
/// reused by all others; they end with the plugin. Thread-bound: GUI thread.
class CColorCalibrationPlugin : public Core::Plugin::ALocalizedPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tavrin.ostriaApp.OstriaViewerPlugin" FILE "ccolorcalibrationplugin.json")
    Q_INTERFACES(Core::Plugin::IPlugin)

public:
    explicit CColorCalibrationPlugin(QObject* parent = nullptr);
    ~CColorCalibrationPlugin() override;

    /// \return  false without a message log
    bool setServiceRegistry(const QWeakPointer<Core::Service::CServiceRegistry>& registry) override;

    /// Skips what needs a service that is not there. Always true.
    bool initialize() override;
    bool extensionsInitialized(const QSharedPointer<QStringList>& arguments) override;

    /// The command's text follows at once, a wizard that is open at its next start.
    void setLanguage(const QString& language) override;

private slots:
    void onDeviceChanged(Core::CameraPoolComponents::DeviceBaseInfoPtr device);
    void onStartTriggered();

private:
    template <typename Service>
    QSharedPointer<Service> find() const;
    void addAction(AppCore::IMenuService& menus);
    void start();
    bool stopWhatRuns();
    void createModels();
    bool openCamera(const Core::CameraPoolComponents::CameraInfoPtr& camera);
    void runDialog(const QString& cameraName);

    ResourceBundles m_resources;
    QWeakPointer<Core::Service::CServiceRegistry> m_registry;
    QAction* m_action = nullptr;
    QPointer<::ColorCalibration::ColorCorrectionToolDlg> m_dialog;
    ::ColorCalibration::ColorCorrectionModel* m_model = nullptr;
    ::ColorCalibration::QmlDataModelInterface* m_dataModel = nullptr;
    Core::CameraPoolComponents::CameraInfoPtr m_camera;
    ::ColorCalibration::CameraSupport m_support;
    QSharedPointer<MessageLogCore::IMessageLogService> m_messageLog;

    // The model works with these and does not own them.
    QSharedPointer<CameraPool::ICameraStatusService> m_status;
    QSharedPointer<CameraPool::ICameraControlService> m_control;
    bool m_isStarting = false;
};

} // namespace Plugin::ColorCalibration
