// SPDX-License-Identifier: Apache-2.0
// Finds, loads and ends the plugins of the viewer.
#pragma once

#include "iplugin.h"
#include "pluginmetadata.h"

#include <QHash>
#include <QList>
#include <QPluginLoader>
#include <QSharedPointer>
#include <QString>
#include <QStringList>
#include <QVersionNumber>

#include <functional>
#include <memory>
#include <vector>

namespace Viewer {

/// A plugin file and what became of it.
struct PluginReport
{
    QString file;
    QString name; ///< the file's name where the plugin has none
    QString version;
    QString description;
    QString error; ///< why it does not run; empty if it does
    bool isRequired = false;
};

/// Loads whatever plugins a folder holds; it knows none of them. Thread-bound: GUI thread.
class PluginManager
{
public:
    /// Parts of the host that plugins may depend on, by name.
    using HostParts = QHash<QString, QVersionNumber>;

    /// \param registry   handed to the plugins; outlives them
    /// \param hostParts  dependencies that are met without a plugin, up to these versions
    PluginManager(QSharedPointer<Core::Service::CServiceRegistry> registry, HostParts hostParts);

    /// Ends the plugins as by unload.
    ~PluginManager();
    PluginManager(const PluginManager&) = delete;
    PluginManager& operator=(const PluginManager&) = delete;

    /// Loads the plugins of a folder, those that others depend on first: language, hand-over and
    /// initialize one by one, then extensionsInitialized of all. A plugin that cannot be used is
    /// left out and reported. To be called once.
    /// \param arguments  what the viewer was started with
    void loadFolder(const QString& folder, const QString& language, const QStringList& arguments);

    /// All files that were looked at, those that run first.
    QList<PluginReport> reports() const;

    /// To plugins that are translated.
    void setLanguage(const QString& language);

    /// Whether all plugins may be closed now.
    /// \param force  they are closed whatever the answer is
    bool checkClosability(bool force);

    /// Tells the plugins that the services go, in the reverse order of loading, then deletes them.
    void unload();

private:
    struct Loaded
    {
        PluginMetaData data;
        std::unique_ptr<QPluginLoader> loader;
        Core::Plugin::IPlugin* plugin; // the loader's
    };

    std::vector<PluginMetaData> readFolder(const QString& folder);
    void leaveOutDuplicates(std::vector<PluginMetaData>& found);
    QString unmetDependency(const PluginMetaData& data) const;
    bool loadNext(std::vector<PluginMetaData>& waiting, const QString& language);
    QString load(const PluginMetaData& data, const QString& language);
    void finish(const QSharedPointer<QStringList>& arguments);
    void leaveOut(const PluginMetaData& data, const QString& error);

    const QSharedPointer<Core::Service::CServiceRegistry> m_registry;
    const HostParts m_hostParts;
    std::vector<Loaded> m_loaded;
    QList<PluginReport> m_leftOut;
};

} // namespace Viewer
