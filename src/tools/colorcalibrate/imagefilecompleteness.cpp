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

/// What a BMP header says of the pixels behind it.
struct BmpLayout
{
    qint64 width;
    qint64 height;
    int bitsPerPixel;
    bool isRunLength;
};

BmpLayout bmpLayout(const char* bytes)
{
    constexpr quint32 oldHeaderBytes = 12;
    if (qFromLittleEndian<quint32>(bytes + 14) == oldHeaderBytes)
        return {qFromLittleEndian<quint16>(bytes + 18), qFromLittleEndian<quint16>(bytes + 20),
                qFromLittleEndian<quint16>(bytes + 24), false};
    const auto compression = qFromLittleEndian<quint32>(bytes + 30);
    return {qFromLittleEndian<qint32>(bytes + 18),
            std::llabs(qFromLittleEndian<qint32>(bytes + 22)),
            qFromLittleEndian<quint16>(bytes + 28), compression == 1 || compression == 2};
}

bool isCompleteBmp(const QByteArray& data)
{
    constexpr int headerBytes = 34;
    if (data.size() < headerBytes)
        return false;
    const BmpLayout layout = bmpLayout(data.constData());
    if (layout.isRunLength)
        return true;
    const qint64 rowBytes = (layout.width * layout.bitsPerPixel + 31) / 32 * 4;
    const auto pixelsAt = qFromLittleEndian<quint32>(data.constData() + 10);
    return data.size() >= pixelsAt + rowBytes * layout.height;
}

bool isCompletePng(const QByteArray& data)
{
    const QByteArray endChunk("IEND\xAE\x42\x60\x82", 8);
    return data.lastIndexOf(endChunk) >= 0;
}

} // namespace

bool isComplete(const QByteArray& data, const QByteArray& format)
{
    if (format == "jpeg")
        return isCompleteJpeg(data);
    if (format == "bmp")
        return isCompleteBmp(data);
    if (format == "png")
        return isCompletePng(data);
    return true;
}

} // namespace ColorCalibrate
