#include "host/zodiacal_glow.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vyn {
namespace {

constexpr int kRows = 19;
constexpr int kColumns = 10;
constexpr std::array<double, kRows> kLongitudes{0,  5,  10, 15,  20,  25,  30,  35,  40, 45,
                                                60, 75, 90, 105, 120, 135, 150, 165, 180};
constexpr std::array<double, kColumns> kLatitudes{0, 5, 10, 15, 20, 25, 30, 45, 60, 75};

// clang-format off
/// Rows by longitude, columns by latitude. The six values next to the Sun, which the source leaves
/// blank, repeat their brightest neighbour.
constexpr double kTotal[kRows][kColumns] = {
  {9000, 5300, 3700, 2450, 1260, 770, 500, 215, 117, 78},
  {9000, 5300, 3700, 2300, 1200, 740, 490, 212, 117, 78},
  {9000, 5300, 3700, 1930, 1070, 675, 460, 206, 116, 78},
  {9000, 5300, 2690, 1450,  870, 590, 410, 196, 114, 78},
  {5000, 3500, 1880, 1100,  710, 495, 355, 185, 110, 77},
  {3000, 2210, 1350,  860,  585, 425, 320, 174, 106, 76},
  {1940, 1460,  955,  660,  480, 365, 285, 162, 102, 74},
  {1290,  990,  710,  530,  400, 310, 250, 151,  98, 73},
  { 925,  735,  545,  415,  325, 264, 220, 140,  94, 72},
  { 710,  570,  435,  345,  278, 228, 195, 130,  91, 70},
  { 395,  345,  275,  228,  190, 163, 143, 105,  81, 67},
  { 264,  248,  210,  177,  153, 134, 118,  91,  73, 64},
  { 202,  196,  176,  151,  130, 115, 103,  81,  67, 62},
  { 166,  164,  154,  133,  117, 104,  93,  75,  64, 60},
  { 147,  145,  138,  120,  108,  98,  88,  70,  60, 58},
  { 140,  139,  130,  115,  105,  95,  86,  70,  60, 57},
  { 140,  139,  129,  116,  107,  99,  91,  75,  62, 56},
  { 153,  150,  140,  129,  118, 110, 102,  81,  64, 56},
  { 180,  166,  152,  139,  127, 116, 105,  82,  65, 56},
};
// clang-format on

constexpr double kPoleBrightness = 60.0;

using Table = std::array<std::array<double, kColumns>, kRows>;

/// The table without the counterglow: from the Sun on never rising again.
constexpr Table ZodiacalLightTable() {
  Table table{};
  for (int column = 0; column < kColumns; ++column) {
    double darkest = kTotal[0][column];
    for (int row = 0; row < kRows; ++row) {
      darkest = std::min(darkest, kTotal[row][column]);
      table[row][column] = darkest;
    }
  }
  return table;
}

constexpr Table kZodiacalLight = ZodiacalLightTable();

/// A value between two entries of an axis: the lower one's number and the part of the way on.
struct AxisPlace {
  int index;
  double part;
};

template <std::size_t Size>
AxisPlace PlaceOn(const std::array<double, Size>& axis, double value) {
  const auto above = std::upper_bound(axis.begin() + 1, axis.end() - 1, value);
  const int index = static_cast<int>(above - axis.begin()) - 1;
  const double part = (value - axis[index]) / (axis[index + 1] - axis[index]);
  return {index, std::clamp(part, 0.0, 1.0)};
}

template <class Values>
double Interpolate(const Values& table, const AxisPlace& row, const AxisPlace& column) {
  const auto along = [&](int r) {
    const auto& values = table[r];
    return values[column.index] + (values[column.index + 1] - values[column.index]) * column.part;
  };
  return along(row.index) + (along(row.index + 1) - along(row.index)) * row.part;
}

constexpr int kPixelsPerCell = 12;

/// Brightness to opacity: the counterglow is to be seen, and the brightest part not to glare.
int AlphaOf(double brightness) {
  return static_cast<int>(std::clamp(64.0 * std::log10(1.0 + brightness / 90.0), 0.0, 170.0));
}

}  // namespace

DustLight DustLightAt(double fromSunLongitudeDeg, double latitudeDeg) {
  const double longitude = std::abs(std::remainder(fromSunLongitudeDeg, 360.0));
  const double latitude = std::abs(latitudeDeg);
  const AxisPlace row = PlaceOn(kLongitudes, longitude);
  const AxisPlace column = PlaceOn(kLatitudes, latitude);
  const double total = Interpolate(kTotal, row, column);
  const double light = Interpolate(kZodiacalLight, row, column);
  // From the table's last column on to the pole, where all longitudes meet.
  const double poleward = std::clamp((latitude - kLatitudes.back()) / 15.0, 0.0, 1.0);
  return {light + (kPoleBrightness - light) * poleward, (total - light) * (1.0 - poleward)};
}

QImage DustLightImage(const SkyProjection& projection, const Matrix3& toEcliptic,
                      double sunLongitudeDeg, bool zodiacalLight, bool counterGlow) {
  const int width = std::max(1, static_cast<int>(projection.Size().width()) / kPixelsPerCell);
  const int height = std::max(1, static_cast<int>(projection.Size().height()) / kPixelsPerCell);
  QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
  for (int y = 0; y < height; ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    for (int x = 0; x < width; ++x) {
      const QPointF point((x + 0.5) * kPixelsPerCell, (y + 0.5) * kPixelsPerCell);
      const Spherical place = DcToAd(toEcliptic * projection.ToDirection(point));
      const DustLight light = DustLightAt(place.longitudeDeg - sunLongitudeDeg, place.latitudeDeg);
      // The even glow of the whole sky is left out, so that the counterglow stands out.
      const double glow = (counterGlow ? 8.0 * light.counterGlow : 0.0) +
                          (zodiacalLight ? std::max(0.0, light.zodiacalLight - 60.0) : 0.0);
      line[x] = qPremultiply(qRgba(206, 212, 232, AlphaOf(glow)));
    }
  }
  return image;
}

}  // namespace vyn
