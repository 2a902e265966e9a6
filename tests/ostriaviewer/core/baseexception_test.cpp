// SPDX-License-Identifier: Apache-2.0
// Tests of the host's exception.
#include "baseexception.h"

#include <gtest/gtest.h>

namespace Core::Exception {
namespace {

TEST(BaseException, CarriesItsMessageInBothForms)
{
    const BaseException exception(QStringLiteral("gone \u00e4 \u20ac"));
    EXPECT_EQ(exception.getMessage(), QStringLiteral("gone \u00e4 \u20ac"));
    EXPECT_STREQ(exception.what(), "gone \xc3\xa4 \xe2\x82\xac");
}

TEST(BaseException, MayBeEmpty)
{
    const BaseException exception{QString()};
    EXPECT_TRUE(exception.getMessage().isEmpty());
    EXPECT_STREQ(exception.what(), "");
}

TEST(BaseException, IsCaughtAsItselfAndAsAStandardException)
{
    const auto raise = [] {
        throw BaseException(QStringLiteral("text"));
    };
    EXPECT_THROW(raise(), BaseException);
    try {
        raise();
    } catch (const std::exception& exception) {
        EXPECT_STREQ(exception.what(), "text");
    }
}

TEST(BaseException, ACopyKeepsItsOwnText)
{
    auto* original = new BaseException(QStringLiteral("kept"));
    const BaseException copy(*original);
    delete original;
    EXPECT_STREQ(copy.what(), "kept");
    EXPECT_EQ(copy.getMessage(), QStringLiteral("kept"));
}

} // namespace
} // namespace Core::Exception
