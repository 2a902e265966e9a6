// SPDX-License-Identifier: Apache-2.0
// Features look as they can be used, and lists hold what the camera named.
#include "fakeparametercollection.h"
#include "featuredelegate.h"
#include "featurepaneltest.h"
#include "theme.h"

#include <QComboBox>

#include <algorithm>

namespace Viewer {
namespace {

class LockedCommand : public FeaturePanelTest, public testing::WithParamInterface<Theme>
{
protected:
    LockedCommand() { ViewerSettings().setValue("Theme", nameOf(GetParam())); }
    ~LockedCommand() override { applyTheme(Theme::Desktop); }

    /// How far the button's text stands out from the window, in steps of gray of 255.
    int textContrast()
    {
        const QRect button = m_tree->visualRect(cell("UserSetLoad")).adjusted(6, 4, -6, -4);
        const QImage picture = m_tree->viewport()->grab(button).toImage();
        const int ground = contrastOf(QPalette::Active, QPalette::Window);
        int strongest = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                strongest = std::max(strongest, std::abs(qGray(picture.pixel(x, y)) - ground));
        return strongest;
    }
    int textContrast(QPalette::ColorGroup group) const
    {
        return std::abs(contrastOf(group, QPalette::ButtonText) -
                        contrastOf(QPalette::Active, QPalette::Window));
    }

private:
    static int contrastOf(QPalette::ColorGroup group, QPalette::ColorRole role)
    {
        return qGray(QApplication::palette().color(group, role).rgb());
    }
};

// Antialiasing and the button's own ground move the text's color a little.
TEST_P(LockedCommand, HasAFaintText)
{
    constexpr int blur = 30;
    EXPECT_GE(textContrast(), textContrast(QPalette::Active) - blur);
    window().commands().startAction()->trigger();
    ASSERT_TRUE(
        waitUntil([this] { return cell("UserSetLoad").data(Qt::ForegroundRole).isValid(); }));
    EXPECT_LE(textContrast(), textContrast(QPalette::Disabled) + blur);
    window().commands().stopAction()->trigger();
}

INSTANTIATE_TEST_SUITE_P(Viewer, LockedCommand, testing::Values(Theme::Light, Theme::Dark),
                         [](const auto& theme) { return nameOf(theme.param).toStdString(); });

class OneChoice final : public FakeParameterCollection
{
public:
    OneChoice()
        : FakeParameterCollection({2, 3})
    {
        addEnumeration("Mode", {"One", "Two"});
    }

    std::vector<Core::ParameterCollection::FeatureCategory> categories() const override
    {
        return {{"Root", "Root", {"Mode"}, {}}};
    }
};

TEST(FeatureDelegate, AsksOnceForTheEntriesOfAList)
{
    const auto features = QSharedPointer<OneChoice>::create();
    FeatureModel model;
    model.setFeatures(features);
    int asked = 0;
    features->features().beforeCall = [&asked](const QString& call) {
        if (call == "read entries of Mode" && ++asked > 1)
            throw GenICam::RuntimeException("The camera does not answer.");
    };
    const QModelIndex mode = model.index(0, FeatureModel::Value, model.index(0, 0));
    const FeatureDelegate delegate;
    QWidget parent;
    const auto* list = qobject_cast<QComboBox*>(delegate.createEditor(&parent, {}, mode));
    ASSERT_TRUE(list);
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->itemText(1), "Two");
    EXPECT_EQ(list->itemData(1), "Two");
}

} // namespace
} // namespace Viewer
