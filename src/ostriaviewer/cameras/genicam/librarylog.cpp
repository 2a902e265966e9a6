// SPDX-License-Identifier: Apache-2.0
// What the GenICam library has to complain of goes into the host's log.
#include "librarylog_p.h"

#include "logging.h"

#include <glib.h>

#include <QSet>

#include <mutex>

namespace Cameras::GenICam {
namespace {

thread_local const LibraryScope* currentScope = nullptr;

/// A feature that is shown is read again and again.
bool isNew(const QString& text)
{
    constexpr int enough = 1000;
    static std::mutex mutex;
    static QSet<QString> known;
    const std::lock_guard lock(mutex);
    if (known.contains(text) || known.size() >= enough)
        return false;
    known.insert(text);
    return true;
}

QString describe(const char* complaint)
{
    const QString reason = QString::fromUtf8(complaint).trimmed();
    if (!currentScope)
        return QStringLiteral("The camera library reports: %1.").arg(reason);
    const QString camera = currentScope->camera();
    if (currentScope->feature().isEmpty())
        return QStringLiteral("The description of the camera \"%1\" is faulty: %2.")
            .arg(camera, reason);
    return QStringLiteral("The description of the camera \"%1\" is faulty at the feature \"%2\": "
                          "%3.")
        .arg(camera, currentScope->feature(), reason);
}

void onComplaint(const char* /*domain*/, GLogLevelFlags level, const char* message, void*)
{
    static const auto category = Core::Logging::getCatId(QStringLiteral("Cameras"));
    const QString text = describe(message);
    if (!isNew(text))
        return;
    const bool isGrave = (level & G_LOG_LEVEL_CRITICAL) != 0;
    Core::Logging::createLogEntry(isGrave ? Core::Logging::Warning : Core::Logging::Information,
                                  category, text);
}

} // namespace

void logLibraryComplaints()
{
    static const bool isDone = [] {
        constexpr int levels = G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING | G_LOG_LEVEL_MESSAGE;
        const char* const ofAravis = nullptr; // it names no domain of its own
        for (const char* domain : {ofAravis, "XML", "GLib", "GLib-GObject", "GLib-GIO"})
            g_log_set_handler(domain, static_cast<GLogLevelFlags>(levels), onComplaint, nullptr);
        return true;
    }();
    Q_UNUSED(isDone)
}

LibraryScope::LibraryScope(const QString& camera, const QString& feature)
    : m_camera(camera)
    , m_feature(feature)
    , m_outer(currentScope)
{
    currentScope = this;
}

LibraryScope::~LibraryScope()
{
    currentScope = m_outer;
}

} // namespace Cameras::GenICam
