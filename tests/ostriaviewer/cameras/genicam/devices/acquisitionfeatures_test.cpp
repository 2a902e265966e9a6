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
#include "testcamera.h"

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

constexpr std::uint64_t modeRegister = 0x600;
constexpr std::uint64_t startRegister = 0x604;
constexpr std::uint64_t stopRegister = 0x608;
constexpr std::uint64_t lockRegister = 0x60c;

std::string word(const char* name, const char* address)
{
    return std::string("<IntReg Name=\"") + name + "\"><Address>" + address +
           "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
           "<Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>";
}

/// A camera that leaves the lock of its features to whoever uses it; continuous, while nobody does.
class PlainCamera : public TestCamera
{
protected:
    PlainCamera()
    {
        use(description());
        port->onWrite = [this](std::uint64_t address) {
            stops += address == stopRegister ? 1 : 0;
            if (onStop && address == stopRegister)
                onStop();
        };
    }

    static std::string description()
    {
        return describe(R"(
<pFeature>AcquisitionMode</pFeature><pFeature>AcquisitionStart</pFeature>
<pFeature>AcquisitionStop</pFeature><pFeature>TLParamsLocked</pFeature>)",
                        R"(
<Enumeration Name="AcquisitionMode"><EnumEntry Name="Continuous"><Value>0</Value></EnumEntry>
  <EnumEntry Name="SingleFrame"><Value>1</Value></EnumEntry>
  <EnumEntry Name="MultiFrame"><Value>2</Value></EnumEntry><pValue>ModeReg</pValue></Enumeration>
<Command Name="AcquisitionStart"><pValue>StartReg</pValue><CommandValue>1</CommandValue></Command>
<Command Name="AcquisitionStop"><pValue>StopReg</pValue><CommandValue>1</CommandValue></Command>
<Integer Name="TLParamsLocked"><pValue>LockReg</pValue></Integer>)" +
                            word("ModeReg", "0x600") + word("StartReg", "0x604") +
                            word("StopReg", "0x608") + word("LockReg", "0x60c"));
    }

    std::unique_ptr<AcquisitionFeatures> takingAPicture() const
    {
        auto acquisition = std::make_unique<AcquisitionFeatures>(map, camera);
        acquisition->prepare(true);
        acquisition->start();
        EXPECT_EQ(port->word(modeRegister), 1U);
        EXPECT_EQ(port->word(startRegister), 1U);
        EXPECT_EQ(port->word(lockRegister), 1U);
        return acquisition;
    }

    void expectAsBefore() const
    {
        EXPECT_EQ(port->word(modeRegister), 0U);
        EXPECT_EQ(port->word(lockRegister), 0U);
        EXPECT_EQ(stops, 1);
    }

    std::function<void()> onStop;
    int stops = 0;
    const LogRecorder log;
};

} // namespace

TEST_F(PlainCamera, IsGivenBackByTheLastAccessesWhereItIsClosedInTheMiddleOfAStop)
{
    const auto acquisition = takingAPicture();
    onStop = [this] {
        map->refuseAccesses();
    };
    acquisition->stop();
    EXPECT_EQ(port->word(lockRegister), 1U) << "nobody may use it any more";
    map->disconnect([&] { acquisition->stop(); });
    expectAsBefore();
    EXPECT_TRUE(log.entries().isEmpty()) << log.entries().first().text.toStdString();
}

TEST_F(PlainCamera, IsGivenBackLaterWhereItWasLostBeforeTheStop)
{
    const auto acquisition = takingAPicture();
    port->isLost = true;
    acquisition->stop();
    map->disconnect();
    port->isLost = false;
    use(description());
    AcquisitionFeatures reopened(map, camera);
    reopened.takeOver(*acquisition);
    reopened.stop();
    expectAsBefore();
    EXPECT_TRUE(log.entries().isEmpty()) << log.entries().first().text.toStdString();
}

TEST_F(PlainCamera, IsToldOfWhereTheLastAccessesFail)
{
    const auto acquisition = takingAPicture();
    port->isLost = true;
    acquisition->stop();
    EXPECT_TRUE(log.entries().isEmpty()) << log.entries().first().text.toStdString();
    map->disconnect([&] { acquisition->stop(); });
    QStringList texts;
    for (const LogEntry& entry : log.entries())
        texts += entry.text;
    EXPECT_TRUE(texts.join(QLatin1Char('\n'))
                    .contains(QStringLiteral("set AcquisitionMode to \"Continuous\"")))
        << texts.join(QLatin1Char('\n')).toStdString();
}

// The second one finds the camera as the first one has left it.
TEST_F(PlainCamera, IsGivenBackAsItWasBeforeTheFirstOfTwo)
{
    const auto first = takingAPicture();
    port->refused = {stopRegister, modeRegister};
    first->stop();
    port->refused.clear();
    AcquisitionFeatures second(map, camera);
    second.replace(*first);
    EXPECT_TRUE(first->owedMode().isEmpty());
    EXPECT_EQ(second.owedMode(), QStringLiteral("Continuous"));
    second.prepare(true);
    second.start();
    second.stop();
    expectAsBefore();
}

TEST_F(PlainCamera, KeepsTheModeThatSomebodySetsWhoWasToldOfTheRefusedOne)
{
    const auto acquisition = takingAPicture();
    port->refused = {modeRegister};
    acquisition->stop();
    ASSERT_EQ(log.entries().size(), 1);
    port->refused.clear();
    camera->enumerationParameter(QStringLiteral("AcquisitionMode"))
        ->setValue(QStringLiteral("MultiFrame"));
    acquisition->stop();
    EXPECT_TRUE(acquisition->owedMode().isEmpty());
    EXPECT_EQ(port->word(modeRegister), 2U);
    EXPECT_EQ(log.entries().size(), 1);
}

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
