// SPDX-License-Identifier: Apache-2.0
// Tests of files that are whole or as they were.
#include "wholefile.h"

#include "fulldisk.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using Saving::writeWholeFile;

namespace {

class WholeFile : public testing::Test
{
protected:
    QString path() const { return m_folder.filePath("f"); }
    QByteArray content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }

    QTemporaryDir m_folder;
};

TEST_F(WholeFile, TakesThePlaceOfALongerOne)
{
    EXPECT_EQ(writeWholeFile(path(), QByteArray(100000, 'x')), "");
    EXPECT_EQ(writeWholeFile(path(), "short"), "");
    EXPECT_EQ(content(), "short");
}

TEST_F(WholeFile, LeavesTheOldOneWhereTheDiskIsFullAndSaysWhy)
{
    ASSERT_EQ(writeWholeFile(path(), "old"), "");
    QString reason;
    {
        const FullDisk disk;
        reason = writeWholeFile(path(), QByteArray(100000, 'x'));
    }
    EXPECT_EQ(reason, "File too large");
    EXPECT_EQ(content(), "old");
    EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("f"));
}

TEST_F(WholeFile, SaysThatAFolderIsNotThere)
{
    EXPECT_EQ(writeWholeFile(m_folder.filePath("none/f"), "new"), "No such file or directory");
}

} // namespace
