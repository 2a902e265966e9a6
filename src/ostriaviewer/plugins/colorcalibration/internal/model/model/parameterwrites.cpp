// SPDX-License-Identifier: Apache-2.0
// Writes of parameters by name, guarded and not.
#include "parameterwrites.h"

#include <utility>

namespace ColorCalibration {

bool isUsable(const Core::ParameterCollection::IParameter& parameter)
{
    return !parameter.isEmpty() && parameter.isWritable();
}

ParameterWrites::ParameterWrites(Core::ParameterCollection::ParameterCollectionPtr parameters)
    : m_parameters(std::move(parameters))
{}

void ParameterWrites::entry(QLatin1String name, QLatin1String value) const
{
    m_parameters->enumerationParameter(name)->setValue(value);
}

void ParameterWrites::number(QLatin1String name, double value) const
{
    m_parameters->floatParameter(name)->setValue(value);
}

void ParameterWrites::verified(QLatin1String name, bool value) const
{
    m_parameters->booleanParameter(name)->setValue(value, true);
}

void ParameterWrites::verified(QLatin1String name, qint64 value) const
{
    m_parameters->integerParameter(name)->setValue(value, true);
}

bool ParameterWrites::guardedEntry(QLatin1String name, QLatin1String value) const
{
    const auto parameter = m_parameters->enumerationParameter(name);
    if (!isUsable(*parameter))
        return false;
    parameter->setValue(value);
    return true;
}

void ParameterWrites::guardedNumber(QLatin1String name, double value) const
{
    const auto parameter = m_parameters->floatParameter(name);
    if (isUsable(*parameter))
        parameter->setValue(value);
}

void ParameterWrites::guardedVerified(QLatin1String name, bool value) const
{
    const auto parameter = m_parameters->booleanParameter(name);
    if (isUsable(*parameter))
        parameter->setValue(value, true);
}

void ParameterWrites::tryEntry(QLatin1String name, QLatin1String value) const
{
    const auto parameter = m_parameters->enumerationParameter(name);
    if (isUsable(*parameter))
        parameter->trySetValue(value);
}

} // namespace ColorCalibration
