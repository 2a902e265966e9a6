// SPDX-License-Identifier: Apache-2.0
// The registers of an emulated camera.
#pragma once

#include "featurevalues.h"
#include "registerlayout.h"
#include "registerport.h"

#include <QHash>
#include <QString>

#include <functional>
#include <memory>
#include <mutex>

namespace Cameras::Emulation {

/// Keeps the values of all features as registers, and guards them as a camera's firmware does: a
/// value that is out of its limits, locked or not available is refused, floats are rounded to the
/// feature's resolution. Clients come through read and write, the camera itself through the other
/// functions, for which locks do not count. Thread-safe.
class RegisterStore final : public GenICam::IRegisterPort
{
public:
    /// Called after a client's write, on the client's thread; may use the store. If it throws, the
    /// write is undone and refused.
    using WriteHook = std::function<void(const FeatureDefinition& feature, int cell)>;

    explicit RegisterStore(std::shared_ptr<const FeatureTable> table);

    /// Counts for writes that begin after that.
    void setWriteHook(WriteHook hook);

    const std::shared_ptr<const FeatureTable>& table() const { return m_table; }
    const RegisterLayout& layout() const { return m_layout; }

    void read(std::uint64_t address, void* data, std::size_t size) override;
    void write(std::uint64_t address, const void* data, std::size_t size) override;
    bool isConnected() const override;

    /// All values at one moment.
    FeatureValues values() const;

    /// Puts other values of the same table in the place of all.
    void setValues(const FeatureValues& values);

    /// Stores the nearest value that the feature takes.
    void set(const QString& name, double value, int cell = 0);

    /// An unreachable camera refuses everything.
    void setReachable(bool reachable);

    /// Lets a feature refuse clients' writes.
    /// \param afterWrites  how many are taken before; negative ends the refusing
    void refuseWrites(const QString& name, int afterWrites);

private:
    RegisterLayout::Place checkedPlace(std::uint64_t address, std::size_t size) const;
    void checkAccess(const FeatureDefinition& feature);
    void store(const FeatureDefinition& feature, int cell, double value);
    void restoreCell(const FeatureDefinition& feature, int cell, double value);

    const std::shared_ptr<const FeatureTable> m_table;
    const RegisterLayout m_layout;

    mutable std::mutex m_mutex; // guards all below
    WriteHook m_hook;
    FeatureValues m_values;
    QHash<QString, int> m_refusals; // writes that are still taken, by feature
    bool m_reachable = true;
};

} // namespace Cameras::Emulation
