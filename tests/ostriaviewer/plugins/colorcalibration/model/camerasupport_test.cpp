// SPDX-License-Identifier: Apache-2.0
// Tests of which cameras can be calibrated.
#include "camerasupport.h"
#include "fakecamera.h"
#include "iparameterservice.h"
#include "logrecorder.h"

#include <gtest/gtest.h>

#include <stdexcept>

using ColorCalibration::isCameraSupported;
using Core::CameraPoolComponents::CameraInfoPtr;
using Core::ParameterCollection::ParameterCollectionPtr;

namespace {

/// Answers with the features of one camera, or with none, as for one that is closed.
class FakeParameterService : public Plugin::ParameterCollectionPool::IParameterService
{
public:
    ParameterCollectionPtr answer;
    int questions = 0;

    ParameterCollectionPtr parameterCollection(const CameraInfoPtr& /*camera*/) override
    {
        ++questions;
        return answer;
    }
};

class CameraSupport : public testing::Test
{
protected:
    CameraSupport() { setVersion(1); }

    void setVersion(int version)
    {
        m_camera->parameters().addInteger("DeviceColorPipelineVersion", version);
        m_service.answer = m_camera->parameterCollection();
    }

    bool supports(const QString& modelName)
    {
        m_camera->model = modelName;
        return isCameraSupported(m_camera, &m_service);
    }

    static QStringList texts(const LogRecorder& log)
    {
        QStringList texts;
        for (const LogEntry& entry : log.entries())
            texts.append(entry.text);
        return texts;
    }

    QSharedPointer<FakeCamera> m_camera = QSharedPointer<FakeCamera>::create();
    FakeParameterService m_service;
};

TEST_F(CameraSupport, AModelNameOfItsOwnIsEnough)
{
    m_service.answer = nullptr;
    EXPECT_TRUE(supports("x-60cVTX"));
    EXPECT_EQ(m_service.questions, 0) << "no parameter is read";
    m_camera->model = "60cVTX";
    EXPECT_TRUE(isCameraSupported(m_camera, nullptr));
    EXPECT_FALSE(supports("x-60cvtx"));
    EXPECT_FALSE(supports("x-60CVTX"));
}

TEST_F(CameraSupport, OtherNamesNeedTheFirstColorPipeline)
{
    for (const char* name : {"Emulation", "My Emulation 5", "emA1920-60ucEMU", "abL4-5ccX",
                             "z9A12-345gcABC", "before abA1-1ccZ behind"}) {
        setVersion(1);
        EXPECT_TRUE(supports(name)) << name;
        setVersion(2);
        EXPECT_FALSE(supports(name)) << name;
        setVersion(0);
        EXPECT_FALSE(supports(name)) << name;
    }
}

TEST_F(CameraSupport, NamesThatMissTheRuleByLittleDoNotCount)
{
    for (const char* name :
         {"emulation", "EMULATION", "emA1920-60uc", "emA1920-60ucemu", "emB1920-60ucEMU",
          "eA1920-60ucEMU", "emA-60ucEMU", "emA1920-ucEMU", "emA192060ucEMU", "emA1920-60umEMU",
          "emA1920-60cEMU", "EMA1920-60ucEMU", "emA19200-60ucEMU", ""})
        EXPECT_FALSE(supports(name)) << name;
    EXPECT_EQ(m_service.questions, 0) << "the camera is not asked";
}

TEST_F(CameraSupport, WhatCannotBeAskedIsNotSupported)
{
    EXPECT_FALSE(isCameraSupported({}, &m_service)) << "no camera";
    m_camera->model = "Emulation";
    EXPECT_FALSE(isCameraSupported(m_camera, nullptr)) << "no service";
    m_service.answer = nullptr;
    EXPECT_FALSE(supports("Emulation")) << "a closed camera";
}

TEST_F(CameraSupport, AVersionThatCannotBeReadIsNone)
{
    m_camera->features().remove("DeviceColorPipelineVersion");
    EXPECT_FALSE(supports("Emulation")) << "no such feature";
    setVersion(1);
    m_camera->features().change("DeviceColorPipelineVersion",
                                [](FakeFeature& feature) { feature.readable = false; });
    EXPECT_NO_THROW(EXPECT_FALSE(supports("Emulation"))) << "a feature that throws";
    setVersion(1);
    m_camera->features().beforeCall = [](const QString&) {
        throw std::runtime_error("lost");
    };
    EXPECT_NO_THROW(EXPECT_FALSE(supports("Emulation")));
    m_camera->features().beforeCall = nullptr;
}

TEST_F(CameraSupport, AFailureIsToldWithTheCamera)
{
    m_camera->features().beforeCall = [](const QString&) {
        throw std::runtime_error("no answer");
    };
    const LogRecorder log;
    EXPECT_FALSE(supports("Emulation"));
    EXPECT_FALSE(supports("Emulation"));
    m_camera->features().beforeCall = nullptr;
    const QString told = "isCameraSupported: Emulation: no answer";
    EXPECT_EQ(texts(log), (QStringList{told, told})) << "for each question";
}

TEST_F(CameraSupport, WhoAsksAgainIsToldOnce)
{
    ColorCalibration::CameraSupport support;
    const auto fail = [](const QString&) {
        throw std::runtime_error("no answer");
    };
    m_camera->model = "Emulation";
    m_camera->features().beforeCall = fail;
    {
        const LogRecorder log;
        for (int i = 0; i < 3; ++i)
            EXPECT_FALSE(support.isSupported(m_camera, &m_service));
        EXPECT_EQ(texts(log), QStringList("isCameraSupported: Emulation: no answer"));
    }
    m_camera->features().beforeCall = nullptr;
    EXPECT_TRUE(support.isSupported(m_camera, &m_service)) << "it answers";
    m_camera->features().beforeCall = fail;
    {
        const LogRecorder log;
        EXPECT_FALSE(support.isSupported(m_camera, &m_service));
        EXPECT_EQ(texts(log), QStringList()) << "still the same camera";
        EXPECT_FALSE(support.isSupported({}, &m_service)) << "another device was selected";
        EXPECT_FALSE(support.isSupported(m_camera, &m_service));
        EXPECT_EQ(texts(log), QStringList("isCameraSupported: Emulation: no answer"));
    }
    m_camera->features().beforeCall = nullptr;
}

} // namespace
