// SPDX-License-Identifier: Apache-2.0
// Any text as filtered settings: the object has its shape, and filtering twice drops no line more.
#include "settingsfilter.h"
#include "settingsparser.h"

#include <QStringList>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

/// How many texts stand in an object, however deep; any other kind of leaf ends the program.
int countTexts(const QJsonValue& value)
{
    if (value.isString())
        return 1;
    if (!value.isObject())
        std::abort();
    int count = 0;
    const QJsonObject object = value.toObject();
    for (const QJsonValue& member : object)
        count += countTexts(member);
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    // Black level, gamma, nine matrix entries, twelve of six sectors, four of HSBC, three ratios.
    if (countTexts(ColorCalibration::ParseSettings(text)) != 30)
        std::abort();
    const QString filtered = ColorCalibration::FilterSettings(text);
    const QString twice = ColorCalibration::FilterSettings(filtered);
    if (twice.count(QLatin1Char('\n')) != filtered.count(QLatin1Char('\n')))
        std::abort();
    return 0;
}
