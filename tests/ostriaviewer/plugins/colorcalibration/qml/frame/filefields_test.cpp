// SPDX-License-Identifier: Apache-2.0
// Picking the file of earlier settings, and typing into its field.
#include "wizardwindow.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace {

class FileFields : public WizardWindow
{
protected:
    /// Does this with the file dialog that comes next.
    void onDialog(const std::function<void(QFileDialog*)>& answer)
    {
        QObject::connect(&m_poll, &QTimer::timeout, &m_poll, [this, answer] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            m_poll.stop();
            answer(dialog);
        });
        m_poll.start(5);
    }

    static void accept(QFileDialog* dialog) { QMetaObject::invokeMethod(dialog, "accept"); }

    QTimer m_poll;
    QTemporaryDir m_folder;
};

TEST_F(FileFields, LeaveNoDialogBehindTheWizard)
{
    openAt(1);
    bool isShown = false;
    onDialog([&](QFileDialog* dialog) {
        isShown = dialog->isVisible();
        m_view->hide();
        EXPECT_FALSE(dialog->isVisible());
        dialog->close();
    });
    click("openIcon");
    EXPECT_TRUE(isShown);
    EXPECT_EQ(m_model.m_previousFile, "");
}

TEST_F(FileFields, TakeTheChosenFileWithItsSpacesAndPercents)
{
    const QString path = m_folder.filePath("my 100% settings ä.cst");
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    m_model.m_location = QUrl::fromLocalFile(m_folder.path()).toString();
    openAt(1);
    QString title;
    QStringList filters;
    QString start;
    auto mode = QFileDialog::AnyFile;
    onDialog([&](QFileDialog* dialog) {
        title = dialog->windowTitle();
        filters = dialog->nameFilters();
        start = dialog->directory().path();
        mode = dialog->fileMode();
        dialog->selectFile(path);
        accept(dialog);
    });
    click("openIcon");
    EXPECT_EQ(m_model.m_previousFile, path);
    EXPECT_EQ(property("textInput", "text").toString(), path);
    EXPECT_EQ(title, "Choose a file");
    EXPECT_EQ(filters, QStringList{"OstriaFeatureStream files (*.cst )"});
    EXPECT_EQ(QDir(start), QDir(m_folder.path()));
    EXPECT_EQ(mode, QFileDialog::ExistingFile);
}

TEST_F(FileFields, KeepTheFolderThatTheDialogBeganIn)
{
    const QString path = m_folder.filePath("a.cst");
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly));
    openAt(1);
    onDialog([&](QFileDialog* dialog) {
        dialog->setDirectory(m_folder.path());
        dialog->selectFile(path);
        accept(dialog);
    });
    click("openIcon");
    EXPECT_EQ(m_model.m_previousFile, path);
    EXPECT_EQ(property("previousCalibrationDialog", "folder").toString(), "file:///tmp");
}

TEST_F(FileFields, KeepTheirFileWhenTheDialogIsLeft)
{
    m_model.m_previousFile = "/before.cst";
    openAt(1);
    onDialog([](QFileDialog* dialog) { dialog->reject(); });
    click("openIcon");
    EXPECT_EQ(m_model.m_previousFile, "/before.cst");
    EXPECT_EQ(takeCalls(), QStringList{"console: Rejected"});
}

TEST_F(FileFields, OpenTheDialogBySpace)
{
    openAt(1);
    bool opened = false;
    onDialog([&](QFileDialog* dialog) {
        opened = true;
        dialog->reject();
    });
    ASSERT_TRUE(tabTo(item("openIcon")));
    press(Qt::Key_Space);
    EXPECT_TRUE(opened);
}

TEST_F(FileFields, DoNotTakeOverWhatIsTyped)
{
    openAt(1);
    ASSERT_TRUE(tabTo(item("textInput")));
    press(Qt::Key_A);
    EXPECT_EQ(property("textInput", "text").toString(), "a");
    press(Qt::Key_Tab);
    EXPECT_EQ(m_model.m_previousFile, "");
}

TEST_F(FileFields, GetTheFocusWhereTheirTextChanges)
{
    openAt(1);
    EXPECT_FALSE(item("textInput")->hasActiveFocus());
    m_model.setProperty("previousCalibrationFile", "/a.cst");
    EXPECT_EQ(property("textInput", "text").toString(), "/a.cst");
    EXPECT_TRUE(item("textInput")->hasActiveFocus());
}

TEST_F(FileFields, ExplainThemselvesUnderTheMouse)
{
    openAt(1);
    QTest::mouseMove(m_view.get(), middleOf(item("previousCalibrationField")));
    ASSERT_TRUE(waitFor([this] { return item("standardToolTip")->isVisible(); }));
    EXPECT_EQ(property("toolTipText", "text").toString(),
              "Load camera settings that were saved in a .cst file in a previous session.");
}

} // namespace
