// Values between controls and members: what a text means, how a value is shown, and who is told.
#include <gtest/gtest.h>

#include <QTest>
#include <QTimer>

#include "core_link/dialog.h"
#include "major_bodies/planet_dialog.h"
#include "resources/planet_grid.h"
#include "siblings/controls/controls.h"
#include "tests/print_text.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kTitle = 1951, kCheck = 1952, kWhole = 1956, kReal = 1961, kFixed = 1965;

/// The comet tail's template with bindings of its own.
class BoundDialog final : public CVynDialog {
 public:
  BoundDialog() : CVynDialog(nullptr, nullptr, 13011, {}, nullptr) {}

  void Show() { UpdateData(false); }
  void Read() { UpdateData(true); }
  void Type(int id, const QString& text) const {
    static_cast<QLineEdit*>(GetDlgItem(id))->setText(text);
  }
  QString Text(int id) const { return EditText(id); }

  int check = 0, radio = 7, whole = 0, unknown = 42;
  double real = 0.0, fixed = 0.0;
  QString title;
  int told = 0;

 protected:
  void AttachControls() override {
    CVynDialog::AttachControls();
    OnTextChanged({kWhole, kReal, kFixed}, &BoundDialog::OnText);
  }
  void DoDataExchange(CDataExchange& exchange) override {
    exchange.Check(kCheck, check);
    exchange.Radio(9998, radio);
    exchange.Text(kTitle, title);
    exchange.Int(kWhole, whole);
    exchange.DDX_Double(kReal, real, 5, 3);
    exchange.DDX_DoubleFmt(kFixed, fixed, 2, 6);
    exchange.Int(9999, unknown);
  }

 private:
  void OnText() {
    ++told;
    Show();  // as handlers do that put a value right
  }
};

class Exchange : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(dialog_.Create()); }
  BoundDialog dialog_;
};

TEST_F(Exchange, ATextIsReadByItsLongestPrefix) {
  const struct {
    const char16_t* text;
    int whole;
    double number;
  } cases[] = {
      {u"", 0, 0.0},      {u"abc", 0, 0.0}, {u"-", 0, 0.0},      {u" 12 ", 12, 12.0},
      {u"1e2", 1, 100.0}, {u"1,5", 1, 1.0}, {u"-0.5x", 0, -0.5}, {u"+3", 3, 3.0},
      {u"5年", 5, 5.0},   {u"nan", 0, 0.0}, {u"inf", 0, 0.0},    {u".25", 0, 0.25},
      {u"0x10", 0, 0.0},  {u"1e", 1, 1.0},  {u"1e999", 1, 0.0},  {u"--1", 0, 0.0},
      {u"１２", 0, 0.0},  {u"1 2", 1, 1.0},
  };
  for (const auto& [text, whole, number] : cases) {
    dialog_.whole = 77;
    dialog_.real = dialog_.fixed = 77.0;
    dialog_.Show();
    for (const int id : {kWhole, kReal, kFixed}) {
      const QSignalBlocker blocker(dialog_.GetDlgItem(id));
      dialog_.Type(id, QString::fromUtf16(text));
    }
    dialog_.Read();
    EXPECT_EQ(dialog_.whole, whole) << qPrintable(QString::fromUtf16(text));
    EXPECT_EQ(dialog_.real, number) << qPrintable(QString::fromUtf16(text));
    EXPECT_EQ(dialog_.fixed, number) << qPrintable(QString::fromUtf16(text));
  }
}

TEST_F(Exchange, ANumberIsShownWithinItsLength) {
  const struct {
    double value;
    const char16_t *shortest, *fixed;
  } cases[] = {
      {0.0, u"0", u"0.00"},
      {0.125, u"0.125", u"0.12"},
      {-0.125, u"-0.13", u"-0.12"},
      {1234.5678, u"1235", u"1234.6"},
      {99999.9, u"100000", u"100000"},
      {-0.0004, u"-0", u"-0.00"},
      {7.10, u"7.1", u"7.10"},
  };
  for (const auto& [value, shortest, fixed] : cases) {
    dialog_.real = dialog_.fixed = value;
    dialog_.Show();
    EXPECT_EQ(dialog_.Text(kReal), QString::fromUtf16(shortest)) << value;
    EXPECT_EQ(dialog_.Text(kFixed), QString::fromUtf16(fixed)) << value;
  }
}

TEST_F(Exchange, ReadingBackWhatWasShownGivesTheSame) {
  for (const double value : {0.0, 1.0, 0.5, 0.01, 12.25, -3.5, 99.75}) {
    dialog_.real = dialog_.fixed = value;
    dialog_.check = value > 0.0 ? 1 : 0;
    dialog_.whole = static_cast<int>(value * 100);
    dialog_.title = u"%1 & 月"_s.arg(value);
    const QString title = dialog_.title;
    const int whole = dialog_.whole, check = dialog_.check;
    dialog_.Show();
    dialog_.real = dialog_.fixed = -1.0;
    dialog_.whole = dialog_.check = -1;
    dialog_.title.clear();
    dialog_.Read();
    EXPECT_EQ(dialog_.real, value);
    EXPECT_EQ(dialog_.fixed, value);
    EXPECT_EQ(dialog_.whole, whole);
    EXPECT_EQ(dialog_.check, check);
    EXPECT_EQ(dialog_.title, title);
  }
  // What the dialog has no control for is left alone.
  EXPECT_EQ(dialog_.radio, 7);
  EXPECT_EQ(dialog_.unknown, 42);
}

