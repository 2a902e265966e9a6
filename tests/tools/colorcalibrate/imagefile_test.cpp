// SPDX-License-Identifier: Apache-2.0
// Which image files are read and which are refused.
#include "imagefile.h"

#include "command.h"
#include "commandtest.h"

#include <QColor>
#include <QFile>
#include <QImageWriter>

using namespace ColorCalibrate;
using Ostria::COstriaImage;

namespace {

COstriaImage cameraImage(const QString& file)
{
    return toCameraImage(readImage(file), file);
}

class ImageFile : public CommandTest
{
protected:
    static void expectRefused(const QString& file, const char* word)
    {
        try {
            cameraImage(file);
            ADD_FAILURE() << "accepted: " << file.toStdString();
        } catch (const CommandError& error) {
            const QString message = QString::fromUtf8(error.what());
            EXPECT_EQ(error.code(), WorkFailed);
            EXPECT_TRUE(message.startsWith(file)) << error.what();
            EXPECT_TRUE(message.contains(QLatin1String(word))) << error.what();
            EXPECT_FALSE(message.contains(QLatin1Char('\n'))) << error.what();
        }
    }

    QByteArray contentOf(const QString& file) const
    {
        QFile content(file);
        EXPECT_TRUE(content.open(QIODevice::ReadOnly));
        return content.readAll();
    }

    QString cutOff(const QString& file, double share) const
    {
        const QByteArray content = contentOf(file);
        return writeFile(QStringLiteral("cut-") + QFileInfo(file).fileName(),
                         content.left(static_cast<int>(content.size() * share)));
    }
};

void expectPixel(const COstriaImage& image, int x, int y, int depth, int red, int green, int blue,
                 int tolerance = 0)
{
    const Ostria::PixelReading pixel = image.readPixel(x, y);
    EXPECT_EQ(pixel.bitDepth, depth);
    EXPECT_NEAR(pixel.red, red, tolerance);
    EXPECT_NEAR(pixel.green, green, tolerance);
    EXPECT_NEAR(pixel.blue, blue, tolerance);
}

} // namespace

TEST_F(ImageFile, ReadsSixteenBitsFromPngAndTiff)
{
    QImage image(31, 17, QImage::Format_RGBX64);
    image.fill(QColor::fromRgba64(1, 2, 3));
    image.setPixelColor(30, 16, QColor::fromRgba64(0xFFFE, 0x1234, 0x0100));
    for (const char* name : {"a.png", "a.tif"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(image.save(path(QLatin1String(name))));
        const COstriaImage read = cameraImage(path(QLatin1String(name)));
        EXPECT_EQ(read.width(), 31);
        EXPECT_EQ(read.height(), 17);
        expectPixel(read, 0, 0, 16, 1, 2, 3);
        expectPixel(read, 30, 16, 16, 0xFFFE, 0x1234, 0x0100);
    }
}

TEST_F(ImageFile, ReadsEightBitsFromPngTiffBmpAndJpeg)
{
    QImage image(31, 17, QImage::Format_RGB32);
    image.fill(QColor(200, 100, 50));
    for (const char* name : {"a.png", "a.tif", "a.bmp"}) {
        SCOPED_TRACE(name);
        ASSERT_TRUE(image.save(path(QLatin1String(name))));
        const COstriaImage read = cameraImage(path(QLatin1String(name)));
        EXPECT_EQ(read.width(), 31);
        expectPixel(read, 30, 16, 8, 200, 100, 50);
    }
    ASSERT_TRUE(image.save(path(QStringLiteral("a.jpg")), nullptr, 100));
    expectPixel(cameraImage(path(QStringLiteral("a.jpg"))), 30, 16, 8, 200, 100, 50, 2);
}

TEST_F(ImageFile, GoesByContentNotByName)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(path(QStringLiteral("a.jpg")), "PNG"));
    expectPixel(cameraImage(path(QStringLiteral("a.jpg"))), 0, 0, 8, 255, 0, 0);
}

