// Finding, writing, replacing and taking out objects of an element file, to the byte.
#include "elements/element_file.h"

#include <sys/resource.h>

#include <csignal>

#include <QDir>
#include <QProcess>

#include "resources/string_table.h"
#include "tests/elements/element_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

class ElementFileTest : public ElementCase {};

TEST_F(ElementFileTest, CountsAndFindsObjectsAmongOtherLines) {
  const QByteArray first = MakeRecord('C', u"2P"_s);
  const QByteArray bytes = MakeRecord('N', {}) + first + MakeRecord('+', u"2P"_s) + "junk\r\n" +
                           MakeRecord('M', u" 3 "_s) + MakeRecord('C', u"2p"_s);
  ElementFile file(Write(u"a.eld"_s, bytes));
  EXPECT_EQ(file.GetObjectCount(), 3);
  EXPECT_EQ(file.GetFileSeekPosByNumber(0), 417);
  EXPECT_EQ(file.GetFileSeekPosByNumber(1), 3 * 417 + 6);
  EXPECT_EQ(file.GetFileSeekPosByNumber(3), -1);
  EXPECT_EQ(file.GetFileSeekPosByNumber(-1), -1);
  EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u" 2P ")), 0);
  EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"3")), 1);
  EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"4")), -1);
  EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u" ")), -1);
  EXPECT_EQ(file.CountElementRecords(417), 2);
  EXPECT_EQ(file.CountElementRecords(0), 1) << "a placeholder passes";
  EXPECT_EQ(file.CountElementRecords(834), 0);
  EXPECT_EQ(file.ErrorText(), LoadString(13465));
  EXPECT_EQ(file.CountElementRecords(418), 0);
  EXPECT_EQ(file.ErrorText(), FilledString(13456, {u"418"_s}));
}

/// Lines of the lengths around the longest are counted as readers have always counted them.
TEST_F(ElementFileTest, ALineLongerThanTheBufferCountsAsSeveral) {
  for (const int length : {2046, 2047, 2048}) {
    const QByteArray line = "C" + QByteArray(length - 1, 'C') + "\n";
    ElementFile file(Write(u"%1.eld"_s.arg(length), line + "M\n"));
    EXPECT_EQ(file.GetObjectCount(), length < 2047 ? 2 : length == 2047 ? 2 : 3) << length;
  }
}

TEST_F(ElementFileTest, IdentifiersAreTheSameWithoutRegardToCaseAndBlanks) {
  const auto key = [](const QString& text) { return IdentifierKey::OfText(text); };
  EXPECT_EQ(key(u"abc"_s), key(u"  ABC "_s));
  EXPECT_EQ(key(u"ｱＢcдΣ"_s), key(u"ｱｂCДσ"_s));
  EXPECT_NE(key(u"a bc"_s), key(u"abc"_s));
  EXPECT_EQ(key(u"1234567890123456"_s), key(u"123456789012345"_s)) << "as it would be stored";
  EXPECT_EQ(IdentifierKey::OfColumns({"2P\0zz", 5}), key(u"2p"_s));
  EXPECT_TRUE(IdentifierKey::OfLine("C\r\n").IsBlank());
}

TEST_F(ElementFileTest, AFileThatGrowsManyfoldIsStillSearchedRight) {
  ElementFile file(Write(u"a.eld"_s, MakeRecord('C', u"0"_s)));
  constexpr int kCount = 3000;
  for (int i = 1; i < kCount; ++i) {
    const QString identifier = QString::number(i);
    ASSERT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(identifier)), -1);
    ASSERT_EQ(file.WriteElement(-1, MakeObject(identifier, 1)), i);
  }
  for (int i = 0; i < kCount; ++i) {
    EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(QString::number(i))), i);
  }
}

TEST_F(ElementFileTest, ReplacingChangesOnlyTheObjectWhateverItsRecordCount) {
  const ElementRecords before = MakeObject(u"a"_s, 2);
  const ElementRecords behind = MakeObject(u"c"_s, 2);
  for (int oldPages = 1; oldPages <= 3; ++oldPages) {
    for (int newPages = 1; newPages <= 3; ++newPages) {
      const QString path =
          Write(u"a.eld"_s, Joined({before, MakeObject(u"b"_s, oldPages, u"old"_s), behind}));
      const ElementRecords fresh = MakeObject(u"b2"_s, newPages, u"new"_s);
      ElementFile file(path);
      EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"c")), 2);
      EXPECT_EQ(file.WriteElement(1, fresh), 1);
      EXPECT_EQ(Read(u"a.eld"_s), Joined({before, fresh, behind})) << oldPages << newPages;
      EXPECT_EQ(Files(), QStringList{u"a.eld"_s});
      // What was learned follows the change.
      EXPECT_EQ(file.GetFileSeekPosByNumber(2), (2 + newPages) * 417);
      EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"B2")), 1);
      EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"b")), -1);
      EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"c")), 2);
    }
  }
}

