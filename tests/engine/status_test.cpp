// Scripts that bring a state back: of a node, of all, and of a status slot.
#include <gtest/gtest.h>

#include "tests/engine/engine_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

const QStringList kAwkwardTexts{u""_s,
                                u" blanks "_s,
                                u"a; b = 1"_s,
                                u"say \"so\""_s,
                                u"\""_s,
                                u"two\nlines\r\n"_s,
                                u"open ("_s,
                                u"2458000.5)"_s,
                                u"jst(2000, 1, 1, 0, 0, 0)"_s,
                                u"C:\\sets\\"_s,
                                u"Show Sky"_s,
                                u"黒点 #1"_s,
                                QString(QChar(1)) + u"control"};

TEST(Status, AnyTextComesBackFromANodesScript) {
  for (const QString& text : kAwkwardTexts) {
    ReferenceEngine engine;
    engine.SetProperty(u"a.b.title"_s, text);
    engine.SetProperty(u"a.other"_s, u"kept"_s);
    const QString script = engine.Doit(u"? A.B.Status"_s);
    engine.Doit(u"a.b.title = changed; a.other = changed;"_s);
    engine.Doit(script);
    EXPECT_EQ(engine.Doit(u"? a.b.title"_s), text);
    EXPECT_EQ(engine.Doit(u"? a.other"_s), u"changed"_s);
  }
}

TEST(Status, AClassIsBackAfterInitAndItsScript) {
  ReferenceEngine engine;
  engine.SetProperty(u"Solar.Comet.Vector"_s, u"TRUE"_s);
  engine.SetProperty(u"Solar.Comet.No1.ID"_s, u"1P"_s);
  engine.SetProperty(u"Solar.Comet.No2.ID"_s, u"2P"_s);
  engine.Doit(u"Solar.Comet.Orbit.Visible = true; Solar.Comet.No2.Orbit.Visible = false"_s);
  const QString queries =
      u"? Solar.Comet.Vector; ? Solar.Comet.No1.Vector; ? Solar.Comet.Orbit; "
      u"? Solar.Comet.No1.Orbit; ? Solar.Comet.No2.Orbit; ? Solar.Comet.No1.ID"_s;
  const QString before = engine.Doit(queries);
  EXPECT_EQ(before, u"TRUEtruetruefalse1P"_s);
  const QString script = engine.Doit(u"? Solar.Comet.Status"_s);
  engine.Doit(
      u"Solar.Comet.Vector.Visible = FALSE; Solar.Comet.Orbit.Visible = false; "
      u"Solar.Comet.No1.Date = TRUE; Solar.Comet.No1.ID = x"_s);
  engine.Doit(u"Solar.Comet.Init()"_s);
  engine.Doit(script);
  EXPECT_EQ(engine.Doit(queries), before);
  EXPECT_EQ(engine.Doit(u"? Solar.Comet.No1.Date"_s), u""_s);
}

TEST(Status, ASlotTakesBackWhatChangedAndIsEmptyWhenNothingDid) {
  ReferenceEngine engine;
  engine.LoadStartingState();
  engine.Doit(u"Init Status.#5;Make Status.#5"_s);
  EXPECT_EQ(engine.Doit(u"? Status.#5.Object"_s), u""_s);
  const QString before = engine.Doit(u"? Status"_s);
  engine.Doit(
      u"solar.sun.corona.Add(); solar.sun.corona.#1.title = \"a;b\"; Solar.Sun = FALSE; "
      u"time = jst(1999, 1, 1, 0, 0, 0); Solar.Planet.vector.span = 9; View.Angle = 1"_s);
  engine.Doit(engine.Doit(u"? status.#5.OBJECT"_s));
  EXPECT_EQ(engine.Doit(u"? Status"_s), before);
}

TEST(Status, SlotsStandApartAndInitEmptiesOne) {
  ReferenceEngine engine;
  engine.Doit(u"a = 1; Make Status.#1; a = 2; Make Status.#2; a = 3"_s);
  EXPECT_EQ(engine.Doit(u"? Status.#1.Object"_s), u"a = 1;"_s);
  EXPECT_EQ(engine.Doit(u"? Status.#2.Object"_s), u"a = 2;"_s);
  engine.Doit(u"init status.#1"_s);
  EXPECT_EQ(engine.Doit(u"? Status.#1.Object; ? Status.#3.Object; ? Status.#2.Label"_s), u""_s);
}

TEST(Status, APutStatusAnswersThroughInitAndMake) {
  ReferenceEngine engine;
  engine.SetProperty(u"Status.#5.Object"_s, u"x = 1"_s);
  engine.SetProperty(u"Solar.Comet.Status"_s, u"y = 1"_s);
  engine.Doit(u"Init Status.#5; Make Status.#5"_s);
  EXPECT_EQ(engine.Doit(u"? Status.#5.Object; ? solar.comet.status"_s), u"x = 1y = 1"_s);
}

TEST(Status, TheMomentIsBackToTheLastDigit) {
  ReferenceEngine engine;
  engine.Doit(u"time = jst(2026, 3, 14, 1, 59, 26.535898)"_s);
  const double moment = engine.JulianDate();
  const QString script = engine.Doit(u"? Time.Status"_s);
  engine.Doit(u"time = jst(1600, 1, 1, 0, 0, 0); Time.TimeZone = 0"_s);
  engine.Doit(script);
  EXPECT_EQ(engine.JulianDate(), moment);
}

}  // namespace
}  // namespace vyn