TEST_F(ImageFile, TakesAnAlphaChannelThatHidesNothing)
{
    QImage image(8, 8, QImage::Format_ARGB32);
    image.fill(QColor(1, 2, 3, 255));
    ASSERT_TRUE(image.save(path(QStringLiteral("a.png"))));
    expectPixel(cameraImage(path(QStringLiteral("a.png"))), 7, 7, 8, 1, 2, 3);
}

TEST_F(ImageFile, RefusesTransparency)
{
    QImage image(8, 8, QImage::Format_ARGB32);
    image.fill(QColor(1, 2, 3, 255));
    image.setPixelColor(7, 7, QColor(1, 2, 3, 254));
    ASSERT_TRUE(image.save(path(QStringLiteral("a.png"))));
    expectRefused(path(QStringLiteral("a.png")), "transparent");
}

TEST_F(ImageFile, RefusesGray)
{
    for (const auto format :
         {QImage::Format_Grayscale8, QImage::Format_Grayscale16, QImage::Format_Mono}) {
        SCOPED_TRACE(format);
        const QString file = writeChart(QStringLiteral("gray.png"), format, 256);
        expectRefused(file, "gray");
    }
}

TEST_F(ImageFile, RefusesGrayThatIsStoredAsColor)
{
    for (const auto format : {QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGBX64,
                              QImage::Format_RGBA64}) {
        SCOPED_TRACE(format);
        const QString file = path(QStringLiteral("gray.png"));
        const QImage gray = chartImage(QImage::Format_Grayscale8, 256).convertToFormat(format);
        ASSERT_TRUE(gray.save(file));
        expectRefused(file, "gray");
    }
}

TEST_F(ImageFile, RefusesFormatsThatItDoesNotVouchFor)
{
    const QString file = writeChart(QStringLiteral("a.ppm"), QImage::Format_RGB32, 256);
    expectRefused(file, "no image of a known format");
}

TEST_F(ImageFile, RefusesATruncatedBmpWithTheOldHeader)
{
    // 12 bytes of header: 4 x 3 pixels of 24 bits, rows of 12 bytes.
    const QByteArray header("BM\x3e\0\0\0\0\0\0\0\x1a\0\0\0\x0c\0\0\0\x04\0\x03\0\x01\0\x18\0", 26);
    const QByteArray pixels = QByteArray("\x10\x20\x30", 3).repeated(12);
    const QByteArray whole = header + pixels;
    EXPECT_EQ(cameraImage(writeFile(QStringLiteral("old.bmp"), whole)).readPixel(3, 2).red, 0x30);
    expectRefused(writeFile(QStringLiteral("cut.bmp"), whole.left(whole.size() - 1)), "truncated");
}

TEST_F(ImageFile, RefusesATruncatedBmpThatDoesNotSayWhereItsPixelsAre)
{
    QByteArray content = contentOf(writeChart(QStringLiteral("a.bmp"), QImage::Format_RGB32, 256));
    content.replace(10, 4, QByteArray(4, '\0'));
    EXPECT_NO_THROW(cameraImage(writeFile(QStringLiteral("whole.bmp"), content)));
    content.chop(50);
    expectRefused(writeFile(QStringLiteral("cut.bmp"), content), "truncated");
}

TEST_F(ImageFile, RefusesAPalette)
{
    expectRefused(writeChart(QStringLiteral("a.png"), QImage::Format_Indexed8, 256), "palette");
}

TEST_F(ImageFile, RefusesWhatIsNoImage)
{
    expectRefused(path(QStringLiteral("missing.png")), "o such file");
    expectRefused(folder.path(), "");
    expectRefused(writeFile(QStringLiteral("empty.png"), {}), "empty");
    expectRefused(writeFile(QStringLiteral("text.png"), "no image at all"), "no image");
    expectRefused(writeFile(QStringLiteral("zeros.png"), QByteArray(1 << 20, '\0')), "no image");
    expectRefused(writeFile(QStringLiteral("head.png"), QByteArray("\x89PNG\r\n\x1a\n")),
                  "damaged");
}

