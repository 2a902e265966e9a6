// SPDX-License-Identifier: Apache-2.0
// Tests of the grid's position, which outlives the model.
#include "modeltest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointF>
#include <QTemporaryDir>

#include <limits>

using namespace ColorCalibration;

namespace {

/// The application's settings stand in another folder as long as this lives.
class OtherSettings
{
public:
    OtherSettings()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    }
    ~OtherSettings()
    {
        const QDir root = QFileInfo(m_before).dir().filePath("..");
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, root.canonicalPath());
    }
    OtherSettings(const OtherSettings&) = delete;
    OtherSettings& operator=(const OtherSettings&) = delete;

    /// Takes a copy of the file that was used before.
    bool copyFile() const
    {
        const QFileInfo file(m_before);
        const QString organization = m_folder.filePath(file.dir().dirName());
        return QDir().mkpath(organization) &&
               QFile::copy(m_before, QDir(organization).filePath(file.fileName()));
    }

    /// Puts a file where the folder of the settings should be.
    bool block() const
    {
        QFile file(m_folder.filePath(QFileInfo(m_before).dir().dirName()));
        return file.open(QIODevice::WriteOnly);
    }

private:
    QString m_before = QSettings().fileName();
    QTemporaryDir m_folder;
};

TEST_F(ModelTest, ACameraModelSeenForTheFirstTimeGetsTheMiddleOfTheImage)
{
    ASSERT_TRUE(open());
    EXPECT_EQ(m_model.GetGridPosition(), TrapezoidPoints({12, 8}, {108, 8}, {12, 72}, {108, 72}));
}

TEST_F(ModelTest, TheGridIsKeptAsSharesOfTheImagePerCameraModel)
{
    ASSERT_TRUE(open());
    m_model.SetGridPosition(TrapezoidPoints({30, 20}, {90, 24}, {36, 60}, {96, 64}));
    ASSERT_TRUE(m_model.Close());
    QSettings settings;
    const QString group("ColCalPlugin/GridPosition Fake 100/");
    EXPECT_EQ(settings.value(group + "TopLeft").toPointF(), QPointF(0.25, 0.25));
    EXPECT_EQ(settings.value(group + "TopRight").toPointF(), QPointF(0.75, 0.3));
    EXPECT_EQ(settings.value(group + "BottomRight").toPointF(), QPointF(0.8, 0.8));
    EXPECT_EQ(settings.value(group + "BottomLeft").toPointF(), QPointF(0.3, 0.75));

    const auto another = newCamera();
    another->parameters().addInteger("Width", 240);
    use(another);
    ASSERT_TRUE(open());
    EXPECT_EQ(m_model.GetGridPosition(), TrapezoidPoints({60, 20}, {180, 24}, {72, 60}, {192, 64}))
        << "shares carry over to another size";
    ASSERT_TRUE(m_model.Close());

    use(newCamera());
    m_camera->model = "Fake 200";
    ASSERT_TRUE(open());
    EXPECT_EQ(m_model.GetGridPosition(), TrapezoidPoints({12, 8}, {108, 8}, {12, 72}, {108, 72}));
}

TEST_F(ModelTest, SharesOfTheImageAreRoundedToTheNearestPixel)
{
    m_camera->parameters().addInteger("Width", 641);
    m_camera->parameters().addInteger("Height", 43);
    const QString group("ColCalPlugin/GridPosition Fake 100/");
    QSettings().setValue(group + "TopLeft", QPointF(0.35, 0.25));
    ASSERT_TRUE(open());
    EXPECT_EQ(m_model.GetGridPosition().upperLeft(), QPoint(224, 11)) << "224.35, 10.75";
}

TEST_F(ModelTest, TheGridDoesNotCreepFromOpeningToOpening)
{
    constexpr int size = 43;
    m_camera->parameters().addInteger("Width", size);
    m_camera->parameters().addInteger("Height", size);
    for (int at = 0; at < size; ++at) {
        const TrapezoidPoints outline({at, at}, {at + 1, at}, {at, at + 1}, {at + 1, at + 1});
        ASSERT_TRUE(open());
        m_model.SetGridPosition(outline);
        ASSERT_TRUE(m_model.Close());
        ASSERT_TRUE(open());
        EXPECT_EQ(m_model.GetGridPosition(), outline);
        ASSERT_TRUE(m_model.Close());
    }
}

TEST_F(ModelTest, TheGridIsKeptForModelsOfAnyName)
{
    const TrapezoidPoints outline({30, 20}, {90, 24}, {36, 60}, {96, 64});
    m_camera->model = QString::fromUtf8("a/b\\c: <d> & \"e\" %1 \u6821\u6b63");
    ASSERT_TRUE(open());
    m_model.SetGridPosition(outline);
    ASSERT_TRUE(m_model.Close());
    m_model.SetGridPosition(TrapezoidPoints({1, 2}, {3, 4}, {5, 6}, {7, 8}));

    // Under a path of its own, as Qt keeps what it has read from a file in memory.
    const OtherSettings settings;
    ASSERT_TRUE(settings.copyFile());
    EXPECT_EQ(QSettings().allKeys().size(), 4);
    ASSERT_TRUE(open());
    EXPECT_EQ(m_model.GetGridPosition(), outline);
    EXPECT_TRUE(logTexts().isEmpty());
}

TEST_F(ModelTest, AGridThatCannotBeKeptIsTold)
{
    const OtherSettings settings;
    ASSERT_TRUE(settings.block());
    ASSERT_TRUE(open());
    m_model.SetGridPosition(TrapezoidPoints({30, 20}, {90, 24}, {36, 60}, {96, 64}));
    EXPECT_TRUE(m_model.Close()) << "the camera is given back all the same";
    EXPECT_FALSE(m_camera->open);
    EXPECT_EQ(logTexts(),
              (QStringList{"2 Failed to restore old grid position.",
                           "2 ColorCorrectionModelImpl::storeLastGridPosition:The settings cannot "
                           "be written to \"" +
                               QSettings().fileName() + "\"."}));
}

TEST_F(ModelTest, AGridThatCannotBeUsedFallsBackToTheMiddle)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const QString group("ColCalPlugin/GridPosition Fake 100/");
    for (const QVariant& bad :
         {QVariant("nonsense"), QVariant(QPointF(nan, 0.5)), QVariant(QPointF(0.5, 1e300)),
          QVariant(QPointF(-std::numeric_limits<double>::infinity(), 0.0))}) {
        QSettings().setValue(group + "TopLeft", bad);
        ASSERT_TRUE(open());
        EXPECT_EQ(m_model.GetGridPosition().upperLeft(), QPoint(12, 8));
        ASSERT_TRUE(m_model.Close());
    }
}

TEST_F(ModelTest, WithoutAnImageSizeTheGridStaysAndNothingIsStored)
{
    const TrapezoidPoints outline({1, 2}, {3, 4}, {5, 6}, {7, 8});
    m_model.SetGridPosition(outline);
    m_camera->features().remove("Height");
    ASSERT_TRUE(open());
    EXPECT_EQ(m_model.GetGridPosition(), outline);
    ASSERT_TRUE(m_model.Close());
    m_camera->parameters().addInteger("Height", 0);
    ASSERT_TRUE(open());
    ASSERT_TRUE(m_model.Close());
    EXPECT_TRUE(QSettings().allKeys().isEmpty());
    EXPECT_TRUE(logTexts().isEmpty());
}

} // namespace
