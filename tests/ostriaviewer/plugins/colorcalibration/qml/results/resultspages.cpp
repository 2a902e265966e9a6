// SPDX-License-Identifier: Apache-2.0
// Opens the scene and drives it as a user does.
#include "resultspages.h"

#include <QQmlEngine>
#include <QTest>

ResultsPages::ResultsPages()
{
    qmlRegisterType<FileDialogDouble>("tavrin.filedialog", 1, 0, "QMLFileDialog");
    m_camera.setOriginalSize({1600, 1200});
}

void ResultsPages::open(int step, const QSize& size)
{
    ASSERT_NO_FATAL_FAILURE(show(size));
    m_log.made.clear();
    auto* circle =
        qobject_cast<QQuickItem*>(find(m_view->rootObject(), QString("step%1").arg(step)));
    ASSERT_NE(circle, nullptr);
    item("progress")->setProperty("active", QVariant::fromValue(circle));
    m_model.setActiveStep(step);
    // The pages of step 1 would be found before those that took their place.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_NE(page("toolBoxLoader"), nullptr);
}

QQuickItem* ResultsPages::item(const char* name)
{
    auto* found = m_view->rootObject()->findChild<QQuickItem*>(name);
    EXPECT_NE(found, nullptr) << "no item of the name " << name;
    return found;
}

QQuickItem* ResultsPages::page(const char* loader)
{
    return item(loader)->property("item").value<QQuickItem*>();
}

QVariant ResultsPages::call(QQuickItem* object, const char* function, const QVariant& argument)
{
    QVariant result;
    const bool called =
        argument.isValid()
            ? QMetaObject::invokeMethod(object, function, Q_RETURN_ARG(QVariant, result),
                                        Q_ARG(QVariant, argument))
            : QMetaObject::invokeMethod(object, function, Q_RETURN_ARG(QVariant, result));
    EXPECT_TRUE(called) << function;
    return result;
}

QPoint ResultsPages::inWindow(QQuickItem* object, const QPointF& point)
{
    return object->mapToScene(point).toPoint();
}

void ResultsPages::click(QQuickItem* object)
{
    QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, middleOf(object));
}

void ResultsPages::press(Qt::Key key)
{
    QTest::keyClick(m_view.get(), key);
}

void ResultsPages::moveMouse(const QPoint& point)
{
    QTest::mouseMove(m_view.get(), point);
    QCoreApplication::processEvents();
}

QString ResultsPages::takeMessage(const char* box)
{
    auto* dialog = m_view->rootObject()->findChild<QObject*>(box);
    EXPECT_NE(dialog, nullptr) << box;
    if (!dialog->property("visible").toBool())
        return {};
    const QString text = dialog->property("text").toString();
    QMetaObject::invokeMethod(dialog, "close");
    return text;
}

QImage ResultsPages::picture()
{
    QCoreApplication::processEvents();
    return m_view->grabWindow();
}
