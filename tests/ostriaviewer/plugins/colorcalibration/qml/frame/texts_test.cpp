// SPDX-License-Identifier: Apache-2.0
// The frame's own texts and measures.
#include "wizardtexts.h"
#include "wizardwindow.h"

#include <QMetaProperty>

namespace {

class Texts : public WizardWindow
{
protected:
    QString text(const char* name) { return globalValue(name).toString(); }
    double number(const char* name) { return globalValue(name).toDouble(); }
};

TEST_F(Texts, AreSeventySeven)
{
    open();
    const auto* type = m_view->rootObject()->metaObject();
    int texts = 0;
    for (int i = type->propertyOffset(); i < type->propertyCount(); ++i) {
        const QString name = type->property(i).name();
        if (name.size() > 1 && name[0] == 't' && name[1].isUpper()) {
            ++texts;
            EXPECT_FALSE(text(type->property(i).name()).isEmpty()) << name.toStdString();
        }
    }
    EXPECT_EQ(texts, 77);
}

TEST_F(Texts, AreThoseThatTheTranslationsAreFoundBy)
{
    open();
    for (const auto& [name, expected] : wizardTexts)
        EXPECT_EQ(text(name), QString::fromUtf8(expected)) << name;
}

TEST_F(Texts, MeasuresAndColorsAreThoseOfTheDesign)
{
    open();
    const QVector<QPair<const char*, double>> measures{{"iStep1", 1},
                                                       {"iStep2", 2},
                                                       {"iStep3", 3},
                                                       {"iStep4", 4},
                                                       {"mSliderMin", 0},
                                                       {"mSliderMax", 1},
                                                       {"mStepSize", 0.01},
                                                       {"mSliderWidth", 430},
                                                       {"mDefaultPixelSize", 11},
                                                       {"mToolboxHeight", 180},
                                                       {"mButtonHeight", 24},
                                                       {"mButtonWidth", 100},
                                                       {"mIconSize", 16},
                                                       {"margin", 10},
                                                       {"mTouchPointRadius", 8},
                                                       {"mBorderDist", 10},
                                                       {"mMinLineThickness", 1},
                                                       {"mTextFieldCorrection", -2},
                                                       {"mTextInputCursorCorrection", 3},
                                                       {"mGray80PercentHitRateNoValue", 1000},
                                                       {"mGray80PercentHitScale", 200},
                                                       {"mImageReloadInterval", 200},
                                                       {"mMaxWidth", 800},
                                                       {"mTableColumnWidth", 80},
                                                       {"mTableColumnMinWidth", 60}};
    for (const auto& [name, expected] : measures)
        EXPECT_EQ(number(name), expected) << name;
    const QVector<QPair<const char*, const char*>> colors{
        {"cTavrinBlue", "#00649e"},       {"cTavrinLightGrey", "#f0f0f0"},
        {"cTavrinBorderGrey", "#828790"}, {"cTouchPointColor", "#333333"},
        {"cTavrinGrey", "#a3a3a3"},       {"cStepColorDark", "#666666"},
        {"cStepColorLight", "#cccccc"}};
    for (const auto& [name, expected] : colors)
        EXPECT_EQ(globalValue(name).value<QColor>().name(), expected) << name;
    EXPECT_EQ(m_view->rootObject()->property("color").value<QColor>(), QColor("#f0f0f0"));
}

TEST_F(Texts, ContinuousShotAndSingleShotsExcludeEachOther)
{
    open();
    setGlobalValue("autoRefreshChecked", false);
    EXPECT_TRUE(m_model.m_singleShotEnabled);
    setGlobalValue("autoRefreshChecked", true);
    EXPECT_FALSE(m_model.m_singleShotEnabled);
}

} // namespace
