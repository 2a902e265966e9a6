// SPDX-License-Identifier: Apache-2.0
// A model with fakes of everything that the host gives it.
#pragma once

#include "colorcorrectionmodel.h"
#include "fakecameraservices.h"
#include "logrecorder.h"
#include "measuredcamera.h"

#include <QSettings>

#include <gtest/gtest.h>

class ModelTest : public testing::Test
{
protected:
    ModelTest()
    {
        QSettings().clear();
        use(newCamera());
        m_model.SetCameraStatusService(&m_status);
        m_model.SetCameraControlService(&m_control);
    }

    /// Works with this camera from now on; it is closed and sees the chart.
    void use(const QSharedPointer<FakeCamera>& camera)
    {
        m_camera = camera;
        m_camera->open = false;
        showChart(*m_camera, castColors());
    }

    bool open() { return m_model.Open(m_camera); }

    QStringList writes() const { return m_camera->features().writes(); }

    /// Texts of all entries, "level text"; every one must come from the model or the adapter.
    QStringList logTexts() const
    {
        QStringList texts;
        for (const LogEntry& entry : m_log.entries()) {
            EXPECT_TRUE(entry.category.startsWith("ostria.viewer.plugins.colorCalibration."))
                << "category";
            texts << QStringLiteral("%1 %2").arg(entry.level).arg(entry.text);
        }
        return texts;
    }

    LogRecorder m_log;
    FakeStatusService m_status;
    FakeControlService m_control;
    QSharedPointer<FakeCamera> m_camera;
    ColorCalibration::ColorCorrectionModel m_model;
};
