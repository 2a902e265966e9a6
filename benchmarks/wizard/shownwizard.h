// SPDX-License-Identifier: Apache-2.0
// The wizard on an emulated camera, driven and timed up to the picture on the screen.
#pragma once

#include "camerapool.h"
#include "colorcorrectionmodel.h"
#include "colorcorrectiontooldlg.h"
#include "emulatedcamera.h"
#include "qmldatamodelinterface.h"

#include <QEvent>
#include <QQuickItem>
#include <QTemporaryDir>

#include <functional>
#include <memory>

/// A camera of 1920 x 1200 before its chart, and the wizard in its window of 800 x 750, with the
/// grid on the chart. Thread-bound: GUI thread.
class ShownWizard
{
public:
    /// \param exposure  of the camera, in microseconds
    explicit ShownWizard(double exposure);
    ~ShownWizard();
    ShownWizard(const ShownWizard&) = delete;
    ShownWizard& operator=(const ShownWizard&) = delete;

    /// False if the wizard did not come as far as this describes, or a picture did not come.
    bool isReady() const { return m_ready; }

    /// Does this, and waits for a picture that was begun after it.
    /// \return  the time of both in milliseconds
    double untilShown(const std::function<void()>& work);

    /// Lets the live image of the page come.
    void awaitImage();

    void click(const char* name);
    QQuickItem* item(const char* name) const;

    /// Calls a function of an object of the scene.
    QVariant call(const char* object, const char* function);

    /// Delivers an event of the left button, without letting others happen.
    void sendMouse(QEvent::Type type, const QPoint& place);

    /// Goes to the "next" or the "prev" page without what the camera goes through on the way.
    void showPage(const char* circle);

    QQuickView* view() const { return m_data->view(); }
    int step() const { return m_data->activeStep(); }
    ColorCalibration::ColorCorrectionModel& model() { return m_model; }

private:
    bool placeGrid();

    QTemporaryDir m_folder;
    QSharedPointer<Cameras::Emulation::EmulatedCamera> m_camera;
    Core::Service::CServiceRegistry m_registry;
    std::unique_ptr<Cameras::CameraPool> m_pool;
    ColorCalibration::ColorCorrectionModel m_model;
    std::unique_ptr<ColorCalibration::QmlDataModelInterface> m_data;
    std::unique_ptr<ColorCalibration::ColorCorrectionToolDlg> m_dialog;
    bool m_ready = false;
};
