// SPDX-License-Identifier: Apache-2.0
// Dark and light colors of the windows.
#include "theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>
#include <QToolTip>

namespace Viewer {
namespace {

struct Colors
{
    QColor window;
    QColor base;
    QColor alternateBase;
    QColor text;
    QColor faintText;
    QColor button;
    QColor highlight;
    QColor highlightedText;
    QColor link;
    QColor toolTip;
};

Colors darkColors()
{
    return {QColor(45, 45, 48),    QColor(30, 30, 32), QColor(38, 38, 41),   QColor(230, 230, 230),
            QColor(130, 130, 130), QColor(58, 58, 62), QColor(42, 110, 187), QColor(255, 255, 255),
            QColor(100, 170, 255), QColor(65, 65, 70)};
}

Colors lightColors()
{
    return {QColor(240, 240, 240), QColor(255, 255, 255), QColor(246, 246, 246),
            QColor(25, 25, 25),    QColor(140, 140, 140), QColor(240, 240, 240),
            QColor(42, 110, 187),  QColor(255, 255, 255), QColor(0, 85, 175),
            QColor(255, 255, 225)};
}

QPalette paletteOf(const Colors& colors)
{
    QPalette palette(colors.button, colors.window);
    palette.setColor(QPalette::Base, colors.base);
    palette.setColor(QPalette::AlternateBase, colors.alternateBase);
    palette.setColor(QPalette::ToolTipBase, colors.toolTip);
    palette.setColor(QPalette::Highlight, colors.highlight);
    palette.setColor(QPalette::HighlightedText, colors.highlightedText);
    palette.setColor(QPalette::Link, colors.link);
    palette.setColor(QPalette::LinkVisited, colors.link);
    palette.setColor(QPalette::PlaceholderText, colors.faintText);
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, colors.text);
        palette.setColor(QPalette::Disabled, role, colors.faintText);
    }
    return palette;
}

} // namespace

Theme themeFromName(const QString& name)
{
    for (const Theme theme : {Theme::Light, Theme::Dark})
        if (name == nameOf(theme))
            return theme;
    return Theme::Desktop;
}

QString nameOf(Theme theme)
{
    switch (theme) {
    case Theme::Light:
        return QStringLiteral("light");
    case Theme::Dark:
        return QStringLiteral("dark");
    case Theme::Desktop:
        break;
    }
    return QStringLiteral("desktop");
}

// The same everywhere, as others do not follow a palette in all their parts.
QString styleName()
{
    return QStringLiteral("fusion");
}

// A default palette is the desktop's.
void applyTheme(Theme theme)
{
    if (QApplication::style()->objectName() != styleName())
        QApplication::setStyle(styleName());
    QPalette palette;
    if (theme == Theme::Light)
        palette = paletteOf(lightColors());
    else if (theme == Theme::Dark)
        palette = paletteOf(darkColors());
    QApplication::setPalette(palette);
    QToolTip::setPalette(theme == Theme::Desktop ? QApplication::palette() : palette);
}

} // namespace Viewer
