// SPDX-License-Identifier: Apache-2.0
// The language menu switches the running viewer.
#include "language.h"
#include "viewertest.h"

#include <QAbstractButton>
#include <QDockWidget>
#include <QFileDialog>
#include <QLabel>
#include <QLibraryInfo>
#include <QRegularExpression>
#include <QSet>
#include <QToolBar>
#include <QToolButton>

namespace Viewer {
namespace {

/// What a speaker of the language expects to read, from no catalogue.
struct Words
{
    const char* language;
    QString qtCatalogue;
    QString fileMenu;
    QString openCommand;
    QString openButton;
    QString features;
    QString closed;
    QString group;
    QString yes;
};

void PrintTo(const Words& words, std::ostream* out)
{
    *out << words.language;
}

const Words english{"en",     "qtbase_en",        "&File", "&Open", "Open", "Features",
                    "closed", "Emulated cameras", "&Yes"};
const Words translated[] = {
    {"ja", "qtbase_ja", "ファイル(&F)", "開く(&O)", "開く", "機能", "閉じています",
     "エミュレーションカメラ", "はい(&Y)"},
    {"ko", "qtbase_ko", "파일(&F)", "열기(&O)", "열기", "기능", "닫힘", "에뮬레이션 카메라",
     "예(&Y)"},
    {"zh", "qtbase_zh_CN", "文件(&F)", "打开(&O)", "打开", "功能", "已关闭", "仿真相机", "是(&Y)"}};

class LanguageTest : public ViewerTest, public testing::WithParamInterface<Words>
{
protected:
    // Whatever the desktop speaks.
    LanguageTest()
    {
        QSettings().setValue("Viewer/Version", ViewerSettings::version);
        QSettings().setValue("Viewer/Language", "en");
    }

    void choose(const char* language)
    {
        clickMenu("languageMenu", child<QAction>((QByteArray("language_") + language).constData()));
        QCoreApplication::sendPostedEvents();
    }

    void expectWords(const Words& words)
    {
        SCOPED_TRACE(words.language);
        EXPECT_EQ(child<QMenu>("fileMenu")->title(), words.fileMenu);
        EXPECT_EQ(child<QAction>("open")->text(), words.openCommand);
        EXPECT_EQ(openButton()->text(), words.openButton);
        EXPECT_EQ(child<QDockWidget>("featuresPanel")->windowTitle(), words.features);
        EXPECT_EQ(shownState(0), words.closed);
        EXPECT_EQ(child<QTreeWidget>("cameras")->topLevelItem(0)->text(0), words.group);
        EXPECT_TRUE(
            child<QAction>((QByteArray("language_") + words.language).constData())->isChecked());
    }

    QToolButton* openButton()
    {
        auto* bar = child<QToolBar>("cameraTools");
        return qobject_cast<QToolButton*>(bar->widgetForAction(child<QAction>("open")));
    }

