// SPDX-License-Identifier: Apache-2.0
// The tool on a network camera that vanishes while it stores its settings.
#include "networkcameras.h"
#include "registerstore.h"

#include <condition_variable>
#include <mutex>
#include <utility>

namespace {

/// A served camera that answers nothing any more once it is told to store, until it is let go.
class SilentWhenStoring final : public Cameras::Emulation::IServedDevice
{
public:
    SilentWhenStoring(std::shared_ptr<IServedDevice> device, std::uint64_t command, bool obeys)
        : m_device(std::move(device))
        , m_command(command)
        , m_obeys(obeys)
    {}

    void letGo()
    {
        const std::lock_guard lock(m_mutex);
        m_isLetGo = true;
        m_changed.notify_all();
    }

    Cameras::Emulation::ServedIdentity identity() const override { return m_device->identity(); }
    std::string description() const override { return m_device->description(); }
    void setReceiver(Receiver receiver) override { m_device->setReceiver(std::move(receiver)); }
    void stopAcquisition() override { m_device->stopAcquisition(); }
    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        m_device->read(address, data, size);
    }
    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        if (address != m_command || m_obeys)
            m_device->write(address, data, size);
        if (address != m_command)
            return;
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isLetGo; });
    }

private:
    const std::shared_ptr<IServedDevice> m_device;
    const std::uint64_t m_command;
    const bool m_obeys;
    std::mutex m_mutex; // guards all below
    std::condition_variable m_changed;
    bool m_isLetGo = false;
};

class StoringCameras : public NetworkCameras, public testing::WithParamInterface<bool>
{};

} // namespace

TEST_P(StoringCameras, AreSaidToHoldNobodyKnowsWhatWhereTheyVanish)
{
    setExposure(20000.0);
    const double gammaBefore =
        m_served->parameterCollection()->floatParameter(QStringLiteral("Gamma"))->value();
    const auto& registers = *m_served->registers();
    const auto silent = std::make_shared<SilentWhenStoring>(
        Cameras::Emulation::serveEmulation(m_served),
        registers.layout().address(registers.table()->indexOf(QStringLiteral("UserSetSave"))),
        GetParam());
    m_server.reset();
    m_server = std::make_unique<Cameras::Emulation::GigeServer>(silent, m_address.toStdString());
    const Outcome outcome =
        runTool(atAddress("calibrate") + QStringList{QStringLiteral("--user-set"),
                                                     QStringLiteral("UserSet2"),
                                                     QStringLiteral("--default")});
    silent->letGo();
    EXPECT_EQ(outcome.code, 1);
    EXPECT_EQ(outcome.err,
              "colorcalibrate: the camera was calibrated and then lost, so look whether it still "
              "is; the connection was lost while the user set UserSet2 was being stored, and "
              "whether it holds the new settings is not known: open the camera again and check it, "
              "and which user set the camera starts with\n");
    EXPECT_NE(outcome.out, "") << "the outcome cannot be measured again";

    // Both are what the message sends the user to look at.
    vanish();
    m_served->close();
    ASSERT_TRUE(m_served->open());
    const auto features = m_served->parameterCollection();
    EXPECT_EQ(features->enumerationParameter(QStringLiteral("UserSetDefault"))->value(),
              QStringLiteral("UserSet2"));
    EXPECT_EQ(features->floatParameter(QStringLiteral("Gamma"))->value() != gammaBefore,
              GetParam());
}

INSTANTIATE_TEST_SUITE_P(CarriedOut, StoringCameras, testing::Bool());
