// SPDX-License-Identifier: Apache-2.0
// Tests of the report as a browser draws it.
#include "reportdata.h"
#include "reporthtml.h"
#include "summaryfiles.h"

#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace ColorCalibration;

namespace {

/// Asks the laid-out page what can be seen of it, and writes the answer into its title.
const char* const inspection = R"(<script>
const visible = element => {
    const box = element.getBoundingClientRect();
    return box.width > 0 && box.height > 0 && getComputedStyle(element).visibility == 'visible';
};
const colors = document.querySelector('.container > table');
const swatch = (row, cell) =>
    getComputedStyle(colors.rows[row].cells[cell], '::before').backgroundColor;
document.title = JSON.stringify({
    patches: [...colors.rows].filter(row => row.cells[1].tagName == 'TD' && visible(row)).length,
    logos: [...document.images].filter(i => i.complete && i.naturalWidth > 0 && visible(i)).length,
    logoWidth: document.images[0].getBoundingClientRect().width,
    sections: [...document.querySelectorAll('.subtitle h2')].filter(visible).length,
    tables: [...document.querySelectorAll('#results')].filter(visible).length,
    overflow: document.documentElement.scrollWidth - window.innerWidth,
    current: swatch(1, 1), initial: swatch(1, 4), target: swatch(1, 5), none: swatch(1, 2),
    other: getComputedStyle(document.querySelectorAll('#results')[1].rows[1].cells[1],
                            '::before').content,
});
</script>)";

class ReportInBrowser : public testing::TestWithParam<int>
{
protected:
    void SetUp() override
    {
        m_browser = QStandardPaths::findExecutable("chromium");
        if (m_browser.isEmpty())
            GTEST_SKIP() << "chromium is not installed";
        QString html = BuildHtml("emA1920-60ucEMU", sampleResults(), QDateTime({2031, 2, 3}, {}));
        html.replace("</body>", QLatin1String(inspection) + "</body>");
        ASSERT_TRUE(WriteTextFile(m_folder.filePath("r.html"), html));
    }

    QByteArray runBrowser(const QStringList& arguments) const
    {
        QProcess process;
        process.start(m_browser,
                      QStringList{"--headless", "--no-sandbox", "--disable-gpu",
                                  "--hide-scrollbars", "--disable-background-networking",
                                  "--no-first-run",
                                  "--user-data-dir=" + m_folder.filePath("profile"),
                                  QStringLiteral("--window-size=%1,1600").arg(GetParam())} +
                          arguments + QStringList("file://" + m_folder.filePath("r.html")));
        EXPECT_TRUE(process.waitForFinished(120000));
        return process.readAllStandardOutput();
    }

    QJsonObject inspect() const
    {
        const QString page = QString::fromUtf8(runBrowser({"--dump-dom"}));
        const auto title = QRegularExpression("<title>(\\{.*\\})</title>").match(page);
        EXPECT_TRUE(title.hasMatch()) << page.left(200).toStdString();
        return QJsonDocument::fromJson(title.captured(1).toUtf8()).object();
    }

    static QString cssColor(const QString& name)
    {
        const QColor color(name);
        return QStringLiteral("rgb(%1, %2, %3)")
            .arg(color.red())
            .arg(color.green())
            .arg(color.blue());
    }

    QTemporaryDir m_folder;
    QString m_browser;
};

TEST_P(ReportInBrowser, ShowsPatchesLogosAndSections)
{
    const QJsonObject seen = inspect();
    EXPECT_EQ(seen["patches"], 24);
    EXPECT_EQ(seen["logos"], 2);
    EXPECT_EQ(seen["logoWidth"], 283);
    EXPECT_EQ(seen["sections"], 9);
    EXPECT_EQ(seen["tables"], 8);
    EXPECT_LE(seen["overflow"].toInt(1), 0) << "nothing lies beyond the right edge";
}

TEST_P(ReportInBrowser, PaintsSwatchesInThePatchesColors)
{
    const QJsonObject seen = inspect();
    const QJsonObject patch = sampleResults()["Colors"].toObject()["Patch01"].toObject();
    EXPECT_EQ(seen["current"].toString(), cssColor(patch["Current"].toString()));
    EXPECT_EQ(seen["initial"].toString(), cssColor(patch["Initial"].toString()));
    EXPECT_EQ(seen["target"].toString(), cssColor(patch["Target"].toString()));
    EXPECT_EQ(seen["none"].toString(), "rgba(0, 0, 0, 0)");
    EXPECT_EQ(seen["other"].toString(), "none");
}

TEST_P(ReportInBrowser, DrawsThePixels)
{
    const QString picture = m_folder.filePath("seen.png");
    runBrowser({"--screenshot=" + picture});
    const QImage image(picture);
    ASSERT_EQ(image.width(), GetParam());
    const QJsonObject colors = sampleResults()["Colors"].toObject();
    QHash<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    for (const QJsonValue& patch : colors)
        EXPECT_GE(counts.value(QColor(patch.toObject()["Target"].toString()).rgb()), 50)
            << patch.toObject()["Target"].toString().toStdString();
}

using ReportOnPaper = ReportInBrowser;

TEST_P(ReportOnPaper, FillsTwoPages)
{
    const QString document = m_folder.filePath("printed.pdf");
    runBrowser({"--print-to-pdf=" + document});
    const QRegularExpression count("/Type /Pages\\s+/Count (\\d+)");
    const QByteArray bytes = fileBytes(document);
    EXPECT_EQ(count.match(QString::fromLatin1(bytes.constData(), bytes.size())).captured(1), "2");
}

INSTANTIATE_TEST_SUITE_P(AtWidth, ReportOnPaper, testing::Values(800));
INSTANTIATE_TEST_SUITE_P(AtWidth, ReportInBrowser, testing::Values(800, 1280, 1920));

} // namespace
