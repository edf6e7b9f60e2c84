// Classes of objects from element files: facts, switches, counts and data commands.
#include <filesystem>
#include <fstream>

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "engine/element_table.h"
#include "tests/engine/engine_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr std::size_t kRecordSize = 417;

/// A copy of the first comets of the demo's file.
class ElementClassTest : public testing::Test {
 protected:
  void SetUp() override {
    std::ifstream source(VYN_DATA_DIR "/comets.eld", std::ios::binary);
    records_.resize(5 * kRecordSize);
    source.read(records_.data(), static_cast<std::streamsize>(records_.size()));
    ASSERT_TRUE(source.good());
    Write(0, 4);
    ASSERT_TRUE(engine_.LoadElements(ElementKind::Comet, path_));
  }

  QString Identifier(int record) const {
    return QString::fromLatin1(records_.data() + record * kRecordSize + 188, 15).trimmed();
  }

  /// Replaced as a whole, as whoever changes an element file does.
  void Write(int first, int last) {
    const QString temporary = path_ + u".new";
    std::ofstream out(temporary.toStdString(), std::ios::binary);
    out.write(records_.data() + first * kRecordSize,
              static_cast<std::streamsize>((last - first) * kRecordSize));
    out.close();
    std::filesystem::rename(temporary.toStdString(), path_.toStdString());
  }

  QString Ask(const QString& command) { return engine_.Doit(command); }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(u"work.eld"_s);
  std::string records_;
  ReferenceEngine engine_;
};