TEST_F(ElementFileTest, MakingRoomPutsPlaceholdersAndTakingOutLeavesTheRest) {
  const QString path =
      Write(u"a.eld"_s, Joined({MakeObject(u"a"_s, 1), MakeObject(u"b"_s, 3)}) + "tail");
  const QByteArray placeholder = "N" + QByteArray(414, ' ') + "\r\n";
  ElementFile file(path);
  EXPECT_TRUE(file.ShiftElementRecord(417, 2));
  EXPECT_EQ(Read(u"a.eld"_s), Joined({MakeObject(u"a"_s, 1)}) + placeholder + placeholder +
                                  Joined({MakeObject(u"b"_s, 3)}) + "tail");
  EXPECT_EQ(file.GetObjectCount(), 2);
  EXPECT_TRUE(file.ShiftElementRecord(0, -3));
  EXPECT_EQ(Read(u"a.eld"_s), Joined({MakeObject(u"b"_s, 3)}) + "tail");
  EXPECT_FALSE(file.ShiftElementRecord(1, 1));
  EXPECT_EQ(file.ErrorText(), FilledString(13467, {path, u"1"_s}));
  EXPECT_FALSE(file.ShiftElementRecord(4 * 417, 1));
  EXPECT_EQ(file.ErrorText(), LoadString(13463));
  EXPECT_FALSE(file.ShiftElementRecord(2 * 417, -2));
  EXPECT_EQ(file.ErrorText(), LoadString(13464));
  EXPECT_EQ(Read(u"a.eld"_s), Joined({MakeObject(u"b"_s, 3)}) + "tail");
  EXPECT_EQ(Files(), QStringList{u"a.eld"_s});
}

TEST_F(ElementFileTest, SeveralObjectsAreTakenOutInOneGo) {
  std::vector<ElementRecords> objects;
  for (int i = 0; i < 6; ++i) objects.push_back(MakeObject(QString::number(i), 1 + i % 3));
  const QString path = Write(u"a.eld"_s, Joined(objects));
  ElementFile file(path);
  EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"5")), 5);
  EXPECT_TRUE(file.RemoveObjects({4, 0, 3, 3}));
  EXPECT_EQ(Read(u"a.eld"_s), Joined({objects[1], objects[2], objects[5]}));
  EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"5")), 2);
  EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"3")), -1);
  EXPECT_FALSE(file.RemoveObjects({3}));
}

TEST_F(ElementFileTest, AppendingNeedsAFileThatEndsAtARecord) {
  const QString path = Write(u"a.eld"_s, {});
  EXPECT_EQ(ElementFile(path).WriteElement(-1, MakeObject(u"a"_s, 2)), 0);
  EXPECT_EQ(ElementFile(path).WriteElement(-1, MakeObject(u"b"_s, 1)), 1);
  EXPECT_EQ(Read(u"a.eld"_s), Joined({MakeObject(u"a"_s, 2), MakeObject(u"b"_s, 1)}));
  ElementFile torn(Write(u"b.eld"_s, "C"));
  EXPECT_EQ(torn.WriteElement(-1, MakeObject(u"a"_s, 1)), -1);
  EXPECT_EQ(torn.ErrorText(), FilledString(13458, {u"0"_s}));
  EXPECT_EQ(Read(u"b.eld"_s), "C");
  ElementFile withoutEnd(Write(u"d.eld"_s, QByteArray(417, 'C')));
  EXPECT_EQ(withoutEnd.WriteElement(-1, MakeObject(u"a"_s, 1)), -1);
  EXPECT_EQ(Read(u"d.eld"_s).size(), 417);
  ElementFile missing(PathOf(u"c.eld"_s));
  EXPECT_EQ(missing.WriteElement(-1, MakeObject(u"a"_s, 1)), -1);
  EXPECT_EQ(missing.ErrorText(), FilledString(13461, {PathOf(u"c.eld"_s)}));
  EXPECT_EQ(missing.WriteElement(0, MakeObject(u"a"_s, 1)), -1);
  EXPECT_EQ(missing.ErrorText(), FilledString(13455, {u"-1"_s}));
}

