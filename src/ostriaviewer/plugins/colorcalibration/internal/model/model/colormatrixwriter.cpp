// SPDX-License-Identifier: Apache-2.0
// Writes the nine gains of the color transformation.
#include "colormatrixwriter.h"

#include "logging.h"
#include "reportfailure.h"

#include <QLatin1String>

#include <cmath>

namespace ColorCalibration {
namespace {

/// No camera that can be calibrated has steps this large.
constexpr double coarsestRounding = 1.0 / 64.0;

void warn(const QString& text)
{
    static const Core::Logging::CatId category = Core::Logging::getCatId(adapterLogCategory());
    Core::Logging::createLogEntry(Core::Logging::Warning, category, text);
}

} // namespace

ColorMatrixWriter::ColorMatrixWriter(Core::ParameterCollection::IParameterCollection& parameters)
    : m_selector(parameters.enumerationParameter(
          QLatin1String("@CameraDevice/ColorTransformationValueSelector")))
    , m_value(parameters.floatParameter(QLatin1String("@CameraDevice/ColorTransformationValue")))
{}

void ColorMatrixWriter::write(const ColorMatrix& matrix) const
{
    for (int row = 0; row < 3; ++row)
        writeRow(matrix, row);
}

void ColorMatrixWriter::writeRow(const ColorMatrix& matrix, int row) const
{
    const int first = row == 0 ? 1 : 0;
    const int second = row == 2 ? 1 : 2;
    const double a = writeGain(row, first, matrix(row, first));
    const double b = writeGain(row, second, matrix(row, second));
    writeGain(row, row, 1.0 - a - b);
}

double ColorMatrixWriter::writeGain(int row, int column, double gain) const
{
    const QString name = QStringLiteral("Gain%1%2").arg(row).arg(column);
    const bool isSelected = m_selector->trySetValue(name);
    const bool isWritten = m_value->trySetValue(gain);
    const double kept = m_value->valueOrDefault(0.0);
    const bool isKept = isWritten ? std::abs(kept - gain) <= coarsestRounding
                                  : m_value->isReadable() && kept == gain;
    if (isMissing() || (isSelected && isKept))
        return kept;
    if (!isSelected)
        warn(QStringLiteral(
                 "The camera cannot select %1 of the color matrix; its value, %2, went to "
                 "the gain that was selected before, or is lost.")
                 .arg(name)
                 .arg(gain));
    else if (!m_value->isReadable())
        warn(QStringLiteral("The camera does not tell %1 of the color matrix, which should be %2.")
                 .arg(name)
                 .arg(gain));
    else
        warn(QStringLiteral("The camera refuses %1 of the color matrix: it keeps %2 instead of %3.")
                 .arg(name)
                 .arg(kept)
                 .arg(gain));
    return kept;
}

} // namespace ColorCalibration
