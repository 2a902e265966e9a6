// SPDX-License-Identifier: Apache-2.0
// Runs the tool inside the test and keeps what it prints.
#include "commandtest.h"

#include "charttargets.h"
#include "colorcalibrate.h"
#include "testsettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QRgba64>
#include <QStandardPaths>

#include <sstream>

using ColorCalibration::ChartTargets;

namespace {

/// Parts of Qt that the tool uses ask the application for its name.
class Application : public testing::Environment
{
public:
    void SetUp() override
    {
        m_application = std::make_unique<QCoreApplication>(m_count, m_names);
        m_settings = std::make_unique<TestSettings>();
    }
    void TearDown() override
    {
        m_settings.reset();
        m_application.reset();
    }

private:
    int m_count = 1;
    char m_name[5] = "test";
    char* m_names[2] = {m_name, nullptr};
    std::unique_ptr<QCoreApplication> m_application;
    std::unique_ptr<TestSettings> m_settings; // the grid's, which would be the user's
};

const auto* const application = testing::AddGlobalTestEnvironment(new Application);

} // namespace

Outcome runTool(const QStringList& arguments, const std::string& in)
{
    std::istringstream input(in);
    std::ostringstream out;
    std::ostringstream err;
    const int code = ColorCalibrate::run(arguments, {input, out, err});
    return {code, out.str(), err.str()};
}

void expectFailure(const Outcome& outcome, int code, const QStringList& words)
{
    EXPECT_EQ(outcome.code, code) << outcome.err;
    EXPECT_EQ(outcome.out, "");
    const QString message = QString::fromStdString(outcome.err);
    EXPECT_TRUE(message.startsWith(QLatin1String("colorcalibrate: "))) << outcome.err;
    EXPECT_EQ(message.count(QLatin1Char('\n')), 1) << outcome.err;
    EXPECT_TRUE(message.endsWith(QLatin1Char('\n'))) << outcome.err;
    for (const QString& word : words)
        EXPECT_TRUE(message.contains(word))
            << "\"" << word.toStdString() << "\" is missing in: " << outcome.err;
}

std::string targetLines()
{
    const auto targets = ChartTargets().TargetColors();
    std::ostringstream lines;
    for (int i = 0; i < 24; ++i)
        lines << targets(i, 0) << "," << targets(i, 1) << "," << targets(i, 2) << "\n";
    return lines.str();
}

CommandTest::~CommandTest()
{
    QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).removeRecursively();
}

QString CommandTest::writeFile(const QString& name, const QByteArray& content) const
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return path(name);
}

QImage CommandTest::chartImage(QImage::Format format, int levels)
{
    const auto targets = ChartTargets().TargetColors();
    const int step = 65536 / levels;
    const auto level = [&](double value) {
        const int stored = static_cast<int>(value / 255.0 * levels);
        return static_cast<quint16>(levels == 256 ? stored * 0x101 : stored * step);
    };
    QImage image(150, 120, QImage::Format_RGBX64);
    image.fill(Qt::gray);
    for (int y = 20; y < 100; ++y) {
        auto* row = reinterpret_cast<QRgba64*>(image.scanLine(y));
        for (int x = 10; x < 130; ++x) {
            const int patch = (y - 20) / 20 * 6 + (x - 10) / 20;
            row[x] = QRgba64::fromRgba64(level(targets(patch, 0)), level(targets(patch, 1)),
                                         level(targets(patch, 2)), 0xFFFF);
        }
    }
    return image.convertToFormat(format);
}

QString CommandTest::writeChart(const QString& name, QImage::Format format, int levels) const
{
    EXPECT_TRUE(chartImage(format, levels).save(path(name))) << name.toStdString();
    return path(name);
}
