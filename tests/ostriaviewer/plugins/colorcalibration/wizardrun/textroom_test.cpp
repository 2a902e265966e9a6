// SPDX-License-Identifier: Apache-2.0
// What the tests of languages rest on finds each way in which a text can be spoilt.
#include "textroom.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include <memory>

namespace {

/// The problems of these items in a window of 200 x 100.
QStringList problemsOf(const QByteArray& items)
{
    QQmlEngine engine;
    QQmlComponent component(&engine);
    component.setData("import QtQuick 2.6\nimport QtQuick.Controls 1.4\n"
                      "import QtQuick.Controls.Styles 1.4\n"
                      "Item { width: 200; height: 100\n" +
                          items + "}",
                      {});
    QQuickWindow window;
    const std::unique_ptr<QObject> made(component.create());
    auto* scene = qobject_cast<QQuickItem*>(made.get());
    if (!scene) {
        ADD_FAILURE() << component.errorString().toStdString();
        return {};
    }
    scene->setParentItem(window.contentItem());
    return TextRoom::problems(scene);
}

void expectOne(const QByteArray& items, const char* words)
{
    const QStringList problems = problemsOf(items);
    ASSERT_EQ(problems.size(), 1) << problems.join("\n").toStdString();
    EXPECT_TRUE(problems.first().contains(words)) << problems.first().toStdString();
}

TEST(TextRoom, FindsNothingWhereAllHasRoom)
{
    EXPECT_EQ(problemsOf("Text { text: 'one' }\n"
                         "Text { y: 20; text: 'two'; width: 100; elide: Text.ElideRight }\n"
                         "Text { y: 40; width: 40; text: 'three four five'; wrapMode: Text.Wrap }\n"
                         "Button { x: 100; width: 100; text: 'six' }"),
              QStringList());
}

TEST(TextRoom, FindsAnElidedText)
{
    expectOne("Text { width: 30; elide: Text.ElideRight; text: 'much too long' }", "elided");
}

TEST(TextRoom, FindsATextThatIsWiderOrHigherThanItsRoom)
{
    expectOne("Text { width: 30; text: 'much too long' }", "larger than its room");
    expectOne("Text { width: 60; height: 20; wrapMode: Text.Wrap; text: 'lines and more lines' }",
              "larger than its room");
}

TEST(TextRoom, FindsATextThatRunsOutOfTheWindow)
{
    expectOne("Text { x: 180; text: 'much too long' }", "window");
    expectOne("Text { y: 95; text: 'low' }", "window");
}

TEST(TextRoom, FindsATextThatItsFrameCutsOff)
{
    expectOne("Item { width: 30; height: 30; clip: true; Text { text: 'much too long' } }",
              "what it labels");
    expectOne("Button { width: 30; style: ButtonStyle { label: Text { text: 'much too long' } } }",
              "larger than its room");
    expectOne("ComboBox { width: 60; model: ['much too long for it'] }", "wider than its box");
}

TEST(TextRoom, FindsATextOverAnotherOrOverAControl)
{
    expectOne("Text { text: 'one' }\nText { x: 5; text: 'two' }", "over each other");
    expectOne("Text { y: 5; text: 'one' }\nButton { x: 5; width: 90; text: '' }",
              "over each other");
}

TEST(TextRoom, LeavesOutWhatIsHidden)
{
    EXPECT_EQ(problemsOf("Text { visible: false; width: 30; text: 'much too long' }\n"
                         "Text { opacity: 0; x: 190; text: 'much too long' }"),
              QStringList());
}

} // namespace
