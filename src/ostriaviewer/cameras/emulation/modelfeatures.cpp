// SPDX-License-Identifier: Apache-2.0
// Which features a camera model has: device, image format, acquisition, user sets.
#include "modelfeatures.h"

#include "pixeltype.h"

namespace Cameras::Emulation {
namespace {

using Ostria::PixelType;

EntryDefinition format(const char* name, PixelType type)
{
    return {QString::fromLatin1(name), static_cast<qint64>(type), {}, {}};
}

QVector<EntryDefinition> pixelFormats(const CameraModel& model)
{
    QVector<EntryDefinition> formats = {format("Mono8", PixelType::Mono8),
                                        format("Mono12", PixelType::Mono12)};
    if (model.sensor.mono)
        return formats;
    formats += {format("BayerRG8", PixelType::BayerRG8), format("BayerRG12", PixelType::BayerRG12)};
    if (model.names == FeatureNames::FirstGeneration)
        formats += {format("YUV422_YUYV_Packed", PixelType::YUV422_8),
                    format("RGB8Packed", PixelType::RGB8), format("BGR8Packed", PixelType::BGR8),
                    format("BGRA8Packed", PixelType::BGRa8)};
    else
        formats += {format("YUV422_8", PixelType::YUV422_8), format("RGB8", PixelType::RGB8),
                    format("BGR8", PixelType::BGR8), format("BGRa8", PixelType::BGRa8)};
    if (!model.roundingEnabled)
        formats += format("RGB16", PixelType::RGB16);
    return formats;
}

PixelType usualPixelFormat(const CameraModel& model)
{
    if (model.sensor.mono)
        return PixelType::Mono8;
    return model.roundingEnabled ? PixelType::RGB8 : PixelType::RGB16;
}

} // namespace

Condition whileAcquiring()
{
    return {QStringLiteral("TLParamsLocked"), {1}};
}

FeatureTable modelFeatures(const CameraModel& model)
{
    FeatureTable table;
    table.hidden(QStringLiteral("TLParamsLocked"));
    addDeviceFeatures(table, model);
    addImageFormatFeatures(table, model);
    addAcquisitionFeatures(table, model);
    addAnalogFeatures(table, model);
    if (!model.sensor.mono)
        addColorFeatures(table, model);
    addUserSetFeatures(table);
    if (!model.roundingEnabled)
        table.keepFractions();
    return table;
}

void addDeviceFeatures(FeatureTable& table, const CameraModel& model)
{
    table.beginCategory(QStringLiteral("DeviceControl"));
    table.string(QStringLiteral("DeviceVendorName"), QStringLiteral("Emulated Cameras"));
    table.string(QStringLiteral("DeviceModelName"), model.name);
    table.string(model.names == FeatureNames::FirstGeneration
                     ? QStringLiteral("DeviceID")
                     : QStringLiteral("DeviceSerialNumber"),
                 model.serialNumber);
    const auto version = [&table](const char* name, int value) {
        table.integer(QString::fromLatin1(name), value, {0.0}, {255.0}).readOnly();
    };
    version("DeviceSFNCVersionMajor", model.sfncVersion.majorVersion());
    version("DeviceSFNCVersionMinor", model.sfncVersion.minorVersion());
    version("DeviceSFNCVersionSubMinor", model.sfncVersion.microVersion());
    if (model.colorPipelineVersion)
        version("DeviceColorPipelineVersion", *model.colorPipelineVersion);
}

void addImageFormatFeatures(FeatureTable& table, const CameraModel& model)
{
    const double width = model.sensor.width;
    const double height = model.sensor.height;
    const double smallest = 16.0;
    table.beginCategory(QStringLiteral("ImageFormatControl"));
    for (const char* name : {"SensorWidth", "WidthMax"})
        table.integer(QString::fromLatin1(name), width, {0.0}, {width}).readOnly();
    for (const char* name : {"SensorHeight", "HeightMax"})
        table.integer(QString::fromLatin1(name), height, {0.0}, {height}).readOnly();

    table
        .integer(QStringLiteral("Width"), width, {smallest}, {width, QStringLiteral("OffsetX"), -1},
                 2)
        .lockedBy(whileAcquiring());
    table
        .integer(QStringLiteral("Height"), height, {smallest},
                 {height, QStringLiteral("OffsetY"), -1}, 2)
        .lockedBy(whileAcquiring());
    table.integer(QStringLiteral("OffsetX"), 0, {0.0}, {width, QStringLiteral("Width"), -1}, 2);
    table.integer(QStringLiteral("OffsetY"), 0, {0.0}, {height, QStringLiteral("Height"), -1}, 2);

    const PixelType usual = usualPixelFormat(model);
    table.enumeration(QStringLiteral("PixelFormat"), pixelFormats(model))
        .lockedBy(whileAcquiring())
        .from({static_cast<double>(usual)});

    table.enumeration(model.names == FeatureNames::FirstGeneration
                          ? QStringLiteral("TestImageSelector")
                          : QStringLiteral("TestPattern"),
                      {QStringLiteral("Off"), QStringLiteral("GreyHorizontalRamp"),
                       QStringLiteral("GreyHorizontalRampMoving"), QStringLiteral("ColorBar")});
}

void addUserSetFeatures(FeatureTable& table)
{
    const QVector<EntryDefinition> sets = {
        {QStringLiteral("Default"), 0, QStringLiteral("Factory Settings"), {}},
        {QStringLiteral("UserSet1"), 1, QStringLiteral("User Set 1"), {}},
        {QStringLiteral("UserSet2"), 2, QStringLiteral("User Set 2"), {}},
        {QStringLiteral("UserSet3"), 3, QStringLiteral("User Set 3"), {}},
    };
    table.beginCategory(QStringLiteral("UserSetControl"));
    table.enumeration(QStringLiteral("UserSetSelector"), sets).notSaved();
    table.command(QStringLiteral("UserSetLoad")).lockedBy(whileAcquiring());
    table.command(QStringLiteral("UserSetSave")).lockedBy({QStringLiteral("UserSetSelector"), {0}});
    table.enumeration(QStringLiteral("UserSetDefault"), sets).notSaved();
}

void addTransportFeatures(FeatureTable& table)
{
    constexpr double largestPayload = 1e9;
    table.beginCategory(QStringLiteral("AcquisitionControl"));
    table
        .enumeration(QStringLiteral("AcquisitionMode"),
                     {QStringLiteral("Continuous"), QStringLiteral("SingleFrame")})
        .lockedBy(whileAcquiring());
    table.command(QStringLiteral("AcquisitionStart"));
    table.command(QStringLiteral("AcquisitionStop"));
    table.beginCategory(QStringLiteral("TransportLayerControl"));
    table.integer(QStringLiteral("PayloadSize"), 0, {0.0}, {largestPayload}).readOnly();
}

} // namespace Cameras::Emulation
