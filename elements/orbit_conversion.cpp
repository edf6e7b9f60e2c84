#include "elements/orbit_conversion.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "core_link/reply.h"
#include "siblings/astro/angles.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

constexpr double kGaussRadPerDay = 0.01720209895;
constexpr double kParabolaTolerance = 1e-16;
constexpr double kLargestAxisAu = 999.9999994;
constexpr double kSmallestDistanceAu = 1e-12;
constexpr double kDistanceMismatchAu = 0.1;
constexpr int kMostDistanceDecimals = 8;
constexpr int kMostTimeDecimals = 6;

// What the user is told; texts in the string table.
constexpr int kOrbitTakesNoEpoch = 13330;
constexpr int kDistanceNotPositive = 13338;
constexpr int kEpochMissing = 13341;

/// As the C conversion "%*.*f" writes it; empty for what is not finite.
QString FixedText(double value, int decimals, int width = 0) {
  if (!std::isfinite(value)) return {};
  std::array<char, 400> text;
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value,
                                          std::chars_format::fixed, decimals);
  return QString::fromLatin1(text.data(), end - text.data())
      .rightJustified(width, QLatin1Char(' '));
}

int Decimals(const QString& typed, int most) { return std::min(GetPrecision(typed), most); }

int YearOrMonth(const QString& text) {
  // Far beyond every field, and safe to reckon with.
  constexpr int kFar = 1'000'000;
  return std::clamp(reply::ToInt(text), -kFar, kFar);
}

bool IsAnyBlank(const ElementInput& input, const DateFields& date) {
  return IsBlankField(input[date.year]) || IsBlankField(input[date.month]) ||
         IsBlankField(input[date.day]);
}

/// 1 - e, where the orbit's size can be told in both ways.
std::optional<double> OneMinusE(const ElementInput& input) {
  const QString& text = input[ElementField::Eccentricity];
  const double oneMinusE = 1.0 - NumberOf(text);
  if (IsBlankField(text) || std::abs(oneMinusE) < kParabolaTolerance) return {};
  return oneMinusE;
}

/// An ellipse for which epoch and M are allowed; otherwise the number of the message why not.
struct Ellipse {
  double semiMajorAxisAu = 0.0;
  int message = 0;

  double MotionRadPerDay() const { return kGaussRadPerDay / std::pow(semiMajorAxisAu, 1.5); }
};

Ellipse EllipseOf(const ElementInput& input) {
  const double e = NumberOf(input[ElementField::Eccentricity]);
  if (e > kLargestEccentricityOfM) return {0.0, kOrbitTakesNoEpoch};
  double qAu = NumberOf(input[ElementField::PerihelionDistance]);
  const double aAu = NumberOf(input.semiMajorAxis);
  const bool hasQ = std::abs(qAu) >= kSmallestDistanceAu;
  const bool hasA = std::abs(aAu) >= kSmallestDistanceAu;
  const double qFromAxisAu = (1.0 - e) * aAu;
  if (!hasQ && aAu < kSmallestDistanceAu) return {0.0, kOrbitTakesNoEpoch};
  if (hasQ && hasA && std::abs(qAu - qFromAxisAu) > kDistanceMismatchAu) {
    return {0.0, kOrbitTakesNoEpoch};
  }
  if (!hasQ) qAu = qFromAxisAu;
  if (qAu < kSmallestDistanceAu) return {0.0, kDistanceNotPositive};
  return {qAu / (1.0 - e)};
}

/// A day that its decimals round up beyond the month is the first of the next.
void PutDate(ElementInput& input, const DateFields& date, double jd, int decimals) {
  int year = 0, month = 0;
  double day = 0.0;
  JdToDate(jd, &year, &month, &day);
  const double rounded = NumberOf(FixedText(day, decimals));
  if (CheckDate(year, month, rounded) == 0) {
    JdToDate(CalcJd(year, month, rounded), &year, &month, &day);
  }
  input[date.year] = QString::number(year);
  input[date.month] = QString::number(month);
  input[date.day] = FixedText(day, decimals, 2 + decimals + (day >= 10.0 ? 1 : 0));
}

}  // namespace

bool IsBlankField(QStringView text) { return text.trimmed().isEmpty(); }

