// Objects of element files against a plain model of them: whatever is assigned to single objects
// and to the class, and whatever is added, changed and taken out on disk, each object keeps what
// is its own.
#include <array>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "core_link/reply.h"
#include "tests/engine/engine_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr std::size_t kRecordSize = 417;

const QStringList kFeatures{u"Individual"_s, u"Orbit"_s, u"Date"_s, u"ID.Visible"_s};

struct ModelObject {
  std::string records;
  QString identifier;
  std::map<QString, QString> switches;  ///< as they answer
  QString memo;                         ///< a value of the object's own that the engine only keeps
};

/// What the engine should know, in the plainest way.
class Model {
 public:
  explicit Model(const char* file) {
    std::ifstream source(file, std::ios::binary);
    std::string record(kRecordSize, '\0');
    for (int i = 0; i < 60 && source.read(record.data(), kRecordSize); ++i)
      stock_.push_back(record);
    for (int i = 0; i < 5; ++i) objects.push_back(NewObject());
  }

  ModelObject NewObject() {
    ModelObject object{stock_[next_++ % stock_.size()], {}, {}, {}};
    object.identifier =
        QString::fromLatin1(object.records.data() + 188, 15).replace(QChar(0), u' ').trimmed();
    for (const QString& feature : kFeatures) object.switches[feature] = off_;
    return object;
  }

  void AssignAll(const QString& feature, const QString& text) {
    for (ModelObject& object : objects) object.switches[feature] = text;
  }

  void Write(const QString& path) const {
    const std::string temporary = path.toStdString() + ".new";
    std::ofstream out(temporary, std::ios::binary);
    for (const ModelObject& object : objects) out << object.records;
    out.close();
    std::filesystem::rename(temporary, path.toStdString());
  }

  std::vector<ModelObject> objects;

 private:
  std::vector<std::string> stock_;
  std::size_t next_ = 0;
  QString off_ = u"FALSE"_s;
};

class ObjectModel : public testing::TestWithParam<int> {
 public:
  ObjectModel() : random_(static_cast<unsigned>(GetParam())) {
    model_.Write(file_);
    EXPECT_TRUE(engine_.LoadElements(kind_, file_));
  }

  QString Ask(const QString& text) { return engine_.Doit(text); }
  int Any(std::size_t count) { return static_cast<int>(random_() % count); }
  QString ObjectPath(int index) { return class_ + u".No"_s + QString::number(index + 1); }

  QString AnyTruth() {
    return QStringList{u"TRUE"_s, u"FALSE"_s, u"true"_s, u"false"_s, u"True"_s}[Any(5)];
  }

  void AssignOne() {
    const int index = Any(model_.objects.size());
    const QString& feature = kFeatures[Any(kFeatures.size())];
    const QString text = AnyTruth();
    Ask(ObjectPath(index) + u'.' + feature + u" = "_s + text);
    model_.objects[index].switches[feature] = text;
  }

  void AssignClass() {
    const QString& feature = kFeatures[Any(kFeatures.size())];
    const QString text = AnyTruth();
    Ask(class_ + u'.' + feature + u" = "_s + text + u"; Show Sky"_s);
    model_.AssignAll(feature, text);
  }

  void KeepMemo() {
    const int index = Any(model_.objects.size());
    const QString text = u"note %1"_s.arg(Any(100));
    Ask(ObjectPath(index) + u".Memo = "_s + text);
    model_.objects[index].memo = text;
  }

  void Add() {
    model_.objects.push_back(model_.NewObject());
    model_.Write(file_);
    Ask(class_ + u".DataAdd = True"_s);
    // What a new object answers for a switch that the class has set is the class's business.
    ModelObject& added = model_.objects.back();
    const int index = static_cast<int>(model_.objects.size()) - 1;
    for (auto& [feature, text] : added.switches) {
      text = Ask(u"? "_s + ObjectPath(index) + u'.' + feature);
      EXPECT_FALSE(reply::ToBool(text)) << "a new object is off";
    }
  }

  void Remove() {
    if (model_.objects.size() < 3) return;
    const int index = Any(model_.objects.size());
    model_.objects.erase(model_.objects.begin() + index);
    model_.Write(file_);
    Ask(ObjectPath(index) + u".DataRemove = True"_s);
  }

  /// Another record takes the object's place; its switches are those of the place.
  void Update() {
    const int index = Any(model_.objects.size());
    const ModelObject fresh = model_.NewObject();
    model_.objects[index].records = fresh.records;
    model_.objects[index].identifier = fresh.identifier;
    model_.Write(file_);
    Ask(ObjectPath(index) + u".DataUpdate = "_s + (Any(2) == 0 ? u"True"_s : u"TRUE"_s));
  }

  /// Away with all switches, and back by the script.
  void InitAndBack() {
    const QString script = Ask(u"? "_s + class_ + u".Status"_s);
    Ask(class_ + u".Init()"_s);
    Ask(script);
  }

