// SPDX-License-Identifier: Apache-2.0
// The wizard's scene over stand-ins, driven as a user drives it.
#pragma once

#include "wizardscene.h"

#include <QMessageBox>

#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << texts.join(" ").toStdString();
}

/// What the tests ask of a message box.
struct Message
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
};

class WizardWindow : public WizardScene
{
protected:
    /// No message of QML may go unseen: a test that meets one fails.
    WizardWindow();
    ~WizardWindow() override;

    /// Opens the wizard on step 1, before any image. Leaves the log of calls as it is.
    void open(const QSize& size = {800, 750});
    /// Delivers an image of the canvas's size, so that a canvas pixel is one of the image.
    void deliverFirstImage();
    /// Opens the wizard, moves to a step by Next, and empties the log of calls.
    void openAt(int step);

    QObject* object(const char* name);
    QQuickItem* item(const char* name);
    bool hasItem(const char* name);
    QVariant property(const char* name, const char* property);
    QVariant globalValue(const char* name);
    void setGlobalValue(const char* name, const QVariant& value);

    void click(const char* name);
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    /// Presses Tab until the item has the focus; false if it never gets it.
    bool tabTo(QQuickItem* item);
    void drag(const char* handle, const QPoint& by);

    /// The message boxes that are open, the oldest first.
    QVector<QMessageBox*> boxes();
    Message onlyMessage();
    void answer(QMessageBox::StandardButton button);
    void answerAll();

    /// The calls since the last time this was asked.
    QStringList takeCalls();
    bool waitForPaint();
};
