// SPDX-License-Identifier: Apache-2.0
// Features as the host's parameters.
#include "parameters_p.h"

#include "aside_p.h"
#include "commandfeature_p.h"
#include "enumerationfeature_p.h"
#include "featuretexts_p.h"
#include "numberfeature_p.h"
#include "parameterbase_p.h"
#include "patience.h"
#include "textfeature_p.h"

#include <QThread>

#include <algorithm>
#include <chrono>
#include <thread>

namespace Cameras::GenICam {

namespace {

using namespace Core::ParameterCollection;

class FloatParameter : public ParameterBase<IFloatParameter>
{
public:
    using ParameterBase::ParameterBase;

    double value() const override { return read(floatValue); }
    double minimum() const override { return read(floatMinimum); }
    double maximum() const override { return read(floatMaximum); }

    double valueOrDefault(double defaultValue) const override
    {
        try {
            return value();
        } catch (const ::GenICam::RuntimeException&) {
            return defaultValue;
        }
    }

    void setValue(double value) override
    {
        write([value](const Feature& feature) { setFloat(feature, value); });
    }

    bool trySetValue(double value) noexcept override
    {
        return tryWrite([value](const Feature& feature) { setFloat(feature, value); });
    }
};

class IntegerParameter : public ParameterBase<IIntegerParameter>
{
public:
    using ParameterBase::ParameterBase;

    qint64 value() const override { return read(integerValue); }
    qint64 minimum() const override { return read(integerMinimum); }
    qint64 maximum() const override { return read(integerMaximum); }
    qint64 increment() const override { return read(integerIncrement); }

    void setValue(qint64 value, bool verify) override
    {
        write([=](const Feature& feature) { setInteger(feature, value, verify); });
    }
};

class BooleanParameter : public ParameterBase<IBooleanParameter>
{
public:
    using ParameterBase::ParameterBase;

    bool value() const override { return read(booleanValue); }

    void setValue(bool value, bool verify) override
    {
        write([=](const Feature& feature) { setBoolean(feature, value, verify); });
    }
};

QVector<EnumerationEntry> entryList(const Feature& feature)
{
    QVector<EnumerationEntry> result;
    for (const FeatureEntry& entry : enumerationEntryList(feature))
        result.append({entry.name, entry.displayName, entry.isSettable});
    return result;
}

class EnumerationParameter : public ParameterBase<IEnumerationParameter>
{
public:
    using ParameterBase::ParameterBase;

    QString value() const override { return read(enumerationValue); }
    QVector<EnumerationEntry> entries() const override { return read(entryList); }

    void setValue(const QString& entry) override
    {
        write([&entry](const Feature& feature) { setEnumeration(feature, entry); });
    }

    bool trySetValue(const QString& entry) noexcept override
    {
        return tryWrite([&entry](const Feature& feature) { setEnumeration(feature, entry); });
    }
};

using Clock = std::chrono::steady_clock;

bool isCommandDone(NodeMapPrivate& map, const Feature& feature)
{
    const ReadLock lock(map, feature.name());
    return isCommandDone(feature);
}

/// Others may use the device while we wait.
/// \return  false if that time came first
bool isCommandDoneUntil(Clock::time_point end, NodeMapPrivate& map, const Feature& feature)
{
    auto pause = std::chrono::milliseconds(1);
    while (!isCommandDone(map, feature)) {
        if (Clock::now() >= end)
            return false;
        std::this_thread::sleep_for(pause);
        pause = std::min(2 * pause, std::chrono::milliseconds(20));
    }
    return true;
}

/// Lets what the command did to other features show.
void announceCommand(NodeMapPrivate& map)
{
    const WriteLock lock(map);
}

/// As announceCommand, where a failure is under way already.
void announceEnded(NodeMapPrivate& map) noexcept
{
    try {
        announceCommand(map);
    } catch (const ::GenICam::RuntimeException&) {
        return; // the camera is busy with another thread, which announces what it finds
    }
}

class CommandParameter : public ParameterBase<ICommandParameter>
{
public:
    using ParameterBase::ParameterBase;

