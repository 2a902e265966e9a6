// SPDX-License-Identifier: Apache-2.0
// An emulated camera as a device that can be served.
#include "servedemulation.h"

#include "framesettings.h"
#include "registerstore.h"

#include <QtEndian>

#include <limits>
#include <utility>

namespace Cameras::Emulation {
namespace {

/// Follows the features that tell a camera to send images; all others are the camera's own.
class ServedEmulation final : public IServedDevice
{
public:
    explicit ServedEmulation(QSharedPointer<EmulatedCamera> camera)
        : m_camera(std::move(camera))
        , m_store(m_camera->registers())
    {}

    ~ServedEmulation() override { QObject::disconnect(m_connection); }
    ServedEmulation(const ServedEmulation&) = delete;
    ServedEmulation& operator=(const ServedEmulation&) = delete;

    ServedIdentity identity() const override
    {
        const CameraModel& model = m_camera->model();
        return {"Emulated Cameras", model.name.toStdString(), "1.0",
                model.serialNumber.toStdString()};
    }

    std::string description() const override { return m_camera->description(); }

    void setReceiver(Receiver receiver) override
    {
        QObject::disconnect(m_connection);
        if (receiver)
            m_connection =
                QObject::connect(m_camera.data(), &EmulatedCamera::cameraImageGrabbed,
                                 [receiver](const auto&, const auto& result) { receiver(result); });
    }

    void stopAcquisition() override { m_camera->stopGrabbing(); }

    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        if (nameAt(address) == QLatin1String("PayloadSize") && size == RegisterLayout::numberSize)
            qToBigEndian(payloadSize(m_store->values()), data);
        else
            m_store->read(address, data, size);
    }

    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        m_store->write(address, data, size);
        const QString name = nameAt(address);
        if (name == QLatin1String("AcquisitionStart"))
            startAcquisition();
        else if (name == QLatin1String("AcquisitionStop"))
            stopAcquisition();
    }

private:
    QString nameAt(std::uint64_t address) const
    {
        const auto place = m_store->layout().locate(address);
        return place ? m_store->table()->at(place->feature).name : QString();
    }

    void startAcquisition()
    {
        constexpr int endlessMs = std::numeric_limits<int>::max();
        if (m_store->values().value(QStringLiteral("AcquisitionMode")) == 0.0)
            m_camera->startGrabbing();
        else
            m_camera->grabSingle(endlessMs);
    }

    const QSharedPointer<EmulatedCamera> m_camera;
    const std::shared_ptr<RegisterStore> m_store;
    QMetaObject::Connection m_connection;
};

} // namespace

std::shared_ptr<IServedDevice> serveEmulation(const QSharedPointer<EmulatedCamera>& camera)
{
    return std::make_shared<ServedEmulation>(camera);
}

} // namespace Cameras::Emulation
