// SPDX-License-Identifier: Apache-2.0
// A camera's feature as the user reads and writes it.
#include "featurevalue.h"

#include "genicamexception.h"
#include "patience.h"
#include "withoutfullstop.h"

#include <QCoreApplication>
#include <QLocale>

#include <chrono>
#include <limits>

namespace Viewer {

using namespace Core::ParameterCollection;
using Cameras::GenICam::Patience;

namespace {

/// Cameras that are there answer within a thousandth of the first, within a tenth of the second
/// where they have to store something; the window can wait that long.
constexpr std::chrono::milliseconds readingPatience(100);
constexpr std::chrono::milliseconds writingPatience(500);

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Viewer::FeatureValue)
};

QString numberText(double value, int digits)
{
    return QString::number(value, 'g', digits);
}

bool isLimit(double value)
{
    return value > std::numeric_limits<double>::lowest() &&
           value < std::numeric_limits<double>::max();
}

bool isLimit(qint64 value)
{
    return value > std::numeric_limits<qint64>::min() && value < std::numeric_limits<qint64>::max();
}

QString limitText(double value)
{
    return numberText(value, 7);
}

QString limitText(qint64 value)
{
    return QString::number(value);
}

template <typename Number>
QString limits(Number lowest, Number highest)
{
    if (isLimit(lowest) && isLimit(highest))
        return Texts::tr("%1 to %2").arg(limitText(lowest), limitText(highest));
    if (isLimit(lowest))
        return Texts::tr("at least %1").arg(limitText(lowest));
    return isLimit(highest) ? Texts::tr("at most %1").arg(limitText(highest)) : QString();
}

QString withUnit(const QString& number, const IParameter& parameter)
{
    const QString unit = parameter.unit();
    return unit.isEmpty() ? number : number + QLatin1Char(' ') + unit;
}

void readFloat(IFloatParameter& parameter, FeatureState& state)
{
    const double value = parameter.value();
    state.written = numberText(value, 12);
    state.text = withUnit(numberText(value, 7), parameter);
    state.limits = limits(parameter.minimum(), parameter.maximum());
}

void readInteger(IIntegerParameter& parameter, FeatureState& state)
{
    state.written = QString::number(parameter.value());
    state.text = withUnit(state.written, parameter);
    state.limits = limits(parameter.minimum(), parameter.maximum());
    if (parameter.increment() > 1)
        state.limits += Texts::tr(", in steps of %1").arg(parameter.increment());
}

void readEnumeration(IEnumerationParameter& parameter, FeatureState& state)
{
    state.written = parameter.value();
    state.text = state.written;
    for (const EnumerationEntry& entry : parameter.entries())
        if (entry.name == state.written)
            state.text = entry.displayName;
}

void readValue(IParameter& parameter, FeatureState& state)
{
    if (auto* number = dynamic_cast<IFloatParameter*>(&parameter))
        readFloat(*number, state);
    else if (auto* integer = dynamic_cast<IIntegerParameter*>(&parameter))
        readInteger(*integer, state);
    else if (auto* choice = dynamic_cast<IEnumerationParameter*>(&parameter))
        readEnumeration(*choice, state);
    else if (auto* boolean = dynamic_cast<IBooleanParameter*>(&parameter))
        state.written = boolean->value() ? QStringLiteral("1") : QStringLiteral("0");
    else if (auto* text = dynamic_cast<ITextParameter*>(&parameter))
        state.text = state.written = text->value();
}

// Numbers are read as the user's country writes them, and as programs do.
template <typename Number, typename FromLocale, typename FromC>
Number parse(const QString& text, const FromLocale& fromLocale, const FromC& fromC)
{
    bool isNumber = false;
    Number value = fromC(text.trimmed(), isNumber);
    if (!isNumber)
        value = fromLocale(text.trimmed(), isNumber);
    if (!isNumber)
        throw GenICam::RuntimeException(
            Texts::tr("\"%1\" is no number of this kind.").arg(text).toStdString());
    return value;
}

double parseFloat(const QString& text)
{
    return parse<double>(
        text, [](const QString& typed, bool& ok) { return QLocale().toDouble(typed, &ok); },
        [](const QString& typed, bool& ok) { return typed.toDouble(&ok); });
}

qint64 parseInteger(const QString& text)
{
    return parse<qint64>(
        text, [](const QString& typed, bool& ok) { return QLocale().toLongLong(typed, &ok); },
        [](const QString& typed, bool& ok) { return typed.toLongLong(&ok); });
}

void writeValue(IParameter& parameter, const QString& text)
{
    if (auto* number = dynamic_cast<IFloatParameter*>(&parameter))
        number->setValue(parseFloat(text));
    else if (auto* integer = dynamic_cast<IIntegerParameter*>(&parameter))
        integer->setValue(parseInteger(text), false);
    else if (auto* choice = dynamic_cast<IEnumerationParameter*>(&parameter))
        choice->setValue(text);
    else if (auto* boolean = dynamic_cast<IBooleanParameter*>(&parameter))
        boolean->setValue(text == QLatin1String("1"), false);
    else if (auto* word = dynamic_cast<ITextParameter*>(&parameter))
        word->setValue(text);
    else if (auto* command = dynamic_cast<ICommandParameter*>(&parameter))
        command->execute();
}

} // namespace

FeatureEditor editorOf(IParameter& parameter)
{
    if (dynamic_cast<IFloatParameter*>(&parameter) || dynamic_cast<IIntegerParameter*>(&parameter))
        return FeatureEditor::Number;
    if (dynamic_cast<IBooleanParameter*>(&parameter))
        return FeatureEditor::Switch;
    if (dynamic_cast<IEnumerationParameter*>(&parameter))
        return FeatureEditor::Choice;
    if (dynamic_cast<ITextParameter*>(&parameter))
        return FeatureEditor::Text;
    return dynamic_cast<ICommandParameter*>(&parameter) ? FeatureEditor::Button
                                                        : FeatureEditor::None;
}

FeatureState readFeature(IParameter& parameter)
{
    const Patience limited(readingPatience);
    const std::uint64_t failures = Patience::failures();
    FeatureState state;
    try {
        state.isAvailable = parameter.isAvailable();
        state.isWritable = parameter.isWritable();
        if (parameter.isReadable())
            readValue(parameter, state);
    } catch (const GenICam::RuntimeException&) {
        state.text.clear();
    }
    state.isPending = Patience::failures() != failures;
    return state;
}

QString writeFeature(IParameter& parameter, const QString& text)
{
    const Patience limited(writingPatience);
    try {
        writeValue(parameter, text);
        return {};
    } catch (const GenICam::RuntimeException& error) {
        const QString limits = readFeature(parameter).limits;
        const QString reason = QString::fromUtf8(error.what());
        if (limits.isEmpty())
            return reason;
        return Texts::tr("%1 (possible now: %2).").arg(Core::withoutFullStop(reason), limits);
    }
}

FeatureChoices choicesOf(IParameter& parameter)
{
    const Patience limited(readingPatience);
    const auto* choice = dynamic_cast<IEnumerationParameter*>(&parameter);
    FeatureChoices choices;
    try {
        if (choice)
            for (const EnumerationEntry& entry : choice->entries())
                if (entry.isSettable)
                    choices.append({entry.name, entry.displayName});
    } catch (const GenICam::RuntimeException&) {
        return {};
    }
    return choices;
}

} // namespace Viewer
