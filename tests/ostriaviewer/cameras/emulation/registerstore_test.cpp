// SPDX-License-Identifier: Apache-2.0
// The registers guard themselves, whoever writes them.
#include "genicamexception.h"
#include "registerstore.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <memory>

namespace Cameras::Emulation {
namespace {

using ::GenICam::RuntimeException;
using Bytes = std::array<unsigned char, 8>;

// 1.5 as IEEE 754 double, big endian.
constexpr Bytes onePointFive = {0x3F, 0xF8, 0, 0, 0, 0, 0, 0};

class RegisterStoreTest : public testing::Test
{
protected:
    RegisterStoreTest()
    {
        auto table = std::make_shared<FeatureTable>();
        table->beginCategory(QStringLiteral("All"));
        table->integer(QStringLiteral("Size"), 10, {4.0}, {100.0}, 2);
        table->floating(QStringLiteral("Level"), 1.0, {-2.0}, {2.0}, 4);
        table->selector(QStringLiteral("Which"),
                        QStringList{QStringLiteral("A"), QStringLiteral("B")});
        table->integer(QStringLiteral("Each"), 0, {0.0}, {9.0}).selectedBy(QStringLiteral("Which"));
        table->integer(QStringLiteral("Fixed"), 7, {0.0}, {9.0}).readOnly();
        table->integer(QStringLiteral("Guarded"), 0, {0.0}, {9.0})
            .lockedBy({QStringLiteral("Size"), {20}});
        table->string(QStringLiteral("Name"), QStringLiteral("Text"));
        table->command(QStringLiteral("Go"));
        m_store = std::make_unique<RegisterStore>(table);
    }

    std::uint64_t address(const char* name, int cell = 0) const
    {
        const int index = m_store->table()->indexOf(QString::fromLatin1(name));
        return m_store->layout().address(index) + 8U * static_cast<unsigned>(cell);
    }
    void write(const char* name, Bytes bytes, int cell = 0)
    {
        m_store->write(address(name, cell), bytes.data(), bytes.size());
    }
    Bytes read(const char* name, int cell = 0)
    {
        Bytes bytes = {};
        m_store->read(address(name, cell), bytes.data(), bytes.size());
        return bytes;
    }
    static Bytes whole(unsigned char value) { return {0, 0, 0, 0, 0, 0, 0, value}; }

