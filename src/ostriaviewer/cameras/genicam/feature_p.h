// SPDX-License-Identifier: Apache-2.0
// A feature of a node map: what it is, and whether it may be used now.
#pragma once

#include <QString>

#include <vector>

typedef struct _ArvGcFeatureNode ArvGcFeatureNode;

namespace Cameras::GenICam {

class GErrorSlot;
class NodeMapPrivate;

/// Kinds of features by their interface, whatever they are computed with.
enum class FeatureKind {
    Integer,
    Float,
    Boolean,
    Enumeration,
    Command,
    Text,
    Other ///< a feature without a value that we know how to handle
};

/// A feature, or a name without one: empty then.
///
/// A value that stays valid as long as the node map. Questions and operations need the node map's
/// mutex, apart from those that say otherwise.
class Feature
{
public:
    /// An empty one.
    explicit Feature(const QString& name);
    Feature(NodeMapPrivate& map, ArvGcFeatureNode* node);

    /// The feature of that plain name; empty if there is none, or the camera does not implement
    /// it.
    static Feature find(NodeMapPrivate& map, const QString& name);

    // Without the mutex.
    const QString& name() const { return m_name; }
    const QString& displayName() const { return m_displayName; }
    FeatureKind kind() const { return m_kind; }
    bool isEmpty() const { return m_chain.empty(); }

    /// Not of an empty one.
    NodeMapPrivate& map() const { return *m_map; }
    ArvGcFeatureNode* node() const { return m_chain.front(); }

    /// The node at which the value ends, most often a register.
    ArvGcFeatureNode* lastNode() const { return m_chain.back(); }

    /// False also if the camera does not answer.
    bool isAvailable() const;
    bool isReadable() const;
    bool isWritable() const;
    bool isStreamable() const;

    /// As isReadable and isWritable together, for those whom a wrong answer would mislead.
    /// \throws ::GenICam::RuntimeException  the camera does not tell
    bool isSurelyReadWrite() const;

    /// Without the mutex. Of an empty one nothing is required.
    /// \throws ::GenICam::RuntimeException  the camera is lost or closed
    void requireConnection() const;

    /// \throws ::GenICam::RuntimeException  not available now, with the reason
    void requireThere() const;

    /// \throws ::GenICam::RuntimeException  not readable now, with the reason
    void requireReadable() const;

    /// \throws ::GenICam::RuntimeException  not writable now, with the reason
    void requireWritable() const;

    /// Throws a ::GenICam::RuntimeException that names the feature.
    /// \param reason  goes on after "Name: ", without a full stop
    [[noreturn]] void fail(const QString& reason) const;

    /// Fails if there is an error.
    void check(const GErrorSlot& error) const;

private:
    bool allowsReading() const;
    bool allowsWriting() const;
    bool askAvailable() const; // throws if the camera does not tell
    bool askLocked() const;

    NodeMapPrivate* m_map = nullptr;
    QString m_name;
    QString m_displayName;
    FeatureKind m_kind = FeatureKind::Other;
    std::vector<ArvGcFeatureNode*> m_chain;
};

} // namespace Cameras::GenICam
