// The loaded element file: real data, damaged files, and changes on disk.
#include "engine/element_table.h"

#include <cmath>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "elements/element_record.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

const QString kComets = QStringLiteral(VYN_DATA_DIR "/comets.eld");

void Put(QByteArray& record, ElementField field, QByteArrayView text) {
  record.replace(FieldOf(field).offset, text.size(), text);
}

/// A record whose perihelion distance is told by the caller, so that it can be recognised.
QByteArray Record(char kind, QByteArrayView identifier, QByteArrayView distance = " 1.0") {
  QByteArray record(kElementRecordSize, ' ');
  record[0] = kind;
  Put(record, ElementField::PerihelionYear, "20200101.0");
  Put(record, ElementField::Eccentricity, "0.5");
  Put(record, ElementField::PerihelionDistance, distance);
  for (const auto angle : {ElementField::ArgumentOfPerihelion, ElementField::AscendingNode,
                           ElementField::Inclination}) {
    Put(record, angle, "  0.0");
  }
  Put(record, ElementField::Identifier, identifier);
  Put(record, ElementField::LineEnd, "\r\n");
  return record;
}

class ElementTableTest : public testing::Test {
 protected:
  void Write(const QByteArray& bytes) {
    QFile::remove(path_);
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
  }
  bool LoadBytes(const QByteArray& bytes) {
    Write(bytes);
    return table_.Load(path_);
  }
  /// Identifiers, distances and pages of all objects, as one text.
  QString Summary() const {
    QStringList parts;
    for (int i = 0; i < table_.Count(); ++i) {
      parts += u"%1:%2:%3"_s.arg(table_.Identifier(i))
                   .arg(table_.Columns().perihelionDistanceAu[i])
                   .arg(table_.PageCount(i));
    }
    return parts.join(u' ');
  }
  QStringList Reasons() const {
    QStringList reasons;
    for (const ElementProblem& problem : table_.Problems()) {
      reasons += u"%1+%2@%3 %4"_s.arg(problem.record)
                     .arg(problem.recordCount)
                     .arg(problem.bytePosition)
                     .arg(problem.reason);
    }
    return reasons;
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(u"test.eld"_s);
  ElementTable table_;
};

TEST_F(ElementTableTest, RealCometsLoadWithoutAProblem) {
  ASSERT_TRUE(table_.Load(kComets));
  EXPECT_EQ(table_.Count(), 1687);
  EXPECT_EQ(table_.RecordCount(), 1687);
  EXPECT_EQ(Reasons(), QStringList());
  const int haleBopp = table_.IndexOf(u" c/1995 o1 ");
  ASSERT_GE(haleBopp, 0);
  EXPECT_EQ(table_.EnglishName(haleBopp), u"Hale-Bopp"_s);
  EXPECT_EQ(table_.JapaneseName(haleBopp), u"ヘール・ボップ彗星"_s);
  EXPECT_TRUE(table_.IsComet(haleBopp));
  const SmallBody body = table_.Body(haleBopp);
  EXPECT_DOUBLE_EQ(body.orbit.perihelionJd, CalcJd(1997, 3, 29.0299));
  EXPECT_EQ(body.orbit.perihelionDistanceAu, 0.922046);
  EXPECT_EQ(body.absoluteMagnitude, -2.0);
  EXPECT_EQ(body.magnitudeCoefficient, 4.0);
  EXPECT_EQ(table_.Body(haleBopp).epochJd, CalcJd(2026, 5, 31));
  int withoutEpoch = 0;
  for (int i = 0; i < table_.Count(); ++i)
    withoutEpoch += std::isnan(table_.Body(i).epochJd) ? 1 : 0;
  EXPECT_EQ(withoutEpoch, 54);
}

TEST_F(ElementTableTest, FilesWithoutAnObjectLeaveWhatWasLoaded) {
  ASSERT_TRUE(LoadBytes(Record('C', "1P")));
  const QString badPath = folder_.filePath(u"bad.eld"_s);
  EXPECT_FALSE(table_.Load(badPath));
  ASSERT_EQ(table_.Problems().size(), 1U);
  EXPECT_EQ(table_.Problems()[0].file, badPath);
  EXPECT_EQ(table_.Problems()[0].record, -1);
  EXPECT_TRUE(table_.Problems()[0].Text().startsWith(badPath));
  EXPECT_FALSE(table_.Load(folder_.path()));
  for (const QByteArray& content : {QByteArray(), QByteArray("C 1P\r\n"), QByteArray(5000, '\0'),
                                    Record('N', ""), Record('+', "2P")}) {
    QFile file(badPath);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    EXPECT_FALSE(table_.Load(badPath));
    EXPECT_FALSE(table_.Problems().empty());
    EXPECT_EQ(Summary(), u"1P:1:1"_s);
    EXPECT_EQ(table_.FilePath(), path_);
  }
}

TEST_F(ElementTableTest, DamagedRecordsAreReportedAndTheRestIsRead) {
  QByteArray withoutLineEnd = Record('C', "bad");
  Put(withoutLineEnd, ElementField::LineEnd, "  ");
  QByteArray badNumbers = Record('M', "3P");
  Put(badNumbers, ElementField::Eccentricity, "x.5");
  Put(badNumbers, ElementField::PerihelionMonth, "13");
  QByteArray outOfRange = Record('C', "4P");
  Put(outOfRange, ElementField::Inclination, "200.5");
  ASSERT_TRUE(LoadBytes(Record('C', "1P") + withoutLineEnd + withoutLineEnd + Record('N', "") +
                        Record('?', "2P") + badNumbers + outOfRange +
                        Record('C', "cut").first(300)));
  EXPECT_EQ(Summary(), u"1P:1:5 3P:1:1 4P:1:1"_s);
  EXPECT_EQ(Reasons(), QStringList({u"1+2@417 the record does not end in CR LF"_s,
                                    u"4+1@1668 the record is of no known kind"_s,
                                    u"5+1@2085 perihelion date is not a date"_s,
                                    u"5+1@2085 eccentricity is not a number"_s,
                                    u"6+1@2502 inclination is out of range"_s,
                                    u"7+1@2919 the file ends within the record"_s}));
  EXPECT_EQ(table_.ProblemCount(), 7);
  EXPECT_TRUE(std::isnan(table_.Columns().perihelionJd[1]));
  EXPECT_TRUE(std::isnan(PositionAt(table_.Body(1).orbit, 2460000.5).x));
}

TEST_F(ElementTableTest, NamesInAnotherCodePageAreReportedAndNumbersRead) {
  QByteArray japanese = Record('C', "1P");
  Put(japanese, ElementField::JapaneseName, "\x83\x6E\x83\x8C\x81\x5B\x9C\x61\x90\xAF");
  QByteArray utf8 = Record('C', "2P", " 2.5");
  Put(utf8, ElementField::JapaneseName, QStringView(u"ハレー彗星").toUtf8());
  ASSERT_TRUE(LoadBytes(japanese + utf8));
  EXPECT_EQ(table_.JapaneseName(0), u"ハレー彗星"_s);
  EXPECT_EQ(Reasons(), QStringList(u"1+1@417 Japanese name is not in code page 932"_s));
  EXPECT_EQ(table_.Body(1).orbit.perihelionDistanceAu, 2.5);
}

TEST_F(ElementTableTest, GarbageIsBoundedInReports) {
  QByteArray garbage;
  for (int i = 0; i < 5000; ++i) {
    garbage += Record(i % 2 == 0 ? 'C' : '?', "1P", i % 2 == 0 ? " x.0" : " 1.0");
  }
  ASSERT_TRUE(LoadBytes(garbage));
  EXPECT_EQ(table_.Count(), 2500);
  EXPECT_EQ(table_.Problems().size(), static_cast<std::size_t>(ElementTable::kMostProblems));
  EXPECT_EQ(table_.ProblemCount(), 5000);
}

TEST_F(ElementTableTest, TheContinuationValidAtTheDateIsChosen) {
  const auto page = [](char kind, QByteArrayView distance, QByteArrayView from, QByteArrayView to) {
    QByteArray record = Record(kind, "1P", distance);
    Put(record, ElementField::ValidFromYear, from);
    Put(record, ElementField::ValidToYear, to);
    return record;
  };
  ASSERT_TRUE(LoadBytes(Record('C', "0P") + page('C', " 1.0", "", "20000101.0") +
                        page('+', " 2.0", "20000101.0", "20100101.0") +
                        page('+', " 3.0", "20150101.0", "20200101.0") + Record('C', "2P")));
  const auto distanceAt = [this](int year, int month) {
    return table_.BodyAt(1, CalcJd(year, month, 1.0)).orbit.perihelionDistanceAu;
  };
  EXPECT_EQ(distanceAt(-500, 1), 1.0);
  EXPECT_EQ(distanceAt(2000, 1), 1.0);
  EXPECT_EQ(distanceAt(2005, 1), 2.0);
  EXPECT_EQ(distanceAt(2011, 1), 2.0) << "nearer to the end of 2.0 than to the beginning of 3.0";
  EXPECT_EQ(distanceAt(2014, 1), 3.0);
  EXPECT_EQ(distanceAt(2100, 1), 3.0);
  EXPECT_EQ(table_.ObjectsWithPages(), std::vector<std::uint32_t>{1});
  EXPECT_EQ(table_.BodyAt(2, CalcJd(2005, 1, 1)).orbit.perihelionDistanceAu, 1.0);
}

TEST_F(ElementTableTest, ElementsOfAnotherEquinoxAreReferredToJ2000) {
  // Meeus, "Astronomical Algorithms", example 24.b: comet Encke from B1950.0 to J2000.0.
  QByteArray encke = Record('C', "2P");
  Put(encke, ElementField::Equinox, "1950.0");
  Put(encke, ElementField::Inclination, " 11.93911");
  Put(encke, ElementField::ArgumentOfPerihelion, "186.24444");
  Put(encke, ElementField::AscendingNode, "334.04096");
  ASSERT_TRUE(LoadBytes(encke));
  const OrbitElements orbit = table_.Body(0).orbit;
  EXPECT_NEAR(orbit.inclinationDeg, 11.94521, 2e-4);
  EXPECT_NEAR(orbit.argumentOfPerihelionDeg, 186.23352, 4e-4);
  EXPECT_NEAR(orbit.ascendingNodeDeg, 334.75006, 4e-4);
}

TEST_F(ElementTableTest, ChangesOnDiskAreReadAgain) {
  const QByteArray a = Record('C', "A", " 1.0");
  const QByteArray b = Record('C', "B", " 2.0") + Record('+', "B", " 2.5");
  const QByteArray c = Record('C', "C", " 3.0");
  ASSERT_TRUE(LoadBytes(a + b + c));

  Write(a + Record('C', "B2", " 4.0") + c);
  EXPECT_TRUE(table_.DataUpdate(1));
  EXPECT_EQ(Summary(), u"A:1:1 B2:4:1 C:3:1"_s);
  Write(a + b + c);
  EXPECT_TRUE(table_.DataUpdate(1));
  EXPECT_EQ(Summary(), u"A:1:1 B:2:2 C:3:1"_s);
  EXPECT_EQ(table_.FirstRecords(), (std::vector<std::uint32_t>{0, 1, 3}));
  EXPECT_EQ(table_.ObjectsWithPages(), std::vector<std::uint32_t>{1});

  Write(a + b + c + Record('C', "D", " 5.0") + Record('C', "E", " 6.0"));
  EXPECT_EQ(table_.DataAdd(), 3);
  EXPECT_EQ(table_.DataAdd(), 3) << "nothing more to read is no failure";
  EXPECT_EQ(Summary(), u"A:1:1 B:2:2 C:3:1 D:5:1 E:6:1"_s);

  Write(a + c + Record('C', "D", " 5.0") + Record('C', "E", " 6.0"));
  EXPECT_TRUE(table_.DataRemove(1));
  Write(a + c + Record('C', "D", " 5.0"));
  EXPECT_TRUE(table_.DataRemove(3));
  EXPECT_EQ(Summary(), u"A:1:1 C:3:1 D:5:1"_s);
  EXPECT_EQ(table_.RecordCount(), 3);

  EXPECT_FALSE(table_.DataUpdate(3));
  EXPECT_FALSE(table_.DataRemove(-1));
  QFile::remove(path_);
  EXPECT_FALSE(table_.DataUpdate(0));
  EXPECT_EQ(table_.DataAdd(), -1);
  EXPECT_EQ(Summary(), u"A:1:1 C:3:1 D:5:1"_s);
}

TEST_F(ElementTableTest, TheLastObjectCanBeRemovedAndAnotherAdded) {
  ASSERT_TRUE(LoadBytes(Record('C', "A")));
  Write({});
  EXPECT_TRUE(table_.DataRemove(0));
  EXPECT_EQ(table_.Count(), 0);
  Write(Record('C', "B", " x"));
  EXPECT_EQ(table_.DataAdd(), 0);
  Write({});
  EXPECT_TRUE(table_.DataRemove(0)) << "a problem makes all be read again";
  EXPECT_EQ(table_.Count(), 0);
  Write(Record('C', "B"));
  EXPECT_EQ(table_.DataAdd(), 0);
  EXPECT_EQ(Summary(), u"B:1:1"_s);
}

/// An import that meets an identifier twice tells the second time, too, that it has added.
TEST_F(ElementTableTest, AddedObjectsThatWereWrittenAnewAreReadAgain) {
  const QByteArray a = Record('C', "A", " 1.0");
  const QByteArray c = Record('C', "C", " 3.0");
  const auto append = [this](const QByteArray& bytes) {
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write(bytes);
  };
  ASSERT_TRUE(LoadBytes(a));
  append(Record('C', "B", " 2.0"));
  EXPECT_EQ(table_.DataAdd(), 1);
  append(c);
  EXPECT_EQ(table_.DataAdd(), 2);
  QFile file(path_);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.seek(417));
  file.write(Record('C', "B", " 2.5"));
  file.close();
  EXPECT_EQ(table_.DataAdd(), 1);
  EXPECT_EQ(Summary(), u"A:1:1 B:2.5:1 C:3:1"_s);
  // With more records and with fewer, so that the file is another one each time.
  const int wholeReads = table_.WholeReads();
  Write(a + Record('C', "B", " 2.0") + Record('+', "B", " 2.0") + c);
  EXPECT_EQ(table_.DataAdd(), 1);
  EXPECT_EQ(Summary(), u"A:1:1 B:2:2 C:3:1"_s);
  EXPECT_EQ(table_.ObjectsWithPages(), std::vector<std::uint32_t>{1});
  EXPECT_EQ(table_.WholeReads(), wholeReads);
  Write(a + Record('C', "B", " 2.0") + c);
  EXPECT_EQ(table_.DataAdd(), 0);
  EXPECT_EQ(Summary(), u"A:1:1 B:2:1 C:3:1"_s);
}

