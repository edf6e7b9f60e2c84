// Data sets: added, named, saved to text files and read back; the Sun's disk at a set's moment.
#include <gtest/gtest.h>

#include <array>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "engine/data_set_text.h"
#include "engine/reference_engine.h"
#include "tests/engine/engine_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

QString ReadText(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

TEST(DataSetText, EveryValueComesBack) {
  const QStringList values{u"a;b"_s, u"say \"so\""_s, u"C:\\x\\y.png"_s, u"two\nlines [set 9]"_s,
                           u""_s,    u" blanks "_s,   u"[set 7]"_s,      u"; none"_s,
                           u"皆既"_s};
  std::vector<DataSetText> sets{{3, {}}, {7, {{u"#1.Longitude"_s, u"-100"_s}}}};
  for (const QString& value : values) sets[0].members.emplace_back(u"Title"_s, value);
  const std::vector<DataSetText> read = ReadDataSets(WriteDataSets(sets));
  ASSERT_EQ(read.size(), 2U);
  EXPECT_EQ(read[0].number, 3);
  EXPECT_EQ(read[0].members, sets[0].members);
  EXPECT_EQ(read[1].members, sets[1].members);
}

TEST(DataSetText, PassesOverWhatMeansNothing) {
  const auto sets = ReadDataSets(
      u"Title = nobody's\r\n[set 1]\r\nnonsense\r\n= 3\r\n; a = b\r\nRoll = 4\r\n[set x]\r\n\"");
  ASSERT_EQ(sets.size(), 2U);
  EXPECT_EQ(sets[0].members, (decltype(sets[0].members){{u"Roll"_s, u"4"_s}}));
  EXPECT_TRUE(sets[1].members.empty());
}

/// An engine with a corona node that keeps its sets in a folder of its own.
class DataSetFilesTest : public testing::Test {
 protected:
  DataSetFilesTest() { Send(u"Solar.Sun.Corona.SavePath = \"%1\""_s.arg(Folder())); }
  QString Folder() const { return folder_.filePath(u"corona"_s); }
  QString Send(const QString& command) { return engine_.Doit(command); }
  /// Named as dialogs name them: with a backslash.
  void Name(int set, const QString& name) {
    Send(u"Solar.Sun.Corona.#%1.File = %2\\%3"_s.arg(QString::number(set), Folder(), name));
  }
  QStringList Files() const { return QDir(Folder()).entryList(QDir::Files, QDir::Name); }

  QTemporaryDir folder_;
  ReferenceEngine engine_;
};

TEST_F(DataSetFilesTest, SetsOfOneNameStandInOneFileAndComeBackInTheirOrder) {
  Send(u"Solar.Sun.Corona.Add(); Solar.Sun.Corona.Add(); Solar.Sun.Corona.Add()"_s);
  Send(u"Solar.Sun.Corona.#1.Title = first; Solar.Sun.Corona.#1.Visible = true"_s);
  Send(u"Solar.Sun.Corona.#2.Time = 2460409.25)"_s);
  Send(u"Solar.Sun.Corona.#3.Title = \"third; last\""_s);
  Name(1, u"corona2024.txt"_s);
  Name(2, u"corona2017.txt"_s);
  Name(3, u"corona2024.txt"_s);
  Send(u"solar.sun.corona.save()"_s);
  EXPECT_EQ(Send(u"? Solar.Sun.Corona.Problem"_s), u""_s);
  EXPECT_EQ(Files(), (QStringList{u"corona2017.txt"_s, u"corona2024.txt"_s}));

  ReferenceEngine later;
  later.Doit(u"Solar.Sun.Corona.Add(); Solar.Sun.Corona.#1.Roll = 9"_s);
  later.Doit(u"Solar.Sun.Corona.SavePath = \"%1\"; Solar.Sun.Corona.load()"_s.arg(Folder()));
  EXPECT_EQ(later.Doit(u"? solar.sun.corona.count"_s), u"3"_s);
  EXPECT_EQ(later.Doit(u"? solar.sun.corona.#1.title; ? solar.sun.corona.#1.visible"_s),
            u"firsttrue"_s);
  EXPECT_EQ(later.Doit(u"? solar.sun.corona.#1.roll"_s), u""_s);
  EXPECT_EQ(later.Doit(u"? solar.sun.corona.#2.time"_s), u"2460409.25"_s);
  EXPECT_EQ(later.Doit(u"? solar.sun.corona.#3.title"_s), u"third; last"_s);
  EXPECT_TRUE(later.Doit(u"? solar.sun.corona.#3.file"_s).endsWith(u"corona2024.txt"));
}

TEST_F(DataSetFilesTest, AFileThatNoSetNamesGoesOnceAllIsSaved) {
  Send(u"Solar.Sun.Corona.Add(); Solar.Sun.Corona.Add()"_s);
  Name(1, u"a.txt"_s);
  Name(2, u"b.txt"_s);
  Send(u"Solar.Sun.Corona.save(); Solar.Sun.Corona.Delete(1); Solar.Sun.Corona.save()"_s);
  EXPECT_EQ(Files(), QStringList{u"b.txt"_s});
  Send(u"Solar.Sun.Corona.#1.File = /etc/b.txt; Solar.Sun.Corona.save()"_s);
  EXPECT_NE(Send(u"? Solar.Sun.Corona.Problem"_s), u""_s);
  EXPECT_EQ(Files(), QStringList{u"b.txt"_s}) << "what is not saved elsewhere must stay";
}

TEST_F(DataSetFilesTest, OnlyTextFilesInTheFolderAreWritten) {
  Send(u"Solar.Sun.Corona.Add()"_s);
  const QString outside = folder_.filePath(u"outside.txt"_s);
  for (const QString& path :
       QStringList{outside, Folder() + u"/image.png", Folder() + u"/../outside.txt"}) {
    Send(u"Solar.Sun.Corona.#1.File = "_s + path);
    Send(u"Solar.Sun.Corona.save()"_s);
    EXPECT_NE(Send(u"? Solar.Sun.Corona.Problem"_s), u""_s) << path.toStdString();
  }
  EXPECT_FALSE(QFile::exists(outside));
  EXPECT_TRUE(Files().isEmpty());
  for (const QString& folder : {u".Forget()"_s, u" = images"_s}) {
    Send(u"Solar.Sun.Corona.SavePath"_s + folder + u"; Solar.Sun.Corona.save()");
    EXPECT_NE(Send(u"? Solar.Sun.Corona.Problem"_s), u""_s) << folder.toStdString();
  }
  EXPECT_FALSE(QFile::exists(u"images"_s));
}

TEST_F(DataSetFilesTest, AFailedWriteLeavesTheOldFile) {
  Send(u"Solar.Sun.Corona.Add(); Solar.Sun.Corona.#1.Title = old"_s);
  Name(1, u"a.txt"_s);
  Send(u"Solar.Sun.Corona.save()"_s);
  const QString before = ReadText(Folder() + u"/a.txt");
  // A folder of that name keeps the second set's file from being written.
  ASSERT_TRUE(QDir(Folder()).mkdir(u"b.txt"_s));
  Send(u"Solar.Sun.Corona.Add()"_s);
  Name(2, u"b.txt"_s);
  Send(u"Solar.Sun.Corona.save()"_s);
  EXPECT_NE(Send(u"? Solar.Sun.Corona.Problem"_s), u""_s);
  EXPECT_EQ(ReadText(Folder() + u"/a.txt"), before);
}

TEST_F(DataSetFilesTest, LoadingKeepsToItsOwnSets) {
  ASSERT_TRUE(QDir().mkpath(Folder()));
  QFile file(Folder() + u"/x.txt");
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[set 1]\n..Sun = FALSE\nTitle = good\nFile = /etc/passwd\n#99999999999 = 1\n");
  file.close();
  Send(u"Solar.Sun.Corona.load()"_s);
  EXPECT_EQ(Send(u"? Solar.Sun.Corona.#1.Title"_s), u"good"_s);
  EXPECT_TRUE(Send(u"? Solar.Sun.Corona.#1.File"_s).endsWith(u"x.txt"));
  EXPECT_EQ(Send(u"? Solar.Sun.Corona.Count"_s), u"1"_s);
}

TEST(DataSets, SpotsAndLabelsAreKept) {
  const QTemporaryDir folder;
  ReferenceEngine engine;
  engine.LoadStartingState();
  EXPECT_EQ(engine.LoadDataSets(folder.path()), QStringList());
  engine.Doit(u"Solar.Sun.sunspot.Add(); Solar.Sun.sunspot.#1.Add(10.5, -20.25, 2"_s);
  engine.Doit(u"Solar.Sun.TakenImage.Add(); Solar.Sun.TakenImage.#I01.roll = 12"_s);
  for (const QString& base : {u"Solar.Sun.Sunspot"_s, u"Solar.Sun.TakenImage"_s}) {
    const QString file = engine.Property(base + u".SavePath") + u"/a.txt";
    engine.Doit(base + u".#1.file = \"" + file + u"\"; " + base + u".save()");
    EXPECT_EQ(engine.Property(base + u".Problem"), u""_s);
  }
  ReferenceEngine later;
  later.LoadStartingState();
  EXPECT_EQ(later.LoadDataSets(folder.path()), QStringList());
  EXPECT_EQ(later.Doit(u"? solar.sun.sunspot.#1.count; ? solar.sun.sunspot.#1.#1.latitude"_s),
            u"1-20.25"_s);
  EXPECT_EQ(later.Doit(u"? solar.sun.takenimage.#I01.roll"_s), u"12"_s);
}

TEST(DataSets, ANewLabelIsLikeThoseThere) {
  ReferenceEngine engine;
  for (const auto& [first, next] : std::initializer_list<std::pair<QString, QString>>{
           {u"S07"_s, u"S02"_s}, {u"a002"_s, u"a003"_s}, {u"A00005"_s, u"A2"_s}}) {
    engine.Reset();
    engine.SetProperty(u"Solar.Sun.TakenImage.Count"_s, u"1"_s);
    engine.SetProperty(u"Solar.Sun.TakenImage.#1.Label"_s, first);
    engine.Doit(u"Solar.Sun.TakenImage.Add()"_s);
    EXPECT_EQ(engine.Property(u"Solar.Sun.TakenImage.#2.Label"_s), next);
  }
}

TEST(DataSets, NewOnesStartFromTheStartingState) {
  ReferenceEngine engine;
  engine.Doit(u"Time.JD = 2460000.5; Solar.Sun.Corona.Add()"_s);
  EXPECT_EQ(engine.Doit(u"? Solar.Sun.Corona.#1.Radius; ? Solar.Sun.Corona.#1.Time"_s), u""_s);
  engine.Reset();
  engine.LoadStartingState();
  engine.SetProperty(u"Solar.Sun.Corona.#1.Roll"_s, u"7"_s);
  engine.Doit(u"Solar.Sun.Corona.Add(); Solar.Sun.Sunspot.Add(); Solar.Sun.TakenImage.Add()"_s);
  EXPECT_EQ(engine.Doit(u"? Solar.Sun.Corona.#1.Radius"_s), u"0.3"_s);
  EXPECT_EQ(engine.Doit(u"? Solar.Sun.Corona.#1.Roll"_s), u"7"_s);
  EXPECT_EQ(engine.Doit(u"? Solar.Sun.Corona.#1.Time"_s), u"2461042"_s);
  EXPECT_EQ(engine.Doit(u"? Solar.Sun.Sunspot.#1.jd"_s), u"2461042"_s);
  EXPECT_EQ(engine.Doit(u"? Solar.Sun.TakenImage.#1.brightness"_s), u"1.0"_s);
}

/// Published: Meeus, "Astronomical Algorithms", example 29.a (1992 Oct 13, 0h dynamical time); the
/// Greenwich photoheliographic results of 1957 Jan 1.382 and Sep 12.464, longitudes less distances
/// from the central meridian; NOAA's region summary of 2015 Jan 1, in whole degrees.
TEST(SunspotOrientation, IsThatOfThePublishedObservations) {
  ReferenceEngine engine;
  const std::array<std::array<double, 3>, 4> cases{{{2448908.49932, 238.63, 0.02},
                                                    {2435839.882, 290.0, 0.1},
                                                    {2436093.964, 174.9, 0.1},
                                                    {2457023.5, 52.0, 0.6}}};
  for (const auto& [jd, cm, tolerance] : cases) {
    engine.Doit(u"Solar.Sun.sunspot.#1.jd = %1)"_s.arg(jd, 0, 'f', 6));
    EXPECT_NEAR(engine.Doit(u"? Solar.Sun.sunspot.#1.CM"_s).toDouble(), cm, tolerance) << jd;
  }
  engine.Doit(u"Solar.Sun.sunspot.#1.jd = 2448908.49932"_s);
  EXPECT_NEAR(engine.Doit(u"? solar.sun.sunspot.#1.De"_s).toDouble(), 5.99, 0.02);
  engine.SetProperty(u"Solar.Sun.sunspot.#1.CM"_s, u"1.5"_s);
  EXPECT_EQ(engine.Doit(u"? solar.sun.sunspot.#1.cm"_s), u"1.5"_s);
  for (const QString& jd : {u"none"_s, u"1e300"_s, u"nan"_s, u""_s}) {
    engine.SetProperty(u"Solar.Sun.sunspot.#2.jd"_s, jd);
    EXPECT_EQ(engine.Doit(u"? solar.sun.sunspot.#2.cm"_s), u""_s) << jd.toStdString();
  }
}

}  // namespace
}  // namespace vyn
