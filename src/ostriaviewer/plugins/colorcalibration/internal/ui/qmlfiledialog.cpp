// SPDX-License-Identifier: Apache-2.0
// A file dialog of the desktop as QML opens it.
#include "qmlfiledialog.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QQuickWindow>

namespace ColorCalibration {
namespace {

// A file's own "%20" must not come out as a blank.
QList<QUrl> urlsOf(QStringList paths)
{
    return QUrl::fromStringList(paths.replaceInStrings(QStringLiteral("%"), QStringLiteral("%25")));
}

// Qt takes the current folder for one that is not there, as documents that nobody has made yet.
QUrl nearestFolder(const QUrl& folder)
{
    if (!folder.isLocalFile())
        return folder;
    QString path = QDir::cleanPath(folder.toLocalFile());
    while (!QFileInfo(path).isDir() && path != QFileInfo(path).path())
        path = QFileInfo(path).path();
    return QUrl::fromLocalFile(path);
}

/// A dialog whose Open button also takes a folder. Qt's own one enters it unless its file mode says
/// otherwise; that of the system does not care.
class FileDialog : public QFileDialog
{
public:
    using QFileDialog::QFileDialog;

protected:
    void accept() override
    {
        if (!testOption(ShowDirsOnly)) {
            QFileDialog::accept();
            return;
        }
        if (selectedFiles().isEmpty())
            selectFile(directory().absolutePath());
        const QStringList chosen = selectedFiles();
        if (chosen.size() == 1 && QFileInfo(chosen.first()).isDir())
            QDialog::accept();
        else
            QFileDialog::accept();
    }
};

} // namespace

QMLFileDialog::QMLFileDialog(QQuickItem* parent)
    : QQuickItem(parent)
{}

void QMLFileDialog::setFolder(const QUrl& folder)
{
    if (m_folder == folder)
        return;
    m_folder = folder;
    emit folderChanged();
}

void QMLFileDialog::setTitle(const QString& title)
{
    if (m_title == title)
        return;
    m_title = title;
    emit titleChanged();
}

void QMLFileDialog::setNameFilters(const QStringList& nameFilters)
{
    if (m_nameFilters == nameFilters)
        return;
    m_nameFilters = nameFilters;
    emit nameFiltersChanged();
}

void QMLFileDialog::setSelectMultiple(bool selectMultiple)
{
    if (m_selectMultiple == selectMultiple)
        return;
    m_selectMultiple = selectMultiple;
    emit selectMultipleChanged();
}

void QMLFileDialog::setSelectFolder(bool selectFolder)
{
    if (m_selectFolder == selectFolder)
        return;
    m_selectFolder = selectFolder;
    emit selectFolderChanged();
}

void QMLFileDialog::open()
{
    FileDialog dialog;
    if (m_selectFolder)
        dialog.setOption(QFileDialog::ShowDirsOnly);
    else
        dialog.setFileMode(m_selectMultiple ? QFileDialog::ExistingFiles
                                            : QFileDialog::ExistingFile);
    dialog.setWindowTitle(m_title);
    dialog.setDirectoryUrl(nearestFolder(m_folder));
    dialog.setNameFilters(m_nameFilters);
    connect(&dialog, &QFileDialog::accepted, this, &QMLFileDialog::onAccept);
    connect(&dialog, &QFileDialog::rejected, this, &QMLFileDialog::onReject);
    // One that outlived its window would lock the program.
    if (window())
        connect(window(), &QWindow::visibleChanged, &dialog, &QFileDialog::reject);
    dialog.exec();
}

void QMLFileDialog::onAccept()
{
    const auto* dialog = qobject_cast<QFileDialog*>(sender());
    if (!dialog)
        return;
    const QList<QUrl> urls = urlsOf(dialog->selectedFiles());
    if (!urls.isEmpty())
        setFileUrls(urls);
    emit accepted();
}

void QMLFileDialog::onReject()
{
    if (qobject_cast<QFileDialog*>(sender()))
        emit rejected();
}

void QMLFileDialog::setFileUrls(const QList<QUrl>& fileUrls)
{
    const QUrl single = fileUrls.size() == 1 ? fileUrls.first() : QUrl();
    if (m_fileUrl != single) {
        m_fileUrl = single;
        emit fileUrlChanged();
    }
    if (m_fileUrls != fileUrls) {
        m_fileUrls = fileUrls;
        emit fileUrlsChanged();
    }
}

} // namespace ColorCalibration
