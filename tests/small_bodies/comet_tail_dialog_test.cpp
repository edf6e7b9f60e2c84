// The comet tail dialog: scales of its sliders, steps of its spins, what is unset and stays so.
#include "small_bodies/comet_tail_dialog.h"

#include <gtest/gtest.h>

#include <QSlider>
#include <QTest>

#include "siblings/controls/controls.h"
#include "tests/small_bodies/answering_engine.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

struct TailValue {
  const char* name;
  QString property;
  int slider, edit, spin;
  int place;  ///< of its assignment among those that are sent
  int end;
  double scale, step;
};

void PrintTo(const TailValue& row, std::ostream* out) { *out << row.name; }

const TailValue kValues[] = {
    {"DustSpan", u"Dusttail.EmissionSpan"_s, 1955, 1956, 1957, 1, 50, 1.0, 1.0},
    {"BetaMin", u"Dusttail.BetaMin"_s, 1960, 1961, 1962, 2, 30, 10.0, 0.1},
    {"BetaMax", u"Dusttail.BetaMax"_s, 1964, 1965, 1966, 3, 30, 10.0, 0.1},
    {"IonSpan", u"Iontail.EmissionSpan"_s, 1970, 1971, 1972, 5, 30, 10.0, 0.1},
};

class CometTail : public testing::TestWithParam<TailValue> {
 protected:
  void Open(const QString& value) {
    engine.values.insert(u"C.%1"_s.arg(GetParam().property), value);
    dialog.SetCorVyn(&engine, nullptr);
    ASSERT_TRUE(dialog.Create());
    engine.changes.clear();
  }
  QSlider& Slider() { return *static_cast<QSlider*>(dialog.GetDlgItem(GetParam().slider)); }
  QLineEdit& Edit() { return *static_cast<QLineEdit*>(dialog.GetDlgItem(GetParam().edit)); }
  void Spin(bool up) {
    auto* spin = static_cast<CVynSpinButton*>(dialog.GetDlgItem(GetParam().spin));
    const QRect arrow = up ? spin->UpRect() : spin->DownRect();
    QTest::mouseClick(spin, Qt::LeftButton, {}, arrow.center());
  }
  /// The one assignment that counts of the eight commands of a change.
  QString Sent() {
    const QStringList changes = engine.TakeChanges();
    EXPECT_EQ(changes.size(), 8);
    EXPECT_EQ(changes.value(7), u"show sky");
    const QString prefix = u"C.%1 = "_s.arg(GetParam().property);
    EXPECT_TRUE(changes.value(GetParam().place).startsWith(prefix));
    return changes.value(GetParam().place).mid(prefix.size());
  }

  AnsweringEngine engine;
  CDlgCometTail dialog{u"C"_s, nullptr};
};

INSTANTIATE_TEST_SUITE_P(Values, CometTail, testing::ValuesIn(kValues),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(CometTail, SlidersReachBothEndsAndSendWhatTheyShow) {
  Open(u"1"_s);
  const TailValue& value = GetParam();
  for (const int position : {value.end, 0, 7}) {
    Slider().setValue(position);
    EXPECT_EQ(Sent(), QString::number(position / value.scale, 'f', 6));
    EXPECT_EQ(Edit().text(), QString::number(position / value.scale));
  }
}

TEST_P(CometTail, SpinsStepExactlyStopAtZeroAndKnowNoTop) {
  Open(QString::number(GetParam().step / 2));
  Spin(false);
  EXPECT_EQ(Sent(), u"0.000000");
  for (int i = 0; i < 35; ++i) Spin(true);
  const QString reached = QString::number(35 * GetParam().step, 'f', 6);
  EXPECT_EQ(engine.values.value(u"C.%1"_s.arg(GetParam().property)), reached);
  EXPECT_EQ(Slider().value(), std::min(GetParam().end, 35));
  for (int i = 0; i < 40; ++i) Spin(false);
  EXPECT_EQ(engine.values.value(u"C.%1"_s.arg(GetParam().property)), u"0.000000");
  EXPECT_EQ(Edit().text(), u"0");
}

TEST_P(CometTail, TypingPlacesTheSliderCutToWholePositions) {
  Open(u"1"_s);
  Edit().setText(u"2.97"_s);
  EXPECT_EQ(Sent(), u"2.970000");
  EXPECT_EQ(Slider().value(), static_cast<int>(2.97 * GetParam().scale));
  Edit().setText(u"99999"_s);
  EXPECT_EQ(Sent(), u"99999.000000");
  EXPECT_EQ(Slider().value(), GetParam().end);
  Edit().setText(u"-1"_s);
  EXPECT_EQ(Sent(), u"-1.000000");
  EXPECT_EQ(Slider().value(), 0);
  Edit().clear();
  EXPECT_EQ(Sent(), u"0.000000");
  QTest::keyClicks(&Edit(), u"1234567"_s);
  EXPECT_EQ(Edit().text(), u"12345");
}

/// The value of the opening comes back; a beta that was not set is left unset again.
TEST_P(CometTail, CancelSendsTheOpeningAndUnsetBetasAsUnset) {
  engine.values.insert(u"C.Dusttail.BetaMaxInelm"_s, u"1.5"_s);
  Open(u"-1"_s);
  const bool isBeta = GetParam().scale == 10.0 && GetParam().place != 5;
  const QString shown = GetParam().place == 2   ? u"0.2"_s
                        : GetParam().place == 3 ? u"1.5"_s
                                                : u"-1"_s;
  EXPECT_EQ(Edit().text(), shown);
  Edit().setText(u"2"_s);
  engine.changes.clear();
  dialog.reject();
  EXPECT_EQ(Sent(), u"-1.000000");
  EXPECT_EQ(engine.queries.contains(u"? C.Dusttail.BetaMaxInelm"_s), isBeta && shown == u"1.5");
}

/// Names come from element files, which may hold anything.
TEST(CometTailTitle, IsShownAsItStands) {
  AnsweringEngine engine;
  engine.values.insert(u"C.JapaneseName"_s, u"<b>太い</b>"_s);
  CDlgCometTail dialog(u"C"_s, nullptr);
  dialog.SetCorVyn(&engine, nullptr);
  ASSERT_TRUE(dialog.Create());
  auto* title = static_cast<CVynStatic*>(dialog.GetDlgItem(1951));
  EXPECT_EQ(title->text(), u"<b>太い</b>()"_s);
  EXPECT_GE(title->sizeHint().width(), title->fontMetrics().horizontalAdvance(title->text()));
}

TEST_P(CometTail, AVanishedEngineIsAskedAndToldNothing) {
  engine.hasWindow = false;
  Open(u"1"_s);
  Slider().setValue(5);
  Spin(true);
  Edit().setText(u"3"_s);
  dialog.reject();
  EXPECT_TRUE(engine.queries.isEmpty() && engine.changes.isEmpty());
}

}  // namespace
}  // namespace vyn
