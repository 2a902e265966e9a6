// SPDX-License-Identifier: Apache-2.0
// A slow and obvious calibration in long double.
#include "referencecalibration.h"

#include "charttargets.h"

#include <algorithm>
#include <cmath>

namespace Reference {

namespace {

constexpr int ColoredPatches = 18;

Colors targets()
{
    return fromPatchColors(ColorCalibration::ChartTargets().TargetColors());
}

// One patch's contribution to the fit: its three equations, turned into Lab.
void addInLab(int patch, const std::array<std::vector<Real>, 3>& equations, const Vector& rightSide,
              std::vector<std::vector<Real>>& rows, std::vector<Real>& right)
{
    const auto table = ColorCalibration::ChartTargets().LabSensitivity();
    for (int i = 0; i < 3; ++i) {
        std::vector<Real> row(equations[0].size(), 0);
        Real value = 0;
        for (int k = 0; k < 3; ++k) {
            const Real weight = table(3 * patch + i, 3 * patch + k);
            value += weight * rightSide[k];
            for (std::size_t j = 0; j < row.size(); ++j) {
                row[j] += weight * equations[k][j];
            }
        }
        rows.push_back(row);
        right.push_back(value);
    }
}

Colors clamped(Colors colors)
{
    for (Vector& color : colors) {
        for (Real& value : color) {
            value = std::min<Real>(255, std::max<Real>(0, value));
        }
    }
    return colors;
}

// Where a colour stands in its sector: channels by size, the hues at the sector's two ends.
struct Place
{
    std::array<int, 3> channels;
    int primary;
    int secondary;
    int direction;
};

Place placeOf(const Vector& rgb)
{
    Place place{{0, 1, 2}, 0, 0, 0};
    std::sort(place.channels.begin(), place.channels.end(),
              [&rgb](int a, int b) { return rgb[a] > rgb[b]; });
    const int sector = sectorByHueAngle(rgb);
    const int end = (sector + 1) % 6;
    place.primary = sector % 2 == 0 ? sector : end;
    place.secondary = sector % 2 == 0 ? end : sector;
    place.direction = sector % 2 == 0 ? 1 : -1;
    return place;
}

} // namespace

std::vector<Real> leastSquares(std::vector<std::vector<Real>> rows, std::vector<Real> rightSide)
{
    const std::size_t m = rows.size();
    const std::size_t n = rows[0].size();
    for (std::size_t k = 0; k < n; ++k) {
        Real norm = 0;
        for (std::size_t i = k; i < m; ++i) {
            norm = std::hypot(norm, rows[i][k]);
        }
        std::vector<Real> mirror(m, 0);
        for (std::size_t i = k; i < m; ++i) {
            mirror[i] = rows[i][k];
        }
        mirror[k] += mirror[k] < 0 ? -norm : norm;
        Real square = 0;
        for (const Real value : mirror) {
            square += value * value;
        }
        const auto reflect = [&](auto&& element) {
            Real product = 0;
            for (std::size_t i = k; i < m; ++i) {
                product += mirror[i] * element(i);
            }
            for (std::size_t i = k; i < m; ++i) {
                element(i) -= 2 * product / square * mirror[i];
            }
        };
        for (std::size_t j = k; j < n; ++j) {
            reflect([&rows, j](std::size_t i) -> Real& { return rows[i][j]; });
        }
        reflect([&rightSide](std::size_t i) -> Real& { return rightSide[i]; });
    }
    std::vector<Real> x(n);
    for (std::size_t k = n; k-- > 0;) {
        x[k] = rightSide[k];
        for (std::size_t j = k + 1; j < n; ++j) {
            x[k] -= rows[k][j] * x[j];
        }
        x[k] /= rows[k][k];
    }
    return x;
}

int sectorByHueAngle(const Vector& rgb)
{
    const Real sixtyDegrees = std::acos(0.5L);
    Real angle = std::atan2(std::sqrt(3.0L) * (rgb[1] - rgb[2]), 2 * rgb[0] - rgb[1] - rgb[2]);
    if (angle < 0) {
        angle += 6 * sixtyDegrees;
    }
    return std::min(5, static_cast<int>(angle / sixtyDegrees));
}

Vector adjust(const Vector& rgb, const std::array<Real, 12>& parameters)
{
    const Place place = placeOf(rgb);
    const auto [top, middle, bottom] = place.channels;
    const Real toMiddle = rgb[top] - rgb[middle];
    const Real toBottom = rgb[middle] - rgb[bottom];
    const Real primaryTurn = place.direction * parameters[place.primary] * toMiddle;
    const Real secondaryTurn = place.direction * parameters[place.secondary] * toBottom;
    Vector result{rgb[top], rgb[top], rgb[top]};
    result[middle] -= parameters[6 + place.primary] * toMiddle;
    result[bottom] -= parameters[6 + place.primary] * toMiddle;
    result[bottom] -= parameters[6 + place.secondary] * toBottom;
    result[middle] -= primaryTurn;
    result[bottom] += primaryTurn;
    result[top] += secondaryTurn;
    result[middle] -= secondaryTurn;
    return result;
}

Vector whiteBalanceGains(const Colors& colors)
{
    Vector sums{0, 0, 0};
    for (int patch = 19; patch <= 21; ++patch) {
        const Real peak = *std::max_element(colors[patch].begin(), colors[patch].end());
        for (int k = 0; peak < 250 && k < 3; ++k) {
            sums[k] += colors[patch][k] / peak;
        }
    }
    const Real top = *std::max_element(sums.begin(), sums.end());
    return {top / sums[0], top / sums[1], top / sums[2]};
}

std::array<Vector, 3> colorMatrix(const Colors& colors)
{
    // Unknown 2r and 2r + 1 are the elements off the diagonal of row r. Raising one of them takes
    // the same amount from the diagonal.
    constexpr int Others[3][2] = {{1, 2}, {0, 2}, {0, 1}};
    const Colors wanted = targets();
    std::vector<std::vector<Real>> rows;
    std::vector<Real> right;
    for (int patch = 0; patch < ColoredPatches; ++patch) {
        std::array<std::vector<Real>, 3> equations;
        Vector missing;
        for (int r = 0; r < 3; ++r) {
            equations[r].assign(6, 0);
            for (int i = 0; i < 2; ++i) {
                equations[r][2 * r + i] = colors[patch][Others[r][i]] - colors[patch][r];
            }
            missing[r] = wanted[patch][r] - colors[patch][r];
        }
        addInLab(patch, equations, missing, rows, right);
    }
    const std::vector<Real> x = leastSquares(rows, right);
    std::array<Vector, 3> matrix;
    for (int r = 0; r < 3; ++r) {
        const Real first = x[2U * r];
        const Real second = x[2U * r + 1];
        matrix[r][Others[r][0]] = first;
        matrix[r][Others[r][1]] = second;
        matrix[r][r] = 1 - first - second;
    }
    return matrix;
}

std::array<Real, 12> colorAdjustment(const Colors& colors)
{
    const Colors wanted = targets();
    std::vector<std::vector<Real>> rows;
    std::vector<Real> right;
    for (int patch = 0; patch < ColoredPatches; ++patch) {
        // The correction is affine in its parameters, so its columns can be read off.
        const Vector base = adjust(colors[patch], {});
        std::array<std::vector<Real>, 3> equations;
        equations.fill(std::vector<Real>(12));
        for (int j = 0; j < 12; ++j) {
            std::array<Real, 12> unit{};
            unit[j] = 1;
            const Vector moved = adjust(colors[patch], unit);
            for (int k = 0; k < 3; ++k) {
                equations[k][j] = moved[k] - base[k];
            }
        }
        const Vector missing{wanted[patch][0] - base[0], wanted[patch][1] - base[1],
                             wanted[patch][2] - base[2]};
        addInLab(patch, equations, missing, rows, right);
    }
    const std::vector<Real> x = leastSquares(rows, right);
    std::array<Real, 12> parameters;
    std::copy(x.begin(), x.end(), parameters.begin());
    return parameters;
}

Calibration calibrate(const Colors& measured)
{
    Calibration result;
    Colors& original = result.stepColors[0] = clamped(measured);
    result.stepColors[1] = original;
    result.digitalGain = 150 / *std::max_element(original[19].begin(), original[19].end());
    result.gains = whiteBalanceGains(original);
    result.stepColors[2] = original;
    for (int patch = 0; patch < ColorCalibration::PatchCount; ++patch) {
        for (int k = 0; k < 3; ++k) {
            result.stepColors[1][patch][k] *= result.digitalGain;
            result.stepColors[2][patch][k] *= result.gains[k];
        }
    }
    result.stepColors[1] = clamped(result.stepColors[1]);
    result.stepColors[2] = clamped(result.stepColors[2]);

    const Colors& balanced = result.stepColors[2];
    result.matrix = colorMatrix(balanced);
    for (int patch = 0; patch < ColorCalibration::PatchCount; ++patch) {
        for (int r = 0; r < 3; ++r) {
            result.stepColors[3][patch][r] = result.matrix[r][0] * balanced[patch][0] +
                                             result.matrix[r][1] * balanced[patch][1] +
                                             result.matrix[r][2] * balanced[patch][2];
        }
    }
    result.stepColors[3] = clamped(result.stepColors[3]);

    result.adjustment = colorAdjustment(result.stepColors[3]);
    std::transform(result.stepColors[3].begin(), result.stepColors[3].end(),
                   result.stepColors[4].begin(),
                   [&result](const Vector& rgb) { return adjust(rgb, result.adjustment); });
    result.stepColors[4] = clamped(result.stepColors[4]);
    return result;
}

Real distanceFromTarget(const Colors& colors, int patch)
{
    return ciede2000(labOfLinearRgb(colors[patch]), labOfLinearRgb(targets()[patch]));
}

Real meanDistanceFromTargets(const Colors& colors)
{
    Real sum = 0;
    for (int patch = 0; patch < ColorCalibration::PatchCount; ++patch) {
        sum += distanceFromTarget(colors, patch);
    }
    return sum / ColorCalibration::PatchCount;
}

} // namespace Reference
