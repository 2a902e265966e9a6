// SPDX-License-Identifier: Apache-2.0
// In every language the wizard's texts are seen whole in the smallest window.
#include "catalogue.h"
#include "textroom.h"
#include "wizardrun.h"

#include <QQuickView>
#include <QSettings>
#include <QTest>
#include <QTranslator>

namespace {

/// What stands in boxes over the wizard; the pages' own texts are seen on the pages.
const QStringList BoxContexts = {"ColorCorrectionToolDlg",
                                 "Core::CameraPoolComponents::CameraTexts",
                                 "Plugin::ColorCalibration::CColorCalibrationPlugin",
                                 "Progress",
                                 "QMLExposureTime",
                                 "QMLGainvalue"};

/// The texts of boxes in a language. English stands in the sources, which every catalogue has.
QStringList boxTexts(const QString& language)
{
    const bool isEnglish = language == "en";
    QStringList texts;
    for (const char* catalogue : {PLUGIN_CATALOGUE, VIEWER_CATALOGUE})
        for (const auto& message :
             Translation::readCatalogue(QString(catalogue).arg(isEnglish ? "ja" : language)))
            if (BoxContexts.contains(message.context))
                texts += isEnglish ? message.source : message.translations.value(0);
    return texts;
}

class WizardLanguage : public WizardRun, public testing::WithParamInterface<const char*>
{
protected:
    WizardLanguage()
    {
        // An exhibition has a button more; each image costs a painting of the scene.
        QSettings().setValue("ColCalPlugin/EnableDemoMode", true);
        QSettings().setValue("ColCalPlugin/FramesPerSecond", 5);
        EXPECT_TRUE(
            m_translator.load(QString(":/translation/ColorCalibration_%1").arg(GetParam())));
        QCoreApplication::installTranslator(&m_translator);
    }
    ~WizardLanguage() override { QCoreApplication::removeTranslator(&m_translator); }

    /// Looks at the scene as it is. A folder in OSTRIA_PAGE_PICTURES gets a picture of it.
    void expectWhole(const QString& page)
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        EXPECT_EQ(TextRoom::problems(m_data->view()->rootObject()).join("\n").toStdString(), "")
            << page.toStdString();
        const QString folder = qEnvironmentVariable("OSTRIA_PAGE_PICTURES");
        if (!folder.isEmpty())
            m_data->view()->grabWindow().save(
                QString("%1/%2-%3.png").arg(folder, page, GetParam()));
    }

    /// Brings up the tool tip of each control, and looks at it too.
    void expectWholeToolTips(const QString& page, const QVector<const char*>& controls,
                             const char* toolTip = "standardToolTip")
    {
        for (const char* control : controls) {
            SCOPED_TRACE(control);
            auto* target = item(control);
            const QPoint place = placeOfToolTip(target);
            QTest::mouseMove(m_data->view(), place - QPoint(2, 0));
            QTest::mouseMove(m_data->view(), place);
            ASSERT_TRUE(waitFor([&] { return item(toolTip)->isVisible(); }));
            expectWhole(page + "-" + control);
        }
        QTest::mouseMove(m_data->view(), {2, 2});
        ASSERT_TRUE(waitFor([&] { return !item(toolTip)->isVisible(); }));
    }

    /// The middle, or the handle of a slider.
    static QPoint placeOfToolTip(QQuickItem* control)
    {
        double part = 0.5;
        const double range = control->property("maximumValue").toDouble() -
                             control->property("minimumValue").toDouble();
        if (range > 0)
            part = (control->property("value").toDouble() -
                    control->property("minimumValue").toDouble()) /
                   range;
        const double handle = control->height() / 2;
        const double x = handle + part * (control->width() - 2 * handle);
        return control->mapToScene({x, control->height() / 2}).toPoint();
    }

    /// Opens a message box of the scene, looks at it, and closes it.
    void expectWholeBox(const char* name, const QString& text = {})
    {
        auto* dialog = m_data->view()->rootObject()->findChild<QObject*>(name);
        ASSERT_TRUE(dialog) << name;
        if (!text.isEmpty())
            dialog->setProperty("text", text);
        QMetaObject::invokeMethod(dialog, "open");
        ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
        EXPECT_EQ(TextRoom::problems(*box()).join("\n").toStdString(), "") << name;
        QMetaObject::invokeMethod(dialog, "close");
        ASSERT_TRUE(waitFor([] { return box() == nullptr; }));
    }

