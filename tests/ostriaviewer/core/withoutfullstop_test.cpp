// SPDX-License-Identifier: Apache-2.0
// Reasons within sentences.
#include "withoutfullstop.h"

#include <gtest/gtest.h>

using Core::withoutFullStop;

TEST(WithoutFullStop, TakesAwayTheLastOneOfEachLanguage)
{
    EXPECT_EQ(withoutFullStop("Premature end of document."), "Premature end of document");
    EXPECT_EQ(withoutFullStop(u8"ドキュメントが途中で終わっています。"),
              u8"ドキュメントが途中で終わっています");
    EXPECT_EQ(withoutFullStop("Gain. Gamma"), "Gain. Gamma");
    EXPECT_EQ(withoutFullStop(""), "");
}
