// SPDX-License-Identifier: Apache-2.0
// What the viewer is started with.
#pragma once

#include "camerasettings.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace Viewer {

struct ViewerArguments
{
    QString scene;                    ///< an image that emulated cameras see; empty: the chart
    QString pluginFolder;             ///< empty: where the viewer's own plugins are
    QString camera;                   ///< shown live from the start; empty: none
    std::optional<Backends> backends; ///< instead of those in the settings
    QStringList all;                  ///< as given, for the plugins
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
