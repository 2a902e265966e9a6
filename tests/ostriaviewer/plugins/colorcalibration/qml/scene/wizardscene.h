// SPDX-License-Identifier: Apache-2.0
// The wizard's scene in a window, with stand-ins for all that it sees.
#pragma once

#include "pointtransformer.h"
#include "wizarddoubles.h"

#include <QQuickItem>
#include <QQuickView>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

class WizardScene : public testing::Test
{
protected:
    /// With settings of the test's own.
    WizardScene();

    /// Loads the scene and waits until its window has the keys.
    void show(const QSize& size);

    /// Also finds what a repeater has made, which is a child of its item alone.
    static QObject* find(QObject* parent, const QString& name);

    static QPoint middleOf(QQuickItem* item);
    static bool waitFor(const std::function<bool()>& condition);

    CallLog m_log;
    ModelDouble m_model{m_log};
    CameraDouble m_camera{m_log};
    TrapezoidDouble m_outline{{100, 100}, {300, 250}};
    GridDouble m_grid;
    AdapterDouble m_exposure{m_log, "exposure"};
    AdapterDouble m_gain{m_log, "gain"};
    ColorCalibration::PointTransformer m_transformer;
    std::unique_ptr<QQuickView> m_view;
};
