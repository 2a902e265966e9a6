// SPDX-License-Identifier: Apache-2.0
// Shows the scene and finds what is in it.
#include "wizardscene.h"

#include "originalimagedouble.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QSettings>
#include <QTest>

WizardScene::WizardScene()
{
    QSettings().clear();
}

void WizardScene::show(const QSize& size)
{
    m_view = std::make_unique<QQuickView>();
    m_view->engine()->addImageProvider("cameraImageOriginal", new OriginalImageDouble);
    auto* context = m_view->rootContext();
    context->setContextProperty("qmlModelInterface", &m_model);
    context->setContextProperty("gridOutline", &m_outline);
    context->setContextProperty("camera", &m_camera);
    context->setContextProperty("grid", &m_grid);
    context->setContextProperty("exposureTime", &m_exposure);
    context->setContextProperty("gainValue", &m_gain);
    context->setContextProperty("transformer", &m_transformer);
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->resize(size);
    m_view->setSource(QUrl("qrc:/ColCal/main.qml"));
    ASSERT_EQ(m_view->status(), QQuickView::Ready);
    m_view->show();
    m_view->requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_view.get()));
}

QObject* WizardScene::find(QObject* parent, const QString& name)
{
    if (parent->objectName() == name)
        return parent;
    QObjectList children = parent->children();
    if (const auto* item = qobject_cast<QQuickItem*>(parent)) {
        for (auto* child : item->childItems())
            children << child;
    }
    for (auto* child : children) {
        if (auto* found = find(child, name))
            return found;
    }
    return nullptr;
}

QPoint WizardScene::middleOf(QQuickItem* item)
{
    return item->mapToScene({item->width() / 2, item->height() / 2}).toPoint();
}

bool WizardScene::waitFor(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, 10000);
}
