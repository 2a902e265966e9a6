// SPDX-License-Identifier: Apache-2.0
// The host's services as a plugin meets them.
#pragma once

#include "fakecameraservices.h"
#include "fullcamera.h"
#include "ideviceselectorservice.h"
#include "imenuservice.h"
#include "iparameterservice.h"
#include "recordinglog.h"
#include "serviceregistry.h"

#include <QPointer>
#include <QStringList>

#include <map>
#include <memory>

class RecordingCommand : public Plugin::AppCore::ICommand
{
public:
    RecordingCommand(QAction* action, const Plugin::AppCore::CId& id)
        : m_action(action)
        , m_id(id)
    {}
    Plugin::AppCore::CId id() const override { return m_id; }
    QAction* action() const override { return m_action; }

private:
    QPointer<QAction> m_action;
    Plugin::AppCore::CId m_id;
};

class RecordingContainer : public Plugin::AppCore::IActionContainer
{
public:
    QStringList entries; ///< "command in group"
    void addToGroup(Plugin::AppCore::ICommand* command, const Plugin::AppCore::CId& group) override
    {
        entries << command->id().name() + " in " + group.name();
    }
};

class RecordingMenus : public Plugin::AppCore::IMenuService
{
public:
    std::map<QString, RecordingContainer> containers;
    std::unique_ptr<RecordingCommand> command;
    QStringList contexts;

    RecordingMenus()
    {
        containers["OstriaViewer.CameraSelectorContextMenu"];
        containers["OstriaViewer.Menu.Tools"];
    }
    Plugin::AppCore::IActionContainer* actionContainer(const Plugin::AppCore::CId& id) override
    {
        const auto found = containers.find(id.name());
        return found == containers.end() ? nullptr : &found->second;
    }
    Plugin::AppCore::ICommand*
    registerAction(QAction* action, const Plugin::AppCore::CId& id,
                   const QList<Plugin::AppCore::CContext>& places) override
    {
        command = std::make_unique<RecordingCommand>(action, id);
        for (const Plugin::AppCore::CContext& place : places)
            contexts << place.id().name();
        return command.get();
    }
};

class FakeSelector : public Plugin::CameraSelector::IDeviceSelectorService
{
public:
    using IDeviceSelectorService::IDeviceSelectorService;
};

/// Cameras that acquire or record are those in its list.
class BusyStatus : public FakeStatusService
{
public:
    QList<Plugin::CameraPool::CameraInfoPtr> busy;
    bool isAcquiringOrRecording(const Plugin::CameraPool::CameraInfoPtr& camera) const override
    {
        return busy.contains(camera);
    }
};

class FakeCameraList : public Plugin::CameraPool::ICameraEnumerationService
{
public:
    QList<Plugin::CameraPool::DeviceGroup> groups;
    QList<Plugin::CameraPool::DeviceGroup> deviceGroups() const override { return groups; }
};

class FakeStreams : public Plugin::CameraPool::ICameraStreamControlService
{
public:
    int stops = 0;
    void stopAllAcquisitionsAndRecordings() override { ++stops; }
};

class FakeParameterService : public Plugin::ParameterCollectionPool::IParameterService
{
public:
    Core::ParameterCollection::ParameterCollectionPtr
    parameterCollection(const Core::CameraPoolComponents::CameraInfoPtr& info) override
    {
        const auto camera = info.dynamicCast<FakeCamera>();
        return camera ? camera->parameterCollection() : nullptr;
    }
};

/// A camera that says why it failed.
class FaultyCamera : public FakeCamera
{
public:
    using FakeCamera::FakeCamera;
    QString error;
    QString lastErrorText() const override { return error; }
    void clearLastError() override { error.clear(); }
};

/// Something in the selector that is no camera.
class Lamp : public Core::CameraPoolComponents::IDeviceBaseInfo
{
public:
    QString displayName() const override { return "Lamp"; }
};
