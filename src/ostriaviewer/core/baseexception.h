// SPDX-License-Identifier: Apache-2.0
// The host's exception.
#pragma once

#include "coreexport.h"

#include <QByteArray>
#include <QString>

#include <exception>

namespace Core::Exception {

/// What the host's services throw. Reentrant.
class OSTRIAVIEWER_CORE_EXPORT BaseException : public std::exception
{
public:
    explicit BaseException(const QString& message);
    ~BaseException() override;

    /// For people.
    QString getMessage() const { return m_message; }

    const char* what() const noexcept override { return m_utf8.constData(); }

private:
    QString m_message;
    QByteArray m_utf8;
};

} // namespace Core::Exception