TEST_F(Exchange, OnlyWhatThePersonDoesIsTold) {
  dialog_.whole = 5;
  dialog_.Show();
  EXPECT_EQ(dialog_.told, 0);
  QTest::keyClicks(dialog_.GetDlgItem(kReal), u"12"_s);
  EXPECT_EQ(dialog_.told, 2);
  dialog_.Type(kWhole, u"9"_s);
  EXPECT_EQ(dialog_.told, 3);
  EXPECT_EQ(dialog_.Text(kWhole), u"5");
}

/// An engine with a magnification that the planet dialog refuses, and a log of all that is sent.
class RefusedEngine final : public CCorVyn {
 public:
  QString Doit(const QString& command) override {
    if (command.startsWith(u'?')) {
      return command.endsWith(u"multiplier", Qt::CaseInsensitive) ? multiplier : u"1"_s;
    }
    changes += command;
    return {};
  }
  QString ObjNumToName(int) const override { return u"Solar.Sun"_s; }
  int GetLocationObject() const override { return 4; }
  int GetTimeSys() const override { return 0; }

  QString multiplier = u"0"_s;
  QStringList changes;
};

/// Does something while the box is up that comes next.
template <class Action>
void WhileBoxIsUp(QObject& context, Action action) {
  QTimer::singleShot(0, &context, [&context, action] {
    QWidget* box = QApplication::activeModalWidget();
    ASSERT_NE(box, nullptr);
    action();
    if (box->isVisible()) static_cast<QDialog*>(box)->done(0);
  });
}

TEST(Lifecycle, ARefusedValueLeavesNothingToUndo) {
  RefusedEngine engine;
  CDlgPlanet dialog(&engine, nullptr, nullptr);
  WhileBoxIsUp(dialog, [] {});
  ASSERT_TRUE(dialog.Create());
  dialog.reject();
  EXPECT_EQ(engine.changes, QStringList{QString()});
}

TEST(Lifecycle, ADialogCanBeClosedWhileItsMessageIsUp) {
  RefusedEngine engine;
  CDlgPlanet dialog(&engine, nullptr, nullptr);
  engine.multiplier = u"1"_s;
  ASSERT_TRUE(dialog.Create());
  QString undo;
  ASSERT_EQ(dialog.GetScript(undo), 1);
  const PlanetGrid& grid = PlanetsGrid();
  engine.changes.clear();
  bool wasUp = false;
  WhileBoxIsUp(dialog, [&] {
    wasUp = true;
    dialog.close();
  });
  static_cast<QLineEdit*>(dialog.GetDlgItem(grid.vectorSpan.edit))->setText(u"0"_s);
  EXPECT_TRUE(wasUp);
  EXPECT_EQ(engine.changes, QStringList{undo});
  EXPECT_FALSE(dialog.isVisible());
}

TEST(Lifecycle, EveryWayOutOfAModalDialogIsOkOrCancel) {
  RefusedEngine engine;
  engine.multiplier = u"1"_s;
  const struct {
    void (*leave)(CVynDialog&);
    int result;
  } ways[] = {
      {[](CVynDialog& d) { QTest::keyClick(&d, Qt::Key_Escape); }, 2},
      {[](CVynDialog& d) { QTest::keyClick(&d, Qt::Key_Return); }, 1},
      {[](CVynDialog& d) { d.close(); }, 2},
      {[](CVynDialog& d) { d.reject(); }, 2},
      {[](CVynDialog& d) { d.accept(); }, 1},
  };
  for (const auto& [leave, result] : ways) {
    engine.changes.clear();
    CDlgPlanet dialog(&engine, nullptr, nullptr);
    QTimer::singleShot(0, &dialog, [&dialog, leave] { leave(dialog); });
    EXPECT_EQ(dialog.DoModal(), result);
    EXPECT_EQ(engine.changes.size(), result == 2 ? 1 : 0);
    EXPECT_FALSE(engine.changes.join(u""_s).contains(u"Show Sky"_s, Qt::CaseInsensitive));
  }
}

TEST(Lifecycle, AChildGoesWithItsParent) {
  RefusedEngine engine;
  engine.multiplier = u"1"_s;
  QPointer<CDlgPlanet> child;
  {
    CDlgPlanet parent(&engine, nullptr, nullptr);
    ASSERT_TRUE(parent.Create());
    child = new CDlgPlanet(nullptr);
    ASSERT_TRUE(child->CreateChildOf(parent));
    engine.changes.clear();
  }
  EXPECT_TRUE(child.isNull());
  EXPECT_EQ(engine.changes, QStringList());
}

}  // namespace
}  // namespace vyn
