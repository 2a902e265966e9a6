// SPDX-License-Identifier: Apache-2.0
// Numbers of the engine as JSON values.
#pragma once

#include "dlibmatrix.h"
#include "jsontext.h"

#include <QJsonArray>

namespace ColorCalibrate {

/// One array a row, one number a column.
template <long Rows, long Columns>
QJsonArray toJson(const dlib::matrix<double, Rows, Columns>& matrix)
{
    QJsonArray rows;
    for (long row = 0; row < Rows; ++row) {
        QJsonArray columns;
        for (long column = 0; column < Columns; ++column)
            columns.append(matrix(row, column));
        rows.append(columns);
    }
    return rows;
}

} // namespace ColorCalibrate
