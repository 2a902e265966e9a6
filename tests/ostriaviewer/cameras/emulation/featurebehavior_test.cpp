// SPDX-License-Identifier: Apache-2.0
// Features of an open camera round, limit, lock and depend on each other as a camera's do.
#include "emulationtest.h"
#include "genicamexception.h"

#include <QHash>
#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace Cameras::Emulation {
namespace {

using ::GenICam::RuntimeException;

class FeatureBehavior : public EmulationTest
{
protected:
    void open(FeatureNames names)
    {
        m_camera = openCamera(smallModel(names));
        m_features = m_camera->parameterCollection();
    }
    Core::ParameterCollection::FloatParameterPtr floating(const char* name)
    {
        return m_features->floatParameter(QString::fromLatin1(name));
    }
    Core::ParameterCollection::IntegerParameterPtr integer(const char* name)
    {
        return m_features->integerParameter(QString::fromLatin1(name));
    }
    Core::ParameterCollection::BooleanParameterPtr boolean(const char* name)
    {
        return m_features->booleanParameter(QString::fromLatin1(name));
    }
    void choose(const char* name, const char* entry)
    {
        m_features->enumerationParameter(QString::fromLatin1(name))
            ->setValue(QString::fromLatin1(entry));
    }
    QString chosen(const char* name)
    {
        return m_features->enumerationParameter(QString::fromLatin1(name))->value();
    }
    double written(const char* name, double value)
    {
        floating(name)->setValue(value);
        return floating(name)->value();
    }
    /// Another value that the feature takes now; the same where there is none.
    QString otherValue(const QString& name, const QString& value)
    {
        if (const auto choice = m_features->enumerationParameter(name); !choice->isEmpty()) {
            for (const auto& entry : choice->entries())
                if (entry.isSettable && entry.name != value)
                    return entry.name;
            return value;
        }
        const auto otherOf = [&value](double minimum, double maximum) {
            return QString::number(value.toDouble() == minimum ? maximum : minimum, 'g', 17);
        };
        if (const auto number = m_features->floatParameter(name); !number->isEmpty())
            return otherOf(number->minimum(), number->maximum());
        if (const auto integer = m_features->integerParameter(name); !integer->isEmpty())
            return otherOf(static_cast<double>(integer->minimum()),
                           static_cast<double>(integer->maximum()));
        return value == QLatin1String("0") ? QStringLiteral("1") : QStringLiteral("0");
    }
    /// Without the head, which carries the time.
    QString saved()
    {
        QString text;
        m_features->saveFeatures(text, QStringLiteral("@CameraDevice"));
        QStringList lines = text.split(QLatin1Char('\n'));
        const QStringList head = lines.filter(QRegularExpression(QStringLiteral("^#")));
        return lines.mid(head.size()).join(QLatin1Char('\n'));
    }

