// SPDX-License-Identifier: Apache-2.0
// Pictures as files.
#include "picturefile.h"

#include "pngencoder.h"
#include "wholefile.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImageWriter>

#include <new>

namespace Viewer {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::PictureFile)
};

/// A picture in the format of a file, or why there is none.
struct Encoded
{
    QByteArray bytes;
    QString problem;
};

Encoded encoded(const QImage& picture, const QByteArray& format)
{
    if (format == "png") {
        const Saving::EncodedPng png = Saving::encodePngQuickly(picture);
        if (!png.problem.isEmpty())
            throw std::bad_alloc();
        return {png.bytes, {}};
    }
    Encoded file;
    QBuffer buffer(&file.bytes);
    QImageWriter writer(&buffer, format);
    if (!writer.write(picture))
        file.problem = writer.errorString();
    return file;
}

} // namespace

QString writePictureFile(const QImage& picture, const QString& path)
{
    const Encoded file = encoded(picture, QFileInfo(path).suffix().toLower().toLatin1());
    return file.problem.isEmpty() ? Saving::writeWholeFile(path, file.bytes) : file.problem;
}

QString noMemoryForPicture()
{
    return Texts::tr("There is not enough memory for the picture. Close other programs or choose a "
                     "smaller image size.");
}

} // namespace Viewer
