// SPDX-License-Identifier: Apache-2.0
// What a plugin file says of itself, read without loading it.
#pragma once

#include <QList>
#include <QString>
#include <QVersionNumber>

namespace Viewer {

/// Something that must be there for a plugin to work.
struct PluginDependency
{
    QString name;
    QVersionNumber version;
};

/// The record of a plugin file. A plain value; reentrant.
struct PluginMetaData
{
    QString file;
    QString name;
    QVersionNumber version;
    QVersionNumber compatVersion; ///< the oldest version that this one can stand in for
    bool isRequired = false;      ///< whether the viewer is of no use without it
    QString description;
    QList<PluginDependency> dependencies;

    /// Whether it does for who asks for this version of it.
    bool provides(const QVersionNumber& wanted) const
    {
        return compatVersion <= wanted && wanted <= version;
    }
};

/// The interface that a plugin of this viewer names.
QString pluginInterfaceId();

/// Reads a plugin file's record; no code of the file runs.
/// \param error  receives why the file is no plugin of this viewer, for people; empty if it is one
PluginMetaData readPluginMetaData(const QString& file, QString& error);

} // namespace Viewer
