// SPDX-License-Identifier: Apache-2.0
// The measures and looks of the controls that the pages share.
#include "wizardwindow.h"

#include <QQmlProperty>
#include <QTest>

namespace {

class Controls : public WizardWindow
{
protected:
    QQuickItem* within(const char* parent, const char* name)
    {
        auto* found = qobject_cast<QQuickItem*>(find(item(parent), name));
        EXPECT_NE(found, nullptr) << "no " << name << " in " << parent;
        return found;
    }

    /// The first object below this one whose class has a name that begins so; null if none has.
    static QObject* ofClass(const QObject* parent, const char* type)
    {
        for (auto* child : parent->findChildren<QObject*>())
            if (QByteArray(child->metaObject()->className()).startsWith(type))
                return child;
        return nullptr;
    }

    static QRectF placeOf(QQuickItem* item)
    {
        return item->mapRectToScene({0, 0, item->width(), item->height()});
    }
};

TEST_F(Controls, NavigationStandsInTheLowerRightCorner)
{
    openAt(2);
    // Of a window of 800 x 750, with margins of 10.
    EXPECT_EQ(placeOf(item("backButton")), QRectF(470, 716, 100, 24));
    EXPECT_EQ(placeOf(item("nextButton")), QRectF(580, 716, 100, 24));
    EXPECT_EQ(placeOf(item("cancelButton")), QRectF(690, 716, 100, 24));
}

TEST_F(Controls, SingleShotStandsUnderTheButtonOfThePage)
{
    openAt(1);
    const QRectF single = placeOf(item("singleShotButton"));
    EXPECT_EQ(single.size(), QSizeF(210, 24));
    EXPECT_EQ(property("singleShotButton", "iconSource").toUrl(),
              QUrl("qrc:/ColCal/singleshot.png"));
    EXPECT_EQ(placeOf(item("finderButton")), single.translated(0, -34));
}

TEST_F(Controls, CheckMarksFade)
{
    open();
    auto* mark = within("autoRefreshCheckBox", "checkMark");
    EXPECT_EQ(mark->property("source").toUrl(), QUrl("qrc:/ColCal/checked.png"));
    EXPECT_EQ(mark->size(), QSizeF(13, 13));
    EXPECT_EQ(mark->opacity(), 1.0);
    setGlobalValue("autoRefreshChecked", false);
    EXPECT_GT(mark->opacity(), 0.0) << "at once";
    EXPECT_TRUE(waitFor([mark] { return mark->opacity() == 0.0; }));
}

TEST_F(Controls, ACheckMarkOfABoxThatIsOffIsFaint)
{
    open();
    ASSERT_FALSE(item("showGrid")->isEnabled());
    EXPECT_EQ(within("showGrid", "checkMark")->opacity(), 0.5);
}

TEST_F(Controls, TooltipsAreWhiteWithABlackBorderAndAShadow)
{
    openAt(1);
    QTest::mouseMove(m_view.get(), middleOf(item("finderButton")));
    auto* toolTip = item("standardToolTip");
    ASSERT_TRUE(waitFor([toolTip] { return toolTip->isVisible(); }));
    auto* text = within("standardToolTip", "toolTipText");
    EXPECT_EQ(toolTip->size(), QSizeF(text->width() + 10, text->height() + 6));
    auto* frame = text->parentItem();
    EXPECT_EQ(frame->property("color").value<QColor>(), QColor("white"));
    EXPECT_EQ(QQmlProperty(frame, "border.width").read().toInt(), 1);
    EXPECT_EQ(QQmlProperty(frame, "border.color").read().value<QColor>(), QColor("black"));
    const auto* shadow = ofClass(toolTip, "DropShadow_");
    ASSERT_NE(shadow, nullptr);
    EXPECT_EQ(shadow->property("horizontalOffset").toDouble(), 3);
    EXPECT_EQ(shadow->property("verticalOffset").toDouble(), 4);
    EXPECT_EQ(shadow->property("radius").toDouble(), 4);
    EXPECT_EQ(shadow->property("samples").toInt(), 8);
    EXPECT_EQ(shadow->property("color").value<QColor>(), QColor(0, 0, 0, 0x60));
}

TEST_F(Controls, FileFieldsHaveTheirIconAtTheRightEnd)
{
    openAt(1);
    auto* field = item("previousCalibrationField");
    EXPECT_EQ(field->size(), QSizeF(200, 20));
    EXPECT_EQ(field->y(), -2);
    auto* input = within("previousCalibrationField", "textInput");
    EXPECT_EQ(input->y(), 3);
    EXPECT_EQ(input->width(), 200 - 16 - 10);
    auto* icon = within("previousCalibrationField", "openIcon");
    EXPECT_EQ(icon->position(), QPointF(200 - 5 - 16, 2));
    EXPECT_EQ(icon->size(), QSizeF(16, 16));
}

} // namespace