    std::unique_ptr<RegisterStore> m_store;
};

// As when the camera is opened again while a client of the opening before still writes.
TEST_F(RegisterStoreTest, KeepsAHookThatIsAtWorkWhenAnotherIsSet)
{
    auto kept = std::make_shared<int>(7);
    const std::weak_ptr<int> watched = kept;
    bool wasKept = false;
    m_store->setWriteHook([kept = std::move(kept), &watched, &wasKept, this](const auto&, int) {
        m_store->setWriteHook({});
        wasKept = !watched.expired();
    });
    write("Size", whole(12));
    EXPECT_TRUE(wasKept);
    EXPECT_TRUE(watched.expired());
}

TEST_F(RegisterStoreTest, NumbersAreBigEndian)
{
    write("Size", whole(12));
    EXPECT_EQ(read("Size"), whole(12));
    EXPECT_EQ(m_store->values().value(QStringLiteral("Size")), 12.0);
    write("Level", onePointFive);
    EXPECT_EQ(read("Level"), onePointFive);
    EXPECT_EQ(m_store->values().value(QStringLiteral("Level")), 1.5);
}

TEST_F(RegisterStoreTest, FloatsAreRounded)
{
    write("Level", {0x3F, 0xF6, 0, 0, 0, 0, 0, 0}); // 1.375, quarters are kept
    EXPECT_EQ(read("Level"), onePointFive);
}

TEST_F(RegisterStoreTest, ARefusedValueChangesNothing)
{
    EXPECT_THROW(write("Size", whole(102)), RuntimeException);
    EXPECT_THROW(write("Size", whole(11)), RuntimeException); // not on the increment
    EXPECT_THROW(write("Size", {0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF}), RuntimeException);
    EXPECT_EQ(read("Size"), whole(10));
    const Bytes notANumber = {0x7F, 0xF8, 0, 0, 0, 0, 0, 0};
    const Bytes infinity = {0x7F, 0xF0, 0, 0, 0, 0, 0, 0};
    EXPECT_THROW(write("Level", notANumber), RuntimeException);
    EXPECT_THROW(write("Level", infinity), RuntimeException);
    EXPECT_EQ(m_store->values().value(QStringLiteral("Level")), 1.0);
}

TEST_F(RegisterStoreTest, WhatCannotBeWrittenIsRefused)
{
    EXPECT_THROW(write("Fixed", whole(1)), RuntimeException);
    write("Guarded", whole(3));
    write("Size", whole(20));
    EXPECT_THROW(write("Guarded", whole(4)), RuntimeException);
    EXPECT_EQ(read("Guarded"), whole(3));
}

TEST_F(RegisterStoreTest, CellsLieSideBySide)
{
    write("Each", whole(3), 0);
    write("Each", whole(4), 1);
    EXPECT_EQ(read("Each", 0), whole(3));
    EXPECT_EQ(read("Each", 1), whole(4));
}

TEST_F(RegisterStoreTest, OnlyWholeRegistersAreReached)
{
    Bytes bytes = whole(12);
    EXPECT_THROW(m_store->write(address("Size"), bytes.data(), 4), RuntimeException);
    EXPECT_THROW(m_store->write(address("Size") + 1, bytes.data(), 8), RuntimeException);
    EXPECT_THROW(m_store->read(0, bytes.data(), 8), RuntimeException);
    EXPECT_THROW(m_store->read(~std::uint64_t{7}, bytes.data(), 8), RuntimeException);
    EXPECT_THROW(m_store->read(address("Go") + 8, bytes.data(), 8), RuntimeException);
}

TEST_F(RegisterStoreTest, TextIsPaddedWithZeros)
{
    std::array<char, 64> text;
    text.fill('x');
    m_store->read(address("Name"), text.data(), text.size());
    EXPECT_STREQ(text.data(), "Text");
    EXPECT_EQ(text.back(), '\0');
}

TEST_F(RegisterStoreTest, ACommandIsDoneAtOnce)
{
    int calls = 0;
    m_store->setWriteHook([&](const FeatureDefinition& feature, int) {
        calls += feature.name == QLatin1String("Go") ? 1 : 0;
    });
    write("Go", whole(1));
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(read("Go"), whole(0));
}

TEST_F(RegisterStoreTest, AHookThatThrowsUndoesTheWrite)
{
    m_store->setWriteHook([](const FeatureDefinition&, int) { throw RuntimeException("no"); });
    EXPECT_THROW(write("Size", whole(12)), RuntimeException);
    EXPECT_EQ(read("Size"), whole(10));
}

TEST_F(RegisterStoreTest, AnUnreachableCameraRefusesEverything)
{
    m_store->setReachable(false);
    EXPECT_THROW(read("Size"), RuntimeException);
    EXPECT_THROW(write("Size", whole(12)), RuntimeException);
    m_store->setReachable(true);
    EXPECT_EQ(read("Size"), whole(10));
}

TEST_F(RegisterStoreTest, TheCameraItselfGetsTheNearestValue)
{
    m_store->set(QStringLiteral("Size"), 33.0);
    EXPECT_EQ(m_store->values().value(QStringLiteral("Size")), 32.0);
    m_store->set(QStringLiteral("Size"), 1e9);
    EXPECT_EQ(m_store->values().value(QStringLiteral("Size")), 100.0);
    m_store->set(QStringLiteral("Level"), std::nan(""));
    EXPECT_EQ(m_store->values().value(QStringLiteral("Level")), -2.0);
    m_store->set(QStringLiteral("Nothing"), 1.0);
    EXPECT_EQ(m_store->values().value(QStringLiteral("Nothing"), 0, -1.0), -1.0);
}

} // namespace
} // namespace Cameras::Emulation