    QSharedPointer<EmulatedCamera> m_camera;
    Core::ParameterCollection::ParameterCollectionPtr m_features;
};

TEST_F(FeatureBehavior, FloatsReadBackOnTheCamerasResolution)
{
    open(FeatureNames::SecondGeneration);
    EXPECT_EQ(written("ColorTransformationValue", 0.3), 77.0 / 256.0);
    EXPECT_EQ(written("ColorTransformationValue", -0.3), -77.0 / 256.0);
    EXPECT_EQ(written("BalanceRatio", 1.23456789), 5057.0 / 4096.0);
    EXPECT_EQ(written("Gain", 3.14), 3.1);
    EXPECT_EQ(written("Gamma", 0.45), 0.45);
    EXPECT_EQ(written("ColorAdjustmentHue", 0.1), 13.0 / 128.0);
    EXPECT_EQ(written("ColorAdjustmentSaturation", 1.5), 1.5);
    EXPECT_EQ(written("ExposureTime", 1234.4), 1234.0);
    EXPECT_EQ(written("BlackLevel", 1.03), 1.0);
}

TEST_F(FeatureBehavior, ValuesOutOfRangeAreRefusedAndChangeNothing)
{
    open(FeatureNames::SecondGeneration);
    const auto gain = floating("Gain");
    gain->setValue(6.0);
    for (const double wrong : {-0.1, 24.1, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_THROW(gain->setValue(wrong), RuntimeException) << wrong;
        EXPECT_FALSE(gain->trySetValue(wrong)) << wrong;
    }
    EXPECT_EQ(gain->value(), 6.0);
    EXPECT_THROW(choose("PixelFormat", "Mono13"), RuntimeException);
    EXPECT_EQ(chosen("PixelFormat"), QStringLiteral("RGB8"));
}

TEST_F(FeatureBehavior, RawIntegersKeepTheirRange)
{
    open(FeatureNames::FirstGeneration);
    integer("GainRaw")->setValue(240, true);
    EXPECT_THROW(integer("GainRaw")->setValue(241, true), RuntimeException);
    integer("BlackLevelRaw")->setValue(0, true);
    EXPECT_THROW(integer("BlackLevelRaw")->setValue(-1, true), RuntimeException);
    EXPECT_EQ(integer("GainRaw")->value(), 240);
}

TEST_F(FeatureBehavior, EachSelectorEntryHasAValueOfItsOwn)
{
    open(FeatureNames::SecondGeneration);
    const char* const colors[] = {"Red", "Green", "Blue"};
    for (int i = 0; i < 3; ++i) {
        choose("BalanceRatioSelector", colors[i]);
        floating("BalanceRatio")->setValue(1.5 + i);
    }
    for (int i = 0; i < 3; ++i) {
        choose("BalanceRatioSelector", colors[i]);
        EXPECT_EQ(floating("BalanceRatio")->value(), 1.5 + i);
    }
}

TEST_F(FeatureBehavior, TheMatrixLeavesTheFactoryAsIdentity)
{
    open(FeatureNames::SecondGenerationMaker);
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 3; ++column) {
            const QString gain = QStringLiteral("Gain%1%2").arg(row).arg(column);
            choose("ColorTransformationValueSelector", gain.toLatin1().constData());
            EXPECT_EQ(floating("ColorTransformationValue")->value(), row == column ? 1.0 : 0.0);
        }
}

TEST_F(FeatureBehavior, RawAndAbsoluteRatioAreOneValue)
{
    open(FeatureNames::FirstGeneration);
    choose("BalanceRatioSelector", "Blue");
    floating("BalanceRatioAbs")->setValue(1.5);
    EXPECT_EQ(integer("BalanceRatioRaw")->value(), 6144);
    integer("BalanceRatioRaw")->setValue(8192, true);
    EXPECT_EQ(floating("BalanceRatioAbs")->value(), 2.0);
    choose("BalanceRatioSelector", "Red");
    EXPECT_EQ(integer("BalanceRatioRaw")->value(), 4096);
}

TEST_F(FeatureBehavior, GainIsLockedWhileItIsAutomatic)
{
    open(FeatureNames::FirstGeneration);
    EXPECT_TRUE(integer("GainRaw")->isWritable());
    choose("GainAuto", "Continuous");
    EXPECT_FALSE(integer("GainRaw")->isWritable());
    EXPECT_TRUE(integer("GainRaw")->isReadable());
    EXPECT_THROW(integer("GainRaw")->setValue(10, true), RuntimeException);
    choose("GainAuto", "Off");
    integer("GainRaw")->setValue(10, true);
    EXPECT_EQ(integer("GainRaw")->value(), 10);
}

TEST_F(FeatureBehavior, ExposureIsLockedWhileItIsAutomatic)
{
    open(FeatureNames::SecondGeneration);
    choose("ExposureAuto", "Once");
    EXPECT_FALSE(floating("ExposureTime")->isWritable());
    choose("ExposureAuto", "Off");
    EXPECT_TRUE(floating("ExposureTime")->isWritable());
}

TEST_F(FeatureBehavior, ShapeAndFormatAreLockedWhileImagesAreTaken)
{
    open(FeatureNames::SecondGeneration);
    const auto format = m_features->enumerationParameter(QStringLiteral("PixelFormat"));
    const auto load = m_features->commandParameter(QStringLiteral("UserSetLoad"));
    ASSERT_TRUE(m_camera->startGrabbing());
    EXPECT_FALSE(integer("Width")->isWritable());
    EXPECT_FALSE(integer("Height")->isWritable());
    EXPECT_FALSE(format->isWritable());
    EXPECT_FALSE(load->isWritable());
    EXPECT_THROW(format->setValue(QStringLiteral("Mono8")), RuntimeException);
    EXPECT_TRUE(floating("Gain")->isWritable());
    m_camera->stopGrabbing();
    EXPECT_TRUE(integer("Width")->isWritable());
    format->setValue(QStringLiteral("Mono8"));
    EXPECT_EQ(format->value(), QStringLiteral("Mono8"));
}

TEST_F(FeatureBehavior, SizeAndOffsetShareTheSensor)
{
    open(FeatureNames::SecondGeneration);
    EXPECT_EQ(integer("OffsetX")->maximum(), 0);
    EXPECT_EQ(integer("Width")->maximum(), 96);
    EXPECT_EQ(integer("Width")->increment(), 2);
    integer("Width")->setValue(40, true);
    EXPECT_EQ(integer("OffsetX")->maximum(), 56);
    integer("OffsetX")->setValue(20, true);
    EXPECT_EQ(integer("Width")->maximum(), 76);
    EXPECT_THROW(integer("Width")->setValue(78, true), RuntimeException);
    EXPECT_THROW(integer("Width")->setValue(41, true), RuntimeException);
    EXPECT_EQ(integer("Width")->value(), 40);
}

TEST_F(FeatureBehavior, LimitsOfAutomaticsDoNotCross)
{
    open(FeatureNames::SecondGeneration);
    floating("AutoGainUpperLimit")->setValue(12.0);
    EXPECT_EQ(floating("AutoGainLowerLimit")->maximum(), 12.0);
    EXPECT_THROW(floating("AutoGainLowerLimit")->setValue(12.1), RuntimeException);
    floating("AutoExposureTimeLowerLimit")->setValue(500.0);
    EXPECT_EQ(floating("AutoExposureTimeUpperLimit")->minimum(), 500.0);
}

TEST_F(FeatureBehavior, SomeEntriesAndFeaturesDependOnTheFormat)
{
    open(FeatureNames::SecondGeneration);
    choose("PixelFormat", "BayerRG8");
    EXPECT_THROW(choose("DemosaicingMode", "HighQuality"), RuntimeException);
    const auto mode = m_features->enumerationParameter(QStringLiteral("DemosaicingMode"));
    EXPECT_FALSE(mode->entries().at(1).isSettable);
    choose("PixelFormat", "RGB8");
    choose("DemosaicingMode", "HighQuality");

    open(FeatureNames::FirstGeneration);
    EXPECT_FALSE(boolean("ProcessedRawEnable")->isWritable());
    EXPECT_FALSE(boolean("ProcessedRawEnable")->isEmpty());
    choose("PixelFormat", "BayerRG12");
    EXPECT_TRUE(boolean("ProcessedRawEnable")->isWritable());
}

TEST_F(FeatureBehavior, SavedSettingsBringEverythingBack)
{
    for (const FeatureNames names : {FeatureNames::FirstGeneration, FeatureNames::SecondGeneration,
                                     FeatureNames::SecondGenerationMaker}) {
        open(names);
        const bool first = names == FeatureNames::FirstGeneration;
        const QString before = saved();
        choose("PixelFormat", "Mono12");
        choose("BalanceRatioSelector", "Green");
        floating(first ? "BalanceRatioAbs" : "BalanceRatio")->setValue(3.0);
        choose("ColorTransformationValueSelector", "Gain21");
        floating("ColorTransformationValue")->setValue(-1.25);
        floating("Gamma")->setValue(0.45);
        floating(first ? "ExposureTimeAbs" : "ExposureTime")->setValue(777.0);
        const QString between = saved();
        ASSERT_NE(before, between);

        QString errors;
        m_features->loadFeatures(before, errors, QStringLiteral("@CameraDevice"));
        EXPECT_EQ(errors.toStdString(), "");
        EXPECT_EQ(saved(), before);
        m_features->loadFeatures(between, errors, QStringLiteral("@CameraDevice"));
        EXPECT_EQ(errors.toStdString(), "");
        EXPECT_EQ(saved(), between);
    }
}

TEST_F(FeatureBehavior, SavedSettingsBringEveryFeatureBack)
{
    const auto isSelector = [](const QString& name) {
        return name.endsWith(QLatin1String("Selector")) || name == QLatin1String("LUTIndex");
    };
    for (const FeatureNames names : {FeatureNames::FirstGeneration, FeatureNames::SecondGeneration,
                                     FeatureNames::SecondGenerationMaker}) {
        open(names);
        const QString before = saved();
        const QStringList lines = before.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QHash<QString, int> lastLines; // of a selector: its own position
        for (int i = 0; i < lines.size(); ++i)
            lastLines[lines[i].section(QLatin1Char('\t'), 0, 0)] = i;
        QStringList alone; // features with a single value
        QString errors;
        for (int i = 0; i < lines.size(); ++i) {
            const QString& line = lines[i];
            const QString name = line.section(QLatin1Char('\t'), 0, 0);
            const QString value = line.section(QLatin1Char('\t'), 1);
            const bool leadsTheWay = isSelector(name) && lastLines[name] != i;
            const QString next = leadsTheWay ? value : otherValue(name, value);
            if (next == value)
                alone.append(line);
            m_features->loadFeatures(name + QLatin1Char('\t') + next, errors,
                                     QStringLiteral("@CameraDevice"));
        }
        const QStringList now = saved().split(QLatin1Char('\n'));
        QStringList kept;
        for (const QString& line : lines) {
            if (!alone.contains(line) && now.contains(line))
                kept.append(line);
        }
        int moved = 0;
        for (auto last = lastLines.cbegin(); last != lastLines.cend(); ++last)
            if (isSelector(last.key()) &&
                now.filter(last.key() + QLatin1Char('\t')).last() != lines[*last])
                ++moved;
        EXPECT_EQ(kept.join(QLatin1Char('\n')).toStdString(), "") << "not changed";
        EXPECT_GE(moved, 3) << "selectors stand elsewhere";
        EXPECT_LT(
            alone.filter(QRegularExpression(QStringLiteral("^(?!.*Selector\t|LUTIndex)"))).size(),
            4);

        m_features->loadFeatures(before, errors, QStringLiteral("@CameraDevice"));
        EXPECT_EQ(errors.toStdString(), "");
        EXPECT_EQ(saved().toStdString(), before.toStdString());
    }
}

TEST_F(FeatureBehavior, SavedSettingsDoNotTouchUserSets)
{
    open(FeatureNames::SecondGeneration);
    const QString text = saved();
    EXPECT_FALSE(text.contains(QStringLiteral("UserSet")));
    EXPECT_FALSE(text.contains(QStringLiteral("LUTValue")));
    EXPECT_TRUE(text.contains(QStringLiteral("BalanceRatio\t")));
}

TEST_F(FeatureBehavior, ARefusalComesWhenItWasAskedFor)
{
    open(FeatureNames::SecondGeneration);
    m_camera->refuseWrites(QStringLiteral("Gamma"), 2);
    floating("Gamma")->setValue(2.0);
    floating("Gain")->setValue(1.0);
    floating("Gamma")->setValue(2.5);
    EXPECT_THROW(floating("Gamma")->setValue(3.0), RuntimeException);
    EXPECT_FALSE(floating("Gamma")->trySetValue(3.0));
    EXPECT_EQ(floating("Gamma")->value(), 2.5);
    m_camera->refuseWrites(QStringLiteral("Gamma"), -1);
    EXPECT_EQ(written("Gamma", 3.0), 3.0);
}

TEST_F(FeatureBehavior, ParametersOfAClosedCameraThrow)
{
    open(FeatureNames::SecondGeneration);
    const auto gain = floating("Gain");
    m_camera->close();
    EXPECT_FALSE(gain->isWritable());
    EXPECT_THROW(gain->value(), RuntimeException);
    EXPECT_THROW(gain->setValue(1.0), RuntimeException);
    EXPECT_FALSE(gain->trySetValue(1.0));
    EXPECT_EQ(m_camera->parameterCollection(), nullptr);
}

TEST_F(FeatureBehavior, ParametersMayOutliveTheCamera)
{
    open(FeatureNames::SecondGeneration);
    const auto gain = floating("Gain");
    m_features.reset();
    m_camera.reset();
    EXPECT_THROW(gain->value(), RuntimeException);
}

} // namespace
} // namespace Cameras::Emulation
