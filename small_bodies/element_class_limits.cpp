// The brightness limit and the motion vectors.
#include <algorithm>

#include <QSignalBlocker>
#include <QSlider>

#include "core_link/number_text.h"
#include "core_link/statement.h"
#include "core_link/vector_step.h"
#include "resources/string_table.h"
#include "small_bodies/element_class_dialog.h"

namespace vyn {
namespace {

constexpr double kBrightest = -5.0, kFaintest = 30.0;
constexpr int kSliderLowest = -50, kSliderHighest = 300;  // tenths of a magnitude
constexpr double kStep = 1.0, kFineStep = 0.1;

constexpr int kMagnitudeRange = 13379, kSpanRange = 13380, kMultiplierRange = 13381;

/// Rounded half up, then cut towards zero.
int SliderPosition(double magnitude) {
  const double position = magnitude * 10.0 + 0.5;
  if (!(position > kSliderLowest)) return kSliderLowest;
  return position >= kSliderHighest ? kSliderHighest : static_cast<int>(position);
}

bool IsWithin(double value, double lowest, double highest) {
  return value >= lowest && value <= highest;
}

}  // namespace

void CDlgElementClass::InitBrighter() {
  brighterFlag_ = GetBool(Path(u".Brighter.Visible")) ? 1 : 0;
  brighterMagnitude_ = GetDouble(Path(u".Brighter.Magnitude"));
  const QSignalBlocker blocker(brighterSlider_);
  brighterSlider_->setRange(kSliderLowest, kSliderHighest);
  brighterSlider_->setValue(SliderPosition(brighterMagnitude_));
}

void CDlgElementClass::InitVector() {
  vectorSpanDays_ = GetDouble(Path(u".Vector.Span"));
  vectorMultiplier_ = GetDouble(Path(u".Vector.Multiplier"));
}

void CDlgElementClass::OnBnClickedChkLimitBrighter() {
  if (!HasCorVyn()) return;
  UpdateData(true);
  UpdateCtrl();
  Doit(Path(u".Brighter.Visible = ") + QStringView(brighterFlag_ != 0 ? u"True" : u"False") +
       statement::kRedraw);
  ObjectList().Update();
}

/// The edit's own handler does the rest. It is called from here, since the edit would keep silent
/// when it shows the rounded text already.
void CDlgElementClass::OnHScroll(int position) {
  if (!HasCorVyn()) return;
  ShowEdit(id_.BrighterEdit(), FixedText(position / 10.0, 1));
  OnEnChangeEdtLimitBrighter();
}

void CDlgElementClass::OnEnChangeEdtLimitBrighter() {
  if (!HasCorVyn()) return;
  UpdateData(true);
  if (IsWithin(brighterMagnitude_, kBrightest, kFaintest)) {
    SendBrighterMagnitude();
  } else {
    ShowRange(kMagnitudeRange, kBrightest, kFaintest);
  }
}

/// Up raises the number, which lets fainter objects in.
void CDlgElementClass::OnDeltaposSpinLimitBrighter(int delta, bool fine) {
  if (!HasCorVyn()) return;
  const double step = fine ? kFineStep : kStep;
  double& magnitude = brighterMagnitude_;
  if (delta < 0) magnitude = std::min(RoundedStep(magnitude + step), kFaintest);
  if (delta > 0) magnitude = std::max(RoundedStep(magnitude - step), kBrightest);
  UpdateData(false);
  SendBrighterMagnitude();
}

void CDlgElementClass::SendBrighterMagnitude() {
  Doit(Path(u".Brighter.Magnitude = ") + FixedText(brighterMagnitude_, 1) + statement::kRedraw);
  ObjectList().Update();
}

void CDlgElementClass::OnEnChangeVectorSpandays() {
  if (!HasCorVyn()) return;
  UpdateData(true);
  VectorEdited(vectorSpanDays_, u".Vector.Span", kSpanRange);
}

void CDlgElementClass::OnEnChangeVectorMultiplier() {
  if (!HasCorVyn()) return;
  UpdateData(true);
  VectorEdited(vectorMultiplier_, u".Vector.Multiplier", kMultiplierRange);
}

void CDlgElementClass::VectorEdited(double value, QStringView property, int message) {
  if (IsWithin(value, kMinVectorValue, kMaxVectorValue)) {
    SendVector(property, value);
  } else {
    ShowRange(message, kMinVectorValue, kMaxVectorValue);
  }
}

void CDlgElementClass::OnDeltaposSpinVector(int spin, int delta) {
  if (!HasCorVyn()) return;
  const bool isSpan = spin == id_.SpanSpin();
  double& value = isSpan ? vectorSpanDays_ : vectorMultiplier_;
  value = StepVectorValue(value, delta);
  UpdateData(false);
  SendVector(isSpan ? u".Vector.Span" : u".Vector.Multiplier", value);
}

void CDlgElementClass::SendVector(QStringView property, double value) {
  Doit(Path(property) + u" = " + SixDecimals(value) + statement::kRedraw);
}

void CDlgElementClass::ShowRange(int message, double lowest, double highest) {
  ShowInformation(QString::asprintf(qUtf8Printable(LoadString(message)), lowest, highest));
}

}  // namespace vyn
