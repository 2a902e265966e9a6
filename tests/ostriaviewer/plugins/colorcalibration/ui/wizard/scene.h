// SPDX-License-Identifier: Apache-2.0
// A scene in the place of the wizard's own.
#pragma once

#include <QResource>
#include <QString>

#include <gtest/gtest.h>

class Scene
{
public:
    /// \param name  of a file in the folder scenes, without ".qml"
    explicit Scene(const QString& name)
        : m_file(QStringLiteral(TEST_SCENES "/%1.rcc").arg(name))
    {
        EXPECT_TRUE(QResource::registerResource(m_file)) << m_file.toStdString();
    }
    ~Scene() { QResource::unregisterResource(m_file); }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

private:
    QString m_file;
};
