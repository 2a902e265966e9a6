// SPDX-License-Identifier: Apache-2.0
// Tests of writes by name, guarded and not.
#include "parameterwrites.h"

#include "fakeparametercollection.h"

#include <gtest/gtest.h>

using ColorCalibration::ParameterWrites;

namespace {

class ParameterWritesTest : public testing::Test
{
protected:
    ParameterWritesTest()
    {
        m_parameters->addEnumeration("Mode", {"Off", "On"});
        m_parameters->addFloat("Level", 1.0, 0.0, 10.0);
        m_parameters->addBoolean("Switch", false);
        m_parameters->addInteger("Count", 1);
    }

    QStringList writes() const { return m_parameters->features().writes(); }

    QSharedPointer<FakeParameterCollection> m_parameters =
        QSharedPointer<FakeParameterCollection>::create(QVersionNumber(2, 0, 0));
    ParameterWrites m_write{m_parameters};
};

TEST_F(ParameterWritesTest, PlainFormsWriteAndVerify)
{
    m_write.entry(QLatin1String("Mode"), QLatin1String("On"));
    m_write.number(QLatin1String("Level"), 2.5);
    m_write.verified(QLatin1String("Switch"), true);
    m_write.verified(QLatin1String("Count"), qint64{7});
    EXPECT_EQ(writes(), (QStringList{"Mode = On", "Level = 2.5", "Switch = true verified",
                                     "Count = 7 verified"}));
}

TEST_F(ParameterWritesTest, PlainFormsThrowWhatTheParameterThrows)
{
    EXPECT_THROW(m_write.entry(QLatin1String("Mode"), QLatin1String("Maybe")),
                 GenICam::RuntimeException);
    EXPECT_THROW(m_write.number(QLatin1String("Level"), 11.0), GenICam::RuntimeException);
    EXPECT_THROW(m_write.verified(QLatin1String("Missing"), true), GenICam::RuntimeException);
    EXPECT_THROW(m_write.number(QLatin1String("Mode"), 1.0), GenICam::RuntimeException)
        << "a parameter of another kind is none";
    EXPECT_TRUE(writes().isEmpty());
}

TEST_F(ParameterWritesTest, GuardedFormsSkipWhatIsMissingOrReadOnly)
{
    m_parameters->features().change("Mode", [](FakeFeature& mode) { mode.writable = false; });
    EXPECT_FALSE(m_write.guardedEntry(QLatin1String("Mode"), QLatin1String("On")));
    EXPECT_FALSE(m_write.guardedEntry(QLatin1String("Missing"), QLatin1String("On")));
    m_write.guardedNumber(QLatin1String("Missing"), 1.0);
    m_write.guardedVerified(QLatin1String("Missing"), true);
    m_write.tryEntry(QLatin1String("Mode"), QLatin1String("On"));
    EXPECT_TRUE(writes().isEmpty());
}

TEST_F(ParameterWritesTest, GuardedFormsThrowWhereTheCameraRefuses)
{
    EXPECT_THROW(m_write.guardedEntry(QLatin1String("Mode"), QLatin1String("Maybe")),
                 GenICam::RuntimeException);
    EXPECT_THROW(m_write.guardedNumber(QLatin1String("Level"), -1.0), GenICam::RuntimeException);
}

TEST_F(ParameterWritesTest, TriedFormPassesARefusalOver)
{
    m_write.tryEntry(QLatin1String("Mode"), QLatin1String("Maybe"));
    EXPECT_TRUE(writes().isEmpty());
    m_write.tryEntry(QLatin1String("Mode"), QLatin1String("On"));
    EXPECT_EQ(writes(), QStringList{"try Mode = On"});
}

} // namespace
