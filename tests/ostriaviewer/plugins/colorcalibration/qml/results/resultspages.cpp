// SPDX-License-Identifier: Apache-2.0
// Opens the scene and drives it as a user does.
#include "resultspages.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QSettings>
#include <QTest>

namespace {

/// Also finds what a repeater has made, which is no child of the object it is shown in.
QQuickItem* shownItem(QQuickItem* parent, const QString& name)
{
    for (auto* child : parent->childItems()) {
        if (child->objectName() == name)
            return child;
        if (auto* found = shownItem(child, name))
            return found;
    }
    return nullptr;
}

} // namespace

ResultsPages::ResultsPages()
{
    QSettings().clear();
    qmlRegisterType<FileDialogDouble>("tavrin.filedialog", 1, 0, "QMLFileDialog");
}

void ResultsPages::open(int step, const QSize& size)
{
    m_view = std::make_unique<QQuickView>();
    m_view->engine()->addImageProvider("cameraImageOriginal", new OriginalImageDouble);
    auto* context = m_view->rootContext();
    context->setContextProperty("qmlModelInterface", &m_model);
    context->setContextProperty("camera", &m_camera);
    context->setContextProperty("grid", &m_grid);
    context->setContextProperty("gridOutline", &m_outline);
    context->setContextProperty("exposureTime", &m_unused);
    context->setContextProperty("gainValue", &m_unused);
    context->setContextProperty("transformer", &m_transformer);
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->resize(size);
    m_view->setSource(QUrl("qrc:/ColCal/main.qml"));
    ASSERT_EQ(m_view->status(), QQuickView::Ready);
    m_view->show();
    m_view->requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_view.get()));
    m_calls.made.clear();
    auto* circle = shownItem(m_view->rootObject(), QString("step%1").arg(step));
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

QPoint ResultsPages::middleOf(QQuickItem* object)
{
    return inWindow(object, {object->width() / 2, object->height() / 2});
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

bool ResultsPages::waitFor(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, 10000);
}
