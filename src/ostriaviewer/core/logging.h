// SPDX-License-Identifier: Apache-2.0
// The log of host and plugins: entries with a level and a category.
#pragma once

#include "coreexport.h"

#include <QMetaType>
#include <QString>

#include <functional>

namespace Core::Logging {

/// How grave an entry is.
enum ELogLevel { Debug = 0, Information = 1, Warning = 2, Error = 3, Fatal = 4 };

/// A category's number, valid as long as the process runs.
using CatId = int;

/// The number of the category with this name; the same name gives the same number. Thread-safe.
OSTRIAVIEWER_CORE_EXPORT CatId getCatId(const QString& name);

/// Writes one entry to the sink, under the category's name, or under none for a number that
/// getCatId never gave. Thread-safe. Without a sink, entries go to Qt's logging under the
/// category's name, where levels 0 to 3 are debug, info, warning and critical, and level 4 is
/// critical too, as it must not end the process.
OSTRIAVIEWER_CORE_EXPORT void createLogEntry(ELogLevel level, CatId category, const QString& text);

/// Receives every entry, on the thread that writes it. Must be thread-safe and must not log.
using LogSink = std::function<void(ELogLevel level, const QString& category, const QString& text)>;

/// Installs a sink, or with an empty one removes it. Thread-safe.
/// \return the sink installed before, so that it can be put back
OSTRIAVIEWER_CORE_EXPORT LogSink installLogSink(LogSink sink);

} // namespace Core::Logging

Q_DECLARE_METATYPE(Core::Logging::ELogLevel)
