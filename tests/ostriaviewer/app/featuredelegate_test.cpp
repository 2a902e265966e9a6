// SPDX-License-Identifier: Apache-2.0
// Lists hold what the camera named.
#include "fakeparametercollection.h"
#include "featuredelegate.h"
#include "featuremodel.h"

#include <QComboBox>

namespace Viewer {
namespace {

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
