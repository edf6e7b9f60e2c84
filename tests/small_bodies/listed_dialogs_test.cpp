// The dialogs on meteorites and dust trails: falls in every time system, rows without an engine,
// scripts that restore, and lists of any length.
#include <gtest/gtest.h>

#include <QTest>

#include "siblings/controls/object_list_box.h"
#include "small_bodies/dust_trail_dialog.h"
#include "small_bodies/meteorite_dialog.h"
#include "tests/small_bodies/answering_engine.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kMeteorites = 11186, kTrails = 11184;

CVynListBoxAObj& List(CVynDialog& dialog, int id) {
  return *static_cast<CVynListBoxAObj*>(dialog.GetDlgItem(id));
}

struct FallCase {
  const char* name;
  int timeSystem;
  const char16_t* place;  ///< path of what the zone follows from, and its value
  const char16_t* value;
  const char16_t* title;
  const char16_t* text;
};

void PrintTo(const FallCase& row, std::ostream* out) { *out << row.name; }

class FallDate : public testing::TestWithParam<FallCase> {};

const FallCase kFalls[] = {
    {"Japan", 0, u"", u"", u"落下日(JST)", u"AD 2013/02/15 12:20:21"},
    {"Zone", 1, u"Time.TimeZone", u"5.5", u"落下日(LST)", u"AD 2013/02/15  8:50:21"},
    {"ZoneMissing", 1, u"", u"", u"落下日(LST)", u"AD 2013/02/15  3:20:21"},
    {"ZoneZero", 1, u"Time.TimeZone", u"0", u"落下日(LST)", u"AD 2013/02/15  3:20:21"},
    {"Universal", 2, u"", u"", u"落下日(UT)", u"AD 2013/02/15  3:20:21"},
    {"Mean", 3, u"Location.Longitude", u"-75", u"落下日(LMT)", u"AD 2013/02/14 22:20:21"},
    {"Unknown", 4, u"", u"", u"落下日()", u"AD 2013/02/15  3:20:21"},
    {"Negative", -1, u"", u"", u"落下日()", u"AD 2013/02/15  3:20:21"},
};

INSTANTIATE_TEST_SUITE_P(Meteorite, FallDate, testing::ValuesIn(kFalls),
                         [](const auto& info) { return std::string(info.param.name); });

TEST_P(FallDate, IsToldInTheEnginesTimeSystem) {
  const FallCase& row = GetParam();
  AnsweringEngine engine;
  engine.timeSystem = row.timeSystem;
  engine.values = {{u"Solar.Meteorite.Count"_s, u"1"_s},
                   {u"Solar.Meteorite.No1.TimeOfFall"_s, u"2456338.63913"_s},
                   {QString::fromUtf16(row.place), QString::fromUtf16(row.value)}};
  CDlgMeteorite dialog(&engine, nullptr, nullptr);
  ASSERT_TRUE(dialog.Create());
  CVynListBoxAObj& list = List(dialog, kMeteorites);
  EXPECT_EQ(list.Columns()[1].text, QString::fromUtf16(row.title));
  EXPECT_EQ(list.AskRows(0, 1).Column(1).Cell(0).text, QString::fromUtf16(row.text));
}

TEST(Meteorite, DatesHaveErasAndRoundToTheSecond) {
  const CDlgMeteorite dialog(nullptr);
  const struct {
    double jd, zone;
    const char* text;
  } cases[] = {
      {1684532.5, 0.0, "BC  101/01/01  0:00:00"},  // the year -100
      {1721057.5, 0.0, "BC    1/01/01  0:00:00"},  // the year 0
      {1721423.5, 0.0, "AD    1/01/01  0:00:00"},
      {1721423.5, -1.0, "BC    1/12/31 23:00:00"},
      {0.0, 0.0, "BC 4713/01/01 12:00:00"},
      {2299160.5, 0.0, "AD 1582/10/15  0:00:00"},
      {2299159.5, 0.0, "AD 1582/10/04  0:00:00"},
      {2451545.0 - 0.4 / 86400.0, 0.0, "AD 2000/01/01 12:00:00"},
      {2451544.5 - 0.4 / 86400.0, 0.0, "AD 2000/01/01  0:00:00"},
      {2451544.5, -99.5, "AD 2000/01/01  0:00:00"},
  };
  for (const auto& [jd, zone, text] : cases) {
    EXPECT_EQ(dialog.GetDateTimeString(jd, zone).toStdString(), text) << jd;
  }
}

TEST(Meteorite, ComparesWithTheMomentShown) {
  AnsweringEngine engine;
  engine.values.insert(u"Time.JD"_s, u"2451545.5"_s);
  CDlgMeteorite dialog(&engine, nullptr, nullptr);
  EXPECT_TRUE(dialog.IsLessThanJD(2451545.5));
  EXPECT_TRUE(dialog.IsLessThanJD(2451545.6));
  EXPECT_FALSE(dialog.IsLessThanJD(2451545.4));
  engine.hasWindow = false;
  EXPECT_TRUE(dialog.IsLessThanJD(0.0));
  EXPECT_EQ(engine.queries.size(), 3);
}