TEST_F(ElementFileTest, AChangeByAnotherProgramIsSeen) {
  const QString path = Write(u"a.eld"_s, Joined({MakeObject(u"a"_s, 1)}));
  EXPECT_EQ(ElementFile(path).SearchObjectFileIndex(IdentifierKey::OfText(u"a")), 0);
  Write(u"a.eld"_s, Joined({MakeObject(u"b"_s, 1), MakeObject(u"a"_s, 1)}));
  EXPECT_EQ(ElementFile(path).SearchObjectFileIndex(IdentifierKey::OfText(u"a")), 1);
}

TEST_F(ElementFileTest, AnInterruptedRewritingIsCompleted) {
  const QByteArray whole = Joined({MakeObject(u"a"_s, 2)});
  struct Case {
    const char* name;
    QByteArray bytes;
    int objects;
  };
  const Case cases[] = {
      {"whole records", whole, 1},
      {"a file that ends within a record", whole + "tail", 1},
      {"a file that begins with no record", "; made by hand\r\n" + whole, 1},
      {"a file whose only object was taken out", {}, 0},
  };
  for (const Case& row : cases) {
    Write(u"a.$$E"_s, row.bytes);
    EXPECT_EQ(ElementFile(PathOf(u"a.eld"_s)).GetObjectCount(), row.objects) << row.name;
    EXPECT_EQ(Files(), QStringList{u"a.eld"_s}) << row.name;
    EXPECT_EQ(Read(u"a.eld"_s), row.bytes) << row.name;
    QFile::remove(PathOf(u"a.eld"_s));
  }
}

TEST_F(ElementFileTest, AHalfWrittenTemporaryFileIsNotTakenForTheFile) {
  QByteArray unfinished = Joined({MakeObject(u"a"_s, 2)});
  unfinished[0] = '\0';
  for (const QByteArray& temporary : {unfinished, unfinished.left(1), unfinished.left(500)}) {
    Write(u"a.$$E"_s, temporary);
    EXPECT_FALSE(ElementFile(PathOf(u"a.eld"_s)).Open());
    EXPECT_EQ(Read(u"a.$$E"_s), temporary);
  }
}

TEST_F(ElementFileTest, ALeftTemporaryFileIsRemovedAndALinkInItsPlaceIsNotFollowed) {
  const QString path = Write(u"a.eld"_s, Joined({MakeObject(u"a"_s, 1)}));
  Write(u"a.$$E"_s, "left");
  EXPECT_EQ(ElementFile(path).GetObjectCount(), 1);
  EXPECT_EQ(Files(), QStringList{u"a.eld"_s});
  const QString precious = Write(u"precious"_s, "precious");
  ASSERT_TRUE(QFile::link(precious, PathOf(u"a.$$E"_s)));
  EXPECT_TRUE(ElementFile(path).ShiftElementRecord(0, 1));
  EXPECT_EQ(Read(u"precious"_s), "precious");
  EXPECT_EQ(Read(u"a.eld"_s).size(), 834);
}

TEST_F(ElementFileTest, ALinkStaysALink) {
  ASSERT_TRUE(QDir().mkdir(PathOf(u"real"_s)));
  Write(u"real/b.eld"_s, Joined({MakeObject(u"a"_s, 1)}));
  ASSERT_TRUE(QFile::link(PathOf(u"real/b.eld"_s), PathOf(u"a.eld"_s)));
  EXPECT_EQ(ElementFile(PathOf(u"a.eld"_s)).WriteElement(0, MakeObject(u"a"_s, 3)), 0);
  EXPECT_TRUE(QFileInfo(PathOf(u"a.eld"_s)).isSymLink());
  EXPECT_EQ(Read(u"real/b.eld"_s), Joined({MakeObject(u"a"_s, 3)}));
  // The same when the rewriting was interrupted and the link leads nowhere.
  QFile::rename(PathOf(u"real/b.eld"_s), PathOf(u"real/b.$$E"_s));
  EXPECT_EQ(ElementFile(PathOf(u"a.eld"_s)).GetObjectCount(), 1);
  EXPECT_TRUE(QFileInfo::exists(PathOf(u"real/b.eld"_s)));
}

