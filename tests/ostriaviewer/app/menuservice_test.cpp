// SPDX-License-Identifier: Apache-2.0
// Plugins find menus, groups and contexts.
#include "menuservice.h"

#include <QTest>

#include <gtest/gtest.h>

namespace Viewer {
namespace {

using Plugin::AppCore::CContext;
using Plugin::AppCore::CId;

class MenuServiceTest : public testing::Test
{
protected:
    MenuServiceTest() { m_service.addContainer(CId("menu"), &m_menu, {CId("first"), CId("last")}); }

    Plugin::AppCore::ICommand* command(QAction& action, const char* id)
    {
        return m_service.registerAction(&action, CId(id), {CContext(CId("context"))});
    }

    QList<QAction*> withoutLines() const
    {
        QList<QAction*> actions = m_menu.actions();
        actions.erase(std::remove_if(actions.begin(), actions.end(),
                                     [](QAction* action) { return action->isSeparator(); }),
                      actions.end());
        return actions;
    }

    QMenu m_menu;
    MenuService m_service;
};

TEST_F(MenuServiceTest, KnowsOnlyMenusThatAreThere)
{
    EXPECT_NE(m_service.actionContainer(CId("menu")), nullptr);
    EXPECT_EQ(m_service.actionContainer(CId("Menu")), nullptr);
}

TEST_F(MenuServiceTest, ShowsCommandsByGroupAndNotByTimeOfArrival)
{
    QAction late("late"), early("early"), second("second"), unknown("unknown");
    auto* container = m_service.actionContainer(CId("menu"));
    container->addToGroup(command(unknown, "u"), CId("a group of the plugin's own"));
    container->addToGroup(command(late, "l"), CId("last"));
    container->addToGroup(command(early, "e"), CId("first"));
    container->addToGroup(command(second, "s"), CId("first"));
    EXPECT_EQ(withoutLines(), (QList<QAction*>{&early, &second, &late, &unknown}));
}

TEST_F(MenuServiceTest, GivesTheSameCommandForAnIdThatIsTaken)
{
    QAction first("first"), second("second");
    auto* command = m_service.registerAction(&first, CId("id"), {});
    EXPECT_EQ(m_service.registerAction(&second, CId("id"), {}), command);
    EXPECT_EQ(command->action(), &first);
    EXPECT_EQ(command->id(), CId("id"));
}

TEST_F(MenuServiceTest, ForgetsACommandWhoseActionEnds)
{
    auto* container = m_service.actionContainer(CId("menu"));
    {
        QAction action("gone");
        container->addToGroup(command(action, "id"), CId("first"));
        ASSERT_EQ(withoutLines().size(), 1);
    }
    EXPECT_TRUE(withoutLines().isEmpty());
    QAction next("next");
    EXPECT_EQ(command(next, "id")->action(), &next);
}

TEST_F(MenuServiceTest, LeavesOutCommandsThatAreNull)
{
    m_service.actionContainer(CId("menu"))->addToGroup(nullptr, CId("first"));
    auto* empty = m_service.registerAction(nullptr, CId("id"), {});
    ASSERT_NE(empty, nullptr);
    m_service.actionContainer(CId("menu"))->addToGroup(empty, CId("first"));
    EXPECT_TRUE(withoutLines().isEmpty());
}

TEST_F(MenuServiceTest, LetsShortcutsWorkInTheContextsWindow)
{
    QWidget window;
    m_service.addContext(CId("context"), &window);
    QAction action("action");
    action.setShortcut(QKeySequence(Qt::Key_F9));
    int pressed = 0;
    QObject::connect(&action, &QAction::triggered, [&] { ++pressed; });
    command(action, "id");
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, Qt::Key_F9);
    EXPECT_EQ(pressed, 1);
}

} // namespace
} // namespace Viewer