TEST_F(ElementClassTest, AnswersFromTheFileWithSwitchesOff) {
  EXPECT_EQ(Ask(u"? solar.comet.file"_s), path_);
  EXPECT_EQ(Ask(u"? Solar.Comet.Count; ? Solar.Comet.CountOfVisible"_s), u"40"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.No2.ID"_s), Identifier(1));
  EXPECT_EQ(Ask(u"? Solar.Comet.No2.Orbit; ? Solar.Comet.No2.ID.Visible; ? Solar.Comet.No2"_s),
            u"FALSEFALSEFALSE"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.No5.Orbit; ? Solar.Comet.No5.ID"_s), u""_s);
  EXPECT_EQ(Ask(u"? Solar.MinorPlanet.Count"_s), u""_s);
}

TEST_F(ElementClassTest, SwitchesAnswerAsAssigned) {
  Ask(u"Solar.Comet.No2.Orbit.Visible = true; Solar.Comet.No3.Orbit = TRUE;"
      u"Solar.Comet.No2.Individual.Visible = TRUE; Solar.Comet.No4.Date = 0.5"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.No2.Orbit; ? Solar.Comet.No3.Orbit.visible"_s), u"trueTRUE"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.No4.Date; ? Solar.Comet.No2; ? Solar.Comet.CountOfVisible"_s),
            u"0.5TRUE1"_s);
  EXPECT_TRUE(engine_.IsObjectOn(ElementKind::Comet, 2, u"orbit"));
  EXPECT_FALSE(engine_.IsObjectOn(ElementKind::Comet, 3, u"Date"));
  EXPECT_FALSE(engine_.IsObjectShown(ElementKind::Comet, 99));
}

TEST_F(ElementClassTest, AClassWideSwitchReachesEveryObject) {
  Ask(u"Solar.Comet.No2.Orbit.Visible = true; Solar.Comet.No3.Orbit = True"_s);
  Ask(u"Solar.Comet.Orbit.Visible = False"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.No1.Orbit; ? Solar.Comet.No2.Orbit; ? Solar.Comet.No3.Orbit"_s),
            u"FalseFalseFalse"_s);
  Ask(u"Solar.Comet.Orbit.Visible = TRUE; Solar.Comet.No1.Orbit.Visible = FALSE"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.No1.Orbit; ? Solar.Comet.No4.Orbit"_s), u"FALSETRUE"_s);
}

TEST_F(ElementClassTest, PutValuesStandBeforeTheFileUntilAssigned) {
  engine_.SetProperty(u"Solar.Comet.Count"_s, u"77"_s);
  engine_.SetProperty(u"Solar.Comet.No1.Individual"_s, u"TRUE"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.Count; ? Solar.Comet.CountOfVisible"_s), u"771"_s);
  Ask(u"Solar.Comet.Count = 5; Solar.Comet.No1.Individual = FALSE"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.Count; ? Solar.Comet.No1.Individual"_s), u"4FALSE"_s);
}

TEST_F(ElementClassTest, EverySpellingOfATextAnswersTheSame) {
  const auto expectAll = [this](const QString& text) {
    for (const QString& path :
         {u"Solar.Comet.No2.ID"_s, u"solar.comet.no2.id"_s, u"Solar.Comet.No02.ID"_s,
          u" Solar.Comet.No2.ID "_s, u"Solar.Comet.No2.Id"_s}) {
      EXPECT_EQ(Ask(u"? "_s + path), text) << path.toStdString();
      EXPECT_EQ(Ask(u"? "_s + path + u"; Other = \"a;b\"; "_s), text) << path.toStdString();
    }
  };
  expectAll(Identifier(1));
  Ask(u"Solar.Comet.No2.AutoEmissionSpan = TRUE"_s);
  expectAll(Identifier(1));
  engine_.SetProperty(u"Solar.Comet.No2.ID"_s, u"mine"_s);
  expectAll(u"mine"_s);
  for (const QString& none : {u"No0.ID"_s, u"No-1.ID"_s, u"No5.ID"_s, u"No12345678901.ID"_s,
                              u"No.ID"_s, u"No2x.ID"_s, u"No2."_s}) {
    EXPECT_EQ(Ask(u"? Solar.Comet."_s + none), u""_s) << none.toStdString();
  }
  EXPECT_EQ(Ask(u"? Solar.Comet.No3.ID; ? Solar.Comet.No4.ID"_s), Identifier(2) + Identifier(3));
}

TEST_F(ElementClassTest, InitAndTheScriptBringSwitchesBack) {
  Ask(u"Solar.Comet.Orbit.Visible = true; Solar.Comet.No2.Orbit.Visible = FALSE;"
      u"Solar.Comet.No3.Individual.Visible = TRUE; Solar.Comet.Brighter.Magnitude = 9.5"_s);
  const QString before = Ask(u"? Status"_s);
  const QString script = Ask(u"? Solar.Comet.Status"_s);
  Ask(u"Make Status.#5; Solar.Comet.Init()"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.No1.Orbit; ? Solar.Comet.No3"_s), u"FALSEFALSE"_s);
  Ask(script);
  EXPECT_EQ(Ask(u"? Status"_s), before);
  Ask(u"Solar.Comet.No3.Individual = FALSE; Solar.Comet.Orbit.Visible = FALSE"_s);
  Ask(Ask(u"? Status.#5.Object"_s));
  EXPECT_EQ(Ask(u"? Status"_s), before);
}

TEST_F(ElementClassTest, DataCommandsReadAgainAndKeepSwitches) {
  Ask(u"Solar.Comet.No4.Orbit = TRUE; Solar.Comet.No4.Date = true"_s);
  engine_.SetProperty(u"Solar.Comet.No4.Memo"_s, u"mine"_s);
  Write(0, 5);
  Ask(u"Solar.Comet.DataAdd = True"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.Count; ? Solar.Comet.No5.ID"_s), u"5"_s + Identifier(4));
  EXPECT_EQ(Ask(u"? Solar.Comet.No4.Orbit; ? Solar.Comet.No5.Orbit"_s), u"TRUEFALSE"_s);
  Write(1, 5);
  Ask(u"Solar.Comet.No1.DataRemove = True"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.Count; ? Solar.Comet.No3.ID"_s), u"4"_s + Identifier(3));
  EXPECT_EQ(Ask(u"? Solar.Comet.No3.Orbit; ? Solar.Comet.No3.Date; ? Solar.Comet.No4.Orbit; "
                u"? Solar.Comet.No3.Memo; ? Solar.Comet.No4.Memo"_s),
            u"TRUEtrueFALSEmine"_s);
  std::swap_ranges(records_.begin() + kRecordSize, records_.begin() + 2 * kRecordSize,
                   records_.begin());
  Write(1, 5);
  Ask(u"Solar.Comet.No1.DataUpdate = TRUE"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.No1.ID; ? Solar.Comet.No3.Orbit"_s), Identifier(1) + u"TRUE");
}

TEST_F(ElementClassTest, AnAddedObjectTakesNothingOfAnotherWithItsNumber) {
  engine_.SetProperty(u"Solar.Comet.No4.Memo"_s, u"mine"_s);
  Ask(u"Solar.Comet.No4.Individual = true"_s);
  const QString script = Ask(u"? Solar.Comet.Status"_s);
  Write(1, 4);
  Ask(u"Solar.Comet.No1.DataRemove = True"_s);
  Ask(u"Solar.Comet.Init()"_s);
  Ask(script);
  Write(1, 5);
  Ask(u"Solar.Comet.DataAdd = True"_s);
  EXPECT_EQ(Ask(u"? Solar.Comet.No4.ID; ? Solar.Comet.No4.Individual; ? Solar.Comet.No4"_s),
            Identifier(4) + u"FALSEFALSE");
  EXPECT_EQ(Ask(u"? Solar.Comet.No3.Memo; ? Solar.Comet.No4.Memo"_s), u"mine"_s);
}

TEST_F(ElementClassTest, ARefusedFileLeavesTheOldOne) {
  engine_.SetProperty(u"Solar.Comet.No1.Date"_s, u"TRUE"_s);
  Ask(u"Solar.Comet.File = \"%1\""_s.arg(folder_.filePath(u"none.eld"_s)));
  EXPECT_EQ(Ask(u"? Solar.Comet.File; ? Solar.Comet.No1.Date"_s), path_ + u"TRUE");
  Ask(u"Solar.Comet.No2.Orbit = TRUE; Solar.Comet.File = \"%1\""_s.arg(path_));
  EXPECT_EQ(Ask(u"? Solar.Comet.Count; ? Solar.Comet.No2.Orbit"_s), u"4FALSE"_s);
}

TEST_F(ElementClassTest, DataPtrGivesTheTablesInMemory) {
  const QStringList items = Ask(u"? Solar.Comet.DataPtr"_s).split(u", "_s);
  ASSERT_EQ(items.size(), 4);
  EXPECT_EQ(items[0] + items[2], u"44"_s);
  const auto* data = reinterpret_cast<const char*>(items[1].toULongLong(nullptr, 16));
  const auto* first = reinterpret_cast<const quint32*>(items[3].toULongLong(nullptr, 16));
  EXPECT_EQ(std::string_view(data + first[2] * kRecordSize, kRecordSize),
            std::string_view(records_).substr(2 * kRecordSize, kRecordSize));
}

TEST(ElementClassBare, DataCommandsWithoutAFileDoNothing) {
  ReferenceEngine engine;
  engine.SetProperty(u"Solar.Comet.Count"_s, u"3"_s);
  engine.Doit(
      u"Solar.Comet.DataAdd = True; Solar.Comet.No2.DataRemove = True;"
      u"Solar.Comet.No1.DataUpdate = TRUE; Solar.Comet.File = \"none.eld\""_s);
  EXPECT_EQ(engine.Doit(u"? Solar.Comet.Count; ? Solar.Comet.File; ? Solar.Comet.DataPtr"_s),
            u"3"_s);
}

}  // namespace
}  // namespace vyn
