// SPDX-License-Identifier: Apache-2.0
// Tests of settings files to start from.
#include "previoussettings.h"

#include "command.h"
#include "commandtest.h"
#include "fakeparametercollection.h"

using namespace ColorCalibrate;

namespace {

class PreviousSettings : public CommandTest
{
protected:
    std::string refusal(const QString& fileName) const
    {
        try {
            readPreviousSettings(fileName);
        } catch (const CommandError& error) {
            return error.what();
        }
        return {};
    }

    FakeParameterCollection m_camera{QVersionNumber(2, 0, 0)};
};

TEST_F(PreviousSettings, AreReadAsTheyStand)
{
    const QByteArray text("# comment\nGamma\t1\n");
    EXPECT_EQ(readPreviousSettings(writeFile(QStringLiteral("a.cst"), text)),
              QString::fromUtf8(text));
}

TEST_F(PreviousSettings, OtherFilesAreRefused)
{
    for (const QByteArray& content :
         {QByteArray(), QByteArray("# Gamma\t1\n"), QByteArray("Gamma 1\n"), QByteArray("\t1\n"),
          QByteArray("\x7f"
                     "ELF\1\2\3"),
          QByteArray("Gamma\t1\n\0", 9)}) {
        const QString file = writeFile(QStringLiteral("b.cst"), content);
        const std::string message = refusal(file);
        EXPECT_NE(message.find("no settings file"), std::string::npos) << message;
        EXPECT_EQ(message.find(file.toStdString()), 0u) << message;
    }
    EXPECT_NE(refusal(QStringLiteral("/dev/null")), "");
    EXPECT_NE(refusal(QStringLiteral("/dev/zero")).find("too large"), std::string::npos);
    EXPECT_NE(refusal(path(QStringLiteral("none.cst"))), "");
}

TEST_F(PreviousSettings, OfAnotherCameraAreRefusedIfNoneIsOfThisOne)
{
    m_camera.addFloat(QStringLiteral("Gamma"), 1.0);
    const QString name = QStringLiteral("c.cst");
    EXPECT_NO_THROW(requireOwnSettings(QStringLiteral("Gamma\t1\nGamma\t2\n"), name, m_camera));
    EXPECT_NO_THROW(requireOwnSettings(QStringLiteral("Other\t2\nGamma\t1\n"), name, m_camera));
    EXPECT_THROW(requireOwnSettings(QStringLiteral("Other\t2\nOther\t3\n"), name, m_camera),
                 CommandError);
}

} // namespace
