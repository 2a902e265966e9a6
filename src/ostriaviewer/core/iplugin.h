// SPDX-License-Identifier: Apache-2.0
// A plugin of the host.
#pragma once

#include "coreexport.h"
#include "serviceregistry.h"

#include <QObject>
#include <QSharedPointer>
#include <QString>
#include <QWeakPointer>
#include <QtPlugin>

class QTranslator;

namespace Core::Plugin {

/// What the host calls of a plugin, in this order: setServiceRegistry, initialize and
/// extensionsInitialized when it loads; checkPluginClosability and aboutToUninitialize when it
/// ends. No exception may leave any of them. Thread-bound: GUI thread.
class OSTRIAVIEWER_CORE_EXPORT IPlugin : public QObject
{
    Q_OBJECT

public:
    ~IPlugin() override;

    /// \return  false if a service is missing without which the plugin is of no use
    virtual bool setServiceRegistry(const QWeakPointer<Service::CServiceRegistry>& registry) = 0;

    /// Makes the plugin's commands and connections.
    /// \return  false if the plugin is to be unloaded
    virtual bool initialize() = 0;

    /// All plugins are initialized now.
    /// \param arguments  what the host was started with
    virtual bool extensionsInitialized(const QSharedPointer<QStringList>& arguments) = 0;

    /// \param force  the host closes whatever the answer is
    /// \return  whether the plugin may be closed now
    virtual bool checkPluginClosability(bool force);

    /// The services go away after this call.
    virtual void aboutToUninitialize();

protected:
    using QObject::QObject;
};

/// A plugin whose texts are translated.
class OSTRIAVIEWER_CORE_EXPORT ALocalizedPlugin : public IPlugin
{
    Q_OBJECT

public:
    ~ALocalizedPlugin() override;

    /// Installs the catalogue ":/translation/<plugin name>_<language>.qm" in place of the last one.
    /// May be called before and after initialize, any number of times.
    /// \param language  as in "en"; without a catalogue the texts of the code stand
    virtual void setLanguage(const QString& language);

protected:
    /// \param pluginName  as in the names of its catalogues
    explicit ALocalizedPlugin(const QString& pluginName, QObject* parent = nullptr);

private:
    QString m_pluginName;
    QTranslator* m_translator = nullptr;
};

} // namespace Core::Plugin

Q_DECLARE_INTERFACE(Core::Plugin::IPlugin, "tavrin.ostriaApp.OstriaViewerPlugin")
