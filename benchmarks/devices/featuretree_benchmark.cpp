// SPDX-License-Identifier: Apache-2.0
// A camera with many features, read over the loopback interface.
#include "genicamcamera.h"
#include "gigeserver.h"
#include "iparametercollection.h"
#include "serveddevice.h"

#include <benchmark/benchmark.h>

#include <cstring>
#include <sstream>

using namespace Cameras;
using namespace Core::ParameterCollection;
using Emulation::IServedDevice;

namespace {

constexpr int featureCount = 500;
constexpr int categorySize = 25;

std::string name(const char* kind, int number)
{
    return kind + std::to_string(number);
}

/// Every feature has limits and a register of its own, as in real descriptions.
void describeFeature(std::ostream& xml, int number)
{
    xml << "<Integer Name=\"" << name("Feature", number) << "\"><pValue>"
        << name("Register", number) << "</pValue><Min>0</Min><pMax>Limit</pMax></Integer>"
        << "<IntReg Name=\"" << name("Register", number) << "\"><Address>"
        << IServedDevice::firstRegister + 4 * static_cast<std::uint64_t>(number + 1)
        << "</Address><Length>4</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
        << "<Cachable>NoCache</Cachable><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess>"
        << "</IntReg>";
}

std::string describe()
{
    std::ostringstream xml;
    xml << "<?xml version=\"1.0\" encoding=\"utf-8\"?><RegisterDescription ModelName=\"Many\" "
           "VendorName=\"Ostria\" StandardNameSpace=\"GEV\" SchemaMajorVersion=\"1\" "
           "SchemaMinorVersion=\"1\" SchemaSubMinorVersion=\"0\" MajorVersion=\"1\" "
           "MinorVersion=\"0\" SubMinorVersion=\"0\" "
           "xmlns=\"http://www.genicam.org/GenApi/Version_1_1\"><Category Name=\"Root\">";
    for (int first = 0; first < featureCount; first += categorySize)
        xml << "<pFeature>" << name("Category", first) << "</pFeature>";
    xml << "</Category>";
    for (int first = 0; first < featureCount; first += categorySize) {
        xml << "<Category Name=\"" << name("Category", first) << "\">";
        for (int number = first; number < first + categorySize; ++number)
            xml << "<pFeature>" << name("Feature", number) << "</pFeature>";
        xml << "</Category>";
    }
    xml << "<IntReg Name=\"Limit\"><Address>" << IServedDevice::firstRegister
        << "</Address><Length>4</Length><AccessMode>RO</AccessMode><pPort>Device</pPort>"
           "<Cachable>NoCache</Cachable><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess>"
           "</IntReg>";
    for (int number = 0; number < featureCount; ++number)
        describeFeature(xml, number);
    xml << "<Port Name=\"Device\"/></RegisterDescription>";
    return xml.str();
}

/// A camera that has registers and nothing else; all of them hold 1.
class ManyRegisters final : public IServedDevice
{
public:
    Emulation::ServedIdentity identity() const override { return {"Ostria", "Many", "1", "1"}; }
    std::string description() const override { return describe(); }
    void setReceiver(Receiver) override {}
    void stopAcquisition() override {}
    void read(std::uint64_t, void* data, std::size_t size) override
    {
        std::memset(data, 0, size);
        static_cast<std::uint8_t*>(data)[size - 1] = 1;
    }
    void write(std::uint64_t, const void*, std::size_t) override {}
};

/// What a panel of features asks each of them.
qint64 readFeatures(IParameterCollection& features)
{
    qint64 sum = 0;
    for (const FeatureCategory& category : features.categories())
        for (const QString& each : category.features) {
            const auto feature = features.integerParameter(each);
            if (feature->isAvailable() && feature->isWritable() && feature->isReadable())
                sum += feature->value() + feature->minimum() + feature->maximum();
        }
    return sum;
}

/// Opening, the description, and every feature with its limits; closing is not counted.
void openAndReadFeatures(benchmark::State& state)
{
    const Emulation::GigeServer server(std::make_shared<ManyRegisters>(), "127.0.0.1");
    const auto camera =
        GenICam::GenicamCamera::create(GenICam::cameraAt(QStringLiteral("127.0.0.1")));
    for (auto _ : state) {
        if (!camera->open())
            state.SkipWithError(camera->lastErrorText().toUtf8().constData());
        else if (readFeatures(*camera->parameterCollection()) != 2 * featureCount)
            state.SkipWithError("the features were not read");
        state.PauseTiming();
        camera->close();
        state.ResumeTiming();
    }
    state.counters["features"] = featureCount;
}
BENCHMARK(openAndReadFeatures)->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
