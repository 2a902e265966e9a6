// SPDX-License-Identifier: Apache-2.0
// What every subcommand shares: its streams, its exit codes, its way to fail.
#pragma once

#include <QString>

#include <exception>
#include <iosfwd>
#include <stdexcept>

namespace ColorCalibrate {

enum ExitCode {
    Success = 0,
    WorkFailed = 1, ///< the input or the work is at fault
    WrongUsage = 2  ///< the command line is at fault
};

/// Where a command reads and writes: results to out, messages to err.
struct Streams
{
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
};

/// Ends a command with one line that says what was wrong and where.
class CommandError : public std::runtime_error
{
public:
    explicit CommandError(const QString& message, ExitCode code = WorkFailed)
        : std::runtime_error(message.toStdString())
        , m_code(code)
    {}

    ExitCode code() const { return m_code; }

private:
    ExitCode m_code;
};

/// What an error says to a person, a lack of memory too.
QString wordsOf(const std::exception& error);

} // namespace ColorCalibrate
