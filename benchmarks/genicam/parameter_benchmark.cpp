// SPDX-License-Identifier: Apache-2.0
// What a write of a feature costs, beside the same write without anybody watching.
#include "parametercollection.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <cstring>
#include <string>
#include <vector>

namespace {

using namespace Core::ParameterCollection;

class Memory : public Cameras::GenICam::IRegisterPort
{
public:
    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        std::memcpy(data, m_bytes.data() + address, size);
    }

    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        std::memcpy(m_bytes.data() + address, data, size);
    }

private:
    std::vector<unsigned char> m_bytes = std::vector<unsigned char>(0x10000);
};

constexpr int featureCount = 100;

QString nameOf(int index)
{
    return QStringLiteral("F%1").arg(index);
}

/// Floats over registers, each with a limit and a lock that are computed from another register.
std::string description()
{
    std::string categories;
    std::string nodes;
    for (int index = 0; index < featureCount; ++index) {
        const std::string name = nameOf(index).toStdString();
        categories += "<pFeature>" + name + "</pFeature>";
        nodes += "<Float Name=\"" + name + "\"><Streamable>Yes</Streamable><pIsLocked>Locked" +
                 "</pIsLocked><pValue>R" + name + "</pValue><Min>0</Min><pMax>Top</pMax></Float>" +
                 "<FloatReg Name=\"R" + name + "\"><Address>" + std::to_string(0x100 + 8 * index) +
                 "</Address><Length>8</Length><AccessMode>RW</AccessMode><pPort>Device</pPort>"
                 "<Endianess>BigEndian</Endianess></FloatReg>";
    }
    return R"(<RegisterDescription ModelName="B" VendorName="B" StandardNameSpace="None"
SchemaMajorVersion="1" SchemaMinorVersion="1" SchemaSubMinorVersion="0" MajorVersion="1"
MinorVersion="0" SubMinorVersion="0" ProductGuid="1" VersionGuid="2"
xmlns="http://www.genicam.org/GenApi/Version_1_1">
<Category Name="Root"><pFeature>Control</pFeature></Category><Category Name="Control">)" +
           categories + "</Category>" + nodes + R"(
<IntReg Name="State"><Address>0</Address><Length>4</Length><AccessMode>RW</AccessMode>
<pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<IntSwissKnife Name="Locked"><pVariable Name="S">State</pVariable><Formula>S=2</Formula>
</IntSwissKnife>
<SwissKnife Name="Top"><pVariable Name="S">State</pVariable><Formula>100-S</Formula></SwissKnife>
<Port Name="Device"/></RegisterDescription>)";
}

ParameterCollectionPtr openCamera()
{
    const auto map = Cameras::GenICam::NodeMap::create(std::make_shared<Memory>(), description());
    return Cameras::GenICam::createParameterCollection(map, QStringLiteral("B"));
}

void RegisterWriteAlone(benchmark::State& state)
{
    Memory memory;
    double value = 0;
    for (auto _ : state) {
        value = value > 50 ? 0 : value + 1;
        memory.write(0x100, &value, sizeof value);
    }
}
BENCHMARK(RegisterWriteAlone);

/// The argument is the number of features that somebody watches.
void FloatWrite(benchmark::State& state)
{
    int argumentCount = 0;
    const QCoreApplication application(argumentCount, nullptr);
    const ParameterCollectionPtr camera = openCamera();
    std::vector<FloatParameterPtr> parameters;
    QObject receiver;
    for (int index = 0; index < state.range(0); ++index) {
        parameters.push_back(camera->floatParameter(nameOf(index)));
        QObject::connect(parameters.back().data(), &IParameter::parameterDataChangedDecoupled,
                         &receiver, [] {});
    }
    const FloatParameterPtr written = camera->floatParameter(nameOf(0));
    double value = 0;
    for (auto _ : state) {
        value = value > 50 ? 0 : value + 1;
        written->setValue(value);
    }
}
BENCHMARK(FloatWrite)->Arg(0)->Arg(5)->Unit(benchmark::kMicrosecond);

void SaveFeatures(benchmark::State& state)
{
    const ParameterCollectionPtr camera = openCamera();
    QString text;
    for (auto _ : state)
        camera->saveFeatures(text, QStringLiteral("@CameraDevice"));
}
BENCHMARK(SaveFeatures)->Unit(benchmark::kMicrosecond);

void LoadFeatures(benchmark::State& state)
{
    const ParameterCollectionPtr camera = openCamera();
    QString text;
    QString errors;
    camera->saveFeatures(text, QStringLiteral("@CameraDevice"));
    for (auto _ : state)
        camera->loadFeatures(text, errors, QStringLiteral("@CameraDevice"));
}
BENCHMARK(LoadFeatures)->Unit(benchmark::kMicrosecond);

} // namespace
