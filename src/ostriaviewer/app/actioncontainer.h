// SPDX-License-Identifier: Apache-2.0
// A menu in whose groups commands stand.
#pragma once

#include "imenuservice.h"

#include <QMenu>
#include <QPointer>

#include <vector>

namespace Viewer {

/// The groups of a menu, with lines between those that show something. Thread-bound: GUI thread.
class ActionContainer final : public Plugin::AppCore::IActionContainer
{
public:
    /// \param menu    not owned; commands added after its end go nowhere
    /// \param groups  in the order in which they stand in the menu
    ActionContainer(QMenu* menu, const QList<Plugin::AppCore::CId>& groups);

    QMenu* menu() const { return m_menu; }

    /// A command that is null, or whose action has ended, is left out.
    void addToGroup(Plugin::AppCore::ICommand* command, const Plugin::AppCore::CId& group) override;

private:
    struct Group
    {
        Plugin::AppCore::CId id;
        QAction* end; // the line after the group; the menu owns it
    };

    QAction* endOf(const Plugin::AppCore::CId& group);

    QPointer<QMenu> m_menu;
    std::vector<Group> m_groups;
};

} // namespace Viewer
