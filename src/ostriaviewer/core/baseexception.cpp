// SPDX-License-Identifier: Apache-2.0
// The host's exception.
#include "baseexception.h"

namespace Core::Exception {

BaseException::BaseException(const QString& message)
    : m_message(message)
    , m_utf8(message.toUtf8())
{}

BaseException::~BaseException() = default;

} // namespace Core::Exception
