// SPDX-License-Identifier: Apache-2.0
// The features by which a camera is told to send images.
#pragma once

#include "iparametercollection.h"
#include "nodemap.h"

#include <QString>

#include <memory>
#include <mutex>

namespace Cameras::GenICam {

/// One acquisition, from its start to its end: acquisition mode, lock of the features that must not
/// change meanwhile, start and stop. Features that the camera does not have are left out, but for
/// the start itself. Thread-safe.
class AcquisitionFeatures
{
public:
    AcquisitionFeatures(std::shared_ptr<NodeMap> nodeMap,
                        Core::ParameterCollection::ParameterCollectionPtr parameters);

    /// As stop.
    ~AcquisitionFeatures();
    AcquisitionFeatures(const AcquisitionFeatures&) = delete;
    AcquisitionFeatures& operator=(const AcquisitionFeatures&) = delete;

    /// Puts the camera into the mode in which it sends one image, or goes on sending.
    /// \throws ::GenICam::RuntimeException  the camera refuses; the end is to follow
    void prepare(bool single);

    /// Bytes of a frame with the present settings.
    /// \throws ::GenICam::RuntimeException  the camera does not tell
    std::size_t payloadSize() const;

    /// Lets the camera send. Only after prepare.
    /// \throws ::GenICam::RuntimeException  the camera refuses; the end is to follow
    void start();

    /// Lets the camera send again, where it has been told to send one image. Does nothing after the
    /// end. What the camera refuses goes to the log.
    void startAgain() noexcept;

    /// Ends sending, and puts everything back as it was before prepare. What the camera refuses
    /// goes to the log. A mode that it refused is tried again by the next call, unless somebody has
    /// set another one meanwhile, as is all that it could not be asked for, which goes to the log
    /// in the last accesses of the node map alone.
    void stop() noexcept;

    /// The mode that the camera was in before prepare, and has not got back; empty if there is
    /// none.
    QString owedMode() const;

    /// What people are told of such a mode.
    static QString notPutBack(const QString& mode);

    /// Takes over what a camera that did not answer any more is to get back when it is there again,
    /// by stop.
    /// \param earlier  of another node map of the same camera
    void takeOver(const AcquisitionFeatures& earlier);

    /// Takes over, before prepare, what the acquisition before this one has not put back, which
    /// owes nothing any more then.
    void replace(AcquisitionFeatures& previous);

private:
    /// What the camera is to get back.
    struct Owed
    {
        bool stop = false;
        bool unlocking = false;
        QString mode;        ///< empty: none
        QString modeInstead; ///< that we have set

        bool isNothing() const { return !stop && !unlocking && mode.isEmpty(); }
    };

    void execute(const char* command);
    void lockFeatures(bool locked);
    void setMode(bool single);
    void restoreMode();
    template <class Step>
    bool tryStep(const QString& what, const Step& step) noexcept;

    const std::shared_ptr<NodeMap> m_nodeMap;
    const Core::ParameterCollection::ParameterCollectionPtr m_parameters;

    mutable std::mutex m_mutex; // guards all below
    bool m_isRunning = false;
    Owed m_owed;
};

} // namespace Cameras::GenICam
