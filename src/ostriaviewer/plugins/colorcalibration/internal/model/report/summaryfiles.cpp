// SPDX-License-Identifier: Apache-2.0
// Folder and files of a saved calibration.
#include "summaryfiles.h"

#include "reportlog.h"

#include <QBuffer>
#include <QDir>
#include <QSaveFile>
#include <QTextStream>

namespace ColorCalibration {
namespace {

QString fileSystemName(QString name)
{
    static const QString refused = QStringLiteral("/\\:*?\"<>|");
    for (QChar& character : name) {
        if (refused.contains(character) || character.category() == QChar::Other_Control)
            character = QLatin1Char('_');
    }
    return name;
}

/// Fills a file under another name and gives it its own in the end: a reader never meets half of
/// one, nor the tail of a longer one that stood there before.
template <typename Fill>
bool replaceFile(const QString& path, Fill fill)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        fill(file);
        if (file.commit())
            return true;
    }
    logReportFailure(QStringLiteral("Cannot write the file \"%1\": %2.")
                         .arg(QDir::toNativeSeparators(path), file.errorString()));
    return false;
}

} // namespace

QString MakeOutputFolder(const QString& directory, const QString& stem, const QString& cameraModel,
                         const QDateTime& time)
{
    QString path = directory;
    if (!path.endsWith(QDir::separator()))
        path += QDir::separator();
    path += stem + QLatin1Char('_') + fileSystemName(cameraModel) + QLatin1Char('_') +
            time.toString(QStringLiteral("yyyyMMdd_hhmmss"));
    if (!QDir().mkpath(path))
        logReportFailure(QStringLiteral("Cannot make the folder \"%1\": choose a folder that may "
                                        "be written to.")
                             .arg(QDir::toNativeSeparators(path)));
    return path;
}

bool WriteTextFile(const QString& path, const QString& text)
{
    return replaceFile(path, [&text](QIODevice& file) {
        QTextStream stream(&file);
        stream.setCodec("UTF-8");
        stream << text << Qt::endl;
    });
}

QByteArray encodePng(const QImage& image)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    return image.save(&buffer, "PNG", -1) ? buffer.data() : QByteArray();
}

bool writePngBytes(const QString& path, const QByteArray& png)
{
    if (png.isEmpty()) {
        logReportFailure(QStringLiteral("Cannot write the file \"%1\": there is no image.")
                             .arg(QDir::toNativeSeparators(path)));
        return false;
    }
    return replaceFile(path, [&png](QIODevice& file) { file.write(png); });
}

bool WritePngFile(const QString& path, const QImage& image)
{
    return writePngBytes(path, encodePng(image));
}

} // namespace ColorCalibration
