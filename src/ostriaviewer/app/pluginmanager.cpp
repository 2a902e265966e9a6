// SPDX-License-Identifier: Apache-2.0
// Finds, loads and ends the plugins of the viewer.
#include "pluginmanager.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <algorithm>
#include <utility>

namespace Viewer {

using Core::Plugin::ALocalizedPlugin;
using Core::Plugin::IPlugin;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::PluginManager)
};

// Plugins throw nothing, but the viewer does not end with one that does.
template <typename Call>
QString callPlugin(const char* failure, const Call& call)
{
    try {
        return call() ? QString() : Texts::tr(failure);
    } catch (const std::exception& error) {
        // The failure and its reason, two sentences.
        return Texts::tr("%1 %2").arg(Texts::tr(failure), QString::fromUtf8(error.what()));
    } catch (...) {
        return Texts::tr(failure);
    }
}

void applyLanguage(IPlugin* plugin, const QString& language)
{
    if (auto* localized = dynamic_cast<ALocalizedPlugin*>(plugin))
        localized->setLanguage(language);
}

PluginReport reportOf(const PluginMetaData& data, const QString& error)
{
    PluginReport report;
    report.file = data.file;
    report.name = data.name.isEmpty() ? QFileInfo(data.file).fileName() : data.name;
    report.version = data.version.toString();
    report.description = data.description;
    report.error = error;
    report.isRequired = data.isRequired;
    return report;
}

} // namespace

PluginManager::PluginManager(QSharedPointer<Core::Service::CServiceRegistry> registry,
                             HostParts hostParts)
    : m_registry(std::move(registry))
    , m_hostParts(std::move(hostParts))
{}

PluginManager::~PluginManager()
{
    unload();
}

void PluginManager::loadFolder(const QString& folder, const QString& language,
                               const QStringList& arguments)
{
    std::vector<PluginMetaData> waiting = readFolder(folder);
    leaveOutDuplicates(waiting);
    while (loadNext(waiting, language)) {
    }
    for (const PluginMetaData& data : waiting)
        leaveOut(data, unmetDependency(data));
    finish(QSharedPointer<QStringList>::create(arguments));
}

std::vector<PluginMetaData> PluginManager::readFolder(const QString& folder)
{
    std::vector<PluginMetaData> found;
    // A link that leads nowhere is a plugin that is missed, so it is listed too.
    const QFileInfoList files =
        QDir(folder).entryInfoList(QDir::Files | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& file : files) {
        if (!QLibrary::isLibrary(file.fileName()))
            continue;
        QString error;
        PluginMetaData data = readPluginMetaData(file.absoluteFilePath(), error);
        if (error.isEmpty())
            found.push_back(std::move(data));
        else
            leaveOut(data, error);
    }
    return found;
}

// The newest of each name stays, of two alike the first.
void PluginManager::leaveOutDuplicates(std::vector<PluginMetaData>& found)
{
    std::stable_sort(
        found.begin(), found.end(),
        [](const PluginMetaData& a, const PluginMetaData& b) { return a.version > b.version; });
    std::vector<PluginMetaData> kept;
    for (PluginMetaData& data : found) {
        const auto twin = std::find_if(kept.begin(), kept.end(), [&](const PluginMetaData& other) {
            return other.name == data.name;
        });
        if (twin == kept.end())
            kept.push_back(std::move(data));
        else
            leaveOut(data,
                     Texts::tr("The plugin stands in the folder twice; %1 is used instead. Remove "
                               "one of the two files.")
                         .arg(QFileInfo(twin->file).fileName()));
    }
    found = std::move(kept);
}