  void ExpectAsModelled() {
    const int count = static_cast<int>(model_.objects.size());
    ASSERT_EQ(Ask(u"? "_s + class_ + u".Count"_s), QString::number(count));
    int shown = 0;
    for (int index = 0; index < count; ++index) {
      const ModelObject& object = model_.objects[index];
      ASSERT_EQ(Ask(u"? "_s + ObjectPath(index) + u".ID"_s), object.identifier) << index;
      ASSERT_EQ(Ask(u"? "_s + ObjectPath(index) + u".Memo"_s), object.memo) << index;
      for (const auto& [feature, text] : object.switches) {
        ASSERT_EQ(Ask(u"? "_s + ObjectPath(index) + u'.' + feature), text)
            << index << ' ' << feature.toStdString();
      }
      shown += reply::ToBool(object.switches.at(u"Individual"_s)) ? 1 : 0;
    }
    EXPECT_EQ(Ask(u"? "_s + class_ + u".CountOfVisible"_s), QString::number(shown));
    EXPECT_EQ(Ask(u"? "_s + ObjectPath(count) + u".ID"_s), u""_s);
  }

  const bool isComets_ = GetParam() % 2 == 0;
  const ElementKind kind_ = isComets_ ? ElementKind::Comet : ElementKind::MinorPlanet;
  const QString class_ = isComets_ ? u"Solar.Comet"_s : u"Solar.MinorPlanet"_s;
  std::mt19937 random_;
  QTemporaryDir folder_;
  QString file_ = folder_.filePath(u"work.eld"_s);
  Model model_{isComets_ ? VYN_DATA_DIR "/comets.eld" : VYN_DATA_DIR "/minor_planets.eld"};
  ReferenceEngine engine_;
};

