// SPDX-License-Identifier: Apache-2.0
// A device's features, as its GenICam description lays them over its registers.
#include "nodemap.h"

#include "genicamexception.h"
#include "librarylog_p.h"
#include "libraryparsing_p.h"
#include "nodemap_p.h"
#include "patience.h"
#include "registerdevice_p.h"
#include "withoutfullstop.h"

#include <arv.h>

#include "featuretexts_p.h"

#include <QCoreApplication>
#include <QString>
#include <QXmlStreamReader>

#include <optional>
#include <utility>

namespace Cameras::GenICam {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::GenICam::NodeMap)
};

[[noreturn]] void refuseDescription(const QString& reason)
{
    const QString text = Texts::tr("The camera's description cannot be used: %1.").arg(reason);
    throw ::GenICam::RuntimeException(text.toStdString());
}

/// Aravis aborts or prints on some broken texts, so it gets well-formed ones alone.
/// \return  the model's name
QString checkDescription(const std::string& xml)
{
    QXmlStreamReader reader(QByteArray::fromStdString(xml));
    if (reader.readNextStartElement() && reader.name() != QLatin1String("RegisterDescription"))
        refuseDescription(Texts::tr("it describes no registers"));
    const QString model = reader.attributes().value(QLatin1String("ModelName")).toString();
    while (!reader.atEnd())
        reader.readNext();
    if (reader.hasError()) {
        refuseDescription(Texts::tr("line %1: %2")
                              .arg(reader.lineNumber())
                              .arg(Core::withoutFullStop(reader.errorString())));
    }
    return model;
}

ArvGc* parse(ArvDevice* device, const std::string& xml)
{
    const std::lock_guard lock(libraryParsing());
    return arv_gc_new(device, xml.data(), xml.size());
}

} // namespace

NodeMapPrivate::NodeMapPrivate(ArvDevice* device, const std::string& xml, QString camera,
                               std::chrono::milliseconds commandTimeout)
    : m_camera(std::move(camera))
    , m_device(device)
    , m_gc(parse(device, xml))
    , m_commandTimeout(commandTimeout)
{
    if (m_gc && ARV_IS_GC_CATEGORY(arv_gc_get_node(m_gc, "Root")))
        return;
    g_clear_object(&m_gc);
    g_object_unref(m_device);
    refuseDescription(Texts::tr("it has no feature tree"));
}

NodeMapPrivate::~NodeMapPrivate()
{
    g_object_unref(m_gc);
    g_object_unref(m_device);
}

bool NodeMapPrivate::isConnected() const
{
    return !m_isClosing || m_last.load() == std::this_thread::get_id();
}

bool NodeMapPrivate::isReachable() const
{
    return isConnected() && isPortConnected(m_device);
}

void NodeMapPrivate::requireConnection() const
{
    if (!isReachable())
        throw ::GenICam::RuntimeException(
            Texts::tr("The connection to the camera is lost.").toStdString());
}

void NodeMapPrivate::setClosing(std::thread::id last)
{
    m_last = last;
    m_isClosing = true;
}

const FeatureTree& NodeMapPrivate::tree()
{
    if (!m_tree)
        m_tree = std::make_unique<FeatureTree>(*this);
    return *m_tree;
}

ReadLock::ReadLock(NodeMapPrivate& map, const QString& who)
    : m_map(map)
{
    if (map.mutex().lock())
        return;
    const QString name = who.isEmpty() ? map.camera() : who;
    throw ::GenICam::RuntimeException(
        FeatureTexts::tr("%1: %2.")
            .arg(name, QCoreApplication::translate("Cameras::GenICam::Device",
                                                   "the camera does not answer at present"))
            .toStdString());
}

ReadLock::~ReadLock()
{
    m_map.mutex().unlock();
}

WriteLock::WriteLock(NodeMapPrivate& map, const QString& who)
    : m_lock(map, who)
    , m_map(map)
{
    m_map.changes().begin();
}

WriteLock::~WriteLock()
{
    m_map.changes().end();
}

std::shared_ptr<NodeMap> NodeMap::create(std::shared_ptr<IRegisterPort> port,
                                         const std::string& xml,
                                         std::chrono::milliseconds commandTimeout)
{
    logLibraryComplaints();
    const QString camera = checkDescription(xml);
    const QString wholeDescription;
    const LibraryScope scope(camera, wholeDescription);
    auto implementation = std::make_unique<NodeMapPrivate>(newRegisterDevice(std::move(port)), xml,
                                                           camera, commandTimeout);
    return std::shared_ptr<NodeMap>(new NodeMap(std::move(implementation)));
}

NodeMap::NodeMap(std::unique_ptr<NodeMapPrivate> implementation)
    : m_private(std::move(implementation))
{}

NodeMap::~NodeMap() = default;

void NodeMap::setCameraName(const QString& name)
{
    m_private->setCamera(name);
}

void NodeMap::refuseAccesses()
{
    m_private->setClosing();
}

void NodeMap::disconnect(const std::function<void()>& lastAccesses)
{
    const Patience asLongAsItTakes(std::nullopt);
    if (lastAccesses) {
        m_private->setClosing(std::this_thread::get_id());
        lastAccesses();
    }
    m_private->setClosing();
    const WriteLock lock(*m_private);
    detachPort(m_private->device());
}

bool NodeMap::isConnected() const
{
    return m_private->isConnected();
}

void NodeMap::refresh()
{
    const WriteLock lock(*m_private);
}

} // namespace Cameras::GenICam
