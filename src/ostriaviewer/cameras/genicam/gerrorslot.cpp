// SPDX-License-Identifier: Apache-2.0
// Receives the error of a call into Aravis.
#include "gerrorslot_p.h"

#include <arv.h>

namespace Cameras::GenICam {

GErrorSlot::~GErrorSlot()
{
    g_clear_error(&m_error);
}

bool GErrorSlot::meansNotDefined() const
{
    return g_error_matches(m_error, ARV_GC_ERROR, ARV_GC_ERROR_PROPERTY_NOT_DEFINED) != FALSE;
}

bool GErrorSlot::isTimeout() const
{
    return g_error_matches(m_error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_TIMEOUT) != FALSE;
}

// The library has no code of its own for it.
bool GErrorSlot::isAccessDenied() const
{
    return m_error && m_error->domain == ARV_DEVICE_ERROR &&
           QString::fromUtf8(m_error->message).contains(QLatin1String("access-denied"));
}

bool GErrorSlot::isAboutDescription() const
{
    return g_error_matches(m_error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_GENICAM_NOT_FOUND) != FALSE;
}

QString GErrorSlot::reason() const
{
    QString text = m_error ? QString::fromUtf8(m_error->message) : QString();
    while (text.startsWith(QLatin1Char('['))) {
        const int end = text.indexOf(QLatin1String("] "));
        if (end < 0)
            break;
        text.remove(0, end + 2);
    }
    return text;
}

} // namespace Cameras::GenICam
