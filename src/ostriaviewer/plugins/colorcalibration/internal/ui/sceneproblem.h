// SPDX-License-Identifier: Apache-2.0
// From errors of the QML engine to a text that says what to do.
#pragma once

#include <QList>
#include <QQmlError>
#include <QString>

namespace ColorCalibration {

/// Whether an error leaves the scene, or a part of it, blank: a module or a file is missing, or the
/// file has faults. Other errors are slips in the behavior of a page. Reentrant.
bool leavesSceneBlank(const QQmlError& error);

/// What is wrong and what to do, as plain text of several lines. Reentrant.
/// \param errors  not empty
QString sceneProblemText(const QList<QQmlError>& errors);

/// The same for what the graphics system says. Reentrant.
QString drawingProblemText(const QString& error);

} // namespace ColorCalibration
