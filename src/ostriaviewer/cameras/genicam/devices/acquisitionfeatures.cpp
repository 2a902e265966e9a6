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
    // A write that fails may have been done. The mode from before an earlier acquisition counts.
    if (m_owed.mode.isEmpty())
        m_owed.mode = present;
    m_owed.modeInstead = wanted;
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
    m_isRunning = true;
    m_owed.stop = true;
    m_owed.unlocking = true;
    lockFeatures(true);
    execute("AcquisitionStart");
}

// It is not waited for the command's end: some cameras call it done when the last image is sent.
void AcquisitionFeatures::execute(const char* command)
{
    const WriteLock lock(m_nodeMap->d());
    startCommand(Feature::find(m_nodeMap->d(), QString::fromLatin1(command)));
}

// This node tells the description that images come; some cameras set it themselves. One that cannot
// be asked has no writable features either.
void AcquisitionFeatures::lockFeatures(bool locked)
{
    const auto node = m_parameters->integerParameter(QStringLiteral("TLParamsLocked"));
    if (node->isEmpty())
        return;
    if (node->isWritable())
        return node->setValue(locked ? 1 : 0, false);
    const ReadLock lock(m_nodeMap->d());
    m_nodeMap->d().requireConnection();
}

// Another mode than ours is what somebody wants who was told that it could not be put back.
void AcquisitionFeatures::restoreMode()
{
    const auto mode = m_parameters->enumerationParameter(modeName());
    if (m_owed.mode != m_owed.modeInstead && mode->value() == m_owed.modeInstead)
        mode->setValue(m_owed.mode);
    m_owed.mode.clear();
}

// Under the lock of the node map. The result says whether the camera has answered; what it could
// not be asked for is tried again, or told of by the last accesses.
template <class Step>
bool AcquisitionFeatures::tryStep(const QString& what, const Step& step) noexcept
{
    try {
        step();
        return true;
    } catch (const std::exception& error) {
        const bool hasAnswered = m_nodeMap->d().isReachable();
        if (!hasAnswered && !m_nodeMap->d().isLast())
            return false;
        Core::Logging::createLogEntry(
            Core::Logging::Warning, Core::Logging::getCatId(QStringLiteral("Cameras")),
            Texts::tr("%1: %2 (%3)")
                .arg(m_nodeMap->d().camera(), what,
                     Core::withoutFullStop(QString::fromUtf8(error.what()))));
        return hasAnswered;
    }
}

QString AcquisitionFeatures::owedMode() const
{
    const std::lock_guard lock(m_mutex);
    return m_owed.mode;
}

void AcquisitionFeatures::takeOver(const AcquisitionFeatures& earlier)
{
    const std::scoped_lock lock(m_mutex, earlier.m_mutex);
    m_owed = earlier.m_owed;
}

void AcquisitionFeatures::replace(AcquisitionFeatures& previous)
{
    const std::scoped_lock lock(m_mutex, previous.m_mutex);
    m_owed = std::exchange(previous.m_owed, {});
}

void AcquisitionFeatures::startAgain() noexcept
{
    const std::lock_guard lock(m_mutex);
    if (!m_isRunning || !m_nodeMap->isConnected())
        return;
    const Patience asLongAsItTakes(std::nullopt);
    const WriteLock together(m_nodeMap->d());
    tryStep(Texts::tr("The camera could not be asked for another image."), [this] {
        execute("AcquisitionStop");
        execute("AcquisitionStart");
    });
}

// Whoever writes a feature after that finds it as it is between acquisitions.
void AcquisitionFeatures::stop() noexcept
{
    const std::lock_guard lock(m_mutex);
    m_isRunning = false;
    if (!m_nodeMap->isConnected() || m_owed.isNothing())
        return;
    const Patience asLongAsItTakes(std::nullopt);
    const WriteLock together(m_nodeMap->d());
    if (m_owed.stop)
        m_owed.stop = !tryStep(Texts::tr("The camera could not be stopped."),
                               [this] { execute("AcquisitionStop"); });
    if (m_owed.unlocking)
        m_owed.unlocking = !tryStep(Texts::tr("The camera's features stay locked."),
                                    [this] { lockFeatures(false); });
    if (!m_owed.mode.isEmpty())
        tryStep(notPutBack(m_owed.mode), [this] { restoreMode(); });
}

} // namespace Cameras::GenICam
