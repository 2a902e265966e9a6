// SPDX-License-Identifier: Apache-2.0
// A window that shows the live image, and what is seen in it.
#pragma once

#include "liveimagetest.h"

#include <QQmlContext>
#include <QQuickItem>
#include <QQuickView>
#include <QSGRendererInterface>

/// Shows an item that outlives it.
class LiveWindow
{
public:
    explicit LiveWindow(ColorCalibration::QMLOstriaCamera& item)
    {
        m_view.rootContext()->setContextProperty(QStringLiteral("camera"), &item);
        m_view.setSource(QUrl(QStringLiteral("qrc:/test/livescene.qml")));
        m_view.show();
    }

    /// Without OpenGL no video is drawn at all.
    bool isReady()
    {
        return QTest::qWaitForWindowExposed(&m_view) &&
               m_view.rendererInterface()->graphicsApi() == QSGRendererInterface::OpenGL;
    }

    QImage seen() { return m_view.grabWindow(); }

    bool waitForPixel(const QPoint& position, QRgb color)
    {
        return eventually([&] { return (seen().pixel(position) | 0xff000000) == color; });
    }

    void showPage(bool shown)
    {
        QMetaObject::invokeMethod(m_view.rootObject(), "showPage", Q_ARG(QVariant, shown));
    }

private:
    QQuickView m_view;
};
