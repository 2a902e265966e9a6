// SPDX-License-Identifier: Apache-2.0
// Writes of parameters by name, guarded and not.
#pragma once

#include "iparametercollection.h"

#include <QLatin1String>

namespace ColorCalibration {

/// Short forms for the one pattern of the camera adapter: look a parameter up and write it. The
/// guarded forms skip a parameter that is missing or not writable; the others throw then.
class ParameterWrites
{
public:
    explicit ParameterWrites(Core::ParameterCollection::ParameterCollectionPtr parameters);

    void entry(QLatin1String name, QLatin1String value) const;
    void number(QLatin1String name, double value) const;
    void verified(QLatin1String name, bool value) const;
    void verified(QLatin1String name, qint64 value) const;

    /// \return  whether the parameter could be written to
    bool guardedEntry(QLatin1String name, QLatin1String value) const;
    void guardedNumber(QLatin1String name, double value) const;
    void guardedVerified(QLatin1String name, bool value) const;

    /// Guarded, and a refusal by the camera is passed over too.
    void tryEntry(QLatin1String name, QLatin1String value) const;

private:
    Core::ParameterCollection::ParameterCollectionPtr m_parameters;
};

/// Whether a parameter is there and can be written to.
bool isUsable(const Core::ParameterCollection::IParameter& parameter);

} // namespace ColorCalibration
