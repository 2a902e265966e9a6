// SPDX-License-Identifier: Apache-2.0
// A camera's colour settings as an object.
#include "settingsparser.h"

#include "featurelines.h"

namespace ColorCalibration {
namespace {

QJsonObject unknownValues(std::initializer_list<const char*> keys)
{
    QJsonObject object;
    for (const char* key : keys)
        object.insert(QLatin1String(key), QStringLiteral("N/A"));
    return object;
}

/// Fills the object line by line.
class SettingsParser
{
public:
    void read(const QString& name, const QString& value)
    {
        if (readSelector(name, value) || readSelected(name, value))
            return;
        if (name == QLatin1String("BlackLevelRaw") || name == QLatin1String("BlackLevel"))
            m_blackLevel = value;
        else if (name == QLatin1String("Gamma"))
            m_gamma = value;
        else if (name.startsWith(QLatin1String("Tvr")))
            set(m_hsbc, name.mid(3), value);
    }

    QJsonObject settings() const
    {
        return {
            {QStringLiteral("BlackLevel"), m_blackLevel},
            {QStringLiteral("Gamma"), m_gamma},
            {QStringLiteral("Matrix"), m_matrix},
            {QStringLiteral("BC6x2"), QJsonObject{{QStringLiteral("Hue"), m_hue},
                                                  {QStringLiteral("Saturation"), m_saturation}}},
            {QStringLiteral("HSBC"), m_hsbc},
            {QStringLiteral("WhiteBalance"), m_whiteBalance}};
    }

private:
    /// A key that the object does not have has no place in the report either.
    static void set(QJsonObject& object, const QString& key, const QString& value)
    {
        const auto entry = object.find(key);
        if (entry != object.end())
            entry.value() = value;
    }

    bool readSelector(const QString& name, const QString& value)
    {
        if (name == QLatin1String("ColorAdjustmentSelector") ||
            name == QLatin1String("TvrColorAdjustmentSelector"))
            m_adjustedColor = value;
        else if (name == QLatin1String("ColorTransformationValueSelector"))
            m_matrixElement = value;
        else if (name == QLatin1String("BalanceRatioSelector"))
            m_balancedColor = value;
        else
            return false;
        return true;
    }

    bool readSelected(const QString& name, const QString& value)
    {
        const auto isOneOf = [&name](auto... names) {
            return ((name == QLatin1String(names)) || ...);
        };
        if (isOneOf("ColorAdjustmentHue", "ColorAdjustmentHueRaw", "TvrColorAdjustmentHue",
                    "TvrColorAdjustmentHueRaw"))
            set(m_hue, m_adjustedColor, value);
        else if (isOneOf("ColorAdjustmentSaturation", "ColorAdjustmentSaturationRaw",
                         "TvrColorAdjustmentSaturation", "TvrColorAdjustmentSaturationRaw"))
            set(m_saturation, m_adjustedColor, value);
        else if (isOneOf("ColorTransformationValue", "ColorTransformationValueRaw"))
            set(m_matrix, m_matrixElement, value);
        else if (isOneOf("BalanceRatio", "BalanceRatioRaw"))
            set(m_whiteBalance, m_balancedColor, value);
        else
            return false;
        return true;
    }

    QString m_blackLevel = QStringLiteral("N/A");
    QString m_gamma = QStringLiteral("N/A");
    QJsonObject m_matrix = unknownValues(
        {"Gain00", "Gain01", "Gain02", "Gain10", "Gain11", "Gain12", "Gain20", "Gain21", "Gain22"});
    QJsonObject m_hue = unknownValues({"Red", "Yellow", "Green", "Cyan", "Blue", "Magenta"});
    QJsonObject m_saturation = m_hue;
    QJsonObject m_hsbc = unknownValues({"Hue", "Saturation", "Brightness", "Contrast"});
    QJsonObject m_whiteBalance = unknownValues({"Red", "Green", "Blue"});
    QString m_adjustedColor;
    QString m_matrixElement;
    QString m_balancedColor;
};

} // namespace

QJsonObject ParseSettings(const QString& text)
{
    SettingsParser parser;
    for (const QString& line : featureLines(text))
        parser.read(line.section(QLatin1Char('\t'), 0, 0), line.section(QLatin1Char('\t'), 1));
    return parser.settings();
}

} // namespace ColorCalibration
