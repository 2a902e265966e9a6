// SPDX-License-Identifier: Apache-2.0
// What a camera is told around an acquisition, and what is put back.
#include "acquisitionfeatures.h"
#include "emulatedcamera.h"
#include "emulationtest.h"
#include "genicamexception.h"
#include "logrecorder.h"
#include "nodemap.h"
#include "parametercollection.h"
#include "registerstore.h"

#include <QTemporaryDir>

using namespace Cameras;
using namespace Cameras::GenICam;

namespace {

/// Does what it is told to, and says that it has not, as when the answer gets lost.
class Unsure final : public IRegisterPort
{
public:
    explicit Unsure(std::shared_ptr<IRegisterPort> port)
        : m_port(std::move(port))
    {}

    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        m_port->read(address, data, size);
    }
    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        m_port->write(address, data, size);
        if (isUnsure)
            throw ::GenICam::RuntimeException("no answer");
    }

    bool isUnsure = false;

private:
    const std::shared_ptr<IRegisterPort> m_port;
};

class AcquisitionFeaturesTest : public testing::Test
{
protected:
    AcquisitionFeaturesTest()
    {
        Emulation::EmulationOptions options;
        options.settingsFolder = m_folder.path();
        options.hasTransport = true;
        m_camera = Emulation::EmulatedCamera::create(Emulation::smallModel(), options);
        port = std::make_shared<Unsure>(m_camera->registers());
        m_nodeMap = NodeMap::create(port, m_camera->description());
        m_parameters = createParameterCollection(m_nodeMap, QStringLiteral("Camera"));
    }

    std::unique_ptr<AcquisitionFeatures> features() const
    {
        return std::make_unique<AcquisitionFeatures>(m_nodeMap, m_parameters);
    }

    QString mode() const
    {
        return m_parameters->enumerationParameter(QStringLiteral("AcquisitionMode"))->value();
    }

    std::shared_ptr<Unsure> port;

private:
    QTemporaryDir m_folder;
    QSharedPointer<Emulation::EmulatedCamera> m_camera;
    std::shared_ptr<NodeMap> m_nodeMap;
    Core::ParameterCollection::ParameterCollectionPtr m_parameters;
};

} // namespace

TEST_F(AcquisitionFeaturesTest, PutBackAModeWhoseWritingSeemedToFail)
{
    const QString before = mode();
    const auto acquisition = features();
    port->isUnsure = true;
    EXPECT_THROW(acquisition->prepare(true), ::GenICam::RuntimeException);
    port->isUnsure = false;
    ASSERT_NE(mode(), before) << "the camera has done it";
    const LogRecorder log;
    acquisition->stop();
    EXPECT_EQ(mode(), before);
    EXPECT_TRUE(log.entries().isEmpty());
}
