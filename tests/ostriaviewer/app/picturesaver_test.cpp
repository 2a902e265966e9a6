// SPDX-License-Identifier: Apache-2.0
// The picture on the screen becomes the file that the user names, and no other is lost for it.
#include "fulldisk.h"
#include "viewertest.h"

#include <QDir>
#include <QFileDialog>
#include <QImageReader>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTimer>

namespace Viewer {
namespace {

class PictureSaverTest : public ViewerTest
{
protected:
    void SetUp() override { QSettings().setValue("Viewer/PictureFolder", m_target.path()); }

    QString path(const QString& name) const { return m_target.filePath(name); }

    /// A still picture on the screen, and the dialog over it.
    void openDialog()
    {
        startViewer();
        clickCamera(0);
        QTest::keyClick(&window(), Qt::Key_F6);
        ASSERT_TRUE(waitForPicture());
        QTest::keyClick(&window(), Qt::Key_S, Qt::ControlModifier);
        ASSERT_TRUE(waitUntil([] { return dialog() != nullptr; }));
    }

    static QFileDialog* dialog()
    {
        return qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    }
    static QLineEdit* nameField() { return dialog()->findChild<QLineEdit*>("fileNameEdit"); }

    /// Types a name in place of the one that is proposed.
    static void enter(const QString& name)
    {
        QTest::keyClick(nameField(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(nameField(), name);
        QTest::keyClick(nameField(), Qt::Key_Return);
    }

    static QImage decoded(const QString& file)
    {
        return QImage(file).convertToFormat(QImage::Format_RGB32);
    }

    void writeOld(const QString& name) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("old");
    }

    bool isOld(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) && file.readAll() == "old";
    }

    QTemporaryDir m_target;
};

TEST_F(PictureSaverTest, WritesAPngWhereTheNameHasNoSuffix)
{
    ASSERT_NO_FATAL_FAILURE(openDialog());
    enter("a");
    EXPECT_TRUE(waitUntil([] { return !dialog(); }));
    EXPECT_EQ(decoded(path("a.png")), view().picture());
}

TEST_F(PictureSaverTest, WritesTheKindOfFileThatTheSuffixNames)
{
    ASSERT_NO_FATAL_FAILURE(openDialog());
    enter("a.BMP");
    EXPECT_TRUE(waitUntil([] { return !dialog(); }));
    EXPECT_EQ(QImageReader::imageFormat(path("a.BMP")), "bmp");
    EXPECT_EQ(decoded(path("a.BMP")), view().picture());
}

TEST_F(PictureSaverTest, AsksBeforeItReplacesAFileWhoseSuffixWasLeftOut)
{
    ASSERT_NO_FATAL_FAILURE(writeOld("a.png"));
    ASSERT_NO_FATAL_FAILURE(openDialog());
    // The question has an event loop of its own.
    QString question;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
        if (!messageBox())
            return;
        question = messageBox()->text();
        QTest::keyClick(messageBox(), Qt::Key_Escape);
    });
    answer.start(0);
    enter("a");
    answer.stop();
    EXPECT_EQ(question, "a.png already exists.\nDo you want to replace it?");
    EXPECT_TRUE(isOld("a.png"));
    ASSERT_TRUE(dialog()) << "another name can be chosen";
    enter("b");
    EXPECT_EQ(decoded(path("b.png")), view().picture());
}

TEST_F(PictureSaverTest, KeepsTheOldFileWhereTheDiskIsFull)
{
    ASSERT_NO_FATAL_FAILURE(writeOld("a.png"));
    ASSERT_NO_FATAL_FAILURE(openDialog());
    dialog()->setOption(QFileDialog::DontConfirmOverwrite);
    {
        const FullDisk disk;
        enter("a");
    }
    ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
    EXPECT_TRUE(messageBox()->text().startsWith(path("a.png") + " could not be written."));
    QTest::keyClick(messageBox(), Qt::Key_Return);
    EXPECT_TRUE(isOld("a.png"));
    EXPECT_EQ(QDir(m_target.path()).entryList(QDir::Files | QDir::Hidden), QStringList("a.png"));
    QTest::keyClick(dialog(), Qt::Key_Escape);
}

TEST_F(PictureSaverTest, KeepsFolderAndNameUntilThePictureIsWritten)
{
    ASSERT_TRUE(QDir(m_target.path()).mkdir("new"));
    ASSERT_NO_FATAL_FAILURE(openDialog());
    const QImage picture = view().picture();
    {
        const FullDisk disk;
        dialog()->setDirectory(path("new"));
        enter("a.bmp");
    }
    ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
    EXPECT_TRUE(messageBox()->text().startsWith(path("new/a.bmp") + " could not be written."));
    QTest::keyClick(messageBox(), Qt::Key_Return);
    ASSERT_TRUE(dialog());
    EXPECT_EQ(dialog()->directory().path(), path("new"));
    EXPECT_EQ(nameField()->text(), "a.bmp");
    EXPECT_TRUE(
        waitUntil([] { return QGuiApplication::focusWindow() == dialog()->windowHandle(); }));
    QTest::keyClick(nameField(), Qt::Key_Return);
    EXPECT_TRUE(waitUntil([] { return !dialog(); }));
    EXPECT_EQ(decoded(path("new/a.bmp")), picture);
}

TEST_F(PictureSaverTest, IsGivenUpAfterAFailureByEscape)
{
    ASSERT_NO_FATAL_FAILURE(openDialog());
    {
        const FullDisk disk;
        enter("a.png");
    }
    ASSERT_TRUE(waitUntil([] { return messageBox() != nullptr; }));
    QTest::keyClick(messageBox(), Qt::Key_Return);
    ASSERT_TRUE(dialog());
    QTest::keyClick(dialog(), Qt::Key_Escape);
    EXPECT_TRUE(waitUntil([] { return !QApplication::activeModalWidget(); }));
    EXPECT_TRUE(QDir(m_target.path()).isEmpty());
}

TEST_F(PictureSaverTest, ProposesTheCamerasNameAndTheTime)
{
    ASSERT_NO_FATAL_FAILURE(openDialog());
    EXPECT_TRUE(QRegularExpression("^" + m_first->modelName() +
                                   "_\\d{4}-\\d\\d-\\d\\d_\\d\\d-\\d\\d-\\d\\d\\.png$")
                    .match(nameField()->text())
                    .hasMatch())
        << qPrintable(nameField()->text());
    EXPECT_EQ(dialog()->directory().path(), m_target.path());
    const QString proposed = nameField()->text();
    QTest::keyClick(nameField(), Qt::Key_Return);
    EXPECT_EQ(decoded(path(proposed)), view().picture());
}

TEST_F(PictureSaverTest, OpensInTheHomeFolderWhereTheFolderIsGone)
{
    QSettings().setValue("Viewer/PictureFolder", path("gone"));
    ASSERT_NO_FATAL_FAILURE(openDialog());
    EXPECT_EQ(dialog()->directory().path(), QDir::homePath());
    EXPECT_TRUE(nameField()->text().startsWith(m_first->modelName()));
    QTest::keyClick(dialog(), Qt::Key_Escape);
}

} // namespace
} // namespace Viewer
