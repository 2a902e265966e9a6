// SPDX-License-Identifier: Apache-2.0
// The report as one HTML page.
#pragma once

#include <QDateTime>
#include <QJsonObject>
#include <QString>

namespace ColorCalibration {

/// The whole report, with its logos and its style sheet inside, in the user's language. What comes
/// from outside is escaped. A resource that is missing is logged and left out. Reentrant.
/// \param results  the results object; what it lacks stays empty
/// \param time     of the report
QString BuildHtml(const QString& cameraModel, const QJsonObject& results, const QDateTime& time);

} // namespace ColorCalibration
