// SPDX-License-Identifier: Apache-2.0
// Lets the user say which cameras there are and how they are reached.
#include "camerasettingsdialog.h"

#include "cameraaddress.h"
#include "checkoutline.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace Viewer {

using Cameras::GenICam::TransportSettings;

namespace {

QLabel* makeHint(const QString& text)
{
    auto* hint = new QLabel(text);
    hint->setWordWrap(true);
    return hint;
}

QListWidget* makeList(const char* name, const QString& accessibleName)
{
    constexpr int rows = 5;
    auto* list = new QListWidget;
    list->setObjectName(QString::fromLatin1(name));
    list->setAccessibleName(accessibleName);
    list->setFixedHeight(list->fontMetrics().lineSpacing() * rows);
    return list;
}

} // namespace

CameraSettingsDialog::CameraSettingsDialog(const CameraSettings& settings,
                                           const QStringList& interfaces, QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("cameraSettings"));
    setWindowTitle(tr("Camera Settings"));
    constexpr int lineLength = 72;
    setMinimumWidth(fontMetrics().averageCharWidth() * lineLength);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(makeBackends());
    layout->addWidget(makeSearch(interfaces));
    layout->addWidget(makeAddresses());
    layout->addWidget(makePackets());
    layout->addStretch();
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &CameraSettingsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    fill(settings);
    follow();
}

QWidget* CameraSettingsDialog::makeBackends()
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(tr("&Show:"));
    m_backends = new QComboBox;
    m_backends->setObjectName(QStringLiteral("backends"));
    m_backends->addItem(tr("Emulated and real cameras"), nameOf(Backends::All));
    m_backends->addItem(tr("Cameras on the network and on USB"), nameOf(Backends::GenICam));
    m_backends->addItem(tr("Emulated cameras"), nameOf(Backends::Emulation));
    label->setBuddy(m_backends);
    layout->addWidget(label);
    layout->addWidget(m_backends, 1);
    connect(m_backends, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &CameraSettingsDialog::follow);
    return row;
}

QWidget* CameraSettingsDialog::makeSearch(const QStringList& interfaces)
{
    m_search = new QGroupBox(tr("&Look for network cameras"));
    m_search->setObjectName(QStringLiteral("search"));
    m_search->setCheckable(true);
    m_interfaces = makeList("interfaces", tr("Network interfaces"));
    CheckOutline::install(*m_search);
    CheckOutline::install(*m_interfaces);
    for (const QString& name : interfaces) {
        auto* item = new QListWidgetItem(name, m_interfaces);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    auto* layout = new QVBoxLayout(m_search);
    layout->addWidget(makeHint(tr("Searches these network interfaces. If none is selected, all "
                                  "except loopback (lo).")));
    layout->addWidget(m_interfaces);
    return m_search;
}

QWidget* CameraSettingsDialog::makeAddresses()
{
    m_addressGroup = new QGroupBox(tr("Cameras with a fixed &address"));
    m_addresses = makeList("addresses", tr("Addresses"));
    m_address = new QLineEdit;
    m_address->setObjectName(QStringLiteral("address"));
    m_address->setPlaceholderText(tr("such as 192.168.1.20"));
    m_address->setAccessibleName(tr("IP address of a camera"));
    m_add = new QPushButton(tr("A&dd"));
    m_add->setObjectName(QStringLiteral("addAddress"));
    m_remove = new QPushButton(tr("&Remove"));
    m_remove->setObjectName(QStringLiteral("removeAddress"));
    m_problem = makeHint({});
    m_problem->setObjectName(QStringLiteral("addressProblem"));
    m_problem->hide();
    for (QPushButton* button : {m_add, m_remove})
        button->setAutoDefault(false);

    auto* entry = new QHBoxLayout;
    entry->addWidget(m_address, 1);
    entry->addWidget(m_add);
    entry->addWidget(m_remove);
    auto* layout = new QVBoxLayout(m_addressGroup);
    layout->addWidget(makeHint(tr("Contacted directly, even where broadcasts do not arrive.")));
    layout->addWidget(m_addresses);
    layout->addLayout(entry);
    layout->addWidget(m_problem);
    connect(m_add, &QPushButton::clicked, this, &CameraSettingsDialog::addAddress);
    connect(m_remove, &QPushButton::clicked, this, &CameraSettingsDialog::removeAddress);
    connect(m_address, &QLineEdit::textChanged, this, &CameraSettingsDialog::follow);
    connect(m_addresses, &QListWidget::currentItemChanged, this, &CameraSettingsDialog::follow);
    return m_addressGroup;
}

// The value below the smallest one stands for the size that is found out.
QWidget* CameraSettingsDialog::makePackets()
{
    m_packetGroup = new QGroupBox(tr("Images from the network"));
    m_packetSize = new QSpinBox;
    m_packetSize->setObjectName(QStringLiteral("packetSize"));
    m_packetSize->setRange(TransportSettings::smallestPacket - 1, TransportSettings::largestPacket);
    m_packetSize->setSpecialValueText(tr("as large as possible"));
    m_packetSize->setSuffix(tr(" bytes"));
    auto* label = new QLabel(tr("&Packet size:"));
    label->setBuddy(m_packetSize);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_packetSize, 1);
    auto* layout = new QVBoxLayout(m_packetGroup);
    layout->addLayout(row);
    layout->addWidget(makeHint(tr("Takes effect the next time a camera is opened. Choose 1500 if "
                                  "no images arrive.")));
    return m_packetGroup;
}

