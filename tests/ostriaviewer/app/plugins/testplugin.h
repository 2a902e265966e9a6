// SPDX-License-Identifier: Apache-2.0
// A plugin that notes what the viewer calls, and fails where a test wants it to.
#pragma once

#include "ideviceselectorservice.h"
#include "iplugin.h"

#include <QCoreApplication>
#include <QStringList>

/// Notes go into the application's property "pluginCalls"; the property "failingCall" names the
/// call that fails, as noted.
class TestPlugin : public Core::Plugin::ALocalizedPlugin
{
public:
    explicit TestPlugin(const QString& name)
        : ALocalizedPlugin(name)
        , m_name(name)
    {}
    ~TestPlugin() override { note(QStringLiteral("end")); }

    bool setServiceRegistry(const QWeakPointer<Core::Service::CServiceRegistry>& registry) override
    {
        const auto services = registry.toStrongRef();
        if (const auto selector =
                services ? services->find<Plugin::CameraSelector::IDeviceSelectorService>()
                         : nullptr)
            connect(selector.data(),
                    &Plugin::CameraSelector::IDeviceSelectorService::selectionChanged, this,
                    [this](const Core::CameraPoolComponents::DeviceBaseInfoPtr& device) {
                        note(QStringLiteral("selected ") +
                             (device ? device->displayName() : QStringLiteral("nothing")));
                    });
        return note(QStringLiteral("registry")) && services;
    }
    bool initialize() override { return note(QStringLiteral("initialize")); }
    bool extensionsInitialized(const QSharedPointer<QStringList>& arguments) override
    {
        return note(QStringLiteral("extensions ") + arguments->join(QLatin1Char(' ')));
    }
    bool checkPluginClosability(bool /*force*/) override
    {
        return note(QStringLiteral("closable"));
    }
    void aboutToUninitialize() override { note(QStringLiteral("uninitialize")); }
    void setLanguage(const QString& language) override
    {
        note(QStringLiteral("language ") + language);
    }

private:
    bool note(const QString& call) const
    {
        QCoreApplication* application = QCoreApplication::instance();
        QStringList calls = application->property("pluginCalls").toStringList();
        calls.append(m_name + QLatin1Char(' ') + call);
        application->setProperty("pluginCalls", calls);
        return application->property("failingCall").toString() != calls.constLast();
    }

    const QString m_name;
};
