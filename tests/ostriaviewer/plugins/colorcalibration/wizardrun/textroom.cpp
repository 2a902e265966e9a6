// SPDX-License-Identifier: Apache-2.0
// Whether the texts of a scene are seen whole: each in its own room, none over another.
#include "textroom.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFontMetrics>
#include <QLabel>
#include <QRegularExpression>
#include <QScreen>

#include <functional>

namespace TextRoom {
namespace {

/// Rounding, and the halves of pixels of centered texts.
constexpr double slack = 1.0;

/// A text or a control with what is seen of it, in the window.
struct Block
{
    QQuickItem* item;
    QRectF seen;
    QString name;
};

QString nameOf(const QQuickItem* item)
{
    const QString text = item->property("text").toString();
    return QStringLiteral("\"%1\" (%2)").arg(text.left(40), item->objectName());
}

bool isText(const QQuickItem* item)
{
    return item->inherits("QQuickText");
}

/// A control that texts stand in or beside; the name of its class ends in a number of Qt's.
bool isControl(const QQuickItem* item)
{
    static const QRegularExpression control(QStringLiteral(
        "^(\\w*Button|\\w*CheckBox|\\w*ComboBox|Slider|FiledialogTextfield|ReportTable)_QML"));
    return QString::fromLatin1(item->metaObject()->className()).contains(control);
}

bool isToolTip(const QQuickItem* item)
{
    return item->inherits("QQuickItem") && QString::fromLatin1(item->metaObject()->className())
                                               .startsWith(QLatin1String("TavrinToolTip_QML"));
}

bool hasAncestor(const QQuickItem* item, const std::function<bool(const QQuickItem*)>& wanted)
{
    for (; item; item = item->parentItem())
        if (wanted(item))
            return true;
    return false;
}

QRectF inWindow(const QQuickItem* item, const QRectF& area)
{
    return item->mapRectToScene(area);
}

/// What the glyphs of a text cover, in its own coordinates.
QRectF paintedArea(const QQuickItem* text)
{
    const QSizeF size(text->property("contentWidth").toDouble(),
                      text->property("contentHeight").toDouble());
    const QSizeF left = text->size() - size;
    const int across = text->property("effectiveHorizontalAlignment").toInt();
    const int down = text->property("verticalAlignment").toInt();
    const double x = across & Qt::AlignHCenter ? left.width() / 2
                     : across & Qt::AlignRight ? left.width()
                                               : 0.0;
    const double y = down & Qt::AlignVCenter  ? left.height() / 2
                     : down & Qt::AlignBottom ? left.height()
                                              : 0.0;
    return {QPointF(x, y), size};
}

bool contains(const QRectF& room, const QRectF& area)
{
    return room.adjusted(-slack, -slack, slack, slack).contains(area);
}

bool overlap(const QRectF& one, const QRectF& other)
{
    const QRectF common = one & other;
    return common.width() > slack && common.height() > slack;
}

void collect(QQuickItem* item, const QRectF& room, QVector<Block>& blocks)
{
    if (!item->isVisible() || item->opacity() == 0.0)
        return;
    QRectF inner = room;
    if (item->inherits("QQuickFlickable"))
        inner &= inWindow(item, item->boundingRect());
    const bool hasText = isText(item) && !item->property("text").toString().isEmpty();
    const QRectF area = hasText ? paintedArea(item) : item->boundingRect();
    const QRectF seen = inWindow(item, area) & inner;
    if ((hasText || isControl(item)) && !seen.isEmpty())
        blocks.append({item, seen, nameOf(item)});
    for (QQuickItem* child : item->childItems())
        collect(child, inner, blocks);
}

/// Empty if the text has room.
QString cutOff(const QQuickItem* text, const QRectF& window)
{
    const QRectF area = paintedArea(text);
    if (text->property("truncated").toBool())
        return QStringLiteral("%1 is elided: it needs %2 and has %3");
    if (!contains(QRectF(QPointF(), text->size()), area))
        return QStringLiteral("%1 is larger than its room: it needs %2 and has %3");
    const bool isScrolled =
        hasAncestor(text, [](const QQuickItem* item) { return item->inherits("QQuickFlickable"); });
    if (isScrolled)
        return {};
    const QRectF painted = inWindow(text, area);
    if (!contains(window, painted))
        return QStringLiteral("%1 is cut off by the window: it needs %2 and has %3");
    const bool isInside = !hasAncestor(text->parentItem(), [&](const QQuickItem* item) {
        return (item->clip() || isControl(item) || isToolTip(item)) &&
               !contains(inWindow(item, item->boundingRect()), painted);
    });
    return isInside ? QString()
                    : QStringLiteral("%1 is larger than what it labels: it needs %2 and has %3");
}

/// A box whose text the desktop's style paints itself, beside an arrow as wide as the box is high.
QString cutOffChoice(const QQuickItem* box)
{
    const QString text = box->property("currentText").toString();
    const int needed = QFontMetrics(QApplication::font()).horizontalAdvance(text);
    return needed + box->height() <= box->width()
               ? QString()
               : QStringLiteral("\"%1\" is wider than its box").arg(text);
}

/// A text in a control, a control in another, and the two halves of a text with a contour.
bool belongTogether(const Block& one, const Block& other)
{
    return one.item->isAncestorOf(other.item) || other.item->isAncestorOf(one.item) ||
           (one.item->parentItem() == other.item->parentItem() && isText(one.item) &&
            one.item->property("text") == other.item->property("text"));
}

bool isOfToolTip(const Block& block)
{
    return hasAncestor(block.item, isToolTip);
}

} // namespace

QStringList problems(QQuickItem* scene)
{
    const QRectF window = inWindow(scene, scene->boundingRect());
    QVector<Block> blocks;
    collect(scene, window, blocks);
    QStringList found;
    for (int first = 0; first < blocks.size(); ++first) {
        const Block& block = blocks[first];
        const QString cut = isText(block.item) ? cutOff(block.item, window) : QString();
        if (!cut.isEmpty())
            found.append(cut.arg(block.name)
                             .arg(block.item->property("implicitWidth").toDouble())
                             .arg(block.item->width()));
        const QString choice =
            block.item->property("currentText").isValid() ? cutOffChoice(block.item) : QString();
        if (!choice.isEmpty())
            found.append(choice);
        for (int second = first + 1; second < blocks.size(); ++second) {
            const Block& other = blocks[second];
            if (overlap(block.seen, other.seen) && !belongTogether(block, other) &&
                isOfToolTip(block) == isOfToolTip(other))
                found.append(
                    QStringLiteral("%1 and %2 lie over each other").arg(block.name, other.name));
        }
    }
    return found;
}

QStringList problems(QMessageBox& box)
{
    QStringList found;
    for (const QLabel* label : box.findChildren<QLabel*>()) {
        if (!label->isVisible() || label->text().isEmpty())
            continue;
        const int needed = label->hasHeightForWidth() ? label->heightForWidth(label->width())
                                                      : label->sizeHint().height();
        if (needed > label->height())
            found.append(QStringLiteral("\"%1\" is cut off").arg(label->text()));
    }
    for (const QAbstractButton* button : box.buttons())
        if (button->sizeHint().width() > button->width())
            found.append(QStringLiteral("\"%1\" is wider than its button").arg(button->text()));
    if (!box.screen()->geometry().contains(box.geometry()))
        found.append(QStringLiteral("the box is larger than the screen"));
    return found;
}

} // namespace TextRoom
