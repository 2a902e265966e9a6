// SPDX-License-Identifier: Apache-2.0
// Whether an image file has been cut off, for the formats whose decoders do not mind.
#include "imagefilecompleteness.h"

#include <QtEndian>

#include <cstdlib>

namespace ColorCalibrate {
namespace {

constexpr uchar endOfImage = 0xD9;

bool isRestartOrStuffing(uchar marker)
{
    return marker == 0x00 || marker == 0xFF || (marker >= 0xD0 && marker <= 0xD7);
}

/// Walks from marker to marker, so that an end inside of an embedded thumbnail does not count.
bool isCompleteJpeg(const QByteArray& data)
{
    int at = 2; // behind the start of image
    while (at + 1 < data.size()) {
        const auto marker = static_cast<uchar>(data.at(at + 1));
        if (static_cast<uchar>(data.at(at)) != 0xFF || isRestartOrStuffing(marker)) {
            ++at;
            continue;
        }
        if (marker == endOfImage)
            return true;
        if (at + 4 > data.size())
            return false;
        at += 2 + qFromBigEndian<quint16>(data.constData() + at + 2);
    }
    return false;
}

bool isCompleteBmp(const QByteArray& data)
{
    constexpr int headerBytes = 34;
    if (data.size() < headerBytes)
        return false;
    const char* bytes = data.constData();
    const auto infoBytes = qFromLittleEndian<quint32>(bytes + 14);
    const auto compression = qFromLittleEndian<quint32>(bytes + 30);
    const bool isOldHeader = infoBytes == 12;
    const bool isRunLength = !isOldHeader && (compression == 1 || compression == 2);
    if (isOldHeader || isRunLength)
        return true;
    const qint64 width = qFromLittleEndian<qint32>(bytes + 18);
    const qint64 height = std::llabs(qFromLittleEndian<qint32>(bytes + 22));
    const auto bitsPerPixel = qFromLittleEndian<quint16>(bytes + 28);
    const qint64 rowBytes = (width * bitsPerPixel + 31) / 32 * 4;
    return data.size() >= qFromLittleEndian<quint32>(bytes + 10) + rowBytes * height;
}

bool isCompletePng(const QByteArray& data)
{
    const QByteArray endChunk("IEND\xAE\x42\x60\x82", 8);
    return data.lastIndexOf(endChunk) >= 0;
}

} // namespace

bool isComplete(QIODevice& file, const QByteArray& format)
{
    bool (*check)(const QByteArray&) = nullptr;
    if (format == "jpeg" || format == "jpg")
        check = isCompleteJpeg;
    else if (format == "bmp")
        check = isCompleteBmp;
    else if (format == "png")
        check = isCompletePng;
    if (!check)
        return true;
    file.seek(0);
    return check(file.readAll());
}

} // namespace ColorCalibrate
