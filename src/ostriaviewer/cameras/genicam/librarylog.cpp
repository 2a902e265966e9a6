// SPDX-License-Identifier: Apache-2.0
// What the GenICam library has to complain of goes into the host's log.
#include "librarylog_p.h"

#include "logging.h"
#include "withoutfullstop.h"

#include <glib.h>

#include <QCoreApplication>
#include <QSet>

#include <mutex>

namespace Cameras::GenICam {
namespace {

thread_local const LibraryScope* currentScope = nullptr;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::GenICam::LibraryLog)
};

/// What has been told. A feature that is shown is read again and again.
struct Told
{
    static constexpr int most = 1000;

    std::mutex mutex; ///< guards all below
    QSet<QString> texts;
};

/// Is never destroyed: complaints come on any thread, to the end of the program.
Told& told()
{
    static auto* const all = new Told;
    return *all;
}

/// Notes a text, and how many are noted then; 0 if it is known, or there are too many.
int note(const QString& text)
{
    const std::lock_guard lock(told().mutex);
    QSet<QString>& texts = told().texts;
    if (texts.contains(text) || texts.size() >= Told::most)
        return 0;
    texts.insert(text);
    return texts.size();
}

QString describe(const char* complaint)
{
    const QString reason = Core::withoutFullStop(QString::fromUtf8(complaint).trimmed());
    if (!currentScope)
        return Texts::tr("The camera library reports: %1.").arg(reason);
    const QString camera = currentScope->camera();
    if (currentScope->task() == LibraryTask::Transfer)
        return Texts::tr("The camera library reports of the camera \"%1\": %2.")
            .arg(camera, reason);
    if (currentScope->feature().isEmpty())
        return Texts::tr("The description of the camera \"%1\" is faulty: %2.").arg(camera, reason);
    return Texts::tr("The description of the camera \"%1\" is faulty at the feature \"%2\": %3.")
        .arg(camera, currentScope->feature(), reason);
}

void onComplaint(const char* /*domain*/, GLogLevelFlags level, const char* message, void*)
{
    static const auto category = Core::Logging::getCatId(QStringLiteral("Cameras"));
    const QString text = describe(message);
    const int number = note(text);
    if (number == 0)
        return;
    const bool isGrave = (level & G_LOG_LEVEL_CRITICAL) != 0;
    Core::Logging::createLogEntry(isGrave ? Core::Logging::Warning : Core::Logging::Information,
                                  category, text);
    if (number == Told::most)
        Core::Logging::createLogEntry(
            Core::Logging::Warning, category,
            Texts::tr("The camera library has much to complain of; no more of it is shown."));
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

LibraryScope::LibraryScope(const QString& camera, const QString& feature, LibraryTask task)
    : m_camera(camera)
    , m_feature(feature)
    , m_task(task)
    , m_outer(currentScope)
{
    currentScope = this;
}

LibraryScope::~LibraryScope()
{
    currentScope = m_outer;
}

const LibraryScope* LibraryScope::current()
{
    return currentScope;
}

} // namespace Cameras::GenICam
