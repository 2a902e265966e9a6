// SPDX-License-Identifier: Apache-2.0
// Tests of the scene that the user puts before the emulated cameras.
#include "emulatedcameras.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

TEST(EmulatedCameras, SayThatASceneIsTooLargeForThem)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath("wide.png");
    ASSERT_TRUE(QImage(70000, 2, QImage::Format_RGB888).save(file));
    QString error;
    Viewer::emulatedCameras(file, error);
    EXPECT_TRUE(error.contains(file)) << error.toStdString();
    EXPECT_TRUE(error.contains("65536")) << error.toStdString();
    EXPECT_TRUE(error.endsWith("Choose another image.")) << error.toStdString();
}
