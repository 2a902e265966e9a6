// SPDX-License-Identifier: Apache-2.0
// The features of a camera that exists in memory alone, and what was done to them.
#pragma once

#include "genicamexception.h"

#include <QHash>
#include <QMutexLocker>
#include <QRecursiveMutex>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <cmath>
#include <functional>
#include <limits>

enum class FakeKind { Float, Integer, Boolean, Enumeration, Command };

/// One feature as a test sets it up.
struct FakeFeature
{
    FakeKind kind = FakeKind::Float;
    QVariant value;
    double minimum = std::numeric_limits<double>::lowest();
    double maximum = std::numeric_limits<double>::max();
    double resolution = 0.0; ///< numbers are rounded to multiples of it; 0 keeps them
    QStringList entries;     ///< of an enumeration; empty takes any
    bool readable = true;
    bool writable = true;
    bool refuses = false; ///< every write throws, although it is announced as writable
};

/// All features with a journal of what was read and written. Thread-safe.
class FakeFeatures
{
public:
    /// Called before everything that may throw, with its text in the journal; may throw itself.
    std::function<void(const QString&)> beforeCall;

    void add(const QString& name, const FakeFeature& feature)
    {
        const QMutexLocker lock(&m_mutex);
        m_features.insert(name, feature);
    }

    void remove(const QString& name)
    {
        const QMutexLocker lock(&m_mutex);
        m_features.remove(name);
    }

    bool contains(const QString& name) const
    {
        const QMutexLocker lock(&m_mutex);
        return m_features.contains(name);
    }

    FakeFeature get(const QString& name) const
    {
        const QMutexLocker lock(&m_mutex);
        return m_features.value(name);
    }

    void change(const QString& name, const std::function<void(FakeFeature&)>& how)
    {
        const QMutexLocker lock(&m_mutex);
        how(m_features[name]);
    }

    QStringList names() const
    {
        const QMutexLocker lock(&m_mutex);
        QStringList sorted = m_features.keys();
        sorted.sort();
        return sorted;
    }

    /// Announces a call to the hook.
    void announce(const QString& text) const
    {
        if (beforeCall)
            beforeCall(text);
    }

    void record(const QString& text)
    {
        const QMutexLocker lock(&m_mutex);
        m_journal.append(text);
    }

    FakeFeature read(const QString& name, const QString& what)
    {
        announce(QStringLiteral("read %1 of %2").arg(what, name));
        const QMutexLocker lock(&m_mutex);
        if (!m_features.contains(name) || !m_features[name].readable)
            throw GenICam::RuntimeException(name.toStdString() + " cannot be read");
        m_journal.append(QStringLiteral("read %1 of %2").arg(what, name));
        return m_features[name];
    }

    void write(const QString& name, const QVariant& value, const QString& text)
    {
        announce(text);
        const QMutexLocker lock(&m_mutex);
        if (!m_features.contains(name) || !m_features[name].writable || m_features[name].refuses)
            throw GenICam::RuntimeException(name.toStdString() + " refuses to be written");
        FakeFeature& feature = m_features[name];
        feature.value = accepted(name, feature, value);
        m_journal.append(text);
    }

    /// Writes in the order in which they were carried out, such as "Gain = 2.5".
    QStringList writes() const
    {
        const QMutexLocker lock(&m_mutex);
        QStringList all;
        for (const QString& entry : m_journal)
            if (!entry.startsWith(QLatin1String("read ")))
                all.append(entry);
        return all;
    }

    /// Writes and readings, such as "read value of Gain".
    QStringList journal() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_journal;
    }

    void forget()
    {
        const QMutexLocker lock(&m_mutex);
        m_journal.clear();
    }

private:
    static QVariant accepted(const QString& name, const FakeFeature& feature, const QVariant& value)
    {
        if (feature.kind == FakeKind::Enumeration && !feature.entries.isEmpty() &&
            !feature.entries.contains(value.toString()))
            throw GenICam::RuntimeException(name.toStdString() + " has no such entry");
        if (feature.kind != FakeKind::Float && feature.kind != FakeKind::Integer)
            return value;
        const double number = value.toDouble();
        if (!(number >= feature.minimum && number <= feature.maximum))
            throw GenICam::RuntimeException(name.toStdString() + " is out of range");
        if (feature.resolution > 0.0)
            return std::round(number / feature.resolution) * feature.resolution;
        return value;
    }

    mutable QRecursiveMutex m_mutex;
    QHash<QString, FakeFeature> m_features;
    QStringList m_journal;
};
