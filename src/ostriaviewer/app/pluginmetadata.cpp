// SPDX-License-Identifier: Apache-2.0
// What a plugin file says of itself, read without loading it.
#include "pluginmetadata.h"

#include "iplugin.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>

namespace Viewer {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::PluginMetaData)
};

// An invalid version if the key is missing or holds no version.
QVersionNumber versionIn(const QJsonObject& object, const char* key)
{
    return QVersionNumber::fromString(object.value(QLatin1String(key)).toString());
}

QString readDependencies(const QJsonObject& record, QList<PluginDependency>& dependencies)
{
    for (const QJsonValue& value : record.value(QLatin1String("Dependencies")).toArray()) {
        const QJsonObject object = value.toObject();
        const PluginDependency dependency{object.value(QLatin1String("Name")).toString(),
                                          versionIn(object, "Version")};
        if (dependency.name.isEmpty() || dependency.version.isNull())
            return Texts::tr(
                "Its list of what it depends on has an entry without name or version.");
        dependencies.append(dependency);
    }
    return {};
}

QString readRecord(const QJsonObject& record, PluginMetaData& data)
{
    data.name = record.value(QLatin1String("Name")).toString();
    data.version = versionIn(record, "Version");
    data.compatVersion = versionIn(record, "CompatVersion");
    data.isRequired = record.value(QLatin1String("Required")).toBool();
    data.description = record.value(QLatin1String("Description")).toString();
    if (data.name.isEmpty() || data.version.isNull())
        return Texts::tr("It has no metadata with name and version; rebuild it with them.");
    if (data.compatVersion.isNull())
        data.compatVersion = data.version;
    return readDependencies(record, data.dependencies);
}

} // namespace

QString pluginInterfaceId()
{
    return QString::fromLatin1(qobject_interface_iid<Core::Plugin::IPlugin*>());
}

PluginMetaData readPluginMetaData(const QString& file, QString& error)
{
    PluginMetaData data;
    data.file = file;
    if (!QFileInfo::exists(file)) {
        error = Texts::tr("The file does not exist any more; install the plugin anew.");
        return data;
    }
    const QJsonObject metaData = QPluginLoader(file).metaData();
    const QString interface = metaData.value(QLatin1String("IID")).toString();
    if (interface.isEmpty())
        error = Texts::tr(
            "It is no plugin, or was built with another version of Qt; remove the file or "
            "install a suitable one.");
    else if (interface != pluginInterfaceId())
        error =
            Texts::tr("It was built against another interface, \"%1\" instead of \"%2\"; install a "
                      "version for this viewer.")
                .arg(interface, pluginInterfaceId());
    else
        error = readRecord(metaData.value(QLatin1String("MetaData")).toObject(), data);
    return data;
}

} // namespace Viewer
