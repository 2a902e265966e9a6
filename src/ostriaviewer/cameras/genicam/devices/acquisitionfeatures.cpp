// SPDX-License-Identifier: Apache-2.0
// The features by which a camera is told to send images.
#include "acquisitionfeatures.h"

#include "commandfeature_p.h"
#include "genicamexception.h"
#include "logging.h"
#include "nodemap_p.h"
#include "patience.h"
#include "withoutfullstop.h"

#include <QCoreApplication>

#include <algorithm>
#include <exception>
#include <optional>
#include <utility>

namespace Cameras::GenICam {
namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Cameras::GenICam::AcquisitionFeatures)
};

QString modeName()
{
    return QStringLiteral("AcquisitionMode");
}

bool canBeSet(const Core::ParameterCollection::IEnumerationParameter& mode, const QString& entry)
{
    const auto entries = mode.entries();
    return std::any_of(entries.begin(), entries.end(), [&entry](const auto& candidate) {
        return candidate.name == entry && candidate.isSettable;
    });
}

} // namespace

QString AcquisitionFeatures::notPutBack(const QString& mode)
{
    return Texts::tr("The acquisition mode could not be put back; set AcquisitionMode to \"%1\".")
        .arg(mode);
}

AcquisitionFeatures::AcquisitionFeatures(
    std::shared_ptr<NodeMap> nodeMap, Core::ParameterCollection::ParameterCollectionPtr parameters)
    : m_nodeMap(std::move(nodeMap))
    , m_parameters(std::move(parameters))
{}

AcquisitionFeatures::~AcquisitionFeatures()
{
    stop();
}

void AcquisitionFeatures::prepare(bool single)
{
    const std::lock_guard lock(m_mutex);
    setMode(single);
}

// A camera without a mode for one image is stopped after the first.
void AcquisitionFeatures::setMode(bool single)
{
    const auto mode = m_parameters->enumerationParameter(modeName());
    if (mode->isEmpty() || !mode->isReadable())
        return;
    QString wanted = QStringLiteral("Continuous");
    if (single && canBeSet(*mode, QStringLiteral("SingleFrame")))
        wanted = QStringLiteral("SingleFrame");
    const QString present = mode->value();
    if (present == wanted)
        return;
    // A write that fails may have been done.
    m_previousMode = present;
    mode->setValue(wanted);
}

std::size_t AcquisitionFeatures::payloadSize() const
{
    const auto payload = m_parameters->integerParameter(QStringLiteral("PayloadSize"));
    const qint64 size = payload->value();
    if (size <= 0)
        throw ::GenICam::RuntimeException(
            QCoreApplication::translate("Cameras::GenICam::FrameStream",
                                        "The camera does not tell how large its images are.")
                .toStdString());
    return static_cast<std::size_t>(size);
}

void AcquisitionFeatures::start()
{
    const std::lock_guard lock(m_mutex);
    m_isStarted = true;
    lockFeatures(true);
    execute("AcquisitionStart");
}

// It is not waited for the command's end: some cameras call it done when the last image is sent.
void AcquisitionFeatures::execute(const char* command)
{
    const WriteLock lock(m_nodeMap->d());
    startCommand(Feature::find(m_nodeMap->d(), QString::fromLatin1(command)));
}

// This node tells the description that images come; some cameras set it themselves.
void AcquisitionFeatures::lockFeatures(bool locked)
{
    const auto node = m_parameters->integerParameter(QStringLiteral("TLParamsLocked"));
    if (node->isWritable())
        node->setValue(locked ? 1 : 0, false);
}

void AcquisitionFeatures::restoreMode()
{
    if (m_previousMode.isEmpty())
        return;
    const auto mode = m_parameters->enumerationParameter(modeName());
    if (mode->value() != m_previousMode)
        mode->setValue(m_previousMode);
    m_previousMode.clear();
}

template <class Step>
void AcquisitionFeatures::tryStep(const QString& what, const Step& step) noexcept
{
    try {
        step();
    } catch (const std::exception& error) {
        Core::Logging::createLogEntry(
            Core::Logging::Warning, Core::Logging::getCatId(QStringLiteral("Cameras")),
            Texts::tr("%1: %2 (%3)")
                .arg(m_nodeMap->d().camera(), what,
                     Core::withoutFullStop(QString::fromUtf8(error.what()))));
    }
}

QString AcquisitionFeatures::owedMode() const
{
    const std::lock_guard lock(m_mutex);
    return m_previousMode;
}

void AcquisitionFeatures::takeOver(const AcquisitionFeatures& lost)
{
    const std::scoped_lock lock(m_mutex, lost.m_mutex);
    m_isStarted = lost.m_isStarted;
    m_previousMode = lost.m_previousMode;
}

void AcquisitionFeatures::startAgain() noexcept
{
    const std::lock_guard lock(m_mutex);
    if (!m_isStarted || !m_nodeMap->isConnected())
        return;
    tryStep(Texts::tr("The camera could not be asked for another image."), [this] {
        execute("AcquisitionStop");
        execute("AcquisitionStart");
    });
}

// Whoever writes a feature after that finds it as it is between acquisitions.
void AcquisitionFeatures::stop() noexcept
{
    const std::lock_guard lock(m_mutex);
    if (!m_nodeMap->isConnected() || (!m_isStarted && m_previousMode.isEmpty()))
        return;
    const Patience asLongAsItTakes(std::nullopt);
    const WriteLock together(m_nodeMap->d());
    if (std::exchange(m_isStarted, false)) {
        tryStep(Texts::tr("The camera could not be stopped."),
                [this] { execute("AcquisitionStop"); });
        tryStep(Texts::tr("The camera's features stay locked."), [this] { lockFeatures(false); });
    }
    tryStep(notPutBack(m_previousMode), [this] { restoreMode(); });
}

} // namespace Cameras::GenICam