TEST(Meteorite, StatusFollowsTheFallAndTheMode) {
  AnsweringEngine engine;
  engine.values = {{u"Solar.Meteorite.Count"_s, u"2"_s}, {u"Solar.Meteorite.No2"_s, u"TRUE"_s}};
  CDlgMeteorite dialog(&engine, nullptr, nullptr);
  ASSERT_TRUE(dialog.Create());
  const auto disabled = [&](qint64 row) {
    QList<int> columns;
    const tagUpdateInfo batch = List(dialog, kMeteorites).AskRows(row, 1);
    for (int i = 0; i < 5; ++i) {
      if (batch.Column(i).Cell(0).status == kCellDisabled) columns.append(i);
    }
    return columns;
  };
  EXPECT_EQ(disabled(0), (QList<int>{3, 4}));
  EXPECT_EQ(disabled(1), QList<int>{4});
  engine.values.insert(u"View.Projection"_s, u"solarsystem"_s);
  EXPECT_EQ(disabled(0), (QList<int>{3, 4}));
  EXPECT_EQ(disabled(1), QList<int>{});
  engine.values.insert(u"View.Projection"_s, u"Solar"_s);
  EXPECT_EQ(disabled(1), QList<int>{4});
}

/// What is read at opening is what Cancel writes, whatever was done in between.
TEST(ListedObjects, ScriptTellsEveryObjectAsItWasRead) {
  AnsweringEngine engine;
  engine.values = {{u"Solar.Meteorite.Count"_s, u"1"_s},
                   {u"Solar.Meteorite.No1.JapaneseName"_s, u"TRUE"_s},
                   {u"Solar.Meteorite.No1.Orbit"_s, u"true"_s}};
  CDlgMeteorite dialog(&engine, nullptr, nullptr);
  ASSERT_TRUE(dialog.Create());
  QCoreApplication::processEvents();
  CVynListBoxAObj& list = List(dialog, kMeteorites);
  QTest::mouseClick(&list, Qt::LeftButton, {}, list.CellRect(0, 2).center());
  QString now;
  EXPECT_EQ(dialog.GetScript(now), 1);
  EXPECT_EQ(now,
            u"Solar.Meteorite.No1.Visible = TRUE;Solar.Meteorite.No1.JapaneseName.Visible = FALSE;"
            u"Solar.Meteorite.No1.Orbit.Visible = TRUE;");
  engine.changes.clear();
  dialog.reject();
  EXPECT_EQ(
      engine.changes,
      (QStringList{now.replace(u"No1.Visible = TRUE"_s, u"No1.Visible = FALSE"_s), u"Show Sky"_s}))
      << "a name that reads TRUE is no switch";
}

TEST(ListedObjects, OnlyTheDustTrailsSendAnEmptyScript) {
  AnsweringEngine engine;
  CDlgMeteorite meteorites(&engine, nullptr, nullptr);
  CDlgDustTrail trails(&engine, nullptr, nullptr);
  for (CVynDialog* dialog :
       {static_cast<CVynDialog*>(&meteorites), static_cast<CVynDialog*>(&trails)}) {
    ASSERT_TRUE(dialog->Create());
    dialog->reject();
  }
  EXPECT_EQ(engine.changes, (QStringList{u"Show Sky"_s, QString(), u"Show Sky"_s}));
}

TEST(ListedObjects, AVanishedEngineIsAskedNothing) {
  AnsweringEngine engine;
  engine.values.insert(u"Solar.DustTrail.Count"_s, u"3"_s);
  CDlgDustTrail trails(&engine, nullptr, nullptr);
  ASSERT_TRUE(trails.Create());
  engine.hasWindow = false;
  engine.queries.clear();
  List(trails, kTrails).Update();
  QCoreApplication::processEvents();
  trails.reject();
  ASSERT_TRUE(trails.Create());
  EXPECT_EQ(List(trails, kTrails).GetValueCountTotal(), 0);
  QString script = u"old"_s;
  EXPECT_EQ(trails.GetScript(script), 1);
  EXPECT_EQ(script, QString());
  trails.reject();
  EXPECT_TRUE(engine.queries.isEmpty() && engine.changes.isEmpty());
}

TEST(DustTrail, NamesTakeTheWidthThatIsLeft) {
  AnsweringEngine engine;
  engine.values.insert(u"Solar.DustTrail.Count"_s, u"100"_s);
  CDlgDustTrail trails(&engine, nullptr, nullptr);
  ASSERT_TRUE(trails.Create());
  CVynListBoxAObj& list = List(trails, kTrails);
  for (const int more : {0, 31, 200}) {
    trails.resize(trails.width() + more, trails.height());
    QCoreApplication::processEvents();
    EXPECT_EQ(list.TitleRect(2).right() + 1,
              list.contentsRect().left() + list.GetHeaderAreaWidth());
  }
  engine.queries.clear();
  QTest::keyClick(&list, Qt::Key_End);
  QCoreApplication::processEvents();
  EXPECT_TRUE(engine.queries.contains(u"? Solar.DustTrail.No100.Name"_s));
  EXPECT_FALSE(engine.queries.contains(u"? Solar.DustTrail.No50.Name"_s));
}

}  // namespace
}  // namespace vyn