TEST_F(ElementTableTest, AFileThatChangedOtherwiseIsReadAnew) {
  ASSERT_TRUE(LoadBytes(Record('C', "A") + Record('C', "B") + Record('?', "")));
  EXPECT_EQ(Reasons().size(), 1);
  Write(Record('C', "X") + Record('C', "Y") + Record('C', "Z") + Record('C', "W"));
  EXPECT_TRUE(table_.DataUpdate(1));
  EXPECT_EQ(Summary(), u"X:1:1 Y:1:1 Z:1:1 W:1:1"_s);
  EXPECT_EQ(Reasons(), QStringList());
  Write(Record('C', "P"));
  EXPECT_TRUE(table_.DataRemove(1));
  EXPECT_EQ(Summary(), u"P:1:1"_s);
  Write(Record('C', "P") + Record('C', "Q", " x") + QByteArray(10, ' '));
  EXPECT_EQ(table_.DataAdd(), 0);
  EXPECT_EQ(Reasons().size(), 2);
  Write(Record('C', "P") + Record('C', "Q"));
  EXPECT_TRUE(table_.DataUpdate(1));
  EXPECT_EQ(Reasons(), QStringList()) << "a repaired record is no problem any more";
}

TEST_F(ElementTableTest, NothingIsReadBeforeTheFirstLoadOrOutOfRange) {
  EXPECT_EQ(table_.Count(), 0);
  EXPECT_EQ(table_.Identifier(0), QString());
  EXPECT_EQ(table_.JapaneseName(-1), QString());
  EXPECT_TRUE(std::isnan(table_.BodyAt(0, 2451545.0).orbit.perihelionJd));
  EXPECT_TRUE(table_.Record(0).empty());
  EXPECT_EQ(table_.IndexOf(u""), -1);
  EXPECT_EQ(table_.DataAdd(), -1);
}

}  // namespace
}  // namespace vyn
