// SPDX-License-Identifier: Apache-2.0
// A camera's settings as text: one feature a line, name, tab, value.
#pragma once

#include <QString>
#include <QVersionNumber>

namespace Cameras::GenICam {

class NodeMapPrivate;

/// What the first lines of the text say.
struct FeatureStreamHead
{
    QString modelName;
    QVersionNumber sfncVersion;
};

/// Writes all features that are readable, writable and streamable now, in the order of the category
/// tree, but for texts that would not come back as they are: with line ends, or no UTF-8.
///
/// Features that depend on selectors are written for each position of these, each position behind
/// the selector's own line; the selector's present value comes last. Selectors move meanwhile and
/// are put back. Needs the node map's mutex.
/// \throws ::GenICam::RuntimeException  the camera cannot be read
QString writeFeatureStream(NodeMapPrivate& map, const FeatureStreamHead& head);

/// Applies a text line by line, skipping what cannot be applied.
///
/// Lines that the camera refuses may become possible through later lines (limits that depend on
/// each other, locks), so the whole is repeated as long as that helps, but not if more than a
/// thousand were refused. Lines behind a selector that could not be set are skipped too: they would
/// go to another position. So are features that writeFeatureStream never writes, and texts that it
/// leaves out at present, as no backup would bring them back. Needs the node map's mutex.
/// \return  "Line 7: reason" for each line that was skipped in the end; of many, the first thousand
///          and how many more there are
/// \throws ::GenICam::RuntimeException  connection lost
QString readFeatureStream(NodeMapPrivate& map, const QString& text);

} // namespace Cameras::GenICam
