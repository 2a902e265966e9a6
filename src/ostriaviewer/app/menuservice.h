// SPDX-License-Identifier: Apache-2.0
// The menus of the viewer, for its plugins.
#pragma once

#include "actioncontainer.h"
#include "imenuservice.h"

#include <QHash>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace Viewer {

/// Thread-bound: GUI thread.
class MenuService final : public Plugin::AppCore::IMenuService
{
    Q_OBJECT

public:
    MenuService();
    ~MenuService() override;

    Plugin::AppCore::IActionContainer* actionContainer(const Plugin::AppCore::CId& id) override;
    Plugin::AppCore::ICommand*
    registerAction(QAction* action, const Plugin::AppCore::CId& id,
                   const QList<Plugin::AppCore::CContext>& contexts) override;

    /// Makes a menu known under an id.
    /// \param menu    not owned
    /// \param groups  in their order
    void addContainer(const Plugin::AppCore::CId& id, QMenu* menu,
                      const QList<Plugin::AppCore::CId>& groups);

    /// The part of the window in which the shortcuts of a context's commands work. To be set before
    /// commands are registered.
    /// \param widget  not owned
    void addContext(const Plugin::AppCore::CId& context, QWidget* widget);

private:
    class Command;

    QHash<QString, std::shared_ptr<ActionContainer>> m_containers;
    QHash<QString, std::shared_ptr<Command>> m_commands;
    QHash<QString, QPointer<QWidget>> m_contexts;
};

} // namespace Viewer
