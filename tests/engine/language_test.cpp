// The command language from a bare engine: statements, paths, values, classes and members.
#include <gtest/gtest.h>

#include "engine/watched_cor_vyn.h"
#include "tests/engine/engine_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

class Language : public testing::TestWithParam<EngineCase> {};

TEST_P(Language, Replies) { EXPECT_EQ(ReplyIn(GetParam()), GetParam().reply); }

// clang-format off
const EngineCase kStatements[]{
  {"Bare",               {}, {}, u"? solar.sun.visible"_s, u""_s},
  {"UnknownAssigned",    {}, {u"a.b = 5"_s}, u"? A.B"_s, u"5"_s},
  {"QueryWithoutBlank",  {{u"a"_s, u"1"_s}}, {}, u"?a"_s, u"1"_s},
  {"QueriesJoined",      {{u"a"_s, u"1"_s}, {u"b"_s, u"x y"_s}}, {}, u"? a; ? none; ? b"_s, u"1x y"_s},
  {"EmptyStatements",    {}, {u";;a = 1;;b = 2;;Show Sky"_s}, u"? a;;? b;"_s, u"12"_s},
  {"NoBlanks",           {}, {u"a=1;b =2"_s}, u"? a; ? b"_s, u"12"_s},
  {"LineEnds",           {}, {u"a = 1;\r\nb = 2\r\n"_s}, u"? a; ? b\r\n"_s, u"12"_s},
  {"TextAsAssigned",     {}, {u"a = TRUE; b = true; c = 0.5"_s}, u"? a; ? b; ? c"_s, u"TRUEtrue0.5"_s},
  {"EmptyValue",         {{u"a"_s, u"1"_s}}, {u"a = "_s}, u"? a"_s, u""_s},
  {"Quoted",             {}, {u"a = \"x; y = (1\"; b = 2"_s}, u"? a; ? b"_s, u"x; y = (12"_s},
  {"DoubledQuotes",      {}, {u"a = \"say \"\"so\"\"\""_s}, u"? a"_s, u"say \"so\""_s},
  {"QuotesWithin",       {}, {u"a = the \"big\" one"_s}, u"? a"_s, u"the \"big\" one"_s},
  {"WindowsPath",        {}, {u"a = \"C:\\sets\\\""_s}, u"? a"_s, u"C:\\sets\\"_s},
  {"EqualsInValue",      {}, {u"a = b = c"_s}, u"? a"_s, u"b = c"_s},
  {"StrayClosing",       {}, {u"x.time = 2458000.5)"_s}, u"? x.time"_s, u"2458000.5"_s},
  {"ClosingOfText",      {}, {u"x.title = spot (large)"_s}, u"? x.title"_s, u"spot (large)"_s},
  {"OpenParenthesis",    {}, {u"x.title = spot (; b = 2"_s}, u"? x.title; ? b"_s, u"spot (2"_s},
};

const EngineCase kPaths[]{
  {"Casing",             {{u"Solar.Sun.Visible"_s, u"TRUE"_s}}, {}, u"? sOLAR.sUN.vISIBLE"_s, u"TRUE"_s},
  {"VisibleIsThePath",   {}, {u"solar.OortCloud.AutoFade.Visible = TRUE;"_s}, u"? solar.OortCloud.AutoFade"_s, u"TRUE"_s},
  {"PathIsVisible",      {{u"solar.MainBelt"_s, u"TRUE"_s}}, {}, u"? solar.MainBelt.visible"_s, u"TRUE"_s},
  {"LoneVisible",        {}, {u"visible = 1"_s}, u"? Visible"_s, u"1"_s},
  {"NameAndItsSwitch",   {{u"Solar.Comet.No1.ID"_s, u"1P"_s}}, {u"Solar.Comet.No1.ID.Visible = true"_s}, u"? Solar.Comet.No1.ID; ? Solar.Comet.No1.ID.Visible"_s, u"1Ptrue"_s},
  {"SwitchOfNoText",     {{u"Solar.Comet.No1.ID"_s, u"TRUE"_s}}, {}, u"? Solar.Comet.No1.ID.Visible"_s, u""_s},
  {"PlaceNames",         {}, {u"Solar.Moon.Surface.Name.Visible = TRUE"_s}, u"? solar.moon.surface.name"_s, u"TRUE"_s},
  {"MoonByItsPlanet",    {{u"Solar.moon.visible"_s, u"TRUE"_s}}, {}, u"? solar.planet.earth.satellite.moon.visible; ? Solar.Planet.Earth.Satellite.no1"_s, u"TRUETRUE"_s},
  {"MoonByItsNumber",    {}, {u"Solar.Planet.Earth.Satellite.no1.Orbit.Visible = TRUE"_s}, u"? solar.moon.orbit"_s, u"TRUE"_s},
  {"LeadingZeros",       {}, {u"solar.sun.corona.#07.title = a"_s}, u"? Solar.Sun.Corona.#7.Title"_s, u"a"_s},
  {"ValueAndChildren",   {}, {u"View.Center = Solar.Sun; View.Center.Track = TRUE"_s}, u"? View.Center; ? view.center.track"_s, u"Solar.SunTRUE"_s},
};

