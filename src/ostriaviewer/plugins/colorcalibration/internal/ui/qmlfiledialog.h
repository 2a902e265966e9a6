// SPDX-License-Identifier: Apache-2.0
// A file dialog of the desktop as QML opens it.
#pragma once

#include <QList>
#include <QQuickItem>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace ColorCalibration {

/// Has the properties of the file dialog of Qt Quick, and is a dialog of widgets, so that it also
/// works where that one does not. Writing an equal value is ignored. Thread-bound: GUI thread.
class QMLFileDialog : public QQuickItem
{
    Q_OBJECT
    /// The chosen file or folder: its path as a URL without a scheme ("/home/a b", "C:/a b"), as
    /// text with "%" as "%25". Empty if several were chosen.
    Q_PROPERTY(QUrl fileUrl READ fileUrl NOTIFY fileUrlChanged)
    Q_PROPERTY(QList<QUrl> fileUrls READ fileUrls NOTIFY fileUrlsChanged)
    /// Where the dialog opens, a file URL; a folder that is not there stands for the nearest one
    /// above it. Does not follow the choice.
    Q_PROPERTY(QUrl folder READ folder WRITE setFolder NOTIFY folderChanged)
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)
    /// As in "Settings (*.cst)".
    Q_PROPERTY(
        QStringList nameFilters READ nameFilters WRITE setNameFilters NOTIFY nameFiltersChanged)
    Q_PROPERTY(bool selectMultiple READ selectMultiple WRITE setSelectMultiple NOTIFY
                   selectMultipleChanged)
    Q_PROPERTY(bool selectFolder READ selectFolder WRITE setSelectFolder NOTIFY selectFolderChanged)

public:
    explicit QMLFileDialog(QQuickItem* parent = nullptr);

    QUrl fileUrl() const { return m_fileUrl; }
    QList<QUrl> fileUrls() const { return m_fileUrls; }
    QUrl folder() const { return m_folder; }
    QString title() const { return m_title; }
    QStringList nameFilters() const { return m_nameFilters; }
    bool selectMultiple() const { return m_selectMultiple; }
    bool selectFolder() const { return m_selectFolder; }

    void setFolder(const QUrl& folder);
    void setTitle(const QString& title);
    void setNameFilters(const QStringList& nameFilters);
    void setSelectMultiple(bool selectMultiple);
    void setSelectFolder(bool selectFolder);

    /// Shows the dialog and returns when it has ended. The end of the item's window rejects it.
    Q_INVOKABLE void open();

signals:
    void validChanged();
    void fileUrlChanged();
    void fileUrlsChanged();
    void folderChanged();
    void titleChanged();
    void nameFiltersChanged();
    void selectMultipleChanged();
    void selectFolderChanged();
    void accepted();
    void rejected();

protected slots:
    /// Take over what the dialog that sent the signal has chosen.
    virtual void onAccept();
    virtual void onReject();

private:
    void setFileUrls(const QList<QUrl>& fileUrls);

    QUrl m_fileUrl;
    QList<QUrl> m_fileUrls;
    QUrl m_folder;
    QString m_title;
    QStringList m_nameFilters;
    bool m_selectMultiple = false;
    bool m_selectFolder = false;
};

} // namespace ColorCalibration
