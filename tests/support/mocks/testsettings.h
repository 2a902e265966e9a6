// SPDX-License-Identifier: Apache-2.0
// Keeps the application's settings of a test in a folder of its own.
#pragma once

#include <QCoreApplication>
#include <QSettings>
#include <QTemporaryDir>

class TestSettings
{
public:
    TestSettings()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("ostria-tests"));
        QCoreApplication::setApplicationName(QStringLiteral("tests"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_folder.path());
        QSettings().clear();
    }

private:
    QTemporaryDir m_folder;
};