const EngineCase kConstructors[]{
  {"Jst",                {}, {u"time = jst(2024, 2, 29, 21, 30, 15.500000);"_s}, u"? Time.Year; ? Time.Month; ? Time.Day"_s, u"2024229"_s},
  {"JstTimeOfDay",       {}, {u"time = jst(2024, 2, 29, 21, 30, 15.500000);"_s}, u"? Time.Hour; ? Time.Minute; ? Time.Second"_s, u"213015.5"_s},
  {"JstInUniversalTime", {}, {u"time = jst(2000, 1, 1, 21, 0, 0)"_s}, u"? time.jd"_s, u"2451545"_s},
  {"ThirtyOClock",       {}, {u"time = jst(2024, 12, 31, 30, 0, 0)"_s}, u"? time"_s, u"jst(2025, 1, 1, 6, 0, 0.000000)"_s},
  {"JstNotClosed",       {}, {u"time = jst(2000, 1, 1, 21, 0, 0"_s}, u"? time.jd"_s, u"2451545"_s},
  {"JstOfASet",          {}, {u"solar.sun.corona.#1.time = jst(2000, 1, 1, 21, 0, 0)"_s}, u"? solar.sun.corona.#1.time"_s, u"2451545"_s},
  {"JstWithoutSeconds",  {}, {u"time = jst(2000, 1, 1, 21, 0)"_s}, u"? time.jd"_s, u""_s},
  {"JstOfNoDay",         {}, {u"time = jst(2023, 2, 29, 0, 0, 0)"_s}, u"? time.jd"_s, u""_s},
  {"Location",           {}, {u"location = location(139.750000, -35.650000, 40); show sky"_s}, u"? location.longitude; ? Location.Latitude; ? location.Altitude"_s, u"139.750000-35.65000040"_s},
  {"LocationOfTwo",      {}, {u"location = location(139.75, 35)"_s}, u"? location.longitude"_s, u""_s},
  {"TimeInAZone",        {{u"Time.TimeZone"_s, u"-5.5"_s}}, {u"time = jst(2000, 1, 1, 21, 0, 0)"_s}, u"? time.hour; ? time.minute"_s, u"630"_s},
  {"PartMovesTheMoment", {}, {u"time = jst(2000, 1, 1, 21, 0, 0); time.year = 2026"_s}, u"? time"_s, u"jst(2026, 1, 1, 21, 0, 0.000000)"_s},
  {"PartWithoutMoment",  {}, {u"time.year = 2026"_s}, u"? time.year; ? time.month; ? time.jd"_s, u"2026"_s},
  {"PutPartIsAssigned",  {{u"Time.Year"_s, u"1999"_s}}, {u"time = jst(2000, 1, 1, 21, 0, 0)"_s}, u"? time.year"_s, u"2000"_s},
};

