// SPDX-License-Identifier: Apache-2.0
// The wizard's window, scene and model on an emulated camera, driven as a user drives it.
#pragma once

#include "camerapool.h"
#include "colorcorrectionmodel.h"
#include "colorcorrectiontooldlg.h"
#include "emulationtest.h"
#include "qmldatamodelinterface.h"

#include <QMessageBox>
#include <QQuickItem>
#include <QVector>

#include <functional>
#include <memory>

class WizardRun : public Cameras::Emulation::EmulationTest
{
protected:
    using FeatureNames = Cameras::Emulation::FeatureNames;

    /// No warning of Qt or of its QML may go unseen: a test that meets one fails.
    WizardRun();
    ~WizardRun() override;

    /// A camera that stands before the chart and makes small images fast.
    static Cameras::Emulation::CameraModel fastModel(FeatureNames names);

    /// Opens an emulated camera, before the chart and with settings of the user's own.
    void openCamera(FeatureNames names);
    /// The same for any camera, which is the wizard's from then on.
    void open(const Cameras::HostCameraPtr& camera);

    /// Starts the wizard as the plugin does, does this in it, and returns when it has ended. A
    /// window that is still open after it counts as a failure.
    void run(const std::function<void()>& inWizard);

    /// Puts the grid on the chart, adjusts the brightness, and goes on to a step. Ends with the
    /// step's first image.
    void goTo(int step);
    /// From step 2 on: brings the brightness to its target.
    void adjustBrightness();
    /// To the step after the present one. Ends with its first image.
    void next(int step);

    void click(const char* name);
    void press(Qt::Key key);
    /// The same in a window that has the keys.
    void pressAndRelease(QWindow* window, Qt::Key key);
    /// One event of a key, as it comes to a window.
    static void sendKey(QWindow* window, QEvent::Type type, Qt::Key key, ulong time,
                        bool isRepeat = false);
    /// A moment behind all that this has told before.
    ulong laterTime() { return ++m_time; }
    /// Answers the question whether to give the calibration up.
    void confirm();
    QQuickItem* item(const char* name);
    static bool waitFor(const std::function<bool()>& condition);
    /// The message box that is open; null if there is none.
    static QMessageBox* box();
    /// All that are open.
    static QVector<QMessageBox*> boxes();
    /// Breaks the emulated camera's connection. It is no longer open after the wizard then.
    void loseCamera();
    /// Reconnects and opens it.
    void findCameraAgain();

    /// The camera's settings, without comments.
    QStringList settings();
    /// The value of a feature, with the selector at an entry if there is one.
    double value(const QString& feature, const QString& selector = {}, const QString& entry = {});
    /// The same for one of the gains of the color matrix.
    double gain(int row, int column);

    Cameras::HostCameraPtr m_host;                               // the wizard's camera
    QSharedPointer<Cameras::Emulation::EmulatedCamera> m_camera; // the same where it is emulated
    Core::Service::CServiceRegistry m_registry;
    std::unique_ptr<Cameras::CameraPool> m_pool;
    ColorCalibration::ColorCorrectionModel m_model;
    std::unique_ptr<ColorCalibration::QmlDataModelInterface> m_data;
    std::unique_ptr<ColorCalibration::ColorCorrectionToolDlg> m_dialog;

    bool m_isCameraLost = false; // it is not open after the wizard

private:
    ulong m_time = 1000; // ms, of the last key
};