void CameraSettingsDialog::fill(const CameraSettings& settings)
{
    const auto& transport = settings.transport;
    m_backends->setCurrentIndex(m_backends->findData(nameOf(settings.backends)));
    m_search->setChecked(transport.isSearching);
    for (const QString& name : transport.interfaces) {
        const auto items = m_interfaces->findItems(name, Qt::MatchExactly);
        auto* item = items.isEmpty() ? new QListWidgetItem(name, m_interfaces) : items.constFirst();
        item->setCheckState(Qt::Checked);
    }
    m_addresses->addItems(transport.addresses);
    m_packetSize->setValue(std::max(transport.packetSize, m_packetSize->minimum()));
}

CameraSettings CameraSettingsDialog::settings() const
{
    CameraSettings settings;
    settings.backends = backendsFromName(m_backends->currentData().toString()).value();
    auto& transport = settings.transport;
    transport.isSearching = m_search->isChecked();
    for (int row = 0; row < m_interfaces->count(); ++row)
        if (m_interfaces->item(row)->checkState() == Qt::Checked)
            transport.interfaces.append(m_interfaces->item(row)->text());
    for (int row = 0; row < m_addresses->count(); ++row)
        transport.addresses.append(m_addresses->item(row)->text());
    const int size = m_packetSize->value();
    transport.packetSize = size == m_packetSize->minimum() ? 0 : size;
    return settings;
}

// An address that was typed is meant, added or not.
void CameraSettingsDialog::accept()
{
    if (m_addressGroup->isEnabled() && !m_address->text().trimmed().isEmpty() && !addAddress())
        return;
    const QString question = m_question ? m_question(settings()) : QString();
    if (question.isEmpty())
        QDialog::accept();
    else
        ask(question);
}

void CameraSettingsDialog::setQuestion(Question question)
{
    m_question = std::move(question);
}

void CameraSettingsDialog::ask(const QString& question)
{
    auto* box =
        new QMessageBox(QMessageBox::Question, windowTitle(), question, QMessageBox::Cancel, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText);
    const auto* agreed = box->addButton(tr("&Close Cameras"), QMessageBox::AcceptRole);
    box->setDefaultButton(QMessageBox::Cancel);
    connect(box, &QDialog::finished, this, [this, box, agreed] {
        if (box->clickedButton() == agreed)
            QDialog::accept();
    });
    box->open();
}

bool CameraSettingsDialog::addAddress()
{
    const QString address = Cameras::GenICam::cameraAddress(m_address->text());
    if (address.isEmpty()) {
        m_problem->setText(
            tr("\"%1\" is no address of a camera. It consists of four numbers, such as "
               "192.168.1.20.")
                .arg(m_address->text()));
        m_problem->show();
        m_address->setFocus();
        return false;
    }
    if (m_addresses->findItems(address, Qt::MatchExactly).isEmpty())
        m_addresses->addItem(address);
    m_address->clear();
    return true;
}

void CameraSettingsDialog::removeAddress()
{
    delete m_addresses->currentItem();
    follow();
}

void CameraSettingsDialog::follow()
{
    const bool isReal = m_backends->currentData().toString() != nameOf(Backends::Emulation);
    for (QWidget* group : {m_search, m_addressGroup, m_packetGroup})
        group->setEnabled(isReal);
    m_add->setEnabled(!m_address->text().trimmed().isEmpty());
    m_remove->setEnabled(m_addresses->currentItem() != nullptr);
    m_add->setDefault(m_add->isEnabled());
    m_problem->hide();
}

} // namespace Viewer
