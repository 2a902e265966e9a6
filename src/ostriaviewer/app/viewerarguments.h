// SPDX-License-Identifier: Apache-2.0
// What the viewer is started with.
#pragma once

#include <QString>
#include <QStringList>

namespace Viewer {

struct ViewerArguments
{
    QString scene;        ///< an image that emulated cameras see; empty: the chart
    QString pluginFolder; ///< empty: where the viewer's own plugins are
    QString camera;       ///< shown live from the start; empty: none
    QStringList all;      ///< as given, for the plugins
};

/// What there is to do with what the user typed.
struct ParsedArguments
{
    enum Action { Run, ShowText, Fail };

    Action action = Run;
    QString text; ///< help or version, or what was wrong
    ViewerArguments arguments;
};

/// \param arguments  the program's name first
ParsedArguments parseArguments(const QStringList& arguments);

} // namespace Viewer
