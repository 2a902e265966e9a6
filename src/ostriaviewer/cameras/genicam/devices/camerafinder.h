// SPDX-License-Identifier: Apache-2.0
// Looks for cameras while the program does something else.
#pragma once

#include "cameraidentity.h"
#include "transportsettings.h"

#include <QObject>
#include <QVector>

#include <functional>
#include <memory>

namespace Cameras::GenICam {

/// Looks for cameras on a thread of its own. Thread-bound.
class CameraFinder final : public QObject
{
    Q_OBJECT

public:
    /// What looks for cameras, on another thread; may throw.
    using Search = std::function<QVector<CameraIdentity>(const TransportSettings& settings)>;

    /// Looks on network and USB.
    explicit CameraFinder(QObject* parent = nullptr);

    explicit CameraFinder(Search search, QObject* parent = nullptr);

    /// Does not wait for a search that is under way.
    ~CameraFinder() override;

    /// Returns at once; found follows. Does nothing while it is looking already.
    void start(const TransportSettings& settings);

signals:
    /// All cameras of this search, on the finder's thread; none if it failed, as the log says then.
    void found(const QVector<Cameras::GenICam::CameraIdentity>& cameras);

private:
    struct Return;

    const Search m_search;
    const std::shared_ptr<Return> m_return;
    bool m_isLooking = false;
};

} // namespace Cameras::GenICam
