// SPDX-License-Identifier: Apache-2.0
// Tests of the file dialog as QML opens it.
#include "qmlfiledialog.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace ColorCalibration {
namespace {

class QmlFileDialogTest : public testing::Test
{
protected:
    QmlFileDialogTest()
    {
        for (const char* name : {"one.cst", "two words.cst", "100%25 #1?.cst"}) {
            QFile file(m_folder.filePath(name));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        }
        EXPECT_TRUE(QDir(m_folder.path()).mkdir("inner"));
    }

    /// Opens the dialog and does something in it.
    void open(const std::function<void(QFileDialog&)>& action)
    {
        bool acted = false;
        QTimer::singleShot(0, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            acted = true;
            action(*dialog);
        });
        ASSERT_TRUE(QMetaObject::invokeMethod(&m_item, "open"));
        EXPECT_TRUE(acted);
    }

    /// What the pages make of the chosen URL.
    QString path() const { return QUrl::fromPercentEncoding(m_item.fileUrl().toString().toUtf8()); }

    QTemporaryDir m_folder;
    QMLFileDialog m_item;
    QSignalSpy m_accepted{&m_item, &QMLFileDialog::accepted};
    QSignalSpy m_rejected{&m_item, &QMLFileDialog::rejected};
    QSignalSpy m_fileUrl{&m_item, &QMLFileDialog::fileUrlChanged};
    QSignalSpy m_fileUrls{&m_item, &QMLFileDialog::fileUrlsChanged};
    QSignalSpy m_folderChanged{&m_item, &QMLFileDialog::folderChanged};
};

TEST_F(QmlFileDialogTest, IsEmptyAtFirst)
{
    EXPECT_TRUE(m_item.fileUrl().isEmpty());
    EXPECT_TRUE(m_item.fileUrls().isEmpty());
    EXPECT_TRUE(m_item.folder().isEmpty());
    EXPECT_TRUE(m_item.title().isEmpty());
    EXPECT_TRUE(m_item.nameFilters().isEmpty());
    EXPECT_FALSE(m_item.selectMultiple());
    EXPECT_FALSE(m_item.selectFolder());
}

TEST_F(QmlFileDialogTest, AnEqualValueIsIgnored)
{
    const QVector<QPair<const char*, QVariant>> writes{
        {"folder", QUrl::fromLocalFile("/tmp")},
        {"title", "Choose a file"},
        {"nameFilters", QStringList("Settings (*.cst)")},
        {"selectMultiple", true},
        {"selectFolder", true}};
    for (const auto& write : writes) {
        const QByteArray signal =
            QByteArray::number(QSIGNAL_CODE) + QByteArray(write.first) + "Changed()";
        const QSignalSpy changed(&m_item, signal.constData());
        ASSERT_TRUE(m_item.setProperty(write.first, write.second)) << write.first;
        ASSERT_TRUE(m_item.setProperty(write.first, write.second)) << write.first;
        EXPECT_EQ(changed.count(), 1) << write.first;
        EXPECT_EQ(m_item.property(write.first), write.second) << write.first;
    }
    EXPECT_FALSE(m_item.setProperty("fileUrl", QUrl("x"))) << "read-only";
    EXPECT_FALSE(m_item.setProperty("fileUrls", QVariant())) << "read-only";
}

TEST_F(QmlFileDialogTest, TheDialogShowsTheProperties)
{
    m_item.setTitle("Choose a file");
    m_item.setFolder(QUrl::fromLocalFile(m_folder.path()));
    m_item.setNameFilters({"OstriaFeatureStream files (*.cst )"});
    open([this](QFileDialog& dialog) {
        EXPECT_FALSE(dialog.parent());
        EXPECT_EQ(dialog.windowTitle(), "Choose a file");
        EXPECT_EQ(dialog.directory(), QDir(m_folder.path()));
        EXPECT_EQ(dialog.nameFilters(), QStringList("OstriaFeatureStream files (*.cst )"));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        EXPECT_FALSE(dialog.testOption(QFileDialog::ShowDirsOnly));
        dialog.reject();
    });
    m_item.setSelectMultiple(true);
    open([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFiles);
        dialog.reject();
    });
    m_item.setSelectFolder(true);
    open([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.fileMode(), QFileDialog::AnyFile);
        EXPECT_TRUE(dialog.testOption(QFileDialog::ShowDirsOnly));
        dialog.reject();
    });
}

