// SPDX-License-Identifier: Apache-2.0
// An emulated camera that is reached through GigE Vision, for tests of the tool.
#pragma once

#include "commandtest.h"
#include "emulatedcamera.h"
#include "gigeserver.h"
#include "servedemulation.h"

#include <QJsonDocument>

#include <algorithm>
#include <memory>

/// Without a network of its own a test is skipped.
class NetworkCameras : public CommandTest
{
protected:
    using EmulatedCamera = Cameras::Emulation::EmulatedCamera;
    using CameraModel = Cameras::Emulation::CameraModel;

    void SetUp() override
    {
        if (!qEnvironmentVariableIsSet("OSTRIA_LOOPBACK"))
            GTEST_SKIP() << "the system gives no network of its own";
        serveModel(servedModel());
    }

    static CameraModel servedModel() { return Cameras::Emulation::everydayModels().at(1); }

    /// Serves another camera, as it leaves the factory.
    void serveModel(const CameraModel& model, const QStringList& missingFeatures = {})
    {
        vanish();
        if (m_served)
            m_served->close();
        Cameras::Emulation::EmulationOptions options;
        options.settingsFolder = path(QStringLiteral("served%1").arg(++m_cameras));
        options.hasTransport = true;
        options.missingFeatures = missingFeatures;
        m_served = EmulatedCamera::create(model, options);
        ASSERT_TRUE(m_served->open());
        serve();
    }

    void serve()
    {
        m_server = std::make_unique<Cameras::Emulation::GigeServer>(
            Cameras::Emulation::serveEmulation(m_served), m_address.toStdString());
    }
    void vanish() { m_server.reset(); }

    /// The settings of the camera itself, however it is reached; without the head that carries the
    /// time, and without those of the connection.
    QString settings() const
    {
        QString text;
        m_served->parameterCollection()->saveFeatures(text, QStringLiteral("@CameraDevice"));
        QStringList lines = text.split(QLatin1Char('\n')).mid(4);
        lines.erase(std::remove_if(
                        lines.begin(), lines.end(),
                        [](const QString& line) { return line.startsWith(QLatin1String("Gev")); }),
                    lines.end());
        return lines.join(QLatin1Char('\n'));
    }

    void setExposure(double microseconds) const
    {
        m_served->parameterCollection()
            ->floatParameter(QStringLiteral("ExposureTime"))
            ->setValue(microseconds);
    }

    QStringList atAddress(const char* subcommand) const
    {
        return {
            QLatin1String(subcommand),       QStringLiteral("--address"), m_address,
            QStringLiteral("--packet-size"), QStringLiteral("9000"),      QStringLiteral("--json")};
    }

    static QJsonDocument runJson(const QStringList& arguments)
    {
        const Outcome outcome = runTool(arguments);
        EXPECT_EQ(outcome.code, 0) << outcome.err;
        return QJsonDocument::fromJson(QByteArray::fromStdString(outcome.out));
    }

    const QString m_address = QStringLiteral("127.0.0.1");
    QSharedPointer<EmulatedCamera> m_served;
    std::unique_ptr<Cameras::Emulation::GigeServer> m_server;

private:
    int m_cameras = 0;
};
