// SPDX-License-Identifier: Apache-2.0
// The menus of the viewer, for its plugins.
#include "menuservice.h"

namespace Viewer {

using Plugin::AppCore::CContext;
using Plugin::AppCore::CId;

class MenuService::Command final : public Plugin::AppCore::ICommand
{
public:
    Command(const CId& id, QAction* action)
        : m_id(id)
        , m_action(action)
    {}

    CId id() const override { return m_id; }
    QAction* action() const override { return m_action; }

private:
    const CId m_id;
    const QPointer<QAction> m_action;
};

MenuService::MenuService() = default;

MenuService::~MenuService() = default;

Plugin::AppCore::IActionContainer* MenuService::actionContainer(const CId& id)
{
    return m_containers.value(id.name()).get();
}

Plugin::AppCore::ICommand* MenuService::registerAction(QAction* action, const CId& id,
                                                       const QList<CContext>& contexts)
{
    const auto known = m_commands.constFind(id.name());
    if (known != m_commands.constEnd())
        return known->get();
    if (action) {
        connect(action, &QObject::destroyed, this, [this, id] { m_commands.remove(id.name()); });
        for (const CContext& context : contexts)
            if (QWidget* widget = m_contexts.value(context.id().name()))
                widget->addAction(action);
    }
    const auto command = std::make_shared<Command>(id, action);
    m_commands.insert(id.name(), command);
    return command.get();
}

void MenuService::addContainer(const CId& id, QMenu* menu, const QList<CId>& groups)
{
    m_containers.insert(id.name(), std::make_shared<ActionContainer>(menu, groups));
}

void MenuService::addContext(const CId& context, QWidget* widget)
{
    m_contexts.insert(context.name(), widget);
}

} // namespace Viewer
