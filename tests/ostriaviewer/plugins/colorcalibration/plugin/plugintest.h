// SPDX-License-Identifier: Apache-2.0
// The plugin's file, loaded into a host of doubles.
#pragma once

#include "hostservices.h"
#include "iplugin.h"

#include <QApplication>
#include <QDialog>
#include <QPluginLoader>
#include <QSettings>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

class PluginTest : public testing::Test
{
protected:
    PluginTest()
    {
        QSettings().clear();
        m_plugin = qobject_cast<Core::Plugin::IPlugin*>(m_loader.instance());
        EXPECT_TRUE(m_plugin) << m_loader.errorString().toStdString();
    }
    ~PluginTest() override { m_loader.unload(); }

    /// Adds all services but those that a test leaves out.
    void addServices(const QList<Core::Service::ServicePtr>& without = {})
    {
        const QList<Core::Service::ServicePtr> all{m_menus,      m_selector,    m_status,
                                                   m_control,    m_enumeration, m_streams,
                                                   m_parameters, m_log};
        for (const Core::Service::ServicePtr& service : all)
            if (!without.contains(service))
                m_registry->add(service);
    }
    void start(const QList<Core::Service::ServicePtr>& without = {})
    {
        addServices(without);
        EXPECT_EQ(m_plugin->setServiceRegistry(m_registry), !without.contains(m_log));
        EXPECT_TRUE(m_plugin->initialize());
        EXPECT_TRUE(m_plugin->extensionsInitialized({}));
    }

    static QSharedPointer<FaultyCamera> camera(const QString& model)
    {
        auto made = QSharedPointer<FaultyCamera>::create(QVersionNumber(2, 0, 0));
        addCommonFeatures(made->parameters());
        made->parameters().addFloat("Gain", 3.0, 0.0, 24.0);
        made->parameters().addFloat("ExposureTime", 1000.0, 10.0, 100000.0);
        made->model = model;
        made->open = false;
        return made;
    }
    void select(const Core::CameraPoolComponents::DeviceBaseInfoPtr& device)
    {
        emit m_selector->selectionChanged(device);
    }
    QAction* action() const { return m_menus->command ? m_menus->command->action() : nullptr; }

    /// Triggers the command; every modal window that appears is handed to the function, which must
    /// end it.
    void trigger(const std::function<void(QDialog&)>& onWindow)
    {
        QPointer<QWidget> last;
        QTimer waiter;
        QObject::connect(&waiter, &QTimer::timeout, [&] {
            auto* window = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!window || window == last)
                return;
            last = window;
            onWindow(*window);
            last.clear();
        });
        waiter.start(0);
        action()->trigger();
    }

    QPluginLoader m_loader{TEST_PLUGIN};
    Core::Plugin::IPlugin* m_plugin = nullptr;
    QSharedPointer<Core::Service::CServiceRegistry> m_registry =
        QSharedPointer<Core::Service::CServiceRegistry>::create();
    QSharedPointer<RecordingMenus> m_menus = QSharedPointer<RecordingMenus>::create();
    QSharedPointer<FakeSelector> m_selector = QSharedPointer<FakeSelector>::create();
    QSharedPointer<BusyStatus> m_status = QSharedPointer<BusyStatus>::create();
    QSharedPointer<FakeControlService> m_control = QSharedPointer<FakeControlService>::create();
    QSharedPointer<FakeCameraList> m_enumeration = QSharedPointer<FakeCameraList>::create();
    QSharedPointer<FakeStreams> m_streams = QSharedPointer<FakeStreams>::create();
    QSharedPointer<FakeParameterService> m_parameters =
        QSharedPointer<FakeParameterService>::create();
    QSharedPointer<RecordingLog> m_log = QSharedPointer<RecordingLog>::create();
};
