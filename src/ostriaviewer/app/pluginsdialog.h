// SPDX-License-Identifier: Apache-2.0
// Shows which plugins run, and why others do not.
#pragma once

#include "pluginmanager.h"

#include <QDialog>

namespace Viewer {

/// Thread-bound: GUI thread.
class PluginsDialog final : public QDialog
{
    Q_OBJECT

public:
    explicit PluginsDialog(const QList<PluginReport>& plugins, QWidget* parent = nullptr);
};

} // namespace Viewer
