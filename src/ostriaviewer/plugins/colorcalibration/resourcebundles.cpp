// SPDX-License-Identifier: Apache-2.0
// Scene, pictures, style and catalogues that the plugin brings.
#include "resourcebundles.h"

#include <QDir>

// Qt's macros declare functions of the global namespace.
static void registerBundles()
{
    Q_INIT_RESOURCE(scene);
    Q_INIT_RESOURCE(colorcalibration_images);
    Q_INIT_RESOURCE(colorcalibration_languages);
    Q_INIT_RESOURCE(colorcalibration_report_resources);
    Q_INIT_RESOURCE(colorcalibration_translation);
}

static void unregisterBundles()
{
    Q_CLEANUP_RESOURCE(scene);
    Q_CLEANUP_RESOURCE(colorcalibration_images);
    Q_CLEANUP_RESOURCE(colorcalibration_languages);
    Q_CLEANUP_RESOURCE(colorcalibration_report_resources);
    Q_CLEANUP_RESOURCE(colorcalibration_translation);
}

namespace Plugin::ColorCalibration {

ResourceBundles::ResourceBundles()
{
    registerBundles();
}

ResourceBundles::~ResourceBundles()
{
    unregisterBundles();
}

} // namespace Plugin::ColorCalibration