TEST_F(ImageFile, RefusesTruncatedFiles)
{
    for (const char* name : {"a.png", "a.tif", "a.bmp", "a.jpg"}) {
        const QString whole = writeChart(QLatin1String(name), QImage::Format_RGB32, 256);
        EXPECT_NO_THROW(cameraImage(whole));
        for (const double share : {0.5, 0.9, 0.999}) {
            SCOPED_TRACE(share);
            expectRefused(cutOff(whole, share), "truncated");
        }
    }
}

TEST_F(ImageFile, IsNotFooledByTheEndOfAThumbnail)
{
    // An application segment that holds an end-of-image marker, as an embedded thumbnail does.
    const QString whole = writeChart(QStringLiteral("a.jpg"), QImage::Format_RGB32, 256);
    const QByteArray segment("\xFF\xE1\x00\x08"
                             "\xFF\xD8\xFF\xD9\xFF\xD9",
                             10);
    QByteArray content = contentOf(whole);
    content.insert(2, segment);
    EXPECT_NO_THROW(cameraImage(writeFile(QStringLiteral("thumbnail.jpg"), content)));
    content.truncate(content.size() * 2 / 3);
    expectRefused(writeFile(QStringLiteral("cut.jpg"), content), "truncated");
}

TEST_F(ImageFile, RefusesAJpegMadeToTakeMinutes)
{
    // The same scan header again and again, before the end.
    QByteArray content = contentOf(writeChart(QStringLiteral("a.jpg"), QImage::Format_RGB32, 256));
    const QByteArray scan("\xFF\xDA\x00\x08\x01\x01\x00\x01\x05\x00", 10);
    content.insert(content.size() - 2, scan.repeated(200));
    expectRefused(writeFile(QStringLiteral("slow.jpg"), content), "passes");
}

TEST_F(ImageFile, TurnsAPhotographAsItsDataAsks)
{
    QImage image(20, 10, QImage::Format_RGB32);
    image.fill(Qt::red);
    QImageWriter writer(path(QStringLiteral("turned.jpg")), "jpg");
    writer.setTransformation(QImageIOHandler::TransformationRotate90);
    ASSERT_TRUE(writer.write(image));
    const COstriaImage read = cameraImage(path(QStringLiteral("turned.jpg")));
    EXPECT_EQ(read.width(), 10);
    EXPECT_EQ(read.height(), 20);
}

TEST_F(ImageFile, ReadsImagesOfOnePixelAndOfExtremeWidth)
{
    QImage pixel(1, 1, QImage::Format_RGB32);
    pixel.fill(Qt::red);
    ASSERT_TRUE(pixel.save(path(QStringLiteral("one.png"))));
    EXPECT_EQ(cameraImage(path(QStringLiteral("one.png"))).width(), 1);
    QImage strip(30000, 3, QImage::Format_RGB32);
    strip.fill(Qt::red);
    ASSERT_TRUE(strip.save(path(QStringLiteral("strip.png"))));
    expectPixel(cameraImage(path(QStringLiteral("strip.png"))), 29999, 2, 8, 255, 0, 0);
}

TEST_F(ImageFile, RefusesSizesThatNoCameraHas)
{
    // A header that promises 100000 x 100000 pixels of 8-bit RGB, and nothing behind it.
    const QByteArray header("\x89PNG\r\n\x1a\n"
                            "\0\0\0\x0dIHDR\0\x01\x86\xa0\0\x01\x86\xa0\x08\x02\0\0\0",
                            29);
    const QByteArray checksum("\x27\x30\x9c\x9f", 4);
    const QByteArray pixels("\0\0\0\x08IDAT", 8);
    expectRefused(writeFile(QStringLiteral("huge.png"), header + checksum + pixels), "too large");
}

TEST_F(ImageFile, KeepsTheDecodersQuiet)
{
    const QString cut = cutOff(writeChart(QStringLiteral("a.png"), QImage::Format_RGB32, 256), 0.7);
    testing::internal::CaptureStderr();
    EXPECT_THROW(cameraImage(cut), CommandError);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}
