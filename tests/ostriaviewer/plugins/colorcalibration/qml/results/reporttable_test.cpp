// SPDX-License-Identifier: Apache-2.0
// What a table of results makes of its values.
#include "resultspages.h"

#include <QAbstractItemModel>

namespace {

class ReportTable : public ResultsPages
{
protected:
    int rows()
    {
        return item("report0")->property("model").value<QAbstractItemModel*>()->rowCount();
    }
};

TEST_F(ReportTable, RoundsWhatIsTooLongForAColumn)
{
    open(3);
    const QVector<QPair<QString, QString>> shown{{"-0.60546875", "-0.60547"},
                                                 {"1.59765625", "1.59766"},
                                                 {"0.0000001", "1.0000e-7"},
                                                 {"1.5", "1.5"},
                                                 {"2.0000", "2.0000"},
                                                 {"N/A", "N/A"},
                                                 {"R: 1 G: 2 B: 3", "R: 1 G: 2 B: 3"}};
    for (const auto& [value, expected] : shown)
        EXPECT_EQ(call(item("report3"), "shown", value).toString(), expected);
}

TEST_F(ReportTable, DropsItsRowsWhereARecalibrationFails)
{
    m_model.m_results = R"({"Colors":{"Patch01":{"Current":"#000001"}}})";
    open(3);
    ASSERT_EQ(rows(), 1);
    m_log.failing = {"applyInitialColorPatchValues()"};
    m_model.m_results = "{}";
    emit m_model.autoAdjustGray80PercentPatchFinished();
    EXPECT_EQ(rows(), 0);
    EXPECT_EQ(takeMessage(), "Apply initial values failed.");
}

} // namespace
