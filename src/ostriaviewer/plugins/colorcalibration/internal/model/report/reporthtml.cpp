// SPDX-License-Identifier: Apache-2.0
// The report as one HTML page.
#include "reporthtml.h"

#include "reportlog.h"
#include "reporttables.h"
#include "swatches.h"

#include <QFile>
#include <QObject>
#include <QStringList>

#include <array>

namespace ColorCalibration {
namespace {

struct Section
{
    const char* title;
    const char* key; ///< in the settings before and after
};

constexpr std::array<Section, 7> settingsSections{{
    {QT_TRANSLATE_NOOP("QObject", "Black Level"), "BlackLevel"},
    {QT_TRANSLATE_NOOP("QObject", "White Balance"), "WhiteBalance"},
    {QT_TRANSLATE_NOOP("QObject", "Color Transformation"), "Matrix"},
    {QT_TRANSLATE_NOOP("QObject", "Color Adjustment Hue"), "BC6x2/Hue"},
    {QT_TRANSLATE_NOOP("QObject", "Color Adjustment Saturation"), "BC6x2/Saturation"},
    {QT_TRANSLATE_NOOP("QObject", "Gamma"), "Gamma"},
    {QT_TRANSLATE_NOOP("QObject", "Hue, Saturation, Brightness, Contrast"), "HSBC"},
}};

QByteArray resource(const char* path)
{
    QFile file{QLatin1String(path)};
    if (!file.open(QIODevice::ReadOnly)) {
        logReportFailure(
            QStringLiteral("The report lacks the resource \"%1\".").arg(QLatin1String(path)));
        return {};
    }
    return file.readAll();
}

QString base64Resource(const char* path)
{
    return QString::fromLatin1(resource(path).toBase64());
}

void appendHead(QStringList& lines, const QString& model, const QJsonObject& results)
{
    lines << QStringLiteral("<!DOCTYPE html><html>");
    lines << QStringLiteral("<head><title>Calibration Report for %1</title>").arg(model);
    // Titles may be in any language, and a browser guesses otherwise.
    lines << QStringLiteral("<meta charset=\"utf-8\">");
    lines << QStringLiteral("<style>");
    lines << QString::fromUtf8(resource(":/ColCal/resources/summary.css"));
    lines << swatchRules(results.value(QStringLiteral("Colors")).toObject(),
                         results.value(QStringLiteral("PreciseColors")).toObject().keys());
    lines << QStringLiteral("</style></head>");
}

void appendTop(QStringList& lines, const QString& model, const QDateTime& time)
{
    lines << QStringLiteral("<body>");
    lines << QStringLiteral("<div style=\"min-width:800px;margin:0 auto;\"><div class=\"row\">"
                            "<img src=\"data:image/png;base64,") +
                 base64Resource(":/ColCal/resources/logo.png") +
                 QStringLiteral("\" alt=\"Tavrin AG\" width=\"283\" height=\"92\" align=\"right\" "
                                "class=\"logo\"/></div>");
    lines << QStringLiteral("<div class=\"title\"><h1>Color Calibration Report</h1></div>");
    lines << QStringLiteral("<div class=\"report-camera-info\">%1</div>").arg(model);
    lines << QStringLiteral("<div class=\"report-info\">%1<br/>%2</div>")
                 .arg(time.toString(QStringLiteral("hh:mm:ss")),
                      time.toString(QStringLiteral("yyyy\\MM\\dd")));
    lines << QStringLiteral("<div class=\"container\">");
}

void appendTitle(QStringList& lines, const QString& title)
{
    lines << QStringLiteral("<br/><div class=\"subtitle\"><h2>%1</h2></div>"
                            "<div class=\"separator\"></div>")
                 .arg(title.toHtmlEscaped());
}

void appendSections(QStringList& lines, const QJsonObject& results)
{
    appendTitle(lines, QObject::tr("Colors"));
    AppendColorTable(lines, results);
    for (const Section& section : settingsSections) {
        appendTitle(lines, QObject::tr(section.title));
        AppendTable(lines, QLatin1String(section.key), results, QString(), false);
    }
    appendTitle(lines, QObject::tr("LUT"));
    lines << QStringLiteral("<div class=\"info-text\"><br>");
    lines << QObject::tr("To use the Color Calibrator, the LUT had to be disabled. Using a LUT and "
                         "the Color Calibrator at the same time, would adversely affect the color "
                         "calibration.")
                 .toHtmlEscaped();
    lines << QStringLiteral("</br></div>");
}

void appendBottom(QStringList& lines)
{
    lines << QStringLiteral("</div><div class=\"row\"><img src=\"data:image/png;base64,") +
                 base64Resource(":/ColCal/resources/logo_s.png") +
                 QStringLiteral(
                     "\" align=\"right\" class=\"logo\" alt=\"Tavrin AG\"/></div></div>");
    lines << QStringLiteral("</body></html>");
}

} // namespace

QString BuildHtml(const QString& cameraModel, const QJsonObject& results, const QDateTime& time)
{
    const QString model = cameraModel.toHtmlEscaped();
    QStringList lines;
    appendHead(lines, model, results);
    appendTop(lines, model, time);
    appendSections(lines, results);
    appendBottom(lines);
    return lines.join(QLatin1Char('\n'));
}

} // namespace ColorCalibration
