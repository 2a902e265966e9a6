// SPDX-License-Identifier: Apache-2.0
// What a test program and its children store goes to a folder of its own. Several run at a time,
// and nobody's own settings are to be touched.
#include <QTemporaryDir>

namespace {

/// Before main, as settings are looked for in one place from their first use on.
struct OwnFolders
{
    OwnFolders()
    {
        if (!folder.isValid())
            qFatal("no folder for what the tests store: %s", qPrintable(folder.errorString()));
        for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            qputenv(variable, folder.filePath(QString::fromLatin1(variable)).toUtf8());
    }

    QTemporaryDir folder;
};

const OwnFolders folders;

} // namespace