    bool hasQtCatalogue() const
    {
        return QFile::exists(QLibraryInfo::location(QLibraryInfo::TranslationsPath) + '/' +
                             GetParam().qtCatalogue + ".qm");
    }
};

QMap<QString, QStringList> entriesByMnemonic(const QList<QAction*>& actions)
{
    QMap<QString, QStringList> entries;
    for (const QAction* action : actions)
        if (!action->isSeparator())
            entries[QKeySequence::mnemonic(action->text()).toString()].append(action->text());
    entries.remove({});
    return entries;
}

void expectNoMnemonicTwice(const QList<QAction*>& actions)
{
    for (const QStringList& entries : entriesByMnemonic(actions))
        EXPECT_EQ(entries.size(), 1) << entries.join(", ").toStdString();
}

} // namespace

TEST_P(LanguageTest, SwitchesTheRunningViewerAtOnceAndBack)
{
    startViewer();
    expectWords(english);
    choose(GetParam().language);
    expectWords(GetParam());
    child<QAction>("language_en")->trigger();
    QCoreApplication::sendPostedEvents();
    expectWords(english);
}

TEST_P(LanguageTest, HoldsAtTheNextStart)
{
    startViewer();
    choose(GetParam().language);
    m_viewer.reset();
    startViewer();
    expectWords(GetParam());
}

TEST_P(LanguageTest, TranslatesTheLimitsOfFeaturesThatWereReadBefore)
{
    startViewer();
    clickCamera(0, true);
    ASSERT_TRUE(waitForPicture());
    const auto limits = [this] {
        auto* features = child<QTreeView>("features")->model();
        for (int row = 0; row < features->rowCount(); ++row) {
            const QModelIndex category = features->index(row, 0);
            for (int inner = 0; inner < features->rowCount(category); ++inner) {
                const QString tip =
                    features->index(inner, 0, category).data(Qt::ToolTipRole).toString();
                if (tip.contains("<b>ExposureTime</b>"))
                    return tip;
            }
        }
        return QString();
    };
    EXPECT_TRUE(limits().contains("Range: ")) << limits().toStdString();
    choose(GetParam().language);
    EXPECT_FALSE(limits().isEmpty());
    EXPECT_FALSE(limits().contains("Range: ")) << limits().toStdString();
    EXPECT_TRUE(limits().contains(QRegularExpression("[～~]"))) << limits().toStdString();
}

TEST_P(LanguageTest, GivesNoMenuTwoEntriesForOneKey)
{
    startViewer();
    choose(GetParam().language);
    expectNoMnemonicTwice(window().menuBar()->actions());
    const auto menus = window().findChildren<QMenu*>();
    EXPECT_GE(menus.size(), 8);
    for (const QMenu* menu : menus)
        expectNoMnemonicTwice(menu->actions());
}

TEST_P(LanguageTest, ReachesTheButtonsAndDialogsOfQt)
{
    if (!hasQtCatalogue())
        GTEST_SKIP() << "Qt's own catalogues are not installed";
    startViewer();
    choose(GetParam().language);
    QMessageBox box(QMessageBox::Question, {}, {}, QMessageBox::Yes | QMessageBox::No);
    EXPECT_EQ(box.button(QMessageBox::Yes)->text(), GetParam().yes);
    QFileDialog dialog;
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    const auto* name = dialog.findChild<QLabel*>("fileNameLabel");
    ASSERT_TRUE(name);
    EXPECT_FALSE(name->text().isEmpty());
    EXPECT_EQ(name->text().contains("File"), GetParam().language == QString("en"))
        << name->text().toStdString();
}

INSTANTIATE_TEST_SUITE_P(Languages, LanguageTest, testing::ValuesIn(translated),
                         [](const auto& each) { return std::string(each.param.language); });

class EnglishTest : public LanguageTest
{};

TEST_P(EnglishTest, GivesNoMenuTwoEntriesForOneKey)
{
    startViewer();
    expectNoMnemonicTwice(window().menuBar()->actions());
    for (const QMenu* menu : window().findChildren<QMenu*>())
        expectNoMnemonicTwice(menu->actions());
}

// A language that there is no catalogue for, as settings of another viewer may name.
TEST_P(EnglishTest, StandsInForALanguageThatThereIsNot)
{
    startViewer();
    LanguageCatalogues catalogues;
    catalogues.install("xx");
    EXPECT_EQ(QCoreApplication::translate("Viewer::MainMenu", "&File"), "&File");
    EXPECT_EQ(startLanguage("xx"), startLanguage({}));
    EXPECT_EQ(startLanguage("ko"), "ko");
}

TEST(StartLanguage, IsTheDesktopsWhereItCanBeHad)
{
    for (const auto& [desktop, code] : {std::pair("ja_JP", "ja"),
                                        {"ko_KR", "ko"},
                                        {"zh_CN", "zh"},
                                        {"zh_SG", "zh"},
                                        {"en_US", "en"},
                                        {"de_DE", "en"},
                                        {"C", "en"}})
        EXPECT_EQ(startLanguage({}, QLocale(desktop)), code) << desktop;
    EXPECT_EQ(startLanguage("ko", QLocale("ja_JP")), "ko") << "what was chosen comes first";
}

TEST(StartLanguage, OfTraditionalChineseIsEnglishUnlessChosen)
{
    for (const char* desktop : {"zh_TW", "zh_HK", "zh_MO", "zh_Hant_CN"})
        EXPECT_EQ(startLanguage({}, QLocale(desktop)), "en") << desktop;
    EXPECT_EQ(startLanguage("zh", QLocale("zh_TW")), "zh");
}

TEST_P(EnglishTest, CountsOneAndMany)
{
    startViewer();
    const auto recorded = [](int count) {
        return QCoreApplication::translate("Viewer::RecordingCommands",
                                           "Recorded %n picture(s) of %1 in %2.", nullptr, count);
    };
    EXPECT_EQ(recorded(1), "Recorded 1 picture of %1 in %2.");
    EXPECT_EQ(recorded(2), "Recorded 2 pictures of %1 in %2.");
    EXPECT_EQ(recorded(0), "Recorded 0 pictures of %1 in %2.");
}

INSTANTIATE_TEST_SUITE_P(Languages, EnglishTest, testing::Values(english),
                         [](const auto& each) { return std::string(each.param.language); });

} // namespace Viewer
