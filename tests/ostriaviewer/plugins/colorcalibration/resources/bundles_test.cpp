// SPDX-License-Identifier: Apache-2.0
// Every picture stands under its path, in its size and in twice its size.
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QString>
#include <gtest/gtest.h>

namespace {

struct Picture
{
    const char* path; // without ".png"
    int width;
    int height;
};

std::string nameOf(const testing::TestParamInfo<Picture>& info)
{
    QString name = QFileInfo(QString::fromLatin1(info.param.path)).fileName();
    return name.replace(QLatin1Char('-'), QLatin1Char('_')).toStdString();
}

void PrintTo(const Picture& picture, std::ostream* out)
{
    *out << picture.path;
}

class BundledPicture : public testing::TestWithParam<Picture>
{
protected:
    static QString path(const char* suffix)
    {
        return QString::fromLatin1(GetParam().path) + QString::fromLatin1(suffix);
    }

    static bool hasTransparentPixel(const QImage& image)
    {
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) == 0) {
                    return true;
                }
            }
        }
        return false;
    }
};

TEST_P(BundledPicture, HasTheSizeItsPlaceNeeds)
{
    const QImage image(path(".png"), "PNG");
    EXPECT_EQ(image.width(), GetParam().width);
    EXPECT_EQ(image.height(), GetParam().height);
}

TEST_P(BundledPicture, ComesTwiceAsLargeForDenseScreens)
{
    const QImage image(path("@2x.png"), "PNG");
    EXPECT_EQ(image.width(), 2 * GetParam().width);
    EXPECT_EQ(image.height(), 2 * GetParam().height);
}

TEST_P(BundledPicture, StandsOnAnyBackground)
{
    EXPECT_TRUE(hasTransparentPixel(QImage(path(".png"))));
}

TEST_P(BundledPicture, IsTheSameInEveryBuild)
{
    for (const char* suffix : {".png", "@2x.png"}) {
        QFile file(path(suffix));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        EXPECT_FALSE(bytes.contains("tIME"));
        EXPECT_FALSE(bytes.contains("tEXt"));
    }
}

INSTANTIATE_TEST_SUITE_P(Wizard, BundledPicture,
                         testing::Values(Picture{":/ColCal/busyindicator", 200, 200},
                                         Picture{":/ColCal/checked", 13, 13},
                                         Picture{":/ColCal/fileopen", 16, 16},
                                         Picture{":/ColCal/icons/cct_icon_22x22", 22, 22},
                                         Picture{":/ColCal/imageslider", 16, 16},
                                         Picture{":/ColCal/singleshot", 16, 16},
                                         Picture{":/ColCal/step1Toolbg", 260, 80},
                                         Picture{":/ColCal/targetpointer", 12, 56},
                                         Picture{":/ColCal/targetvalue", 128, 70},
                                         Picture{":/ColCal/tavrin-logo", 283, 92}),
                         nameOf);

INSTANTIATE_TEST_SUITE_P(Report, BundledPicture,
                         testing::Values(Picture{":/ColCal/resources/logo", 283, 92},
                                         Picture{":/ColCal/resources/logo_s", 142, 46}),
                         nameOf);

#define VIEWER ":/ostriaviewercomponents/Resources/"
INSTANTIATE_TEST_SUITE_P(Viewer, BundledPicture,
                         testing::Values(Picture{VIEWER "Error_32", 32, 32},
                                         Picture{VIEWER "Question_32", 32, 32},
                                         Picture{VIEWER "ostriaviewer_16", 16, 16},
                                         Picture{VIEWER "ostriaviewer_22", 22, 22},
                                         Picture{VIEWER "ostriaviewer_24", 24, 24},
                                         Picture{VIEWER "ostriaviewer_32", 32, 32},
                                         Picture{VIEWER "ostriaviewer_48", 48, 48},
                                         Picture{VIEWER "ostriaviewer_64", 64, 64},
                                         Picture{VIEWER "ostriaviewer_128", 128, 128},
                                         Picture{VIEWER "ostriaviewer_256", 256, 256}),
                         nameOf);

TEST(ReportStyle, StylesEachPartOfTheReport)
{
    QFile file(QStringLiteral(":/ColCal/resources/summary.css"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray style = file.readAll();
    for (const char* selector :
         {".row", ".logo", ".title", ".subtitle", ".separator", ".container", ".report-info",
          ".report-camera-info", ".info-text", "#results", "@media print"}) {
        EXPECT_TRUE(style.contains(selector)) << selector;
    }
}

} // namespace
