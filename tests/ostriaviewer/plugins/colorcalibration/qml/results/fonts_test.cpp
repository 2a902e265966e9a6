// SPDX-License-Identifier: Apache-2.0
// Every text of the wizard is written in the size of the design.
#include "resultspages.h"

#include <QFont>
#include <QGuiApplication>
#include <QTest>

namespace {

constexpr int designSize = 11;

class Fonts : public ResultsPages
{
protected:
    Fonts()
    {
        m_model.m_exhibition = true;
        m_model.m_userSets = R"({"UserSets":[{"User Set 1":"UserSet1"}]})";
        m_model.m_results = R"({"Colors":{"Patch01":{"Current":"#000001"}}})";
    }

    /// The texts that are seen; one that the desktop's style writes in its own font fails the test.
    static void collect(QQuickItem* item, QVector<QQuickItem*>& found)
    {
        if (!item->isVisible())
            return;
        const bool isText = item->inherits("QQuickText") || item->inherits("QQuickTextInput");
        const QString text = item->property("text").toString();
        if (isText && !text.isEmpty())
            found << item;
        const QByteArray type = item->metaObject()->className();
        EXPECT_TRUE(!type.startsWith("QQuickStyleItem") || text.isEmpty()) << qPrintable(text);
        for (auto* child : item->childItems())
            collect(child, found);
    }

    static int sizeOf(const QQuickItem* text)
    {
        return text->property("font").value<QFont>().pixelSize();
    }

    QQuickWindow* popup()
    {
        for (auto* window : QGuiApplication::allWindows()) {
            auto* found = qobject_cast<QQuickWindow*>(window);
            if (found && found != m_view.get() && found->isVisible())
                return found;
        }
        return nullptr;
    }
};

class FontsOfAPage : public Fonts, public testing::WithParamInterface<int>
{};

TEST_P(FontsOfAPage, HaveOneSize)
{
    open(GetParam());
    QVector<QQuickItem*> texts;
    collect(m_view->rootObject(), texts);
    EXPECT_GT(texts.size(), 10);
    for (auto* text : texts) {
        // The two names over the image are large.
        const QString name = text->parentItem()->objectName();
        const bool isOverImage = name == "before" || name == "after";
        EXPECT_EQ(sizeOf(text), isOverImage ? 16 : designSize)
            << qPrintable(text->property("text").toString());
    }
}

INSTANTIATE_TEST_SUITE_P(Pages, FontsOfAPage, testing::Values(1, 2, 3, 4));

struct List
{
    int page;
    const char* name;
    QStringList entries;
};

class FontsOfAList : public Fonts, public testing::WithParamInterface<List>
{};

TEST_P(FontsOfAList, HaveThatSizeToo)
{
    open(GetParam().page);
    click(item(GetParam().name));
    ASSERT_TRUE(waitFor([this] { return popup() != nullptr; }));
    QVector<QQuickItem*> texts;
    collect(popup()->contentItem(), texts);
    QStringList entries;
    for (auto* text : texts) {
        entries << text->property("text").toString();
        EXPECT_EQ(sizeOf(text), designSize) << qPrintable(entries.constLast());
    }
    EXPECT_EQ(entries, GetParam().entries);
    QTest::keyPress(popup(), Qt::Key_Escape);
}

INSTANTIATE_TEST_SUITE_P(Pages, FontsOfAList,
                         testing::Values(List{3,
                                              "reports",
                                              {"Colors", "Black Level", "White Balance",
                                               "Color Transformation", "Color Adjustment Hue",
                                               "Color Adjustment Saturation", "Gamma",
                                               "Hue, Saturation, Brightness, Contrast", "LUT"}},
                                         List{4, "userSets", {"None", "User Set 1"}}),
                         [](const auto& list) { return std::string(list.param.name); });

} // namespace
