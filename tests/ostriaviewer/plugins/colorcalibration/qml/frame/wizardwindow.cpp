// SPDX-License-Identifier: Apache-2.0
// Opens the scene, and finds and drives what is in it.
#include "wizardwindow.h"

#include "qtwarnings.h"

#include <QAbstractButton>
#include <QApplication>
#include <QTest>

namespace {

CallLog* consoleLog = nullptr;

void hear(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtDebugMsg && consoleLog)
        consoleLog->made << "console: " + text;
    else if (isWarningOfQt(type, context))
        ADD_FAILURE() << text.toStdString();
}

} // namespace

WizardWindow::WizardWindow()
{
    consoleLog = &m_log;
    qInstallMessageHandler(hear);
}

WizardWindow::~WizardWindow()
{
    answerAll();
    m_view.reset();
    qInstallMessageHandler(nullptr);
    consoleLog = nullptr;
}

void WizardWindow::open(const QSize& size)
{
    ASSERT_NO_FATAL_FAILURE(show(size));
    ASSERT_TRUE(waitForPaint());
}

void WizardWindow::deliverFirstImage()
{
    m_camera.setOriginalSize(item("canvasStep12")->size().toSize());
    emit m_camera.imageChanged();
}

void WizardWindow::openAt(int step)
{
    ASSERT_NO_FATAL_FAILURE(open());
    deliverFirstImage();
    for (int next = 2; next <= step; ++next) {
        click("nextButton");
        ASSERT_EQ(m_model.activeStep(), next);
    }
    takeCalls();
}

QObject* WizardWindow::object(const char* name)
{
    auto* found = find(m_view->rootObject(), name);
    EXPECT_NE(found, nullptr) << "nothing of the name " << name;
    return found;
}

QQuickItem* WizardWindow::item(const char* name)
{
    auto* found = qobject_cast<QQuickItem*>(find(m_view->rootObject(), name));
    EXPECT_NE(found, nullptr) << "no item of the name " << name;
    return found;
}

bool WizardWindow::hasItem(const char* name)
{
    return find(m_view->rootObject(), name) != nullptr;
}

QVariant WizardWindow::property(const char* name, const char* property)
{
    const QVariant value = object(name)->property(property);
    EXPECT_TRUE(value.isValid()) << name << " has no " << property;
    return value;
}

QVariant WizardWindow::globalValue(const char* name)
{
    const QVariant value = m_view->rootObject()->property(name);
    EXPECT_TRUE(value.isValid()) << name;
    return value;
}

void WizardWindow::setGlobalValue(const char* name, const QVariant& value)
{
    EXPECT_TRUE(m_view->rootObject()->setProperty(name, value)) << name;
}

void WizardWindow::click(const char* name)
{
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, middleOf(item(name)));
}

void WizardWindow::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(m_view.get(), key, modifiers);
}

bool WizardWindow::tabTo(QQuickItem* item)
{
    constexpr int moreThanThereAre = 40;
    for (int pressed = 0; pressed < moreThanThereAre; ++pressed) {
        if (item->hasActiveFocus())
            return true;
        press(Qt::Key_Tab);
    }
    return false;
}

void WizardWindow::drag(const char* handle, const QPoint& by)
{
    const QPoint start = middleOf(item(handle));
    QTest::mousePress(m_view.get(), Qt::LeftButton, {}, start);
    QTest::mouseMove(m_view.get(), start + by);
    QCoreApplication::processEvents();
}

QVector<QMessageBox*> WizardWindow::boxes()
{
    QVector<QMessageBox*> open;
    for (auto* widget : QApplication::topLevelWidgets()) {
        auto* box = qobject_cast<QMessageBox*>(widget);
        if (box && box->isVisible())
            open << box;
    }
    return open;
}

Message WizardWindow::onlyMessage()
{
    const auto open = boxes();
    EXPECT_EQ(open.size(), 1);
    if (open.size() != 1)
        return {};
    auto* box = open.first();
    EXPECT_EQ(box->windowModality(), Qt::ApplicationModal);
    return {box->windowTitle(), box->text(), box->icon()};
}

void WizardWindow::answer(QMessageBox::StandardButton button)
{
    const auto open = boxes();
    ASSERT_EQ(open.size(), 1);
    auto* found = open.first()->button(button);
    ASSERT_NE(found, nullptr);
    found->click();
    // No window manager gives the keyboard back.
    ASSERT_TRUE(waitFor([this] {
        m_view->requestActivate();
        return QGuiApplication::focusWindow() == m_view.get() && m_view->isActive() &&
               boxes().isEmpty();
    }));
    QCoreApplication::sendPostedEvents();
}

void WizardWindow::answerAll()
{
    for (auto* box : boxes())
        box->close();
    QCoreApplication::processEvents();
}

QStringList WizardWindow::takeCalls()
{
    QStringList calls;
    calls.swap(m_log.made);
    return calls;
}

bool WizardWindow::waitForPaint()
{
    return waitFor([this] { return property("canvasStep12", "imageWidth").toInt() != 0; });
}