const EngineCase kClasses[]{
  {"ReachesFixed",       {}, {u"Solar.Planet.vector.span = 2.000000;"_s}, u"? solar.planet.mercury.vector.span"_s, u"2.000000"_s},
  {"KeepsItsOwn",        {}, {u"Solar.Planet.disk.multiplier = 7;"_s}, u"? solar.planet.disk.multiplier"_s, u"7"_s},
  {"OverwritesPut",      {{u"Solar.Planet.Mars.Vector.Span"_s, u"9"_s}}, {u"Solar.Planet.vector.span = 2"_s}, u"? Solar.Planet.Mars.Vector.Span"_s, u"2"_s},
  {"MemberDiffersAgain", {}, {u"Solar.Planet.vector.span = 2; Solar.Planet.Mars.Vector.Span = 5"_s}, u"? Solar.Planet.Mars.Vector.Span; ? Solar.Planet.Venus.Vector.Span"_s, u"52"_s},
  {"PutReachesNobody",   {{u"Solar.Comet.Vector"_s, u"TRUE"_s}, {u"Solar.Comet.No1.ID"_s, u"1P"_s}}, {}, u"? Solar.Comet.No1.Vector"_s, u""_s},
  {"ReachesPutMembers",  {{u"Solar.Comet.No1.ID"_s, u"1P"_s}}, {u"Solar.Comet.Orbit.Visible = true"_s}, u"? Solar.Comet.No1.Orbit; ? Solar.Comet.No2.Orbit"_s, u"true"_s},
  {"ReachesCounted",     {{u"Solar.Comet.Count"_s, u"2"_s}}, {u"Solar.Comet.Orbit.Visible = true"_s}, u"? Solar.Comet.No2.Orbit; ? Solar.Comet.No3.Orbit"_s, u"true"_s},
  {"SwitchBesideText",   {{u"Solar.Comet.No1.ID"_s, u"1P"_s}}, {u"Solar.Comet.ID.Visible = True"_s}, u"? Solar.Comet.No1.ID; ? Solar.Comet.No1.ID.Visible"_s, u"1PTrue"_s},
  {"LimitsAreTheClasss", {{u"Solar.Comet.No1.ID"_s, u"1P"_s}}, {u"Solar.Comet.Brighter.Visible = True; Solar.Comet.Brighter.Magnitude = 10.0"_s}, u"? Solar.Comet.No1.Brighter; ? Solar.Comet.No1.Brighter.Magnitude"_s, u""_s},
  {"TheClassesSwitch",   {{u"Solar.Meteorite.Count"_s, u"1"_s}}, {u"Solar.Meteorite.Visible = TRUE; Solar.Meteorite.No1.Visible = FALSE"_s}, u"? Solar.Meteorite; ? Solar.Meteorite.No1"_s, u"TRUEFALSE"_s},
  {"OtherClass",         {}, {u"Solar.Planet.Orbit.Visible = TRUE"_s}, u"? Solar.DwarfPlanet.Ceres.Orbit"_s, u""_s},
  {"AllSatellites",      {{u"Solar.Planet.Mars.Satellite.no2.name"_s, u"D"_s}, {u"Solar.moon.Orbit"_s, u"FALSE"_s}}, {u"Solar.Planet.Satellite.Orbit.Visible = TRUE"_s}, u"? Solar.Planet.Mars.Satellite.no2.Orbit; ? Solar.moon.orbit.visible"_s, u"TRUETRUE"_s},
};

