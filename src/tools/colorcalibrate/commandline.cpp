// SPDX-License-Identifier: Apache-2.0
// The options and arguments of one subcommand.
#include "commandline.h"

#include "withoutfullstop.h"

#include <ostream>

namespace ColorCalibrate {
namespace {

void requireNotEmpty(const QStringList& values, const QString& hint)
{
    if (values.contains(QString()))
        throw CommandError(QStringLiteral("an argument is empty") + hint, WrongUsage);
}

/// What stands for bytes that could not be read would name another file.
void requireText(const QStringList& values, const QString& hint)
{
    for (const QString& value : values)
        if (value.contains(QChar(QChar::ReplacementCharacter)))
            throw CommandError(
                QStringLiteral("\"%1\" has bytes that are no text").arg(value) + hint, WrongUsage);
}

} // namespace

CommandLine::CommandLine(const QString& usage, const QString& description)
    : m_usage(usage)
    , m_description(description)
{
    m_parser.addOption(
        {{QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Displays this help.")});
}

void CommandLine::addFlag(const QString& name, const QString& description)
{
    m_parser.addOption({name, description});
}

void CommandLine::addOption(const QString& name, const QString& description,
                            const QString& valueName)
{
    m_parser.addOption({name, description, valueName});
}

bool CommandLine::parse(const QStringList& arguments, int positionals, std::ostream& out)
{
    // The parser skips a program name.
    const bool parsed = m_parser.parse(QStringList(QString()) + arguments);
    if (m_parser.isSet(QStringLiteral("help"))) {
        writeHelp(out);
        return false;
    }
    const QString hint = QStringLiteral("; usage: colorcalibrate %1").arg(m_usage);
    if (!parsed)
        throw CommandError(Core::withoutFullStop(m_parser.errorText()) + hint, WrongUsage);
    const QStringList given = m_parser.positionalArguments();
    if (given.size() < positionals)
        throw CommandError(QStringLiteral("an argument is missing") + hint, WrongUsage);
    if (given.size() > positionals)
        throw CommandError(
            QStringLiteral("\"%1\" is an argument too many").arg(given.at(positionals)) + hint,
            WrongUsage);
    requireNotEmpty(given, hint);
    requireText(given, hint);
    for (const QString& name : m_parser.optionNames()) {
        requireNotEmpty(m_parser.values(name), hint);
        // A camera may have such a name, and is listed by it.
        if (name != QLatin1String("camera"))
            requireText(m_parser.values(name), hint);
    }
    return true;
}

QString CommandLine::requiredValue(const QString& name) const
{
    if (!isSet(name))
        throw CommandError(
            QStringLiteral("--%1 is missing; usage: colorcalibrate %2").arg(name, m_usage),
            WrongUsage);
    return value(name);
}

void CommandLine::writeHelp(std::ostream& out) const
{
    const QString options = m_parser.helpText();
    out << "Usage: colorcalibrate " << m_usage.toStdString() << "\n\n"
        << m_description.toStdString() << "\n\n"
        << options.mid(options.indexOf(QLatin1String("Options:"))).toStdString();
}

} // namespace ColorCalibrate
