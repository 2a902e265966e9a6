// SPDX-License-Identifier: Apache-2.0
// The user sets of an emulated camera, kept in a file.
#pragma once

#include "featurevalues.h"

#include <QJsonObject>
#include <QLockFile>
#include <QString>

#include <memory>

namespace Cameras::Emulation {

/// Named sets of feature values, and which of them the camera comes up with. They are the file's:
/// each change is written to it at once, and what other programs have saved in it is seen. A file
/// that is missing, damaged or of another model harms nothing: what cannot be used in it is left at
/// its factory value, and a file that is none of user sets is set aside before one is written.
/// Reentrant.
class UserSets
{
public:
    /// Reads the file if there is one.
    /// \param file  path; its folder is made when it is needed
    UserSets(std::shared_ptr<const FeatureTable> table, const QString& file);

    /// Lays the values of a set over others; those that sets do not hold stay. "Default" and a set
    /// that was never saved have the factory's.
    void load(const QString& set, FeatureValues& values);

    /// Puts all values that can be saved into a set.
    /// \throws ::GenICam::RuntimeException  the file cannot be written; nothing has changed then
    void save(const QString& set, const FeatureValues& values);

    /// The set that the camera comes up with.
    QString startUpSet() const { return m_startUpSet; }

    /// \throws ::GenICam::RuntimeException  as save
    void setStartUpSet(const QString& set);

private:
    std::unique_ptr<QLockFile> lockFile() const;
    bool read();
    void readToChange();
    void write(const QJsonObject& sets, const QString& startUpSet);

    std::shared_ptr<const FeatureTable> m_table;
    QString m_file;
    QJsonObject m_sets; // by name: feature to a list of its cells, where they are not the factory's
    QString m_startUpSet;
};

} // namespace Cameras::Emulation
