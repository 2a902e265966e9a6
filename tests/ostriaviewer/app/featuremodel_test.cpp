// SPDX-License-Identifier: Apache-2.0
// What a camera answers too late is shown when it has answered.
#include "accessqueue_p.h"
#include "featuremodel.h"
#include "nodemap_p.h"
#include "patience.h"
#include "testcamera.h"

#include <QTest>

#include <future>
#include <optional>
#include <thread>

namespace Viewer {
namespace {

using Cameras::GenICam::AccessQueue;
using Cameras::GenICam::Patience;

/// Registers that can be let wait, and are waited for as those of a real camera are.
class LatePort final : public MemoryPort
{
public:
    ~LatePort() override { answer(); }

    void withhold()
    {
        m_answer.emplace();
        m_mayAnswer = m_answer->get_future().share();
    }
    void answer()
    {
        if (m_answer)
            m_answer->set_value();
        m_answer.reset();
    }

    void read(std::uint64_t address, void* data, std::size_t size) override
    {
        wait();
        MemoryPort::read(address, data, size);
    }
    void write(std::uint64_t address, const void* data, std::size_t size) override
    {
        wait();
        MemoryPort::write(address, data, size);
    }

private:
    void wait()
    {
        const auto work = [mayAnswer = m_mayAnswer] {
            if (mayAnswer.valid())
                mayAnswer.wait();
        };
        if (m_accesses.run(work, Patience::ofThisThread()) == AccessQueue::Outcome::Late)
            throw ::GenICam::RuntimeException("late");
    }

    std::optional<std::promise<void>> m_answer;
    std::shared_future<void> m_mayAnswer;
    AccessQueue m_accesses;
};

class LateAnswers : public TestCamera
{
protected:
    LateAnswers()
    {
        port = m_port;
        port->setWord(Register::sensorWidth, 1920);
        port->setWord(Register::width, 640);
        use(testDescription());
    }
    ~LateAnswers() override { m_port->answer(); }

    QString text(const char* feature) { return value(feature).data().toString(); }
    QModelIndex value(const char* feature)
    {
        const QModelIndexList found =
            m_model.match(m_model.index(0, 0), FeatureModel::NameRole, QString::fromLatin1(feature),
                          1, Qt::MatchExactly | Qt::MatchRecursive);
        return found.value(0).siblingAtColumn(FeatureModel::Value);
    }
    bool shows(const char* feature, const char* expected)
    {
        return QTest::qWaitFor([&] { return text(feature) == QLatin1String(expected); }, 60000);
    }
    void watchAll() { m_model.setWatched(value("Width").parent(), true); }

    const std::shared_ptr<LatePort> m_port = std::make_shared<LatePort>();
    FeatureModel m_model;
};

TEST_F(LateAnswers, AreShownWhenTheyHaveCome)
{
    m_port->withhold();
    m_model.setFeatures(camera);
    EXPECT_EQ(text("Width"), "");
    EXPECT_FALSE(value("Width").data(Qt::ToolTipRole).toString().contains("Not available"));
    EXPECT_FALSE(value("Width").flags() & Qt::ItemIsEditable);
    m_port->answer();
    EXPECT_TRUE(shows("Width", "640"));
    EXPECT_TRUE(shows("LutIndex", "not available"));
    EXPECT_TRUE(value("Width").flags() & Qt::ItemIsEditable);
}

// Which features there are the camera may have to say itself.
TEST_F(LateAnswers, ToWhatThereIsHoldNobodyUp)
{
    use(describe("<pFeature>F</pFeature><pFeature>Width</pFeature>",
                 R"(<Integer Name="F"><pIsImplemented>Reg</pIsImplemented><Value>1</Value></Integer>
<IntReg Name="Reg"><Address>0x124</Address><Length>4</Length><AccessMode>RO</AccessMode>
<pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>
<IntReg Name="Width"><Address>0x110</Address><Length>4</Length><AccessMode>RW</AccessMode>
<pPort>Device</pPort><Sign>Unsigned</Sign><Endianess>BigEndian</Endianess></IntReg>)"));
    m_port->withhold();
    m_model.setFeatures(camera);
    EXPECT_EQ(text("Width"), "");
    m_port->answer();
    EXPECT_TRUE(shows("Width", "640"));
}

TEST_F(LateAnswers, AreWaitedForWhereAnotherThreadHasTheCamera)
{
    std::promise<void> isHeld;
    std::promise<void> mayGo;
    std::thread other([&] {
        const Cameras::GenICam::ReadLock lock(map->d());
        isHeld.set_value();
        mayGo.get_future().wait();
    });
    isHeld.get_future().wait();
    m_model.setFeatures(camera);
    EXPECT_EQ(m_model.rowCount(), 0);
    mayGo.set_value();
    other.join();
    EXPECT_TRUE(shows("Width", "640"));
}

TEST_F(LateAnswers, LeaveWhatIsShownAsItIsUntilThen)
{
    m_model.setFeatures(camera);
    ASSERT_EQ(text("Width"), "640");
    m_port->withhold();
    watchAll();
    port->setWord(Register::width, 320);
    EXPECT_EQ(text("Width"), "640");
    EXPECT_TRUE(value("Width").flags() & Qt::ItemIsEditable);
    m_port->answer();
    EXPECT_TRUE(shows("Width", "320"));
}

TEST_F(LateAnswers, ToAWriteBringAllThatIsSeenUpToDate)
{
    m_model.setFeatures(camera);
    watchAll();
    m_port->withhold();
    QStringList refused;
    QObject::connect(&m_model, &FeatureModel::refused,
                     [&refused](const QString& reason) { refused.append(reason); });
    EXPECT_FALSE(m_model.setData(value("Width"), "320", Qt::EditRole));
    EXPECT_EQ(refused.size(), 1);
    EXPECT_EQ(text("Width"), "640");
    port->setWord(Register::offsetX, 8);
    m_port->answer();
    EXPECT_TRUE(shows("OffsetX", "8"));
}

TEST_F(LateAnswers, AreNoNews)
{
    const auto gain = camera->floatParameter("Gain"_q);
    int news = 0;
    QObject::connect(gain.data(),
                     &Core::ParameterCollection::IParameter::parameterDataChangedDecoupled,
                     [&news] { ++news; });
    m_port->withhold();
    {
        const Patience limited(std::chrono::milliseconds(1));
        EXPECT_NE(refusalOf([&] { camera->integerParameter("Width"_q)->setValue(320, true); }), "");
    }
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(news, 0);
    m_port->answer();
    gain->setValue(3);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(news, 1);
}

} // namespace
} // namespace Viewer
