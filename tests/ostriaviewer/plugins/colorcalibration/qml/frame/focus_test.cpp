// SPDX-License-Identifier: Apache-2.0
// Whoever works without a mouse comes to whatever a mouse can use, and sees where the keys are.
#include "wizardwindow.h"

#include <QImage>

#include <algorithm>
#include <cstdlib>

namespace {

/// Every control that a page can have is there, and enabled.
class Focus : public WizardWindow, public testing::WithParamInterface<int>
{
protected:
    void openPage()
    {
        m_model.m_exhibition = true;
        m_model.m_userSets = R"({"UserSets":[{"User Set 1":"UserSet1"}]})";
        m_model.m_results = R"({"Colors":{"Patch01":{"Current":"#000001"}}})";
        openAt(GetParam());
        setGlobalValue("autoRefreshChecked", false);
        if (GetParam() == 4)
            item("userSets")->setProperty("currentIndex", 1);
    }

    /// What gets the focus by Tab, one after the other, until it comes round.
    QVector<QQuickItem*> round()
    {
        QVector<QQuickItem*> items;
        for (;;) {
            press(Qt::Key_Tab);
            auto* focused = m_view->activeFocusItem();
            if (items.contains(focused))
                return items;
            items << focused;
        }
    }

    QImage picture()
    {
        // The cursor of a text blinks, and may be away.
        if (auto* focused = m_view->activeFocusItem())
            focused->setProperty("cursorVisible", false);
        return m_view->grabWindow();
    }

    static std::string nameOf(const QQuickItem* item)
    {
        return item->objectName().toStdString() + " (" + item->metaObject()->className() + ")";
    }
};

void collect(QQuickItem* item, QVector<QQuickItem*>& areas)
{
    if (!item->isVisible() || !item->isEnabled())
        return;
    if (item->inherits("QQuickMouseArea") && item->acceptedMouseButtons() != Qt::NoButton)
        areas << item;
    for (auto* child : item->childItems())
        collect(child, areas);
}

/// A table hands the keys on to a part of itself.
const QQuickItem* controlOf(const QQuickItem* focused)
{
    const QQuickItem* control = focused;
    for (const auto* item = focused; item; item = item->parentItem())
        if (item->activeFocusOnTab())
            control = item;
    return control;
}

bool belongTogether(const QQuickItem* area, const QQuickItem* focused)
{
    const auto* control = controlOf(focused);
    return area == control || area->isAncestorOf(control) || control->isAncestorOf(area);
}

TEST_P(Focus, ComesToWhateverTheMouseCanUse)
{
    openPage();
    const auto reached = round();
    QVector<QQuickItem*> areas;
    collect(m_view->rootObject(), areas);
    EXPECT_GE(areas.size(), 7) << "three buttons below, and four controls of any page";
    for (const auto* area : areas) {
        const bool isReached = std::any_of(reached.begin(), reached.end(), [&](auto* control) {
            return belongTogether(area, control);
        });
        EXPECT_TRUE(isReached) << nameOf(area) << " in " << nameOf(area->parentItem());
    }
}

/// The pixels around an item that are clearly another color.
int changedPixels(const QQuickItem* item, const QImage& before, const QImage& after)
{
    constexpr int clearly = 120;
    constexpr int frame = 3;
    const QRect area = item->mapRectToScene({QPointF(), item->size()}).toAlignedRect() &
                       before.rect().adjusted(frame, frame, -frame, -frame);
    int changed = 0;
    for (int y = area.top() - frame; y <= area.bottom() + frame; ++y) {
        for (int x = area.left() - frame; x <= area.right() + frame; ++x) {
            const QColor one = before.pixelColor(x, y);
            const QColor other = after.pixelColor(x, y);
            if (std::abs(one.red() - other.red()) + std::abs(one.green() - other.green()) +
                    std::abs(one.blue() - other.blue()) >
                clearly)
                ++changed;
        }
    }
    return changed;
}

TEST_P(Focus, ShowsWhereItIs)
{
    openPage();
    // A line along one side of the smallest of them.
    constexpr int enough = 16;
    for (int left = round().size(); left > 0; --left) {
        const QImage before = picture();
        press(Qt::Key_Tab);
        const auto* focused = m_view->activeFocusItem();
        EXPECT_GE(changedPixels(focused, before, picture()), enough) << nameOf(focused);
    }
}

INSTANTIATE_TEST_SUITE_P(Wizard, Focus, testing::Values(1, 2, 3, 4));

} // namespace
