// SPDX-License-Identifier: Apache-2.0
// What the log says of a failure.
#include "failurelog.h"

#include <QMutex>
#include <QMutexLocker>
#include <QRegularExpression>

namespace ColorCalibrate {
namespace {

/// Without the function that tells it, which is for developers.
QString withoutFunction(QString text)
{
    static const QRegularExpression function(QStringLiteral("^\\w+::\\w+: ?"));
    return text.remove(function);
}

} // namespace

struct FailureLog::Kept
{
    QMutex mutex;
    QStringList failures;
    Core::Logging::LogSink before;
};

FailureLog::FailureLog()
    : m_kept(std::make_shared<Kept>())
{
    const auto keep = [kept = m_kept](Core::Logging::ELogLevel level, const QString& category,
                                      const QString& text) {
        if (level < Core::Logging::Warning)
            return;
        const QMutexLocker lock(&kept->mutex);
        if (category != QLatin1String("Cameras"))
            kept->failures.append(withoutFunction(text));
        else if (kept->before)
            kept->before(level, category, text);
    };
    const QMutexLocker lock(&m_kept->mutex);
    m_previous = Core::Logging::installLogSink(keep);
    m_kept->before = m_previous;
}

FailureLog::~FailureLog()
{
    Core::Logging::installLogSink(m_previous);
}

void FailureLog::clear()
{
    const QMutexLocker lock(&m_kept->mutex);
    m_kept->failures.clear();
}

QStringList FailureLog::failures() const
{
    const QMutexLocker lock(&m_kept->mutex);
    return m_kept->failures;
}

QString FailureLog::firstFailure() const
{
    const QMutexLocker lock(&m_kept->mutex);
    return m_kept->failures.value(0);
}

QString FailureLog::lastFailure() const
{
    const QMutexLocker lock(&m_kept->mutex);
    return m_kept->failures.value(m_kept->failures.size() - 1);
}

} // namespace ColorCalibrate
