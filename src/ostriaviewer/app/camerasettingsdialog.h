// SPDX-License-Identifier: Apache-2.0
// Lets the user say which cameras there are and how they are reached.
#pragma once

#include "camerasettings.h"

#include <QDialog>

#include <functional>

class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace Viewer {

/// Thread-bound: GUI thread.
class CameraSettingsDialog final : public QDialog
{
    Q_OBJECT

public:
    /// \param interfaces  names of the network interfaces that can be chosen
    CameraSettingsDialog(const CameraSettings& settings, const QStringList& interfaces,
                         QWidget* parent = nullptr);

    /// What the dialog shows.
    CameraSettings settings() const;

    /// What the user is asked before these settings are taken; empty if nothing.
    using Question = std::function<QString(const CameraSettings& settings)>;
    void setQuestion(Question question);

    /// Takes an address with it that was typed but not added; stays open if it is none, and while
    /// the user is asked.
    void accept() override;

private:
    QWidget* makeBackends();
    QWidget* makeSearch(const QStringList& interfaces);
    QWidget* makeAddresses();
    QWidget* makePackets();
    void fill(const CameraSettings& settings);
    bool addAddress();
    void removeAddress();
    void ask(const QString& question);
    void follow();

    Question m_question;
    QComboBox* m_backends;
    QGroupBox* m_search;
    QListWidget* m_interfaces;
    QGroupBox* m_addressGroup;
    QListWidget* m_addresses;
    QLineEdit* m_address;
    QLabel* m_problem;
    QPushButton* m_add;
    QPushButton* m_remove;
    QGroupBox* m_packetGroup;
    QSpinBox* m_packetSize;
};

} // namespace Viewer
