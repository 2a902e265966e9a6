// SPDX-License-Identifier: Apache-2.0
// The host's menus.
#pragma once

#include "coreexport.h"
#include "iservice.h"

#include <QAction>
#include <QList>
#include <QString>

namespace Plugin::AppCore {

/// Names a command, a menu, a group in a menu, or a context.
class OSTRIAVIEWER_CORE_EXPORT CId
{
public:
    explicit CId(const QString& name)
        : m_name(name)
    {}

    const QString& name() const { return m_name; }
    bool operator==(const CId& other) const { return m_name == other.m_name; }
    bool operator!=(const CId& other) const { return !(*this == other); }

private:
    QString m_name;
};

/// Where in the host a command can be used.
class OSTRIAVIEWER_CORE_EXPORT CContext
{
public:
    explicit CContext(const CId& id)
        : m_id(id)
    {}

    const CId& id() const { return m_id; }

private:
    CId m_id;
};

/// An action that is registered under an id. Owned by the host. Thread-bound: GUI thread.
class OSTRIAVIEWER_CORE_EXPORT ICommand
{
public:
    ICommand() = default;
    ICommand(const ICommand&) = delete;
    ICommand& operator=(const ICommand&) = delete;
    virtual ~ICommand() = default;

    virtual CId id() const = 0;
    virtual QAction* action() const = 0;
};

/// A menu with groups, in which commands stand. Owned by the host. Thread-bound: GUI thread.
class OSTRIAVIEWER_CORE_EXPORT IActionContainer
{
public:
    IActionContainer() = default;
    IActionContainer(const IActionContainer&) = delete;
    IActionContainer& operator=(const IActionContainer&) = delete;
    virtual ~IActionContainer() = default;

    /// Shows a command at the end of a group. A group that does not exist yet is made.
    virtual void addToGroup(ICommand* command, const CId& group) = 0;
};

/// Thread-bound: GUI thread.
class OSTRIAVIEWER_CORE_EXPORT IMenuService : public Core::Service::IService
{
    Q_OBJECT

public:
    /// \return  null if there is no such menu
    virtual IActionContainer* actionContainer(const CId& id) = 0;

    /// \param action  stays the caller's; the command ends with it
    /// \return  never null; the same command if the id is registered already
    virtual ICommand* registerAction(QAction* action, const CId& id,
                                     const QList<CContext>& contexts) = 0;

protected:
    using IService::IService;
};

} // namespace Plugin::AppCore
