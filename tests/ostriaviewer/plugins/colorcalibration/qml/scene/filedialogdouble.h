// SPDX-License-Identifier: Apache-2.0
// A stand-in for the dialogs that ask for a folder.
#pragma once

#include <QQuickItem>
#include <QStringList>
#include <QUrl>

/// A dialog that ends at once, with the folder of s_answer, or without one where that is empty.
class FileDialogDouble : public QQuickItem
{
    Q_OBJECT
    Q_PROPERTY(QUrl fileUrl MEMBER m_fileUrl NOTIFY changed)
    Q_PROPERTY(QUrl folder MEMBER m_folder NOTIFY changed)
    Q_PROPERTY(QString title MEMBER m_title NOTIFY changed)
    Q_PROPERTY(QStringList nameFilters MEMBER m_nameFilters NOTIFY changed)
    Q_PROPERTY(bool selectMultiple MEMBER m_selectMultiple NOTIFY changed)
    Q_PROPERTY(bool selectFolder MEMBER m_selectFolder NOTIFY changed)

public:
    Q_INVOKABLE void open();

    static QUrl s_answer;
    /// The folder in which the last dialog was opened.
    static QUrl s_folder;

signals:
    void changed();
    void accepted();
    void rejected();

private:
    QUrl m_fileUrl;
    QUrl m_folder;
    QString m_title;
    QStringList m_nameFilters;
    bool m_selectMultiple = false;
    bool m_selectFolder = false;
};