/// Writing behind this size fails, as on a full disk.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() { setrlimit(RLIMIT_FSIZE, &before_); }
  Q_DISABLE_COPY_MOVE(FileSizeLimit)

 private:
  rlimit before_{};
};

TEST_F(ElementFileTest, AFullDiskIsToldByTheStepAndChangesNothing) {
  const QByteArray bytes =
      Joined({MakeObject(u"a"_s, 1), MakeObject(u"b"_s, 1), MakeObject(u"c"_s, 1)});
  struct Case {
    rlim_t limit;
    int message;
  };
  const Case cases[] = {{0, 13469},         {1, 13469},       {416, 13469}, {417, 13470},
                        {417 + 417, 13470}, {3 * 417, 13471}, {2000, 13471}};
  for (const Case& row : cases) {
    ElementFile file(Write(u"a.eld"_s, bytes));
    {
      const FileSizeLimit full(row.limit);
      EXPECT_EQ(file.WriteElement(1, MakeObject(u"b"_s, 3)), -1) << row.limit;
    }
    EXPECT_EQ(file.ErrorText(), LoadString(row.message)) << row.limit;
    EXPECT_EQ(Read(u"a.eld"_s), bytes);
    EXPECT_EQ(Files(), QStringList{u"a.eld"_s});
    // With room again the same file object goes on.
    EXPECT_EQ(file.WriteElement(1, MakeObject(u"b"_s, 3)), 1);
  }
}

TEST_F(ElementFileTest, AnAppendingThatFailsHalfwayLeavesNoPartOfARecord) {
  const QByteArray bytes = Joined({MakeObject(u"a"_s, 1)});
  ElementFile file(Write(u"a.eld"_s, bytes));
  EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"b")), -1);
  {
    const FileSizeLimit full(1000);
    EXPECT_EQ(file.WriteElement(-1, MakeObject(u"b"_s, 2)), -1);
  }
  EXPECT_EQ(file.ErrorText(), LoadString(13466));
  EXPECT_EQ(Read(u"a.eld"_s), bytes);
  EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"b")), -1);
  EXPECT_EQ(file.WriteElement(-1, MakeObject(u"b"_s, 2)), 1);
  EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(u"B")), 1);
}

TEST_F(ElementFileTest, PositionsReachBehindTwoAndFourGigabytes) {
  for (const std::int64_t record : {6'000'000, 12'000'000}) {
    const std::int64_t position = record * kElementRecordSize;
    QFile sparse(Write(u"a.eld"_s, {}));
    ASSERT_TRUE(sparse.open(QIODevice::ReadWrite) && sparse.seek(position));
    sparse.write(Joined({MakeObject(u"far"_s, 2)}));
    sparse.close();
    ElementFile file(PathOf(u"a.eld"_s));
    EXPECT_EQ(file.CountElementRecords(position), 2);
    EXPECT_TRUE(file.ReplaceUnchanged(position, MakeObject(u"far"_s, 2), MakeObject(u"new"_s, 2)));
    EXPECT_EQ(file.ReadRecords(position), MakeObject(u"new"_s, 2));
    EXPECT_TRUE(file.AppendRecords(MakeObject(u"last"_s, 1)));
    EXPECT_EQ(file.Size(), position + 3 * kElementRecordSize);
  }
}

TEST_F(ElementFileTest, WhatStandsAtNoRecordIsNotWrittenOver) {
  const QByteArray shifted = "junk\r\n" + Joined({MakeObject(u"a"_s, 1)});
  ElementFile file(Write(u"a.eld"_s, shifted));
  EXPECT_EQ(file.WriteElement(0, MakeObject(u"a"_s, 1, u"new"_s)), -1);
  EXPECT_EQ(file.ErrorText(), FilledString(13456, {u"6"_s}));
  EXPECT_EQ(Read(u"a.eld"_s), shifted);
}

TEST_F(ElementFileTest, TheElementFileIsNeverItsOwnTemporaryFile) {
  const QByteArray bytes = Joined({MakeObject(u"a"_s, 1)});
  ElementFile file(Write(u"a.$$E"_s, bytes));
  EXPECT_EQ(file.GetObjectCount(), 1);
  EXPECT_FALSE(file.ShiftElementRecord(0, 1));
  EXPECT_EQ(file.ErrorText(), FilledString(13468, {PathOf(u"a.$$E"_s)}));
  EXPECT_EQ(Read(u"a.$$E"_s), bytes);
}

}  // namespace
}  // namespace vyn
