// SPDX-License-Identifier: Apache-2.0
// The languages of the viewer's texts.
#include "language.h"

#include <QCoreApplication>
#include <QLibraryInfo>

#include <algorithm>

namespace Viewer {
namespace {

bool isKnown(const QString& code)
{
    const QVector<LanguageName> all = languages();
    return std::any_of(all.begin(), all.end(),
                       [&](const LanguageName& language) { return language.code == code; });
}

// Simplified and traditional Chinese differ in script and in the words of our trade; readers of one
// take English for the lesser evil, and find the other in the menu.
QString codeOf(const QLocale& locale)
{
    if (locale.script() == QLocale::TraditionalHanScript)
        return {};
    return locale.name().section(QLatin1Char('_'), 0, 0);
}

// Qt names its Chinese catalogues by country.
QString qtCatalogue(const QString& language)
{
    return language == QLatin1String("zh") ? QStringLiteral("zh_CN") : language;
}

} // namespace

QVector<LanguageName> languages()
{
    return {{QStringLiteral("en"), QStringLiteral("English")},
            {QStringLiteral("ja"), QStringLiteral("日本語")},
            {QStringLiteral("ko"), QStringLiteral("한국어")},
            {QStringLiteral("zh"), QStringLiteral("中文")}};
}

QString startLanguage(const QString& chosen, const QLocale& desktop)
{
    for (const QString& code : {chosen, codeOf(desktop)})
        if (isKnown(code))
            return code;
    return QStringLiteral("en");
}

LanguageCatalogues::~LanguageCatalogues()
{
    QCoreApplication::removeTranslator(&m_viewer);
    QCoreApplication::removeTranslator(&m_qt);
}

void LanguageCatalogues::install(const QString& language)
{
    QCoreApplication::removeTranslator(&m_viewer);
    QCoreApplication::removeTranslator(&m_qt);
    if (m_qt.load(QStringLiteral("qtbase_") + qtCatalogue(language),
                  QLibraryInfo::location(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qt);
    if (m_viewer.load(
            QStringLiteral(":/ostriaviewer/translation/ostriaviewer_%1.qm").arg(language)))
        QCoreApplication::installTranslator(&m_viewer);
}

} // namespace Viewer