TEST_F(QmlFileDialogTest, AFolderThatIsNotThereStandsForTheNearestAboveIt)
{
    const QUrl missing = QUrl::fromLocalFile(m_folder.filePath("not/there"));
    m_item.setFolder(missing);
    open([this](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory(), QDir(m_folder.path()));
        dialog.reject();
    });
    EXPECT_EQ(m_item.folder(), missing);
}

TEST_F(QmlFileDialogTest, AChosenFileIsAUsablePath)
{
    m_item.setFolder(QUrl::fromLocalFile(m_folder.path()));
    for (const char* name : {"one.cst", "two words.cst", "100%25 #1?.cst"}) {
        const QString file = m_folder.filePath(name);
        open([&file](QFileDialog& dialog) {
            dialog.selectFile(file);
            QMetaObject::invokeMethod(&dialog, "accept");
        });
        EXPECT_EQ(path(), file);
        EXPECT_EQ(m_item.fileUrls(), QList<QUrl>{m_item.fileUrl()});
    }
    EXPECT_EQ(m_accepted.count(), 3);
    EXPECT_EQ(m_fileUrl.count(), 3);
    EXPECT_EQ(m_fileUrls.count(), 3);
    EXPECT_EQ(m_folderChanged.count(), 1) << "the folder does not follow the choice";
}

TEST_F(QmlFileDialogTest, SeveralFilesHaveNoSingleUrl)
{
    m_item.setFolder(QUrl::fromLocalFile(m_folder.path()));
    m_item.setSelectMultiple(true);
    open([](QFileDialog& dialog) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(R"("one.cst" "two words.cst")");
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(m_item.fileUrls().size(), 2);
    EXPECT_TRUE(m_item.fileUrl().isEmpty());
}

TEST_F(QmlFileDialogTest, AFolderIsChosenByTheOpenButton)
{
    m_item.setFolder(QUrl::fromLocalFile(m_folder.path()));
    m_item.setSelectFolder(true);
    open([this](QFileDialog& dialog) {
        dialog.selectFile(m_folder.filePath("inner"));
        QMetaObject::invokeMethod(&dialog, "accept");
        EXPECT_FALSE(dialog.isVisible()) << "it entered the folder instead";
        if (dialog.isVisible())
            dialog.reject();
    });
    EXPECT_EQ(m_accepted.count(), 1);
    EXPECT_EQ(path(), m_folder.filePath("inner"));
}

TEST_F(QmlFileDialogTest, TheFolderInWhichTheDialogStandsCanBeChosenToo)
{
    m_item.setFolder(QUrl::fromLocalFile(m_folder.path()));
    m_item.setSelectFolder(true);
    open([](QFileDialog& dialog) {
        QMetaObject::invokeMethod(&dialog, "accept");
        if (dialog.isVisible())
            dialog.reject();
    });
    EXPECT_EQ(m_accepted.count(), 1);
    EXPECT_EQ(path(), m_folder.path());
}

TEST_F(QmlFileDialogTest, RejectionLeavesEverythingAsItWas)
{
    open([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(m_rejected.count(), 1);
    EXPECT_EQ(m_accepted.count() + m_fileUrl.count() + m_fileUrls.count(), 0);
}

TEST_F(QmlFileDialogTest, AnEmptyChoiceIsAcceptedWithTheOldUrl)
{
    m_item.setFolder(QUrl::fromLocalFile(m_folder.path()));
    open([this](QFileDialog& dialog) {
        dialog.selectFile(m_folder.filePath("one.cst"));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    const QUrl old = m_item.fileUrl();
    open([](QFileDialog& dialog) {
        // The signal alone: by hand, no dialog lets an empty choice through.
        emit dialog.accepted();
        dialog.blockSignals(true);
        dialog.reject();
    });
    EXPECT_EQ(m_accepted.count(), 2);
    EXPECT_EQ(m_item.fileUrl(), old);
}

TEST_F(QmlFileDialogTest, OthersThanAFileDialogAreNotListenedTo)
{
    ASSERT_TRUE(QMetaObject::invokeMethod(&m_item, "onAccept"));
    ASSERT_TRUE(QMetaObject::invokeMethod(&m_item, "onReject"));
    EXPECT_EQ(m_accepted.count() + m_rejected.count(), 0);
}

} // namespace
} // namespace ColorCalibration
