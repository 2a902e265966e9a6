// SPDX-License-Identifier: Apache-2.0
// Message boxes over whatever window is active.
#include "modalbox.h"

#include <QApplication>
#include <QPixmap>
#include <QPointer>

namespace ColorCalibration {

QMessageBox::StandardButton showModalBox(BoxIcon icon, const QString& title, const QString& text,
                                         QMessageBox::StandardButtons buttons,
                                         QMessageBox::StandardButton defaultButton,
                                         Qt::TextFormat format)
{
    // The window below may end while the box is shown, and takes the box with it.
    const QPointer<QMessageBox> box = new QMessageBox(QApplication::activeWindow());
    box->setWindowTitle(title);
    box->setTextFormat(format);
    box->setText(text);
    box->setStandardButtons(buttons);
    box->setDefaultButton(defaultButton);
    box->setIconPixmap(
        QPixmap(icon == BoxIcon::Error
                    ? QStringLiteral(":/ostriaviewercomponents/Resources/Error_32.png")
                    : QStringLiteral(":/ostriaviewercomponents/Resources/Question_32.png")));
    const int pressed = box->exec();
    if (!box)
        return QMessageBox::NoButton;
    delete box;
    return static_cast<QMessageBox::StandardButton>(pressed);
}

} // namespace ColorCalibration
