// SPDX-License-Identifier: Apache-2.0
// The options and arguments of one subcommand.
#pragma once

#include "command.h"

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

namespace ColorCalibrate {

/// Reads a subcommand's part of the command line. Reentrant.
class CommandLine
{
public:
    /// \param usage        what follows the program's name, as help shows it
    /// \param description  what the subcommand does
    CommandLine(const QString& usage, const QString& description);

    void addFlag(const QString& name, const QString& description);
    void addOption(const QString& name, const QString& description, const QString& valueName);

    /// Parses; with --help among the arguments it writes the help instead.
    /// \param positionals  how many arguments beside the options there must be
    /// \return  false if help was asked for and nothing else is to be done
    /// \throws CommandError  WrongUsage: unknown or incomplete options, too few or many arguments,
    ///                       or one that is empty or has bytes that are no text
    bool parse(const QStringList& arguments, int positionals, std::ostream& out);

    bool isSet(const QString& name) const { return m_parser.isSet(name); }
    QString value(const QString& name) const { return m_parser.value(name); }
    QString positional(int index) const { return m_parser.positionalArguments().at(index); }

    /// \throws CommandError  WrongUsage: the option is missing
    QString requiredValue(const QString& name) const;

private:
    void writeHelp(std::ostream& out) const;

    QString m_usage;
    QString m_description;
    QCommandLineParser m_parser;
};

} // namespace ColorCalibrate
