#include "small_bodies/comet_tail_dialog.h"

#include <algorithm>
#include <iterator>

#include <QSlider>

#include "core_link/number_text.h"
#include "core_link/reply.h"
#include "core_link/vector_step.h"

namespace vyn {
namespace {

constexpr int kTitle = 1951, kAutoEmission = 1952, kDustOutline = 1967, kIonOutline = 1974;
constexpr int kEditChars = 5;
constexpr int kEditDecimals = 3;
constexpr double kUnsetBeta = -1.0;
constexpr double kShownBetaMin = 0.2;

QString Truth(int on) { return on ? QStringLiteral("TRUE") : QStringLiteral("FALSE"); }

}  // namespace

// clang-format off
const CDlgCometTail::TailValue CDlgCometTail::kValues[] = {
  {1955, 1956, 1957, &Tails::dustSpanDays,  1.0, 1.0, 50},
  {1960, 1961, 1962, &Tails::betaMin,      10.0, 0.1, 30},
  {1964, 1965, 1966, &Tails::betaMax,      10.0, 0.1, 30},
  {1970, 1971, 1972, &Tails::ionSpanDays,  10.0, 0.1, 30},
};
// clang-format on

CDlgCometTail::CDlgCometTail(QWidget* parent) : CDlgCometTail(QString(), parent) {}

CDlgCometTail::CDlgCometTail(const QString& objectPath, QWidget* parent)
    : CVynDialog(nullptr, nullptr, 13011, QStringLiteral("Dialog\\CometTail"), parent),
      objectPath_(objectPath) {}

bool CDlgCometTail::OnInitDialog() {
  CVynDialog::OnInitDialog();
  ReadTails();
  saved_ = tails_;
  SetScrollPos();
  UpdateData(false);
  return true;
}

void CDlgCometTail::AttachControls() {
  CVynDialog::AttachControls();
  OnClicked({kAutoEmission, kDustOutline, kIonOutline}, &CDlgCometTail::OnBnClickedChk);
  for (const TailValue& value : kValues) {
    auto* slider = static_cast<QSlider*>(GetDlgItem(value.slider));
    slider->setRange(0, value.sliderEnd);
    static_cast<QLineEdit*>(GetDlgItem(value.edit))->setMaxLength(kEditChars);
    OnTextChanged({value.edit}, &CDlgCometTail::OnEnChangeEdt);
    OnSlid(value.slider, [this, &value](int position) { OnHScroll(value, position); });
    OnSpin(value.spin, [this, &value](int delta) { OnDeltaposSpn(value, delta); });
  }
}

void CDlgCometTail::DoDataExchange(CDataExchange& exchange) {
  exchange.Text(kTitle, title_);
  exchange.Check(kAutoEmission, tails_.autoEmission);
  exchange.Check(kDustOutline, tails_.dustOutline);
  exchange.Check(kIonOutline, tails_.ionOutline);
  for (const TailValue& value : kValues) {
    exchange.DDX_Double(value.edit, tails_.*value.member, kEditChars, kEditDecimals);
  }
}

/// The outlines are asked in lower case, as they always have been.
void CDlgCometTail::ReadTails() {
  const QString identifier = Ask(QStringLiteral(".ID"));
  title_ = Ask(QStringLiteral(".JapaneseName")) + u'(' + identifier + u')';
  tails_.autoEmission = reply::ToBool(Ask(QStringLiteral(".AutoEmissionSpan")));
  tails_.dustSpanDays = reply::ToDouble(Ask(QStringLiteral(".Dusttail.EmissionSpan")));
  tails_.betaMin = ReadBeta(QStringLiteral(".Dusttail.BetaMin"), isBetaMinUnset_);
  if (isBetaMinUnset_) tails_.betaMin = kShownBetaMin;
  tails_.betaMax = ReadBeta(QStringLiteral(".Dusttail.BetaMax"), isBetaMaxUnset_);
  if (isBetaMaxUnset_) {
    tails_.betaMax = reply::ToDouble(Ask(QStringLiteral(".Dusttail.BetaMaxInelm")));
  }
  tails_.dustOutline = reply::ToBool(Ask(QStringLiteral(".dusttail.outline.visible")));
  tails_.ionSpanDays = reply::ToDouble(Ask(QStringLiteral(".Iontail.EmissionSpan")));
  tails_.ionOutline = reply::ToBool(Ask(QStringLiteral(".iontail.outline.visible")));
}

QString CDlgCometTail::Ask(const QString& suffix) {
  return HasCorVyn() ? GetString(objectPath_ + suffix) : QString();
}

double CDlgCometTail::ReadBeta(const QString& suffix, bool& isUnset) {
  const double beta = reply::ToDouble(Ask(suffix));
  isUnset = beta == kUnsetBeta;
  return beta;
}

void CDlgCometTail::Doit(const Tails& tails) {
  if (!HasCorVyn()) return;
  Send(QStringLiteral(".AutoEmissionSpan = ") + Truth(tails.autoEmission));
  Send(QStringLiteral(".Dusttail.EmissionSpan = ") + SixDecimals(tails.dustSpanDays));
  Send(QStringLiteral(".Dusttail.BetaMin = ") + SixDecimals(tails.betaMin));
  Send(QStringLiteral(".Dusttail.BetaMax = ") + SixDecimals(tails.betaMax));
  Send(QStringLiteral(".dusttail.outline.visible = ") + Truth(tails.dustOutline));
  Send(QStringLiteral(".Iontail.EmissionSpan = ") + SixDecimals(tails.ionSpanDays));
  Send(QStringLiteral(".Iontail.outline.visible = ") + Truth(tails.ionOutline));
  CVynDialog::Doit(QStringLiteral("show sky"));
}

/// Places the sliders by the values, cut to whole positions.
void CDlgCometTail::SetScrollPos() {
  for (const TailValue& value : kValues) {
    const double position = std::clamp(tails_.*value.member * value.sliderScale, 0.0,
                                       static_cast<double>(value.sliderEnd));
    ShowSlider(value.slider, static_cast<int>(position));
  }
}

void CDlgCometTail::OnBnClickedChk() {
  UpdateData(true);
  Doit(tails_);
}

void CDlgCometTail::OnEnChangeEdt() {
  UpdateData(true);
  SetScrollPos();
  Doit(tails_);
}

void CDlgCometTail::OnDeltaposSpn(const TailValue& value, int delta) {
  const double stepped = RoundedStep(tails_.*value.member - delta * value.step);
  tails_.*value.member = std::max(0.0, stepped);
  UpdateData(false);
  SetScrollPos();
  Doit(tails_);
}

void CDlgCometTail::OnHScroll(const TailValue& value, int position) {
  tails_.*value.member = position / value.sliderScale;
  UpdateData(false);
  Doit(tails_);
}

/// What the core engine had not set is left unset again.
void CDlgCometTail::OnBnClickedCancel() {
  if (isBetaMinUnset_) saved_.betaMin = kUnsetBeta;
  if (isBetaMaxUnset_) saved_.betaMax = kUnsetBeta;
  Doit(saved_);
  CVynDialog::OnCancel();
}

}  // namespace vyn
