// SPDX-License-Identifier: Apache-2.0
// A camera that delivers what, how and when a test wants.
#pragma once

#include "fakeparametercollection.h"
#include "icamera.h"
#include "testimages.h"

#include <QMutex>
#include <QSemaphore>
#include <QVector>

#include <atomic>
#include <functional>
#include <thread>
#include <vector>

/// How a request for a single image is answered.
enum class Delivery {
    AtOnce,      ///< before grabSingle returns, on the caller's thread
    OtherThread, ///< on a thread of the camera's
    OnRelease,   ///< on a thread of the camera's, after releaseImage()
    Never,       ///< accepted, nothing comes
    Refused      ///< the request itself is turned down
};

class FakeCamera : public Core::CameraPoolComponents::ICamera,
                   public Core::CameraPoolComponents::ICameraInfo
{
public:
    explicit FakeCamera(const QVersionNumber& version = QVersionNumber(2, 0, 0))
        : m_parameters(QSharedPointer<FakeParameterCollection>::create(version))
    {}
    ~FakeCamera() override
    {
        releaseImage();
        joinDeliveries();
    }

    FakeParameterCollection& parameters() { return *m_parameters; }
    FakeFeatures& features() { return m_parameters->features(); }

    std::atomic<Delivery> delivery{Delivery::AtOnce};
    std::atomic_bool failFrames{false};
    std::atomic_bool grabbing{false};
    std::atomic_bool open{true};
    std::atomic_bool withParameters{true};
    std::atomic_int grabRequests{0};
    std::atomic_int stops{0};
    QString model = QStringLiteral("Fake 100");

    /// Makes the next image; called on the delivering thread.
    std::function<Ostria::COstriaImage()> nextImage = [] {
        return makeUniformRgb16(8, 8, {1000, 2000, 3000});
    };

    /// Called within each request for an image, on the caller's thread.
    std::function<void()> onRequest;

    QVector<int> timeouts() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_timeouts;
    }

    /// Delivers an image on the calling thread.
    void deliver()
    {
        if (failFrames)
            deliver(std::make_shared<const Ostria::CGrabResult>(std::string("damaged"), 1u));
        else
            deliver(std::make_shared<const Ostria::CGrabResult>(nextImage(), 1u));
    }
    void deliver(const Ostria::CGrabResultPtr& result)
    {
        emit cameraImageGrabbed(Core::CameraPoolComponents::CameraInfoPtr(), result);
    }

    void releaseImage() { m_released.release(); }

    /// The connection breaks, on the calling thread.
    void loseConnection()
    {
        open = false;
        grabbing = false;
        emit cameraConnectionLost();
    }

    void joinDeliveries()
    {
        std::vector<std::thread> threads;
        {
            const QMutexLocker lock(&m_mutex);
            threads.swap(m_threads);
        }
        for (std::thread& thread : threads)
            thread.join();
    }

    QString modelName() const override { return model; }
    QString displayName() const override { return model; }
    QString lastErrorText() const override { return {}; }
    void clearLastError() override {}
    bool isOpen() const override { return open; }
    bool isGrabbing() const override { return grabbing; }
    bool startGrabbing() override
    {
        grabbing = true;
        return true;
    }
    bool grabSingle(int timeoutMs) override { return request(timeoutMs); }
    bool grabSingle() override { return request(-1); }
    void stopGrabbing() override
    {
        ++stops;
        grabbing = false;
        features().announce(QStringLiteral("stop grabbing"));
    }
    Core::ParameterCollection::ParameterCollectionPtr parameterCollection() override
    {
        features().announce(QStringLiteral("features"));
        return open && withParameters ? m_parameters : nullptr;
    }

private:
    bool request(int timeoutMs)
    {
        {
            const QMutexLocker lock(&m_mutex);
            m_timeouts.append(timeoutMs);
        }
        ++grabRequests;
        features().announce(QStringLiteral("grab"));
        if (onRequest)
            onRequest();
        if (!open || delivery == Delivery::Refused)
            return false;
        if (delivery == Delivery::AtOnce)
            deliver();
        else if (delivery != Delivery::Never)
            deliverOnThread(delivery == Delivery::OnRelease);
        return true;
    }

    void deliverOnThread(bool afterRelease)
    {
        joinDeliveries();
        const QMutexLocker lock(&m_mutex);
        m_threads.emplace_back([this, afterRelease] {
            if (afterRelease)
                m_released.acquire();
            deliver();
        });
    }

    QSharedPointer<FakeParameterCollection> m_parameters;
    mutable QMutex m_mutex;
    QVector<int> m_timeouts;
    std::vector<std::thread> m_threads;
    QSemaphore m_released;
};
