// SPDX-License-Identifier: Apache-2.0
// The window of the wizard.
#pragma once

#include "imessagelogservice.h"
#include "logging.h"

#include <QDialog>
#include <QSharedPointer>
#include <QString>

namespace ColorCalibration {

class QmlDataModelInterface;

/// Shows the scene, or why it cannot be shown, and gives the camera back when it ends: as the
/// calibration left it after Finish, in every other case as it was. Outlives its parent, so that it
/// can be run again. Thread-bound: GUI thread.
class ColorCorrectionToolDlg : public QDialog
{
    Q_OBJECT

public:
    /// \param dataModel   lent for the life of this object; its view becomes a part of the dialog
    /// \param messageLog  may be null
    ColorCorrectionToolDlg(QmlDataModelInterface* dataModel,
                           QSharedPointer<Plugin::MessageLogCore::IMessageLogService> messageLog,
                           QWidget* parent);
    ~ColorCorrectionToolDlg() override;

    /// Also ends the dialog properly if the application quits meanwhile. Settings that could not be
    /// given back are told in a message box afterwards.
    int exec() override;

public slots:
    void onDialogFinish(int result);
    void onCameraRemoved();
    void onImageGrabFailed();
    void addLogMessage(QString message, Core::Logging::ELogLevel logLevel);

    /// At level 2.
    void addLogMessage(QString message);

protected:
    /// While the scene is shown, no key ends the dialog but by the scene.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void outliveParent();
    void connectDataModel();
    void showScene();
    void tellClosingProblem();

    QmlDataModelInterface* m_dataModel;
    QSharedPointer<Plugin::MessageLogCore::IMessageLogService> m_messageLog;
    QWidget* m_container = nullptr;
    QWidget* m_problem = nullptr;
    bool m_running = false;
    bool m_decided = false;
};

} // namespace ColorCalibration
