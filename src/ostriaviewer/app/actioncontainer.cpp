// SPDX-License-Identifier: Apache-2.0
// A menu in whose groups commands stand.
#include "actioncontainer.h"

#include <algorithm>

namespace Viewer {

using Plugin::AppCore::CId;
using Plugin::AppCore::ICommand;

ActionContainer::ActionContainer(QMenu* menu, const QList<CId>& groups)
    : m_menu(menu)
{
    for (const CId& group : groups)
        endOf(group);
}

void ActionContainer::addToGroup(ICommand* command, const CId& group)
{
    if (m_menu && command && command->action())
        m_menu->insertAction(endOf(group), command->action());
}

// Lines next to each other, at the top and at the bottom are not drawn by the menu.
QAction* ActionContainer::endOf(const CId& group)
{
    const auto known = std::find_if(m_groups.begin(), m_groups.end(),
                                    [&](const Group& each) { return each.id == group; });
    if (known != m_groups.end())
        return known->end;
    m_groups.push_back({group, m_menu->addSeparator()});
    return m_groups.back().end;
}

} // namespace Viewer
