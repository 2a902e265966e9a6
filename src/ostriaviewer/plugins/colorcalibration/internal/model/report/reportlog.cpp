// SPDX-License-Identifier: Apache-2.0
// The log of what could not be saved.
#include "reportlog.h"

#include "logging.h"

namespace ColorCalibration {

void logReportFailure(const QString& text)
{
    static const Core::Logging::CatId category = Core::Logging::getCatId(
        QStringLiteral("ostria.viewer.plugins.colorCalibration.colorCorrectionModel"));
    Core::Logging::createLogEntry(Core::Logging::Warning, category, text);
}

} // namespace ColorCalibration