const EngineCase kMethods[]{
  {"SpotNotClosed",      {{u"Solar.Sun.sunspot.#1.count"_s, u"0"_s}}, {u"Solar.Sun.sunspot.#1.Add(1.0, -2.0, 2"_s}, u"? solar.sun.sunspot.#1.count; ? solar.sun.sunspot.#1.#1.latitude; ? solar.sun.sunspot.#1.#1.type"_s, u"1-2.02"_s},
  {"AddedBehindOthers",  {{u"solar.sun.corona.Count"_s, u"2"_s}}, {u"solar.sun.corona.Add()"_s}, u"? solar.sun.corona.count; ? solar.sun.corona.#3.title"_s, u"3"_s},
  {"PutBeforeItIsAdded", {{u"c.#1.title"_s, u"t"_s}}, {u"c.Add()"_s}, u"? c.count; ? c.#1.title"_s, u"1t"_s},
  {"DeleteMovesUp",      {}, {u"c.Add();c.Add();c.Add();c.#1.t = a;c.#2.t = b;c.#3.t = c;c.#3.s = 3;c.Delete(2)"_s}, u"? c.count; ? c.#1.t; ? c.#2.t; ? c.#2.s; ? c.#3.t"_s, u"2ac3"_s},
  {"DeleteUnknown",      {}, {u"c.Add();c.#1.t = a;c.Delete(0);c.Delete(2);c.Delete();c.Delete(x)"_s}, u"? c.count; ? c.#1.t"_s, u"1a"_s},
  {"ImagesHaveLabels",   {}, {u"solar.sun.TakenImage.Add();solar.sun.TakenImage.Add();solar.sun.TakenImage.Delete(I01)"_s}, u"? solar.sun.takenimage.#1.Label"_s, u"I02"_s},
  {"CalledByLabel",      {{u"m.takenImage.#2.Label"_s, u"A07"_s}}, {u"m.TakenImage.#a07.roll = 5"_s}, u"? m.takenimage.#2.roll; ? m.takenImage.#A07.roll"_s, u"55"_s},
  {"UnknownMethod",      {}, {u"a.Explode(1)"_s}, u"? a; ? a.Explode"_s, u""_s},
  {"InitForgets",        {}, {u"a.b = 1; a.c = 2; d = 3; A.Init()"_s}, u"? a.b; ? a.c; ? d"_s, u"3"_s},
  {"InitLeavesPut",      {{u"a.b"_s, u"1"_s}}, {u"a.Init()"_s}, u"? a.b"_s, u"1"_s},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Statements, Language, testing::ValuesIn(kStatements),
                         NameOf<testing::TestParamInfo<EngineCase>>);
INSTANTIATE_TEST_SUITE_P(Paths, Language, testing::ValuesIn(kPaths),
                         NameOf<testing::TestParamInfo<EngineCase>>);
INSTANTIATE_TEST_SUITE_P(Constructors, Language, testing::ValuesIn(kConstructors),
                         NameOf<testing::TestParamInfo<EngineCase>>);
INSTANTIATE_TEST_SUITE_P(Classes, Language, testing::ValuesIn(kClasses),
                         NameOf<testing::TestParamInfo<EngineCase>>);
INSTANTIATE_TEST_SUITE_P(Methods, Language, testing::ValuesIn(kMethods),
                         NameOf<testing::TestParamInfo<EngineCase>>);

TEST(ReferenceEngine, RedrawsInAnyCasingAndNotWithinARedraw) {
  ReferenceEngine engine;
  int redraws = 0;
  engine.SetRedrawHandler([&] {
    ++redraws;
    engine.Doit(u"show sky"_s);
  });
  engine.Doit(u"a = 1;;Show Sky"_s);
  engine.Doit(u"show sky"_s);
  engine.Doit(u"SHOW  SKY;"_s);
  EXPECT_EQ(redraws, 3);
}

TEST(ReferenceEngine, APutValueAnswersUntilAssignedAndAReplyAlways) {
  ReferenceEngine engine;
  engine.Doit(u"time = jst(2000, 1, 1, 21, 0, 0)"_s);
  engine.SetProperty(u"time.YEAR"_s, u"soon"_s);
  EXPECT_EQ(engine.Doit(u"? Time.Year"_s), u"soon"_s);
  engine.Doit(u"Time.Year = 2001"_s);
  EXPECT_EQ(engine.Doit(u"? Time.Year"_s), u"2001"_s);
  engine.SetReply(u"? Time.Year"_s, u"never"_s);
  engine.SetReply(u"a = 1"_s, u"done"_s);
  EXPECT_EQ(engine.Doit(u"a = 1"_s) + engine.Doit(u"? Time.Year"_s) + engine.Doit(u"? a"_s),
            u"donenever"_s);
  engine.Reset();
  EXPECT_EQ(engine.Doit(u"? Time.Year"_s), u""_s);
}

TEST(WatchedCorVyn, TellsTheCommandBeforeItIsCarriedOut) {
  ReferenceEngine engine;
  QStringList seen;
  WatchedCorVyn watched(
      engine, [&](const QString& command) { seen << command << engine.Property(u"a"_s); });
  EXPECT_EQ(watched.Doit(u"a = 1; ? a"_s), u"1"_s);
  EXPECT_EQ(seen, QStringList({u"a = 1; ? a"_s, u""_s}));
}

}  // namespace
}  // namespace vyn
