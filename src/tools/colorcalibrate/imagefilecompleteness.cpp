// SPDX-License-Identifier: Apache-2.0
// What the decoders do not mind: image files that were cut off, or are made to take minutes.
#include "imagefilecompleteness.h"

#include <QtEndian>

#include <algorithm>
#include <cstdlib>

namespace ColorCalibrate {
namespace {

constexpr uchar endOfImage = 0xD9;

bool isRestartOrStuffing(uchar marker)
{
    return marker == 0x00 || marker == 0xFF || (marker >= 0xD0 && marker <= 0xD7);
}

/// What a walk from marker to marker finds; what an embedded thumbnail holds does not count.
struct JpegWalk
{
    bool reachesTheEnd = false;
    int scans = 0;
};

JpegWalk walkJpeg(const QByteArray& data)
{
    constexpr uchar startOfScan = 0xDA;
    JpegWalk walk;
    int at = 2; // behind the start of image
    while (at + 1 < data.size()) {
        const auto marker = static_cast<uchar>(data.at(at + 1));
        if (static_cast<uchar>(data.at(at)) != 0xFF || isRestartOrStuffing(marker)) {
            ++at;
            continue;
        }
        walk.scans += marker == startOfScan ? 1 : 0;
        walk.reachesTheEnd = marker == endOfImage;
        if (walk.reachesTheEnd || at + 4 > data.size())
            return walk;
        at += 2 + qFromBigEndian<quint16>(data.constData() + at + 2);
    }
    return walk;
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
    // Decoders begin behind the headers where the field says less.
    const qint64 behindHeaders = 14 + qint64{qFromLittleEndian<quint32>(data.constData() + 14)};
    const qint64 pixelsAt = qFromLittleEndian<quint32>(data.constData() + 10);
    return data.size() >= std::max(pixelsAt, behindHeaders) + rowBytes * layout.height;
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
        return walkJpeg(data).reachesTheEnd;
    if (format == "bmp")
        return isCompleteBmp(data);
    if (format == "png")
        return isCompletePng(data);
    return true;
}

bool isCheapToDecode(const QByteArray& data, const QByteArray& format)
{
    constexpr int mostScans = 100;
    return format != "jpeg" || walkJpeg(data).scans <= mostScans;
}

} // namespace ColorCalibrate
