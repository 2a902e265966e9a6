// SPDX-License-Identifier: Apache-2.0
// A search that fails is not the last one.
#include "camerafinder.h"

#include "logrecorder.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QEventLoop>

#include <atomic>
#include <stdexcept>

using namespace Cameras::GenICam;

TEST(CameraFinder, LooksAgainAfterASearchThatFailed)
{
    int argumentCount = 0;
    const QCoreApplication application(argumentCount, nullptr);
    std::atomic<int> searches = 0;
    CameraFinder finder([&searches](const TransportSettings&) -> QVector<CameraIdentity> {
        if (++searches == 1)
            throw std::runtime_error("no memory");
        return {cameraAt(QStringLiteral("192.0.2.1"))};
    });
    QVector<QVector<CameraIdentity>> found;
    QEventLoop loop;
    QObject::connect(&finder, &CameraFinder::found, &loop, [&](const auto& cameras) {
        found.append(cameras);
        loop.quit();
    });
    const LogRecorder log;
    for (int search = 0; search < 2; ++search) {
        finder.start({});
        loop.exec();
    }
    ASSERT_EQ(found.size(), 2);
    EXPECT_TRUE(found.first().isEmpty());
    ASSERT_EQ(found.last().size(), 1);
    EXPECT_EQ(found.last().first().id, QStringLiteral("192.0.2.1"));
    ASSERT_EQ(log.entries().size(), 1);
    EXPECT_EQ(log.entries().first().text.toStdString(),
              "The search for cameras failed (no memory). It is repeated soon.");
}

// It comes from the network, and goes into lists, tool tips and terminals.
TEST(CameraIdentity, HasAModelNameOfOneLineWithoutControlCharacters)
{
    EXPECT_EQ(shownName(QStringLiteral(" Model\n X\t1 ")), QStringLiteral("Model X 1"));
    EXPECT_EQ(shownName(QStringLiteral("a\x1b[31mb")), QStringLiteral("a\uFFFD[31mb"));
    EXPECT_EQ(shownName(QStringLiteral("\u202eabc")), QStringLiteral("\uFFFDabc"));
    EXPECT_EQ(shownName(QStringLiteral("\u30ab\u30e1\u30e9 \u00b5")),
              QStringLiteral("\u30ab\u30e1\u30e9 \u00b5"));
}
