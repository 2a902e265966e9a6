// SPDX-License-Identifier: Apache-2.0
// Scene, pictures, style and catalogues that the plugin brings.
#pragma once

namespace Plugin::ColorCalibration {

/// Registers the plugin's resources and takes them away with its end, also where the system keeps
/// the plugin's code. Thread-bound: GUI thread.
class ResourceBundles
{
public:
    ResourceBundles();
    ~ResourceBundles();
    ResourceBundles(const ResourceBundles&) = delete;
    ResourceBundles& operator=(const ResourceBundles&) = delete;
};

} // namespace Plugin::ColorCalibration