double NumberOf(const QString& text) {
  const double value = reply::ToDouble(text);
  return std::isfinite(value) ? value : 0.0;
}

int GetPrecision(QStringView text) {
  const qsizetype point = text.indexOf(u'.');
  if (point < 0) return 0;
  const QStringView behind = text.sliced(point + 1);
  const auto isDigit = [](QChar c) { return c >= u'0' && c <= u'9'; };
  return static_cast<int>(std::ranges::find_if_not(behind, isDigit) - behind.begin());
}

double JdOf(const ElementInput& input, const DateFields& date) {
  return CalcJd(YearOrMonth(input[date.year]), YearOrMonth(input[date.month]),
                NumberOf(input[date.day]));
}

QString AxisToPerihelionDistance(const ElementInput& input) {
  const std::optional<double> oneMinusE = OneMinusE(input);
  if (!oneMinusE || IsBlankField(input.semiMajorAxis)) return {};
  return FixedText(*oneMinusE * NumberOf(input.semiMajorAxis),
                   Decimals(input.semiMajorAxis, kMostDistanceDecimals));
}

QString PerihelionDistanceToAxis(const ElementInput& input) {
  const QString& q = input[ElementField::PerihelionDistance];
  const std::optional<double> oneMinusE = OneMinusE(input);
  if (!oneMinusE || IsBlankField(q)) return {};
  const double aAu = NumberOf(q) / *oneMinusE;
  if (aAu < 0.0 || aAu > kLargestAxisAu) return {};
  const int decimals = Decimals(q, kMostDistanceDecimals);
  return FixedText(aAu, decimals, decimals + (aAu >= 100.0 ? 4 : aAu >= 10.0 ? 3 : 2));
}

QString GetPeriodString(const ElementInput& input) {
  // A year of the orbit's unit of length over a year of the calendar, in days.
  constexpr double kYearsPerUnit = 365.2568983263281 / 365.2563835;
  const QString& size =
      input.distanceMode ? input[ElementField::PerihelionDistance] : input.semiMajorAxis;
  const std::optional<double> oneMinusE = OneMinusE(input);
  if (!oneMinusE || *oneMinusE <= 0.0 || IsBlankField(size)) return {};
  const double aAu = input.distanceMode ? NumberOf(size) / *oneMinusE : NumberOf(size);
  const double years = std::floor(std::pow(aAu, 1.5) * kYearsPerUnit * 100.0 + 0.5) / 100.0;
  if (std::isnan(years)) return {};  // a negative size
  if (years >= 999.5) return QStringLiteral(">1000");
  return FixedText(years, years >= 100.0 ? 0 : years >= 10.0 ? 1 : years >= 1.0 ? 2 : 3);
}

int EpochToT(ElementInput& input) {
  if (IsAnyBlank(input, kEpochDate) || IsBlankField(input.meanAnomaly)) return kEpochMissing;
  const Ellipse ellipse = EllipseOf(input);
  if (ellipse.message != 0) return ellipse.message;
  const double anomalyRad = NumberOf(input.meanAnomaly) * kRadPerDeg;
  const double jd = JdOf(input, kEpochDate) - anomalyRad / ellipse.MotionRadPerDay();
  if (!std::isfinite(jd)) return kNumberExpected;
  PutDate(input, kPerihelionDate, jd, Decimals(input.meanAnomaly, kMostTimeDecimals));
  return 0;
}

bool TToEpoch(ElementInput& input) {
  if (IsAnyBlank(input, kEpochDate) || IsAnyBlank(input, kPerihelionDate)) return false;
  const Ellipse ellipse = EllipseOf(input);
  if (ellipse.message != 0) return false;
  const double sincePerihelionDays = JdOf(input, kEpochDate) - JdOf(input, kPerihelionDate);
  const double anomalyDeg = degmal(sincePerihelionDays * ellipse.MotionRadPerDay() * kDegPerRad);
  if (std::isnan(anomalyDeg)) return false;
  const int decimals = Decimals(input[ElementField::PerihelionDay], kMostTimeDecimals);
  input.meanAnomaly = FixedText(anomalyDeg, decimals);
  return true;
}

}  // namespace vyn
