// SPDX-License-Identifier: Apache-2.0
// The window of the wizard.
#include "colorcorrectiontooldlg.h"

#include "colorcorrectionmodel.h"
#include "heldkeys.h"
#include "modalbox.h"
#include "qmldatamodelinterface.h"
#include "qmlostriacamera.h"
#include "sceneboxes.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>

#include <utility>

namespace ColorCalibration {
ColorCorrectionToolDlg::ColorCorrectionToolDlg(
    QmlDataModelInterface* dataModel,
    QSharedPointer<Plugin::MessageLogCore::IMessageLogService> messageLog, QWidget* parent)
    : QDialog(parent, Qt::Window | Qt::WindowSystemMenuHint | Qt::WindowMaximizeButtonHint |
                          Qt::CustomizeWindowHint | Qt::WindowCloseButtonHint)
    , m_dataModel(dataModel)
    , m_messageLog(std::move(messageLog))
{
    setWindowFlags(Qt::Dialog | Qt::WindowTitleHint);
    outliveParent();
    connectDataModel();
    m_container = QWidget::createWindowContainer(dataModel->view(), this);
    m_container->setMinimumSize(800, 750);
    m_container->setMaximumSize(2000, 2000);
    m_container->setFocusPolicy(Qt::TabFocus);
    auto* layout = new QBoxLayout(QBoxLayout::LeftToRight, this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_container);
    // The pages decide what keys do, from the first moment on.
    m_container->setFocus();
    showScene();
}

ColorCorrectionToolDlg::~ColorCorrectionToolDlg()
{
    if (m_running)
        onDialogFinish(Rejected);
}

void ColorCorrectionToolDlg::outliveParent()
{
    if (QWidget* window = parentWidget())
        connect(window, &QObject::destroyed, this, [this] { setParent(nullptr, windowFlags()); });
}

void ColorCorrectionToolDlg::connectDataModel()
{
    using Data = QmlDataModelInterface;
    connect(this, &QDialog::finished, this, &ColorCorrectionToolDlg::onDialogFinish);
    for (const auto decision : {&Data::signalCancel, &Data::signalFinished}) {
        // A message box that outlived its wizard may still answer.
        connect(m_dataModel, decision, this, [this] { m_decided = m_running; });
        connect(m_dataModel, decision, this, &QWidget::close);
    }
    connect(m_dataModel, &Data::forwardCameraRemoved, this,
            &ColorCorrectionToolDlg::onCameraRemoved);
    connect(m_dataModel, &Data::forwardImageGrabFailed, this,
            &ColorCorrectionToolDlg::onImageGrabFailed);
    connect(m_dataModel, &Data::forwardLogMessage, this,
            qOverload<QString, Core::Logging::ELogLevel>(&ColorCorrectionToolDlg::addLogMessage));
    connect(m_dataModel, &Data::sceneProblemChanged, this, &ColorCorrectionToolDlg::showScene);
}

int ColorCorrectionToolDlg::exec()
{
    const QPointer<ColorCorrectionToolDlg> self(this);
    const HeldKeys keys;
    const SceneBoxes boxes(this, m_dataModel->view());
    m_running = true;
    const int result = QDialog::exec();
    // The application quit, or the parent's end took the window from the screen.
    if (self && m_running)
        reject();
    if (self)
        tellClosingProblem();
    return result;
}

// After the window has gone and the camera is closed: nothing of the wizard is left to go wrong.
void ColorCorrectionToolDlg::tellClosingProblem()
{
    const QString problem = m_dataModel->takeClosingProblem();
    if (!problem.isEmpty())
        showModalBox(BoxIcon::Error,
                     QCoreApplication::translate("ColorCorrectionToolDlg", "Color Calibrator"),
                     problem, QMessageBox::Ok, QMessageBox::Ok, Qt::PlainText);
}

// Keys come here while a message box goes away. An Escape then must not be an answer to its
// question.
void ColorCorrectionToolDlg::keyPressEvent(QKeyEvent* event)
{
    if (m_container->isHidden())
        QDialog::keyPressEvent(event);
    else
        m_dataModel->view()->requestActivate();
}

void ColorCorrectionToolDlg::onDialogFinish(int /*result*/)
{
    m_running = false;
    emit m_dataModel->cleanupQML();
    m_dataModel->camera()->stopGrab();
    if (!m_decided)
        m_dataModel->abandon();
    m_decided = false;
    m_dataModel->model()->Close();
}

void ColorCorrectionToolDlg::onCameraRemoved()
{
    const QPointer<ColorCorrectionToolDlg> self(this);
    showModalBox(BoxIcon::Error,
                 QCoreApplication::translate("ColorCorrectionToolDlg", "Color Calibrator"),
                 QCoreApplication::translate(
                     "ColorCorrectionToolDlg",
                     "<p>The camera has been disconnected.<br/>Reconnect the camera to the "
                     "computer and open it to continue using the Color Calibrator.</p>"),
                 QMessageBox::Ok, QMessageBox::Ok, Qt::RichText);
    if (self)
        close();
}

void ColorCorrectionToolDlg::onImageGrabFailed()
{
    addLogMessage(QCoreApplication::translate(
        "ColorCorrectionToolDlg", "Image acquisition is slowed down by certain parameter settings "
                                  "in the camera, e.g., exposure time."));
}

void ColorCorrectionToolDlg::addLogMessage(QString message, Core::Logging::ELogLevel logLevel)
{
    Core::Logging::createLogEntry(
        logLevel,
        Core::Logging::getCatId(
            QStringLiteral("ostria.viewer.plugins.colorCalibration.colorCorrectionTool")),
        message);
    if (m_messageLog)
        m_messageLog->addEntry(
            logLevel,
            QCoreApplication::translate("ColorCorrectionToolDlg", "Ostria Color Calibrator"),
            message, QDateTime());
}

void ColorCorrectionToolDlg::addLogMessage(QString message)
{
    addLogMessage(std::move(message), Core::Logging::Warning);
}

void ColorCorrectionToolDlg::showScene()
{
    const QString problem = m_dataModel->sceneProblem();
    m_container->setVisible(problem.isEmpty());
    delete m_problem;
    m_problem = nullptr;
    if (problem.isEmpty())
        return;
    addLogMessage(problem, Core::Logging::Error);
    m_problem = new QWidget(this);
    auto* column = new QBoxLayout(QBoxLayout::TopToBottom, m_problem);
    auto* text = new QLabel(problem, m_problem);
    text->setObjectName(QStringLiteral("sceneProblem"));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, m_problem);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(text, 1);
    column->addWidget(buttons);
    layout()->addWidget(m_problem);
}

} // namespace ColorCalibration
