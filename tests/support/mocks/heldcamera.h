// SPDX-License-Identifier: Apache-2.0
// A camera whose grabs end when the test says so.
#pragma once

#include "camerainterface.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <vector>

/// Thread-safe. Each grab waits for an answer; without a value it fails.
class HeldCamera : public ColorCalibration::CameraInterface
{
public:
    using Answer = std::optional<QImage>;

    /// Answers one grab, under way or to come.
    void answer(const Answer& image)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_answers.push_back(image);
        m_changed.notify_all();
    }

    /// Answers every grab from now on, by its number from 0; an empty function ends that.
    void answerAll(std::function<Answer(int)> source)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_source = std::move(source);
        m_changed.notify_all();
    }

    /// Waits until so many grabs have begun since construction; false if they do not.
    bool waitForGrabs(int count)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        return m_changed.wait_for(lock, std::chrono::seconds(60), [&] { return begun() >= count; });
    }

    /// The triggered flag of each grab that has begun.
    std::vector<bool> triggered() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_triggered;
    }
    int grabs() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return begun();
    }
    int underWay() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_underWay;
    }
    int mostUnderWay() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_mostUnderWay;
    }
    /// How many grabs were under way at each call of StopGrabbing.
    std::vector<int> underWayAtStops() const
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        return m_underWayAtStops;
    }

    bool GrabImage(QImage& image, bool isTriggered) override
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_triggered.push_back(isTriggered);
        m_mostUnderWay = std::max(m_mostUnderWay, ++m_underWay);
        m_changed.notify_all();
        m_changed.wait(lock, [this] { return m_source || !m_answers.empty(); });
        Answer given;
        if (m_answers.empty()) {
            given = m_source(begun() - 1);
        } else {
            given = m_answers.front();
            m_answers.erase(m_answers.begin());
        }
        --m_underWay;
        m_changed.notify_all();
        image = given.value_or(QImage());
        return given.has_value();
    }

    bool StopGrabbing() override
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_underWayAtStops.push_back(m_underWay);
        return true;
    }

    bool Open(const Core::CameraPoolComponents::CameraPtr& /*camera*/) override { return true; }
    bool Close() override { return true; }
    bool LoadSettings(const QString& /*settings*/) override { return true; }
    bool LoadSettingsFromDevice(QIODevice* /*device*/) override { return true; }
    bool SetNeutralSettings() override { return true; }
    bool CreateSettingsBackup(bool /*initialImage*/) override { return true; }
    bool RestoreSettingsBackup(bool /*initialImage*/) override { return true; }
    bool IsBackupOwed() const override { return false; }
    bool AreOwnSettings(const QString& /*settings*/) override { return true; }
    void ActivateMonoImage() override {}
    void cameraRemoved() override {}

private:
    int begun() const { return static_cast<int>(m_triggered.size()); }

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::vector<Answer> m_answers;
    std::function<Answer(int)> m_source;
    std::vector<bool> m_triggered;
    std::vector<int> m_underWayAtStops;
    int m_underWay = 0;
    int m_mostUnderWay = 0;
};
