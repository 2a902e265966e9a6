// SPDX-License-Identifier: Apache-2.0
// Words of others in messages.
#pragma once

#include <QStringRef>

namespace Cameras::GenICam {

/// What to show of a name or a value that may be anything: 40 characters of it, those that cannot
/// be printed replaced. Reentrant.
QString shown(const QStringRef& word);

} // namespace Cameras::GenICam
