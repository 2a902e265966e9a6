// SPDX-License-Identifier: Apache-2.0
// The name of a command in menus and on buttons.
#include "commandtext.h"

#include <QRegularExpression>

namespace Viewer {

void setCommandText(QAction& action, const QString& text)
{
    static const QRegularExpression key(QStringLiteral("\\(&[A-Z]\\)|&|\\.\\.\\."));
    QString plain = text;
    action.setText(text);
    action.setIconText(plain.remove(key));
}

} // namespace Viewer
