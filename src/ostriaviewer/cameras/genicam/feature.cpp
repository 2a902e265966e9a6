// SPDX-License-Identifier: Apache-2.0
// A feature of a node map: what it is, and whether it may be used now.
#include "feature_p.h"

#include "genicamexception.h"
#include "gerrorslot_p.h"
#include "librarylog_p.h"
#include "nodemap_p.h"
#include "nodeproperties_p.h"
#include "withoutfullstop.h"

#include <arv.h>

#include "featuretexts_p.h"

#include <algorithm>

namespace Cameras::GenICam {

namespace {

FeatureKind kindOf(ArvGcFeatureNode* node)
{
    // Enumerations also are integers and texts for Aravis, so they come first.
    if (ARV_IS_GC_ENUMERATION(node))
        return FeatureKind::Enumeration;
    if (ARV_IS_GC_BOOLEAN(node))
        return FeatureKind::Boolean;
    if (ARV_IS_GC_COMMAND(node))
        return FeatureKind::Command;
    if (ARV_IS_GC_INTEGER(node))
        return FeatureKind::Integer;
    if (ARV_IS_GC_FLOAT(node))
        return FeatureKind::Float;
    if (ARV_IS_GC_STRING(node))
        return FeatureKind::Text;
    return FeatureKind::Other;
}

bool isImplemented(ArvGcFeatureNode* node)
{
    GErrorSlot error;
    const bool implemented = arv_gc_feature_node_is_implemented(node, error) != FALSE;
    // Who asks too late still gets the feature, whose use then says what is wrong.
    return implemented || error.isSet();
}

bool isPlainName(const QString& name)
{
    return !name.isEmpty() && std::all_of(name.begin(), name.end(), [](QChar character) {
        return character.unicode() < 128 &&
               (character.isLetterOrNumber() || character == QLatin1Char('_'));
    });
}

} // namespace

Feature::Feature(const QString& name)
    : m_name(name)
    , m_displayName(name)
{}

Feature::Feature(NodeMapPrivate& map, ArvGcFeatureNode* node)
    : m_map(&map)
    , m_name(QString::fromUtf8(arv_gc_feature_node_get_name(node)))
    , m_displayName(QString::fromUtf8(arv_gc_feature_node_get_display_name(node)))
    , m_kind(kindOf(node))
    , m_chain(valueChain(node))
{
    if (m_displayName.isEmpty())
        m_displayName = m_name;
}

Feature Feature::find(NodeMapPrivate& map, const QString& name)
{
    if (!isPlainName(name))
        return Feature(name);
    const LibraryScope scope(map.camera(), name);
    ArvGcNode* node = arv_gc_get_node(map.gc(), name.toLatin1().constData());
    if (!node || !ARV_IS_GC_FEATURE_NODE(node) || ARV_IS_GC_CATEGORY(node) ||
        ARV_IS_GC_PORT(node) || !isImplemented(ARV_GC_FEATURE_NODE(node)))
        return Feature(name);
    return Feature(map, ARV_GC_FEATURE_NODE(node));
}

bool Feature::askAvailable() const
{
    const LibraryScope scope(m_map->camera(), m_name);
    return std::all_of(m_chain.begin(), m_chain.end(), [this](ArvGcFeatureNode* node) {
        GErrorSlot implementedError;
        const bool implemented = arv_gc_feature_node_is_implemented(node, implementedError) != 0;
        check(implementedError);
        GErrorSlot availableError;
        const bool available = arv_gc_feature_node_is_available(node, availableError) != 0;
        check(availableError);
        return implemented && available;
    });
}

bool Feature::askLocked() const
{
    return std::any_of(m_chain.begin(), m_chain.end(), [this](ArvGcFeatureNode* node) {
        GErrorSlot error;
        const bool isNodeLocked = arv_gc_feature_node_is_locked(node, error) != 0;
        check(error);
        return isNodeLocked;
    });
}

bool Feature::isAvailable() const
{
    if (isEmpty() || !m_map->isConnected())
        return false;
    try {
        return askAvailable();
    } catch (const ::GenICam::RuntimeException&) {
        return false;
    }
}

bool Feature::allowsReading() const
{
    return m_kind != FeatureKind::Command &&
           arv_gc_feature_node_get_actual_access_mode(node()) != ARV_GC_ACCESS_MODE_WO;
}

bool Feature::allowsWriting() const
{
    return arv_gc_feature_node_get_actual_access_mode(node()) != ARV_GC_ACCESS_MODE_RO;
}

bool Feature::isReadable() const
{
    return isAvailable() && allowsReading();
}

bool Feature::isWritable() const
{
    if (!isAvailable() || !allowsWriting())
        return false;
    try {
        return !askLocked();
    } catch (const ::GenICam::RuntimeException&) {
        return false;
    }
}

bool Feature::isSurelyReadWrite() const
{
    requireConnection();
    return !isEmpty() && askAvailable() && allowsReading() && allowsWriting() && !askLocked();
}

bool Feature::isStreamable() const
{
    return !isEmpty() && GenICam::isStreamable(node());
}

void Feature::requireConnection() const
{
    if (!isEmpty() && !m_map->isConnected())
        fail(FeatureTexts::tr("the connection to the camera is lost"));
}

void Feature::requireThere() const
{
    if (isEmpty())
        fail(FeatureTexts::tr("the camera has no such feature"));
    requireConnection();
    if (!isAvailable())
        fail(FeatureTexts::tr("not available with the camera's present settings"));
}

void Feature::requireReadable() const
{
    requireThere();
    if (!allowsReading())
        fail(FeatureTexts::tr("cannot be read, only written"));
}

void Feature::requireWritable() const
{
    requireThere();
    if (!allowsWriting())
        fail(FeatureTexts::tr("cannot be written, only read"));
    // A camera that does not answer locks nothing.
    if (askLocked())
        fail(FeatureTexts::tr("locked with the camera's present settings"));
}

void Feature::fail(const QString& reason) const
{
    throw ::GenICam::RuntimeException(
        FeatureTexts::tr("%1: %2.").arg(m_name, reason).toStdString());
}

void Feature::check(const GErrorSlot& error) const
{
    if (!error.isSet())
        return;
    // A device may name the feature itself.
    QString reason = error.reason();
    const QString prefix = m_name + QLatin1String(": ");
    if (reason.startsWith(prefix))
        reason.remove(0, prefix.size());
    fail(Core::withoutFullStop(reason));
}

} // namespace Cameras::GenICam