    QString text(const char* name)
    {
        return m_data->view()->rootObject()->property(name).toString();
    }

private:
    QTranslator m_translator;
};

TEST_P(WizardLanguage, ShowsEveryTextWhole)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    run([this] {
        auto* root = m_data->view()->rootObject();
        ASSERT_NO_FATAL_FAILURE(goTo(1));
        ASSERT_EQ(root->size(), QSizeF(800, 750));
        root->setProperty("autoRefreshChecked", false);
        expectWhole("step1");
        expectWholeToolTips("step1", {"finderButton", "singleShotButton", "showGrid",
                                      "autoRefreshCheckBox", "previousCalibrationField"});
        for (const char* message :
             {"tMsgErrImageSizeTooSmall", "tMsgErrImageTooBright", "tMsgErrSelectSaveOption",
              "tMsgWarningImageTooBrightOrTooDark"})
            expectWholeBox("modelError", text(message));
        expectWholeBox("cancelWarningDialog");
        const QStringList texts = boxTexts(GetParam());
        EXPECT_EQ(texts.size(), 23);
        for (const QString& each : texts)
            expectWholeBox("modelError", each);
        root->setProperty("autoRefreshChecked", true);

        ASSERT_NO_FATAL_FAILURE(next(2));
        expectWhole("step2-before");
        expectWholeBox("autoAdjustGrayError");
        ASSERT_NO_FATAL_FAILURE(adjustBrightness());
        expectWhole("step2");
        expectWholeToolTips("step2", {"autoButton", "exposureSlider", "gainSlider"});
        expectWholeToolTips("step2", {"gauge"}, "gaugeToolTip");

        ASSERT_NO_FATAL_FAILURE(next(3));
        for (int report = 0; report < 9; ++report) {
            item("reports")->setProperty("currentIndex", report);
            expectWhole(QString("step3-report%1").arg(report));
        }
        expectWholeToolTips("step3", {"reports", "recalibrateButton", "autoRefreshCheckBox"});

        ASSERT_NO_FATAL_FAILURE(next(4));
        item("userSets")->setProperty("currentIndex", 1);
        expectWhole("step4");
        expectWholeToolTips("step4", {"imageSlider", "calibrationFile", "summaryFile", "userSets",
                                      "saveSettingsAsDefault", "saveButton", "recalibrateButton"});
        click("nextButton");
    });
}

class JapaneseWizard : public WizardLanguage
{};

// The pages have the very same sentence in Japanese: the script's is in no catalogue.
TEST_P(JapaneseWizard, TellsAFailedRecalibrationInEnglish)
{
    ASSERT_NO_FATAL_FAILURE(openCamera(FeatureNames::SecondGeneration));
    const QStringList before = settings();
    run([&] {
        ASSERT_NO_FATAL_FAILURE(goTo(3));
        EXPECT_EQ(QCoreApplication::translate("Progress", "Unable to set neutral settings."),
                  QString("ニュートラル設定を適用できませんでした。"));
        m_camera->refuseWrites("Gamma");
        click("recalibrateButton");
        ASSERT_TRUE(waitFor([] { return box() != nullptr; }));
        EXPECT_EQ(box()->windowTitle(), "カラーキャリブレーター");
        EXPECT_EQ(box()->text(), "Unable to set neutral settings.");
        m_camera->refuseWrites("Gamma", -1);
        QTest::keyClick(box(), Qt::Key_Escape);
        ASSERT_TRUE(waitFor([] { return box() == nullptr; }));
        click("cancelButton");
        confirm();
    });
    EXPECT_EQ(settings(), before);
}

INSTANTIATE_TEST_SUITE_P(WizardRun, JapaneseWizard, testing::Values("ja"));

INSTANTIATE_TEST_SUITE_P(WizardRun, WizardLanguage, testing::Values("en", "ja", "ko", "zh"),
                         [](const auto& each) { return std::string(each.param); });

} // namespace
