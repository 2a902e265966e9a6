// SPDX-License-Identifier: Apache-2.0
// What the mouse brings up over the controls of the pages of results.
#include "resultspages.h"

#include <ostream>

namespace {

struct ToolTip
{
    int step;
    const char* item;
    const char* text;
};

void PrintTo(const ToolTip& toolTip, std::ostream* out)
{
    *out << toolTip.item << " of step " << toolTip.step;
}

class ToolTips : public ResultsPages, public testing::WithParamInterface<ToolTip>
{
protected:
    ToolTips()
    {
        m_model.m_exhibition = true;
        m_model.m_userSets = R"({"UserSets":[{"User Set 1":"UserSet1"}]})";
    }

    void openWithAllEnabled()
    {
        open(GetParam().step);
        m_view->rootObject()->setProperty("autoRefreshChecked", false);
        if (GetParam().step == 4)
            item("userSets")->setProperty("currentIndex", 1);
    }

    bool isShown() { return item("standardToolTip")->isVisible(); }

    void hover()
    {
        auto* control = item(GetParam().item);
        moveMouse(middleOf(control) - QPoint(1, 0));
        moveMouse(middleOf(control));
    }
};

TEST_P(ToolTips, ExplainsWhatIsUnderTheMouse)
{
    openWithAllEnabled();
    EXPECT_FALSE(isShown());
    hover();
    ASSERT_TRUE(isShown());
    EXPECT_EQ(item("standardToolTip")->property("text"), GetParam().text);
    const QRectF window(QPointF(0, 0), QSizeF(m_view->size()));
    EXPECT_TRUE(window.contains(
        item("standardToolTip")->mapRectToScene(item("standardToolTip")->boundingRect())))
        << "cut off";
    moveMouse({5, 5});
    EXPECT_FALSE(isShown());
}

TEST_P(ToolTips, GoesWithItsPage)
{
    openWithAllEnabled();
    hover();
    ASSERT_TRUE(isShown());
    m_model.setActiveStep(7 - GetParam().step);
    EXPECT_FALSE(isShown());
}

INSTANTIATE_TEST_SUITE_P(
    Controls, ToolTips,
    testing::Values(
        ToolTip{3, "reports",
                "Show an overview of the original and new camera settings by parameter."},
        ToolTip{3, "recalibrateButton", "Automatically recalibrate the camera."},
        ToolTip{3, "singleShotButton", "Capture a single image."},
        ToolTip{3, "autoRefreshCheckBox", "Continuously capture five images per second."},
        ToolTip{4, "imageSlider",
                "Use the slider to compare the colors in images before and after calibration."},
        ToolTip{4, "autoRefreshCheckBox", "Continuously capture five images per second."},
        ToolTip{4, "calibrationFile", "Save camera settings as .cst file."},
        ToolTip{4, "summaryFile", "Save camera settings, images, and the calibration report."},
        ToolTip{4, "userSets", "Save camera settings in a user set."},
        ToolTip{4, "saveSettingsAsDefault", "Save settings as default."},
        ToolTip{4, "saveButton", "Execute all selected save options."},
        ToolTip{4, "recalibrateButton", "Automatically recalibrate the camera."},
        ToolTip{4, "singleShotButton", "Capture a single image."}));

} // namespace
