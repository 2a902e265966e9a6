// SPDX-License-Identifier: Apache-2.0
// What the lines that a camera has refused have left different.
#include "refusedlines.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <exception>
#include <iterator>

using namespace Core::ParameterCollection;

namespace ColorCalibration {
namespace {

/// By feature, in the order of the text: one behind a selector has a value for each position, and
/// the selector itself has the positions.
using Values = QHash<QString, QStringList>;

Values valuesIn(const QString& text)
{
    Values values;
    const auto lines = text.splitRef(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QStringRef& line : lines) {
        const int tab = line.indexOf(QLatin1Char('\t'));
        if (tab > 0 && !line.startsWith(QLatin1Char('#')))
            values[line.left(tab).toString()].append(line.mid(tab + 1).toString());
    }
    return values;
}

template <typename Parameter>
const Parameter* readable(const ParameterPtr& parameter)
{
    const auto* typed = qobject_cast<const Parameter*>(parameter.data());
    return typed && typed->isReadable() ? typed : nullptr;
}

/// For a feature that cannot be written at present and is in no saved text therefore.
bool hasValue(const ParameterPtr& parameter, const QString& text)
{
    if (const auto* number = readable<IFloatParameter>(parameter))
        return number->value() == text.toDouble();
    if (const auto* integer = readable<IIntegerParameter>(parameter))
        return integer->value() == text.toLongLong();
    if (const auto* flag = readable<IBooleanParameter>(parameter))
        return flag->value() == (text == QLatin1String("1"));
    const auto* entry = readable<IEnumerationParameter>(parameter);
    return entry && entry->value() == text;
}

class Comparison
{
public:
    Comparison(const QString& wanted, IParameterCollection& parameters, const QString& nodeMap)
        : m_wanted(valuesIn(wanted))
        , m_parameters(parameters)
    {
        QString text;
        parameters.saveFeatures(text, nodeMap);
        m_present = valuesIn(text);
    }

    bool isUnmet(const QString& refusedLine) const
    {
        // Lines come in the user's language, where no blank need part a name from its sentence:
        // only letters without accents make a word here, as they do in names of features.
        static const QRegularExpression word(QStringLiteral("\\w+"));
        bool namesAny = false;
        auto words = word.globalMatch(refusedLine);
        while (words.hasNext()) {
            const QString name = words.next().captured();
            if (!m_wanted.contains(name))
                continue;
            if (!isMet(name))
                return true;
            namesAny = true;
        }
        return !namesAny;
    }

private:
    bool isMet(const QString& name) const
    {
        const QStringList& values = *m_wanted.constFind(name);
        const auto present = m_present.constFind(name);
        if (present != m_present.constEnd())
            return *present == values;
        // With a selector the positions of the values would have to be gone through.
        return values.size() == 1 && hasValue(m_parameters.parameter(name), values.first());
    }

    Values m_wanted;
    Values m_present;
    IParameterCollection& m_parameters;
};

} // namespace

QStringList unmetLines(const QStringList& refused, const QString& wanted,
                       IParameterCollection& parameters, const QString& nodeMap)
{
    try {
        const Comparison comparison(wanted, parameters, nodeMap);
        QStringList unmet;
        std::copy_if(refused.begin(), refused.end(), std::back_inserter(unmet),
                     [&](const QString& line) { return comparison.isUnmet(line); });
        return unmet;
    } catch (const std::exception&) {
        // What cannot be compared must be taken for different.
        return refused;
    }
}

} // namespace ColorCalibration
