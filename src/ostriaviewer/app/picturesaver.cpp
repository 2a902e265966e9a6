// SPDX-License-Identifier: Apache-2.0
// The user's saving of the picture on the screen.
#include "picturesaver.h"

#include "filenames.h"
#include "picturefile.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

#include <functional>
#include <new>

namespace Viewer {
namespace {

const auto folderName = QStringLiteral("PictureFolder");
const auto standardSuffix = QStringLiteral("png");

/// Stays open, as it is, where the file that was chosen cannot be used.
class SaveDialog final : public QFileDialog
{
public:
    using QFileDialog::QFileDialog;

    /// \return  whether the file is written
    std::function<bool(const QString& file)> write;

protected:
    void done(int result) override
    {
        if (result != Accepted || write(selectedFiles().constFirst()))
            QFileDialog::done(result);
    }
};

} // namespace

PictureSaver::PictureSaver(ViewerSettings& settings, QWidget* window)
    : QObject(window)
    , m_settings(settings)
    , m_window(window)
{}

void PictureSaver::save(const QImage& picture, const QString& camera)
{
    auto* dialog = new SaveDialog(m_window, tr("Save Picture"), folder(),
                                  tr("Pictures (*.png *.tif *.bmp *.jpg)"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    // A desktop's own dialog may add the suffix after it has looked for a file of that name.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDefaultSuffix(standardSuffix);
    dialog->selectFile(QStringLiteral("%1.%2").arg(fileNameNow(camera), standardSuffix));
    dialog->write = [this, picture, dialog](const QString& file) {
        const QString problem = write(picture, file);
        if (!problem.isEmpty())
            emit failed(problem, dialog);
        return problem.isEmpty();
    };
    dialog->open();
}

// A folder that is not there would become the name of the file.
QString PictureSaver::folder() const
{
    const QString standard = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    const QString folder = m_settings.value(folderName, standard).toString();
    return QFileInfo(folder).isDir() ? folder : QDir::homePath();
}

/// \return  empty, or what went wrong and what to do
QString PictureSaver::write(const QImage& picture, const QString& file)
{
    m_settings.setValue(folderName, QFileInfo(file).absolutePath());
    try {
        if (writePictureFile(picture, file).isEmpty())
            return {};
    } catch (const std::bad_alloc&) {
        return noMemoryForPicture();
    }
    return tr("%1 could not be written. Choose another folder or another kind of file, or make "
              "room on the disk.")
        .arg(QDir::toNativeSeparators(file));
}

} // namespace Viewer
