// SPDX-License-Identifier: Apache-2.0
// Folder and files of a saved calibration.
#include "summaryfiles.h"

#include "reportlog.h"

#include <QDir>
#include <QSaveFile>

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

QString notWritten(const QString& path, const QString& reason)
{
    return QStringLiteral("Cannot write the file \"%1\": %2.")
        .arg(QDir::toNativeSeparators(path), reason);
}

/// A disk that fills up takes a part first and gives the reason with the next attempt.
bool writeAll(QFileDevice& file, const QByteArray& bytes)
{
    qint64 written = 0;
    while (written < bytes.size()) {
        const qint64 taken = file.write(bytes.constData() + written, bytes.size() - written);
        if (taken <= 0)
            return false;
        written += taken;
    }
    return file.flush();
}

/// Fills a file under another name and gives it its own in the end: a reader never meets half of
/// one, nor the tail of a longer one that stood there before.
bool replaceFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && writeAll(file, bytes) && file.commit())
        return true;
    logReportFailure(notWritten(path, file.errorString()));
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
    if (!QDir().mkpath(path)) {
        // Qt has no question for it; it is what the system said last.
        const QString reason = qt_error_string();
        logReportFailure(QStringLiteral("Cannot make the folder \"%1\": %2. Choose a folder that "
                                        "may be written to.")
                             .arg(QDir::toNativeSeparators(path), reason));
    }
    return path;
}

bool WriteTextFile(const QString& path, const QString& text)
{
    return replaceFile(path, text.toUtf8() + '\n');
}

bool WritePngFile(const QString& path, const EncodedPng& png)
{
    if (png.problem.isEmpty())
        return replaceFile(path, png.bytes);
    logReportFailure(notWritten(path, png.problem));
    return false;
}

} // namespace ColorCalibration
