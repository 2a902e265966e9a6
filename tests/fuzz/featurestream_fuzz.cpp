// SPDX-License-Identifier: Apache-2.0
// Any text as a camera's settings: the camera stays in a state that its own text brings back.
#include "emulatedcamera.h"
#include "iparametercollection.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using Cameras::Emulation::EmulatedCamera;
using Core::ParameterCollection::ParameterCollectionPtr;

namespace {

QString settingsOf(const ParameterCollectionPtr& features)
{
    QString text;
    features->saveFeatures(text, QStringLiteral("@CameraDevice"));
    // The first lines are comments and tell the time.
    return text.mid(text.indexOf(
        QRegularExpression(QStringLiteral("^[^#]"), QRegularExpression::MultilineOption)));
}

void load(const ParameterCollectionPtr& features, const QString& text)
{
    QString errors;
    features->loadFeatures(text, errors, QStringLiteral("@CameraDevice"));
}

/// One camera of each generation, opened once.
QVector<QSharedPointer<EmulatedCamera>> openCameras()
{
    static int count = 0;
    static QCoreApplication application(count, nullptr);
    static const QTemporaryDir folder;
    Cameras::Emulation::EmulationOptions options;
    options.settingsFolder = folder.path();
    QVector<QSharedPointer<EmulatedCamera>> cameras;
    for (const auto& model : Cameras::Emulation::everydayModels()) {
        cameras.append(EmulatedCamera::create(model, options));
        if (!cameras.last()->open())
            std::abort();
    }
    return cameras;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QVector<QSharedPointer<EmulatedCamera>> cameras = openCameras();
    if (size == 0)
        return 0;
    const auto features = cameras[data[0] % cameras.size()]->parameterCollection();
    static const QVector<QString> originals = [] {
        QVector<QString> texts;
        for (const auto& camera : cameras)
            texts.append(settingsOf(camera->parameterCollection()));
        return texts;
    }();

    load(features,
         QString::fromUtf8(reinterpret_cast<const char*>(data + 1), static_cast<int>(size - 1)));
    const QString changed = settingsOf(features);
    load(features, originals[data[0] % cameras.size()]);
    load(features, changed);
    if (settingsOf(features) != changed)
        std::abort();
    return 0;
}
