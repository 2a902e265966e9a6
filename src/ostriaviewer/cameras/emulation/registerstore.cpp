// SPDX-License-Identifier: Apache-2.0
// The registers of an emulated camera.
#include "registerstore.h"

#include "genicamexception.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QtEndian>

#include <cmath>
#include <cstring>
#include <string>
#include <utility>

namespace Cameras::Emulation {
namespace {

[[noreturn]] void refuse(const FeatureDefinition& feature, const std::string& reason)
{
    throw ::GenICam::RuntimeException(feature.name.toStdString() + ": " + reason);
}

void encode(const FeatureDefinition& feature, double value, void* data)
{
    if (feature.kind == FeatureKind::Float) {
        quint64 bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        qToBigEndian(bits, data);
    } else {
        qToBigEndian(static_cast<qint64>(value), data);
    }
}

double decode(const FeatureDefinition& feature, const void* data)
{
    if (feature.kind != FeatureKind::Float)
        return static_cast<double>(qFromBigEndian<qint64>(data));
    const auto bits = qFromBigEndian<quint64>(data);
    double value = 0.0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

} // namespace

RegisterStore::RegisterStore(std::shared_ptr<const FeatureTable> table)
    : m_table(std::move(table))
    , m_layout(*m_table)
    , m_values(m_table)
{}

void RegisterStore::setWriteHook(WriteHook hook)
{
    const std::lock_guard lock(m_mutex);
    m_hook.swap(hook);
}

RegisterLayout::Place RegisterStore::checkedPlace(std::uint64_t address, std::size_t size) const
{
    if (!m_reachable)
        throw ::GenICam::RuntimeException(
            QCoreApplication::translate("Cameras::Emulation::EmulatedCamera",
                                        "The camera does not answer.")
                .toStdString());
    const auto place = m_layout.locate(address);
    if (!place || place->size != size)
        throw ::GenICam::RuntimeException("The camera has no such register.");
    return *place;
}

void RegisterStore::checkAccess(const FeatureDefinition& feature)
{
    if (!feature.writable)
        refuse(feature, "The feature cannot be written.");
    if (!m_values.isAvailable(feature))
        refuse(feature, "The feature is not available now.");
    if (m_values.isLocked(feature))
        refuse(feature, "The feature is locked now.");
    const auto refusal = m_refusals.find(feature.name);
    if (refusal == m_refusals.end())
        return;
    if (*refusal == 0)
        refuse(feature, "The camera refuses the value.");
    --*refusal;
}

void RegisterStore::read(std::uint64_t address, void* data, std::size_t size)
{
    const std::lock_guard lock(m_mutex);
    const RegisterLayout::Place place = checkedPlace(address, size);
    const FeatureDefinition& feature = m_table->at(place.feature);
    if (feature.kind == FeatureKind::String) {
        const QByteArray text = feature.text.toUtf8().left(RegisterLayout::textSize - 1);
        std::memset(data, 0, size);
        std::memcpy(data, text.constData(), static_cast<std::size_t>(text.size()));
        return;
    }
    encode(feature, m_values.value(feature.name, place.cell), data);
}

void RegisterStore::write(std::uint64_t address, const void* data, std::size_t size)
{
    std::unique_lock lock(m_mutex);
    const RegisterLayout::Place place = checkedPlace(address, size);
    const FeatureDefinition& feature = m_table->at(place.feature);
    checkAccess(feature);
    const double wanted = decode(feature, data);
    if (!m_values.accepts(feature, wanted))
        refuse(feature, "The value is not allowed.");

    const double before = m_values.value(feature.name, place.cell);
    if (feature.kind != FeatureKind::Command)
        store(feature, place.cell, m_values.nearest(feature, wanted));
    // Another one may be set while this one is at work.
    const WriteHook hook = m_hook;
    lock.unlock();
    if (!hook)
        return;
    try {
        hook(feature, place.cell);
    } catch (...) {
        restoreCell(feature, place.cell, before);
        throw;
    }
}

void RegisterStore::store(const FeatureDefinition& feature, int cell, double value)
{
    m_values.set(feature.name, value, cell);
    if (!feature.link)
        return;
    const FeatureDefinition& other = *m_table->find(feature.link->feature);
    const double linked = value * feature.link->factor;
    const bool whole = other.kind == FeatureKind::Integer;
    m_values.set(other.name, m_values.nearest(other, whole ? std::round(linked) : linked), cell);
}

void RegisterStore::restoreCell(const FeatureDefinition& feature, int cell, double value)
{
    if (feature.kind == FeatureKind::Command)
        return;
    const std::lock_guard lock(m_mutex);
    store(feature, cell, value);
}

FeatureValues RegisterStore::values() const
{
    const std::lock_guard lock(m_mutex);
    return m_values;
}

void RegisterStore::setValues(const FeatureValues& values)
{
    const std::lock_guard lock(m_mutex);
    m_values = values;
}

void RegisterStore::set(const QString& name, double value, int cell)
{
    const std::lock_guard lock(m_mutex);
    if (const FeatureDefinition* feature = m_table->find(name))
        store(*feature, cell, m_values.nearest(*feature, value));
}

bool RegisterStore::isConnected() const
{
    const std::lock_guard lock(m_mutex);
    return m_reachable;
}

void RegisterStore::setReachable(bool reachable)
{
    const std::lock_guard lock(m_mutex);
    m_reachable = reachable;
}

void RegisterStore::refuseWrites(const QString& name, int afterWrites)
{
    const std::lock_guard lock(m_mutex);
    if (afterWrites < 0)
        m_refusals.remove(name);
    else
        m_refusals[name] = afterWrites;
}

} // namespace Cameras::Emulation
