// SPDX-License-Identifier: Apache-2.0
// Results and settings that tests of the report share.
#pragma once

#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

inline QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

inline QString testData(const QString& name)
{
    return QStringLiteral(REPORT_TEST_DATA "/") + name;
}

/// What an emulated camera's calibration gave.
inline QJsonObject sampleResults()
{
    return QJsonDocument::fromJson(fileBytes(testData("results.json"))).object();
}

/// Fits into memory with its one bit a pixel, but no computer's QImage holds its rows in colors.
inline QImage imageWithoutRoom()
{
    return QImage(100'000'000, 1, QImage::Format_Mono);
}
