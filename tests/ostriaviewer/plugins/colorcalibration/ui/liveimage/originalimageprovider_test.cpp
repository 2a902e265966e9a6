// SPDX-License-Identifier: Apache-2.0
// Tests of the image from before the calibration.
#include "originalimageprovider.h"

#include "initialimage.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <thread>

using ColorCalibration::OriginalImageProvider;

namespace {

QImage plain(QRgb color, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

QString url(const OriginalImageProvider& provider)
{
    return QStringLiteral("image://cameraImageOriginal/%1_%2")
        .arg(provider.firstCounter())
        .arg(provider.secondCounter());
}

class OriginalImageProviderTest : public testing::Test
{
protected:
    InitialImage m_model;
    OriginalImageProvider m_provider{&m_model};
};

TEST_F(OriginalImageProviderTest, ProvidesImagesAndLoadsThemOnAnotherThread)
{
    EXPECT_EQ(m_provider.imageType(), QQmlImageProviderBase::Image);
    EXPECT_TRUE(m_provider.flags() & QQmlImageProviderBase::ForceAsynchronousImageLoading);
}

TEST_F(OriginalImageProviderTest, BeginsWithBothCountersAtZeroAndNoImage)
{
    EXPECT_EQ(url(m_provider), QStringLiteral("image://cameraImageOriginal/0_0"));
    QSize size(7, 7);
    EXPECT_TRUE(m_provider.requestImage(QStringLiteral("0_0"), &size, QSize()).isNull());
    EXPECT_EQ(size, QSize(0, 0));
}

TEST_F(OriginalImageProviderTest, TogglesTheSecondCounterAtEachFetch)
{
    const QStringList expected{QStringLiteral("0_1"), QStringLiteral("0_0"), QStringLiteral("0_1")};
    for (const QString& counters : expected) {
        m_provider.grabInitialImage();
        EXPECT_TRUE(url(m_provider).endsWith(counters)) << url(m_provider).toStdString();
    }
}

TEST_F(OriginalImageProviderTest, ReportsTheSizeAndReturnsTheImageWhateverIsAskedFor)
{
    m_model.initialImage = plain(0xff123456, QSize(30, 20));
    m_provider.grabInitialImage();
    QSize size;
    const QImage image = m_provider.requestImage(QStringLiteral("any"), &size, QSize(3, 2));
    EXPECT_EQ(size, QSize(30, 20));
    EXPECT_EQ(image, m_model.initialImage);
    EXPECT_EQ(m_provider.requestImage(QString(), nullptr, QSize()), m_model.initialImage);
}

TEST_F(OriginalImageProviderTest, ReturnsACopy)
{
    m_model.initialImage = plain(0xff123456, QSize(30, 20));
    m_provider.grabInitialImage();
    const QImage first = m_provider.requestImage(QString(), nullptr, QSize());
    const QImage second = m_provider.requestImage(QString(), nullptr, QSize());
    EXPECT_NE(first.constBits(), second.constBits());
}

TEST_F(OriginalImageProviderTest, KeepsItsImageUntilTheNextFetch)
{
    m_model.initialImage = plain(0xff123456, QSize(30, 20));
    m_provider.grabInitialImage();
    m_model.initialImage = QImage();
    EXPECT_FALSE(m_provider.requestImage(QString(), nullptr, QSize()).isNull());
    m_provider.grabInitialImage();
    EXPECT_TRUE(m_provider.requestImage(QString(), nullptr, QSize()).isNull());
    EXPECT_EQ(m_provider.secondCounter(), 0);
}

TEST_F(OriginalImageProviderTest, IsAsNewAfterReset)
{
    m_model.initialImage = plain(0xff123456, QSize(30, 20));
    m_provider.grabInitialImage();
    m_provider.reset();
    EXPECT_EQ(url(m_provider), QStringLiteral("image://cameraImageOriginal/0_0"));
    EXPECT_TRUE(m_provider.requestImage(QString(), nullptr, QSize()).isNull());
}

TEST_F(OriginalImageProviderTest, MayBeAskedWhileItFetches)
{
    m_model.initialImage = plain(0xff123456, QSize(30, 20));
    std::atomic_bool done{false};
    int wrong = 0;
    std::thread loader([&] {
        while (!done) {
            const QImage image = m_provider.requestImage(QString(), nullptr, QSize());
            wrong += !image.isNull() && image.pixel(29, 19) != 0xff123456 ? 1 : 0;
        }
    });
    for (int i = 0; i < 500; ++i) {
        m_provider.grabInitialImage();
        if (i % 50 == 0)
            m_provider.reset();
    }
    done = true;
    loader.join();
    EXPECT_EQ(wrong, 0);
}

/// A page's image, loaded through an engine.
class PageImage
{
public:
    explicit PageImage(QQmlEngine& engine)
    {
        QQmlComponent component(&engine);
        component.setData("import QtQuick 2.0\nImage { cache: true }", QUrl());
        m_item.reset(qobject_cast<QQuickItem*>(component.create()));
    }

    /// The size of what stands behind the address, once it is loaded.
    QSize load(const QString& address)
    {
        constexpr int ready = 1;
        m_item->setProperty("source", QUrl(address));
        const bool loaded =
            QTest::qWaitFor([this] { return m_item->property("status").toInt() == ready; }, 60000);
        return loaded ? QSizeF(m_item->implicitWidth(), m_item->implicitHeight()).toSize()
                      : QSize();
    }

private:
    std::unique_ptr<QQuickItem> m_item;
};

TEST(OriginalImage, IsLoadedAnewByAPageAfterEachFetch)
{
    InitialImage model;
    QQmlEngine engine;
    auto* const provider = new OriginalImageProvider(&model); // the engine's
    engine.addImageProvider(QStringLiteral("cameraImageOriginal"), provider);
    PageImage page(engine);
    const QVector<QSize> sizes{QSize(1200, 800), QSize(1201, 801), QSize(1202, 802)};
    for (const QSize& size : sizes) {
        model.initialImage = plain(0xff123456, size);
        provider->grabInitialImage();
        EXPECT_EQ(page.load(url(*provider)), size);
    }
}

} // namespace
