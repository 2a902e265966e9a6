// SPDX-License-Identifier: Apache-2.0
// The wizard's scene over stand-ins, opened at one of the pages of results.
#pragma once

#include "filedialogdouble.h"
#include "originalimagedouble.h"
#include "wizardscene.h"

#include <QImage>

class ResultsPages : public WizardScene
{
protected:
    ResultsPages();

    /// Opens the wizard at a step and forgets the calls that this has made.
    void open(int step, const QSize& size = {800, 750});

    /// The item of this name on the pages that are open; fails the test if there is none.
    QQuickItem* item(const char* name);

    /// A page by the name of its loader: "bodyLoader" or "toolBoxLoader".
    QQuickItem* page(const char* loader);

    QVariant call(QQuickItem* object, const char* function, const QVariant& argument = {});

    QPoint inWindow(QQuickItem* object, const QPointF& point);
    void click(QQuickItem* object);
    void press(Qt::Key key);
    void moveMouse(const QPoint& point);

    /// The text of a message box of the root, empty while it is closed; closes the box.
    QString takeMessage(const char* box = "modelError");

    QImage picture();
};
