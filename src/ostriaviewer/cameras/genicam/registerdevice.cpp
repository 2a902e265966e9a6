// SPDX-License-Identifier: Apache-2.0
// A device in this process: registers of a port, as Aravis wants to see them.
#include "registerdevice_p.h"

#include <arv.h>

#include "featuretexts_p.h"

#include <array>
#include <exception>
#include <utility>

namespace {

using Cameras::GenICam::FeatureTexts;
using Cameras::GenICam::IRegisterPort;
using PortPtr = std::shared_ptr<IRegisterPort>;

struct RegisterDevice
{
    ArvDevice parent;
    PortPtr* port;
};

struct RegisterDeviceClass
{
    ArvDeviceClass parent;
};

G_DEFINE_TYPE(RegisterDevice, register_device, ARV_TYPE_DEVICE)

RegisterDevice* self(void* device)
{
    return static_cast<RegisterDevice*>(device);
}

/// Calls the port; nothing that it throws may reach the C code that called us.
template <class Access>
gboolean callPort(ArvDevice* device, GError** error, const Access& access)
{
    const PortPtr port = *self(device)->port;
    if (!port) {
        g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_NOT_CONNECTED,
                            FeatureTexts::tr("the connection to the camera is lost").toUtf8());
        return FALSE;
    }
    try {
        access(*port);
        return TRUE;
    } catch (const std::exception& refusal) {
        g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_PROTOCOL_ERROR,
                            refusal.what());
    } catch (...) {
        g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_UNKNOWN,
                            FeatureTexts::tr("the camera refuses the access").toUtf8());
    }
    return FALSE;
}

gboolean readMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    return callPort(device, error, [&](IRegisterPort& port) { port.read(address, buffer, size); });
}

gboolean writeMemory(ArvDevice* device, guint64 address, guint32 size, void* buffer, GError** error)
{
    return callPort(device, error, [&](IRegisterPort& port) { port.write(address, buffer, size); });
}

gboolean readRegister(ArvDevice* device, guint64 address, guint32* value, GError** error)
{
    std::array<guint8, 4> bytes{};
    if (!readMemory(device, address, 4, bytes.data(), error))
        return FALSE;
    *value = static_cast<guint32>(bytes[0]) << 24 | static_cast<guint32>(bytes[1]) << 16 |
             static_cast<guint32>(bytes[2]) << 8 | bytes[3];
    return TRUE;
}

gboolean writeRegister(ArvDevice* device, guint64 address, guint32 value, GError** error)
{
    std::array<guint8, 4> bytes{static_cast<guint8>(value >> 24), static_cast<guint8>(value >> 16),
                                static_cast<guint8>(value >> 8), static_cast<guint8>(value)};
    return writeMemory(device, address, 4, bytes.data(), error);
}

ArvStream* createStream(ArvDevice*, ArvStreamCallback, void*, GDestroyNotify, GError** error)
{
    g_set_error_literal(error, ARV_DEVICE_ERROR, ARV_DEVICE_ERROR_NO_STREAM_CHANNEL,
                        "this device sends no stream");
    return nullptr;
}

const char* noDescription(ArvDevice*, size_t* size)
{
    *size = 0;
    return nullptr;
}

ArvGc* noNodeMap(ArvDevice*)
{
    return nullptr;
}

void finalize(GObject* object)
{
    delete self(object)->port;
    G_OBJECT_CLASS(register_device_parent_class)->finalize(object);
}

void register_device_init(RegisterDevice* device)
{
    device->port = new PortPtr;
}

void register_device_class_init(RegisterDeviceClass* type)
{
    type->parent.read_memory = readMemory;
    type->parent.write_memory = writeMemory;
    type->parent.read_register = readRegister;
    type->parent.write_register = writeRegister;
    type->parent.create_stream = createStream;
    type->parent.get_genicam_xml = noDescription;
    type->parent.get_genicam = noNodeMap;
    G_OBJECT_CLASS(type)->finalize = finalize;
}

} // namespace

namespace Cameras::GenICam {

ArvDevice* newRegisterDevice(std::shared_ptr<IRegisterPort> port)
{
    void* device = g_object_new(register_device_get_type(), nullptr);
    *self(device)->port = std::move(port);
    return static_cast<ArvDevice*>(device);
}

void detachPort(ArvDevice* device)
{
    self(device)->port->reset();
}

bool isPortConnected(ArvDevice* device)
{
    const PortPtr& port = *self(device)->port;
    return port && port->isConnected();
}

} // namespace Cameras::GenICam