QString PluginManager::unmetDependency(const PluginMetaData& data) const
{
    for (const PluginDependency& wanted : data.dependencies) {
        const auto part = m_hostParts.constFind(wanted.name);
        if (part != m_hostParts.constEnd() && wanted.version <= *part)
            continue;
        const bool isMet = std::any_of(m_loaded.begin(), m_loaded.end(), [&](const Loaded& loaded) {
            return loaded.data.name == wanted.name && loaded.data.provides(wanted.version);
        });
        if (!isMet)
            return Texts::
                tr("It needs \"%1\" in version %2, which is not there; install it, or a version "
                   "of this plugin for this viewer.")
                    .arg(wanted.name, wanted.version.toString());
    }
    return {};
}

// Loads the first plugin whose dependencies are met.
bool PluginManager::loadNext(std::vector<PluginMetaData>& waiting, const QString& language)
{
    const auto next =
        std::find_if(waiting.begin(), waiting.end(), [this](const PluginMetaData& data) {
            return unmetDependency(data).isEmpty();
        });
    if (next == waiting.end())
        return false;
    const PluginMetaData data = std::move(*next);
    waiting.erase(next);
    const QString error = load(data, language);
    if (!error.isEmpty())
        leaveOut(data, error);
    return true;
}

// The code stays in memory: Qt keeps pointers to types that a plugin has registered.
QString PluginManager::load(const PluginMetaData& data, const QString& language)
{
    auto loader = std::make_unique<QPluginLoader>(data.file);
    loader->setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    auto* plugin = dynamic_cast<IPlugin*>(loader->instance());
    if (!plugin) {
        const QString reason = loader->isLoaded() ? Texts::tr("Its main class is not what it says.")
                                                  : loader->errorString();
        loader->unload();
        return reason;
    }
    QString error = callPlugin(
        QT_TRANSLATE_NOOP("Viewer::PluginManager",
                          "A service of the viewer that it needs is missing; install a version of "
                          "the plugin for this viewer."),
        [&] {
            applyLanguage(plugin, language);
            return plugin->setServiceRegistry(m_registry);
        });
    if (error.isEmpty())
        error =
            callPlugin(QT_TRANSLATE_NOOP("Viewer::PluginManager", "It could not be initialized."),
                       [&] { return plugin->initialize(); });
    if (error.isEmpty())
        m_loaded.push_back({data, std::move(loader), plugin});
    else
        loader->unload();
    return error;
}

void PluginManager::finish(const QSharedPointer<QStringList>& arguments)
{
    for (auto loaded = m_loaded.begin(); loaded != m_loaded.end();) {
        const QString error = callPlugin(
            QT_TRANSLATE_NOOP("Viewer::PluginManager", "It could not complete its start."),
            [&] { return loaded->plugin->extensionsInitialized(arguments); });
        if (error.isEmpty()) {
            ++loaded;
            continue;
        }
        leaveOut(loaded->data, error);
        loaded->loader->unload();
        loaded = m_loaded.erase(loaded);
    }
}

void PluginManager::leaveOut(const PluginMetaData& data, const QString& error)
{
    m_leftOut.append(reportOf(data, error));
}

QList<PluginReport> PluginManager::reports() const
{
    QList<PluginReport> all;
    for (const Loaded& loaded : m_loaded)
        all.append(reportOf(loaded.data, {}));
    return all + m_leftOut;
}

void PluginManager::setLanguage(const QString& language)
{
    for (const Loaded& loaded : m_loaded)
        applyLanguage(loaded.plugin, language);
}

bool PluginManager::checkClosability(bool force)
{
    return std::all_of(m_loaded.begin(), m_loaded.end(), [force](const Loaded& loaded) {
        return loaded.plugin->checkPluginClosability(force);
    });
}

void PluginManager::unload()
{
    for (auto loaded = m_loaded.rbegin(); loaded != m_loaded.rend(); ++loaded)
        callPlugin("", [&] {
            loaded->plugin->aboutToUninitialize();
            return true;
        });
    while (!m_loaded.empty()) {
        m_loaded.back().loader->unload();
        m_loaded.pop_back();
    }
}

} // namespace Viewer
