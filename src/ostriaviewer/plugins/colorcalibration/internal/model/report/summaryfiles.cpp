// SPDX-License-Identifier: Apache-2.0
// Folder and files of a saved calibration.
#include "summaryfiles.h"

#include "reportlog.h"
#include "wholefile.h"

#include <QDir>

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

bool replaceFile(const QString& path, const QByteArray& bytes)
{
    const QString reason = Saving::writeWholeFile(path, bytes);
    if (!reason.isEmpty())
        logReportFailure(notWritten(path, reason));
    return reason.isEmpty();
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

bool WritePngFile(const QString& path, const Saving::EncodedPng& png)
{
    if (png.problem.isEmpty())
        return replaceFile(path, png.bytes);
    logReportFailure(notWritten(path, png.problem));
    return false;
}

} // namespace ColorCalibration
