// SPDX-License-Identifier: Apache-2.0
// Keeps the image decoders' own messages off standard error.
#include "decoderoutput.h"

#include <cstdio>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <share.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

namespace ColorCalibrate {
namespace {

#ifdef _WIN32
int duplicate(int descriptor)
{
    return _dup(descriptor);
}
void duplicateOnto(int descriptor, int target)
{
    _dup2(descriptor, target);
}
void closeDescriptor(int descriptor)
{
    _close(descriptor);
}
int openNothing()
{
    return _open("NUL", _O_WRONLY);
}
int standardErrorDescriptor()
{
    return _fileno(stderr);
}
#else
int duplicate(int descriptor)
{
    return dup(descriptor);
}
void duplicateOnto(int descriptor, int target)
{
    dup2(descriptor, target);
}
void closeDescriptor(int descriptor)
{
    close(descriptor);
}
int openNothing()
{
    return open("/dev/null", O_WRONLY | O_CLOEXEC);
}
int standardErrorDescriptor()
{
    return fileno(stderr);
}
#endif

} // namespace

DecoderOutput::DecoderOutput()
{
    std::fflush(stderr);
    const int nothing = openNothing();
    if (nothing < 0)
        return;
    m_standardError = duplicate(standardErrorDescriptor());
    if (m_standardError >= 0)
        duplicateOnto(nothing, standardErrorDescriptor());
    closeDescriptor(nothing);
}

DecoderOutput::~DecoderOutput()
{
    if (m_standardError < 0)
        return;
    std::fflush(stderr);
    duplicateOnto(m_standardError, standardErrorDescriptor());
    closeDescriptor(m_standardError);
}

} // namespace ColorCalibrate