    void execute() override
    {
        const auto start = Clock::now();
        const auto end = start + map().commandTimeout();
        const auto patience = Patience::ofThisThread();
        const auto ownEnd = patience ? std::min(end, start + *patience) : end;
        const std::uint64_t failures = Patience::failures();
        try {
            write(startCommand);
            if (isCommandDoneUntil(ownEnd, map(), feature()))
                return announceCommand(map());
            if (ownEnd == end)
                feature().fail(FeatureTexts::tr("the camera does not finish the command"));
            Patience::addFailure();
            feature().fail(FeatureTexts::tr("the camera has not finished the command yet"));
        } catch (const ::GenICam::RuntimeException&) {
            // What was begun goes on without us.
            if (Patience::failures() != failures)
                awaitAside(end);
            else
                announceEnded(map());
            throw;
        }
    }

private:
    void awaitAside(Clock::time_point end) const
    {
        runAside([nodeMap = nodeMap(), feature = feature(), end] {
            NodeMapPrivate& map = nodeMap->d();
            try {
                isCommandDoneUntil(end, map, feature);
            } catch (const ::GenICam::RuntimeException&) {
                // The camera is closed or lost, and all of its features say so.
            }
            announceEnded(map);
        });
    }
};

class TextParameter : public ParameterBase<ITextParameter>
{
public:
    using ParameterBase::ParameterBase;

    QString value() const override { return read(featureText); }

    void setValue(const QString& value) override
    {
        write([&value](const Feature& feature) { setFeatureText(feature, value); });
    }
};

class OtherParameter : public ParameterBase<IParameter>
{
public:
    using ParameterBase::ParameterBase;
};

/// Deletes a parameter in the thread that it lives in if events may be on their way to it.
void release(IParameter* parameter)
{
    const QThread* home = parameter->thread();
    if (!home || home == QThread::currentThread() || home->isFinished())
        delete parameter;
    else
        parameter->deleteLater();
}

} // namespace

FloatParameterPtr makeFloatParameter(std::shared_ptr<NodeMap> map, const Feature& feature)
{
    return FloatParameterPtr(new FloatParameter(std::move(map), feature), release);
}

IntegerParameterPtr makeIntegerParameter(std::shared_ptr<NodeMap> map, const Feature& feature)
{
    return IntegerParameterPtr(new IntegerParameter(std::move(map), feature), release);
}

BooleanParameterPtr makeBooleanParameter(std::shared_ptr<NodeMap> map, const Feature& feature)
{
    return BooleanParameterPtr(new BooleanParameter(std::move(map), feature), release);
}

EnumerationParameterPtr makeEnumerationParameter(std::shared_ptr<NodeMap> map,
                                                 const Feature& feature)
{
    return EnumerationParameterPtr(new EnumerationParameter(std::move(map), feature), release);
}

CommandParameterPtr makeCommandParameter(std::shared_ptr<NodeMap> map, const Feature& feature)
{
    return CommandParameterPtr(new CommandParameter(std::move(map), feature), release);
}

ParameterPtr makeParameter(std::shared_ptr<NodeMap> map, const Feature& feature)
{
    if (!feature.isEmpty()) {
        switch (feature.kind()) {
        case FeatureKind::Float:
            return makeFloatParameter(std::move(map), feature);
        case FeatureKind::Integer:
            return makeIntegerParameter(std::move(map), feature);
        case FeatureKind::Boolean:
            return makeBooleanParameter(std::move(map), feature);
        case FeatureKind::Enumeration:
            return makeEnumerationParameter(std::move(map), feature);
        case FeatureKind::Command:
            return makeCommandParameter(std::move(map), feature);
        case FeatureKind::Text:
            return ParameterPtr(new TextParameter(std::move(map), feature), release);
        case FeatureKind::Other:
            break;
        }
    }
    return ParameterPtr(new OtherParameter(std::move(map), feature), release);
}

} // namespace Cameras::GenICam
