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
    EXPECT_EQ(number("mSliderWidth"), 430);
    EXPECT_EQ(number("mStepSize"), 0.01);
    EXPECT_EQ(number("mToolboxHeight"), 180);
    EXPECT_EQ(number("mTouchPointRadius"), 8);
    EXPECT_EQ(number("mTextFieldCorrection"), -2);
    EXPECT_EQ(number("mGray80PercentHitRateNoValue"), 1000);
    EXPECT_EQ(globalValue("cTavrinBlue").value<QColor>(), QColor("#00649E"));
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
