// SPDX-License-Identifier: Apache-2.0
// What the log says of a failure.
#include "failurelog.h"

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

FailureLog::FailureLog()
    : m_previous(Core::Logging::installLogSink(
          [this](Core::Logging::ELogLevel level, const QString& /*category*/, const QString& text) {
              if (level < Core::Logging::Warning)
                  return;
              const QMutexLocker lock(&m_mutex);
              m_failures.append(withoutFunction(text));
          }))
{}

FailureLog::~FailureLog()
{
    Core::Logging::installLogSink(m_previous);
}

void FailureLog::clear()
{
    const QMutexLocker lock(&m_mutex);
    m_failures.clear();
}

QStringList FailureLog::failures() const
{
    const QMutexLocker lock(&m_mutex);
    return m_failures;
}

QString FailureLog::lastFailure() const
{
    const QMutexLocker lock(&m_mutex);
    return m_failures.value(m_failures.size() - 1);
}

} // namespace ColorCalibrate
