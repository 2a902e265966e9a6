// SPDX-License-Identifier: Apache-2.0
// Makes pictures of camera images on a thread of its own.
#pragma once

#include "grabresult.h"

#include <QImage>
#include <QObject>
#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <thread>

namespace Viewer {

/// A frame for the screen.
struct LiveFrame
{
    QImage picture; ///< null if the frame failed
    QString error;  ///< why
    std::uint64_t number = 0;
};

/// Converts what cameras deliver, the newest first: of frames that come faster than they can be
/// converted or shown, all but the last are left out. Thread-bound: GUI thread.
class FrameConverter final : public QObject
{
    Q_OBJECT

public:
    /// Takes a camera's image; returns at once. Thread-safe, and may outlive the converter.
    using Inlet = std::function<void(const Ostria::CGrabResultPtr& result)>;

    explicit FrameConverter(QObject* parent = nullptr);
    ~FrameConverter() override;

    /// Begins anew: what earlier inlets take is left out from now on.
    Inlet openInlet();

    /// While it is paused nothing is converted; afterwards the newest of what came meanwhile.
    void setPaused(bool isPaused);

signals:
    void frameReady(const Viewer::LiveFrame& frame);

private:
    struct Exchange;

    static void run(const std::shared_ptr<Exchange>& exchange);
    void deliver();

    std::shared_ptr<Exchange> m_exchange;
    std::thread m_thread;
};

} // namespace Viewer