TEST_P(ObjectModel, EachObjectKeepsWhatIsItsOwn) {
  constexpr std::array kSteps = {&ObjectModel::AssignOne, &ObjectModel::AssignOne,
                                 &ObjectModel::AssignOne, &ObjectModel::AssignClass,
                                 &ObjectModel::KeepMemo,  &ObjectModel::Add,
                                 &ObjectModel::Add,       &ObjectModel::Remove,
                                 &ObjectModel::Update,    &ObjectModel::InitAndBack};
  for (int step = 0; step < 120; ++step) {
    const int which = Any(kSteps.size());
    (this->*kSteps[which])();
    ASSERT_NO_FATAL_FAILURE(ExpectAsModelled()) << "step " << step << ", action " << which;
    if (HasFailure()) FAIL() << "step " << step << ", action " << which;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ObjectModel, testing::Range(1, 9));

// Questions that no dialog asks, and numbers that no dialog sends.
class Extremes : public testing::TestWithParam<EngineCase> {};

TEST_P(Extremes, Reply) { EXPECT_EQ(ReplyIn(GetParam()), GetParam().reply); }

// clang-format off
const EngineCase kExtremes[]{
  {"CountAtItsEnd",        {{u"c.Count"_s, u"2147483647"_s}}, {u"c.Add()"_s}, u"? c.count"_s, u"2147483647"_s},
  {"CountBelowZero",       {{u"c.Count"_s, u"-5"_s}}, {u"c.Add(); c.Delete(1)"_s}, u"? c.count"_s, u"-5"_s},
  {"DeleteOfMany",         {{u"c.Count"_s, u"2147483647"_s}}, {u"c.Delete(2147483647)"_s}, u"? c.count"_s, u"2147483646"_s},
  {"DeleteByOverflow",     {{u"c.Count"_s, u"2"_s}}, {u"c.Delete(4294967297)"_s}, u"? c.count"_s, u"2"_s},
  {"YearTooFar",           {}, {u"time = jst(2000, 1, 1, 21, 0, 0); time.year = 1000000"_s}, u"? time.year"_s, u"2000"_s},
  {"YearNoNumber",         {}, {u"time = jst(2000, 1, 1, 21, 0, 0); time.year = nan; time.month = soon; time.day = "_s}, u"? time"_s, u"jst(2000, 1, 1, 21, 0, 0.000000)"_s},
  {"MonthsCarry",          {}, {u"time = jst(2000, 1, 31, 21, 0, 0); time.hour = 27"_s}, u"? time"_s, u"jst(2000, 2, 1, 3, 0, 0.000000)"_s},
  {"ZoneOfHalfAnHour",     {{u"Time.TimeZone"_s, u"5.75"_s}}, {u"time = jst(2000, 1, 1, 9, 0, 0); time.minute = 0"_s}, u"? time.hour; ? time.minute"_s, u"50"_s},
  {"ReformIsPassed",       {}, {u"time = jst(1582, 10, 15, 12, 0, 0); time.day = 14"_s}, u"? time.year"_s, u"1582"_s},
  {"SixtyThreeDots",       {}, {QString(u"a."_s).repeated(63) + u"a = 5"_s}, u"? "_s + QString(u"A."_s).repeated(63) + u'a', u"5"_s},
  {"SixtyFourDots",        {}, {QString(u"a."_s).repeated(64) + u"a = 5"_s}, u"? "_s + QString(u"a."_s).repeated(64) + u'a', u""_s},
  {"LongestPath",          {}, {QString(1024, u'p') + u" = 5"_s}, u"? "_s + QString(1024, u'P'), u"5"_s},
  {"LongerPath",           {}, {QString(1025, u'p') + u" = 5"_s}, u"? "_s + QString(1025, u'p'), u""_s},
  {"JapanesePath",         {}, {u"設定.Ｆｕｌｌ = 5"_s}, u"? 設定.ｆｕｌｌ"_s, u"5"_s},
  {"KelvinIsK",            {}, {u"\u212A.x = 5"_s}, u"? k.X"_s, u"5"_s},
  {"TabsAndLineEnds",      {}, {u"\ta\t=\t5\t;\n\nb\n=\n6"_s}, u"?\ta\n;\r\n?\r\nb"_s, u"56"_s},
  {"QuestionInValue",      {}, {u"a = what?"_s}, u"? a"_s, u"what?"_s},
  {"SemicolonInCall",      {}, {u"a.Set(\"x;y\"); b = 1"_s}, u"? a; ? b"_s, u"x;y1"_s},
  {"SetInAnyCasing",       {}, {u"a.SET(5); A.b.sEt(\"6\")"_s}, u"? a; ? a.b"_s, u"56"_s},
  {"SetKeepsATextAsItIs",  {}, {u"a.Set(\"jst(2000, 1, 1, 0, 0, 0)\")"_s}, u"? a"_s, u"jst(2000, 1, 1, 0, 0, 0)"_s},
  {"SetOfAStatus",         {}, {u"a = 1; a.Status.Set(b = 2); Status.#3.Object.Set(\"a = 3\")"_s}, u"? a.Status; ? Status.#3.Object"_s, u"a = 1;"_s},
  {"ClassThenObject",      {}, {u"Solar.Planet.Orbit.Visible = TRUE; Solar.Planet.Mars.Orbit.Visible = FALSE"_s}, u"? Solar.Planet.Mars.Orbit; ? Solar.Planet.Venus.Orbit"_s, u"FALSETRUE"_s},
  {"ObjectThenClass",      {}, {u"Solar.Planet.Mars.Orbit.Visible = FALSE; Solar.Planet.Orbit.Visible = TRUE"_s}, u"? solar.planet.mars.orbit.visible; ? Solar.Planet.Venus.Orbit"_s, u"TRUETRUE"_s},
  {"InitOfAMember",        {}, {u"Solar.Planet.Orbit.Visible = TRUE; Solar.Planet.Mars.Orbit.Visible = FALSE; Solar.Planet.Mars.Init()"_s}, u"? Solar.Planet.Mars.Orbit"_s, u"TRUE"_s},
  {"FirstAndLastSlot",     {}, {u"a = 1; Make Status.#100; a = 2; Make Status.#1; a = 3; Make Status.#101"_s}, u"? Status.#100.Object; ? Status.#1.Object; ? Status.#101.Object"_s, u"a = 1;a = 2;"_s},
  {"MakeTwice",            {}, {u"a = 1; Make Status.#5; a = 2; Make Status.#5; a = 3"_s}, u"? Status.#5.Object"_s, u"a = 2;"_s},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Engine, Extremes, testing::ValuesIn(kExtremes),
                         NameOf<testing::TestParamInfo<EngineCase>>);

TEST(ReferenceEngine, AsksForUnknownPathsLeaveNothingBehind) {
  ReferenceEngine engine;
  engine.Doit(u"a.b = 1"_s);
  const QString before = engine.Doit(u"? Status"_s);
  for (int i = 0; i < 20000; ++i) {
    engine.Doit(u"? a.x%1.y; ? Solar.Comet.No%1.Orbit; ? solar.sun.corona.#%1.title"_s.arg(i));
    engine.Doit(u"b%1.Init(); Init Status.#%1; c.Delete(%1)"_s.arg(i));
  }
  EXPECT_EQ(engine.Doit(u"? Status"_s), before);
}

TEST(ReferenceEngine, ManyQueriesInOneCommandReplyInOrder) {
  ReferenceEngine engine;
  QString assignments, queries, expected;
  for (int i = 0; i < 3000; ++i) {
    assignments += u"n.v%1 = %1,;"_s.arg(i);
    queries += u"? N.V%1;"_s.arg(i);
    expected += u"%1,"_s.arg(i);
  }
  EXPECT_EQ(engine.Doit(assignments), u""_s);
  EXPECT_EQ(engine.Doit(queries), expected);
}

TEST(ReferenceEngine, AnyMomentIsAnsweredWithoutHarm) {
  for (const QString& moment : {u"1e300"_s, u"-1e300"_s, u"1e12"_s, u"-1e9"_s, u"0"_s}) {
    ReferenceEngine engine;
    engine.Doit(u"time.jd = 2451545; time.jd = "_s + moment);
    engine.Doit(u"? time; ? time.year; ? time.second; ? Status"_s);
    engine.Doit(u"time.hour = 5; time.year = -99999; time.day = 99999"_s);
    EXPECT_FALSE(engine.Doit(u"? time"_s).contains(u"nan"_s)) << moment.toStdString();
  }
}

}  // namespace
}  // namespace vyn
