// SPDX-License-Identifier: Apache-2.0
// Tests of what the lines that a camera has refused have left different.
#include "refusedlines.h"

#include "fakeparametercollection.h"

#include <gtest/gtest.h>

using ColorCalibration::unmetLines;

namespace {

const QString nodeMap = QStringLiteral("@CameraDevice");

class RefusedLines : public testing::Test
{
protected:
    RefusedLines()
    {
        m_camera.addFloat("Gamma", 0.25);
        m_camera.addInteger("Width", 480);
        m_camera.addBoolean("GammaEnable", true);
        m_camera.addEnumeration("PixelFormat", {"RGB8", "Mono8"});
        m_camera.saveFeatures(m_wanted, nodeMap);
    }

    QStringList unmet(const QStringList& refused)
    {
        return unmetLines(refused, m_wanted, m_camera, nodeMap);
    }

    void change(const QString& name, const QVariant& value)
    {
        m_camera.features().change(name, [&](FakeFeature& one) { one.value = value; });
    }

    /// From then on the camera says that it cannot be written, and leaves it out of what it saves.
    void lock(const QString& name)
    {
        m_camera.features().change(name, [](FakeFeature& one) { one.writable = false; });
    }

    FakeParameterCollection m_camera{QVersionNumber(2, 0, 0)};
    QString m_wanted;
};

/// A camera whose settings stand behind selectors, at the moment of this text.
class TextCollection : public FakeParameterCollection
{
public:
    explicit TextCollection(const QString& text)
        : FakeParameterCollection({2, 0, 0})
        , m_text(text)
    {}

    void saveFeatures(QString& out, const QString& /*nodeMap*/) override { out = m_text; }

private:
    QString m_text;
};

TEST_F(RefusedLines, AreMetWhereTheCameraHasTheValue)
{
    const QStringList refused{"Line 1: Gamma: refused.", "Line 2: Width: refused."};
    EXPECT_EQ(unmet(refused), QStringList());
    change("Width", 240);
    EXPECT_EQ(unmet(refused), QStringList{"Line 2: Width: refused."});
    change("Gamma", 0.5);
    EXPECT_EQ(unmet(refused), refused);
}

TEST_F(RefusedLines, AreUnderstoodInEachLanguage)
{
    const QStringList refused{u8"1行目：Gammaを変更できません。",
                              u8"1번째 줄: Gamma을(를) 변경할 수 없습니다.",
                              u8"第1行：Gamma无法更改。"};
    EXPECT_EQ(unmet(refused), QStringList());
    change("Gamma", 0.5);
    EXPECT_EQ(unmet(refused), refused);
}

TEST_F(RefusedLines, OfOtherFeaturesAreNotAskedFor)
{
    change("Width", 240);
    EXPECT_EQ(unmet({"Line 1: Gamma: refused."}), QStringList());
}

TEST_F(RefusedLines, AreUnmetWhereTheyNameNothingThatIsKnown)
{
    for (const char* line :
         {"And 17 more lines.", "Line 3: the camera has no feature \"Sharpness\".",
          "GammaCurve: refused.", ""})
        EXPECT_EQ(unmet({line}), QStringList{line});
}

TEST_F(RefusedLines, AreUnmetWhereOneOfTheNamedFeaturesDiffers)
{
    const QStringList refused{"Line 2: Gamma: skipped, as GammaEnable could not be set."};
    EXPECT_EQ(unmet(refused), QStringList());
    change("GammaEnable", false);
    EXPECT_EQ(unmet(refused), refused);
}

TEST_F(RefusedLines, OfLockedFeaturesAreComparedWithWhatTheyHold)
{
    struct Case
    {
        const char* name;
        QVariant other;
    };
    for (const Case& one : {Case{"Gamma", 0.5}, Case{"Width", 240}, Case{"GammaEnable", false},
                            Case{"PixelFormat", "Mono8"}}) {
        lock(one.name);
        const QStringList refused{QString("Line 1: %1: it is locked.").arg(one.name)};
        EXPECT_EQ(unmet(refused), QStringList()) << one.name;
        change(one.name, one.other);
        EXPECT_EQ(unmet(refused), refused) << one.name;
    }
}

TEST_F(RefusedLines, OfFeaturesThatAreGoneOrCannotBeReadAreUnmet)
{
    const QStringList refused{"Line 1: Gamma: refused."};
    m_camera.features().change("Gamma", [](FakeFeature& one) { one.readable = false; });
    EXPECT_EQ(unmet(refused), refused);
    m_camera.features().remove("Gamma");
    EXPECT_EQ(unmet(refused), refused);
}

TEST_F(RefusedLines, AreAllUnmetWhereTheCameraDoesNotAnswer)
{
    const QStringList refused{"Line 1: Gamma: refused."};
    m_camera.features().beforeCall = [](const QString&) {
        throw GenICam::RuntimeException("no answer");
    };
    EXPECT_EQ(unmet(refused), refused);
}

TEST(RefusedLinesBehindSelectors, AreComparedAtEachPosition)
{
    const QString wanted = "# Feature stream\nLUTIndex\t0\nLUTValue\t5\nLUTIndex\t1\nLUTValue\t9\n"
                           "LUTIndex\t0\n";
    const QStringList refused{"Line 3: LUTValue: refused."};
    const auto unmetAt = [&](const QString& present) {
        TextCollection camera(present);
        return unmetLines(refused, wanted, camera, nodeMap);
    };
    EXPECT_EQ(unmetAt(wanted), QStringList());
    EXPECT_EQ(unmetAt(QString(wanted).replace("\t5", "\t6")), refused);
    EXPECT_EQ(unmetAt(QString(wanted).replace("\t9", "\t5")), refused);
    EXPECT_EQ(unmetAt("LUTIndex\t0\nLUTIndex\t1\nLUTValue\t9\nLUTIndex\t0\n"), refused)
        << "locked at one position";
    EXPECT_EQ(unmetAt("LUTIndex\t0\nLUTIndex\t1\nLUTIndex\t0\n"), refused) << "locked at all";
}

TEST(RefusedLinesBehindSelectors, AreUnmetWhereLockedAtAllPositions)
{
    TextCollection camera("");
    camera.addInteger("LUTValue", 5);
    EXPECT_EQ(unmetLines({"LUTValue"}, "LUTIndex\t0\nLUTValue\t5\nLUTIndex\t1\nLUTValue\t5\n",
                         camera, nodeMap),
              QStringList{"LUTValue"})
        << "the value at the present position says nothing of the others";
}

TEST(RefusedLinesBehindSelectors, AreUnmetWhereTheSelectorStandsElsewhere)
{
    const QString wanted = "GainSelector\tRed\nGain\t1\nGainSelector\tAll\nGain\t2\n"
                           "GainSelector\tRed\n";
    TextCollection camera(wanted.left(wanted.size() - 4) + "All\n");
    EXPECT_EQ(unmetLines({"GainSelector", "Gain"}, wanted, camera, nodeMap),
              QStringList{"GainSelector"});
}

} // namespace
