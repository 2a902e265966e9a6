// SPDX-License-Identifier: Apache-2.0
// Any bytes as a results file: a report that is whole, or a CommandError.
#include "command.h"
#include "reporthtml.h"
#include "resultsfile.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

// Qt's JSON parser leaks an object whose key comes twice.
extern "C" const char* __asan_default_options()
{
    return "detect_leaks=0";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    try {
        const auto saved = ColorCalibrate::parseResults(bytes, QStringLiteral("fuzz"));
        const QString html = ColorCalibration::BuildHtml(saved.model, saved.results,
                                                         QDateTime::fromSecsSinceEpoch(0, Qt::UTC));
        if (!html.startsWith(QStringLiteral("<!DOCTYPE html>")) ||
            !html.endsWith(QStringLiteral("</body></html>")) ||
            html.contains(QStringLiteral("<script"), Qt::CaseInsensitive))
            std::abort();
    } catch (const ColorCalibrate::CommandError&) {
        // Refused in words.
    }
    return 0;
}
