// SPDX-License-Identifier: Apache-2.0
// A device's features, as its GenICam description lays them over its registers.
#include "nodemap.h"

#include "genicamexception.h"
#include "nodemap_p.h"
#include "registerdevice_p.h"

#include <arv.h>

#include <QString>
#include <QXmlStreamReader>

#include <utility>

namespace Cameras::GenICam {

namespace {

[[noreturn]] void refuseDescription(const QString& reason)
{
    const QString text = QStringLiteral("The camera's description cannot be used: %1.").arg(reason);
    throw ::GenICam::RuntimeException(text.toStdString());
}

/// Aravis aborts or prints on some broken texts, so it gets well-formed ones alone.
void checkDescription(const std::string& xml)
{
    QXmlStreamReader reader(QByteArray::fromStdString(xml));
    if (reader.readNextStartElement() && reader.name() != QLatin1String("RegisterDescription"))
        refuseDescription(QStringLiteral("it describes no registers"));
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError())
        refuseDescription(
            QStringLiteral("line %1: %2").arg(reader.lineNumber()).arg(reader.errorString()));
}

} // namespace

NodeMapPrivate::NodeMapPrivate(ArvDevice* device, const std::string& xml)
    : m_device(device)
    , m_gc(arv_gc_new(device, xml.data(), xml.size()))
{
    if (m_gc && ARV_IS_GC_CATEGORY(arv_gc_get_node(m_gc, "Root")))
        return;
    g_clear_object(&m_gc);
    g_object_unref(m_device);
    refuseDescription(QStringLiteral("it has no feature tree"));
}

NodeMapPrivate::~NodeMapPrivate()
{
    g_object_unref(m_gc);
    g_object_unref(m_device);
}

void NodeMapPrivate::requireConnection() const
{
    if (!m_isConnected)
        throw ::GenICam::RuntimeException("The connection to the camera is lost.");
}

const FeatureTree& NodeMapPrivate::tree()
{
    if (!m_tree)
        m_tree = std::make_unique<FeatureTree>(*this);
    return *m_tree;
}

WriteLock::WriteLock(NodeMapPrivate& map)
    : m_map(map)
    , m_lock(map.mutex())
{
    m_map.changes().begin();
}

WriteLock::~WriteLock()
{
    m_map.changes().end();
}

std::shared_ptr<NodeMap> NodeMap::create(std::shared_ptr<IRegisterPort> port,
                                         const std::string& xml)
{
    checkDescription(xml);
    auto implementation = std::make_unique<NodeMapPrivate>(newRegisterDevice(std::move(port)), xml);
    return std::shared_ptr<NodeMap>(new NodeMap(std::move(implementation)));
}

NodeMap::NodeMap(std::unique_ptr<NodeMapPrivate> implementation)
    : m_private(std::move(implementation))
{}

NodeMap::~NodeMap() = default;

void NodeMap::disconnect()
{
    const WriteLock lock(*m_private);
    m_private->setDisconnected();
    detachPort(m_private->device());
}

bool NodeMap::isConnected() const
{
    const ReadLock lock(m_private->mutex());
    return m_private->isConnected();
}

void NodeMap::refresh()
{
    const WriteLock lock(*m_private);
}

void NodeMap::setCommandTimeout(std::chrono::milliseconds timeout)
{
    const ReadLock lock(m_private->mutex());
    m_private->setCommandTimeout(timeout);
}

} // namespace Cameras::GenICam
