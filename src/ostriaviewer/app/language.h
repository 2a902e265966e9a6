// SPDX-License-Identifier: Apache-2.0
// The languages of the viewer's texts.
#pragma once

#include <QLocale>
#include <QString>
#include <QTranslator>
#include <QVector>

namespace Viewer {

struct LanguageName
{
    QString code;       ///< as in "en"
    QString nativeName; ///< as its speakers write it
};

/// The languages that can be chosen.
QVector<LanguageName> languages();

/// The language to begin with: what was chosen, else the desktop's if it can be had, else English.
/// Who reads traditional Chinese begins in English, as the Chinese to be had is simplified.
/// \param chosen  a code; anything else counts as nothing
QString startLanguage(const QString& chosen, const QLocale& desktop = QLocale::system());

/// Keeps the catalogues of one language installed. Thread-bound: GUI thread.
class LanguageCatalogues
{
public:
    ~LanguageCatalogues();

    /// Exchanges the catalogues of the viewer and of Qt; what has none stays English.
    void install(const QString& language);

private:
    QTranslator m_viewer;
    QTranslator m_qt;
};

} // namespace Viewer
