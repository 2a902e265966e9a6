// SPDX-License-Identifier: Apache-2.0
// The question before the viewer closes while it records.
#include "closingquestion.h"

#include <QPushButton>

namespace Viewer {

ClosingQuestion::ClosingQuestion(RecordingCommands& recordings, QWidget& window, QObject* parent)
    : QObject(parent)
    , m_recordings(recordings)
    , m_window(window)
{
    // Who records again while the last pictures are written has thought better of it.
    connect(&recordings, &RecordingCommands::begun, this, [this] { m_isAgreed = false; });
    // What went wrong is to be read in a window that stays.
    connect(
        &recordings, &RecordingCommands::reported, this,
        [this](const QString& /*text*/, bool isFailure) { m_isAgreed = m_isAgreed && !isFailure; });
    connect(&recordings, &RecordingCommands::allEnded, this, [this] {
        if (m_isAgreed)
            m_window.close();
        m_isAgreed = false;
    });
}

bool ClosingQuestion::mayClose()
{
    const QStringList cameras = m_recordings.recorded();
    if (cameras.isEmpty())
        return true;
    if (!m_box && !m_isAgreed)
        ask(cameras);
    return false;
}

void ClosingQuestion::ask(const QStringList& cameras)
{
    m_box = new QMessageBox(QMessageBox::Question, m_window.windowTitle(),
                            tr("Pictures of these cameras are being recorded:\n\n%1\n\nDo you want "
                               "to end the recording and close the viewer?")
                                .arg(cameras.join(QLatin1Char('\n'))),
                            QMessageBox::Cancel, &m_window);
    m_box->setAttribute(Qt::WA_DeleteOnClose);
    m_box->setTextFormat(Qt::PlainText);
    const QAbstractButton* agreed = m_box->addButton(tr("&End Recording"), QMessageBox::AcceptRole);
    m_box->setDefaultButton(QMessageBox::Cancel);
    connect(m_box, &QDialog::finished, this, [this, agreed] {
        if (m_box->clickedButton() != agreed)
            return;
        if (m_recordings.recorded().isEmpty()) {
            m_window.close();
            return;
        }
        m_isAgreed = true;
        m_recordings.stopAll();
    });
    m_box->open();
}

} // namespace Viewer
