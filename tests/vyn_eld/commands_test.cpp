// vyn-eld as a person calls it: what it prints, what it returns to the shell and what is then in
// the files.
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>

#include "tests/vyn_eld/vyn_eld_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

class CommandsTest : public VynEldCase {
 protected:
  QByteArray Output(const QStringList& words, int exitCode = 0) {
    const Outcome outcome = Run(words);
    EXPECT_EQ(outcome.exitCode, exitCode) << outcome.errors.toStdString();
    return outcome.output;
  }

  void WriteTarget() {
    Write(u"t.eld"_s, Joined({MakeObject(u"1P"_s, 1, u"ハレー彗星"_s), MakeObject(u"2P"_s, 2)}));
  }
};

TEST_F(CommandsTest, CountsAndLists) {
  WriteTarget();
  EXPECT_EQ(Output({u"count"_s, u"t.eld"_s}), "2\n");
  EXPECT_EQ(Output({u"count"_s, u"t.eld"_s, u"no.eld"_s, u"t.eld"_s}, 1), "t.eld: 2\nt.eld: 2\n");
  EXPECT_EQ(Output({u"list"_s, u"t.eld"_s}), "0\t1P\t\tハレー彗星\n1\t2P\t\t\n");
  EXPECT_EQ(Output({u"list"_s, u"--find"_s, u"2p"_s, u"t.eld"_s}), "1\t2P\t\t\n");
  EXPECT_EQ(Output({u"list"_s, u"t.eld"_s, u"--find=レー"_s}), "0\t1P\t\tハレー彗星\n");
  EXPECT_EQ(Output({u"list"_s, u"t.eld"_s, u"--find"_s, u"3P"_s}, 1), "");
  const auto json = QJsonDocument::fromJson(Output({u"list"_s, u"t.eld"_s, u"--json"_s})).array();
  ASSERT_EQ(json.size(), 2);
  EXPECT_EQ(json[0][u"Japanese name"].toString(), u"ハレー彗星"_s);
  EXPECT_EQ(QJsonDocument::fromJson(Output({u"list"_s, u"--find=3P"_s, u"t.eld"_s, u"--json"_s}, 1))
                .array()
                .size(),
            0);
}

TEST_F(CommandsTest, ShowsEveryFieldOfEveryPage) {
  WriteTarget();
  const QByteArray shown = Output({u"show"_s, u"t.eld"_s, u"2p"_s});
  EXPECT_EQ(shown.count("identifier                  2P\n"), 2);
  EXPECT_TRUE(shown.startsWith("page 1 of 2\nrecord kind                 C\n"));
  EXPECT_EQ(shown.count('\n'), 2 * (1 + static_cast<int>(kRecordFields.size()) - 1));
  EXPECT_EQ(Output({u"show"_s, u"t.eld"_s, u"3P"_s}, 1), "");
}

TEST_F(CommandsTest, ChecksRecordByRecord) {
  QFile::copy(QStringLiteral(VYN_DATA_DIR "/comets.eld"), PathOf(u"good.eld"_s));
  EXPECT_EQ(Output({u"check"_s, u"good.eld"_s}), "1687 records, 1687 objects, 0 malformed\n");
  QFile file(PathOf(u"good.eld"_s));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray record = file.read(kElementRecordSize);
  const auto with = [&](ElementField field, const QByteArray& text) {
    return QByteArray(record).replace(FieldOf(field).offset, text.size(), text);
  };
  const QByteArray identifier = record.mid(188, 15);
  Write(u"bad.eld"_s, QByteArray(record).replace(0, 1, "+") + record +
                          with(ElementField::Eccentricity, "0.9x") +
                          with(ElementField::Inclination, "180.000000") + "C\r\n" +
                          with(ElementField::Identifier, QByteArray(15, ' ')) +
                          with(ElementField::JapaneseName, "\x82") + record.left(100));
  EXPECT_EQ(
      Output({u"check"_s, u"bad.eld"_s}, 1),
      "record 0 at byte 0: the record continues no object\n"
      "record 2 at byte 834: eccentricity is not a number; the identifier is that of record 1\n"
      "record 3 at byte 1251: inclination is out of range; the identifier is that of record "
      "1\n"
      "record 4 at byte 1668: the line has 3 bytes\n"
      "record 5 at byte 1671: the identifier is missing\n"
      "record 6 at byte 2088: Japanese name is not in code page 932; the identifier is that "
      "of record 1\n"
      "record 7 at byte 2505: the file ends within the record\n"
      "8 records, 5 objects, 7 malformed\n");
}

TEST_F(CommandsTest, ImportsWhatTheOptionsSay) {
  WriteTarget();
  Write(u"s.eld"_s, Joined({MakeObject(u"1p"_s, 1, u"新"_s),
                            MakeObject(u"3P"_s, 3),
                            {MakeRecord('C', {})},
                            {MakeRecord('M', u"4"_s)}}) +
                        "C\r\n");
  const QByteArray before = Read(u"t.eld"_s);
  const QByteArray dryRun = Output(
      {u"import"_s, u"s.eld"_s, u"t.eld"_s, u"--duplicate"_s, u"overwrite"_s, u"--dry-run"_s}, 1);
  EXPECT_EQ(dryRun,
            "0\t1p\t\toverwrite\n"
            "\tidentifier: \"1P\" -> \"1p\"\n"
            "\tJapanese name: \"ハレー彗星\" -> \"新\"\n"
            "1\t3P\t\tadd\n"
            "2\t\t\tskip: it has no identifier\n"
            "3\t4\t\tadd\n"
            "4\t\t\tfail: 更新元軌道要素データの読み込みができません(1)。\n"
            "added 2, overwritten 1, skipped 1, failed 1\n");
  EXPECT_EQ(Read(u"t.eld"_s), before);
  EXPECT_EQ(Output({u"import"_s, u"s.eld"_s, u"t.eld"_s, u"--kind=comet"_s}, 1),
            "added 1, overwritten 0, skipped 3, failed 1\n");
  EXPECT_EQ(Read(u"t.eld"_s), before + Joined({MakeObject(u"3P"_s, 3)}));
  EXPECT_EQ(Output({u"import"_s, u"s.eld"_s, u"t.eld"_s, u"--update"_s}, 1),
            "added 1, overwritten 2, skipped 1, failed 1\n");
  EXPECT_EQ(Read(u"t.eld"_s), Joined({MakeObject(u"1p"_s, 1, u"新"_s),
                                      MakeObject(u"2P"_s, 2),
                                      MakeObject(u"3P"_s, 3),
                                      {MakeRecord('M', u"4"_s)}}));
  const Outcome missing = Run({u"import"_s, u"s.eld"_s, u"no.eld"_s});
  EXPECT_EQ(missing.exitCode, 1);
  EXPECT_EQ(missing.output, "added 0, overwritten 0, skipped 0, failed 1\n");
  EXPECT_TRUE(missing.errors.contains("読み込みオープンに失敗しました(3)"));
}

TEST_F(CommandsTest, ADryRunForetellsWhatTheRunDoes) {
  WriteTarget();
  Write(u"s.eld"_s, Joined({MakeObject(u"5P"_s, 1), MakeObject(u"5p"_s, 1), MakeObject(u"2P"_s, 1),
                            MakeObject(u"2P"_s, 3)}));
  for (const QStringList& options :
       {QStringList(), {u"--duplicate=overwrite"_s}, {u"--update"_s}}) {
    WriteTarget();
    const QStringList words = QStringList{u"import"_s, u"s.eld"_s, u"t.eld"_s} + options;
    const QByteArray foretold = Output(words + QStringList{u"--dry-run"_s});
    EXPECT_EQ(foretold.sliced(foretold.lastIndexOf('\n', -2) + 1), Output(words));
  }
}

TEST_F(CommandsTest, DeletesWhatIsThere) {
  WriteTarget();
  const Outcome outcome = Run({u"delete"_s, u"t.eld"_s, u"9P"_s, u"1p"_s});
  EXPECT_EQ(outcome.exitCode, 1);
  EXPECT_EQ(outcome.output, "deleted 1\n");
  EXPECT_EQ(outcome.errors, "vyn-eld: t.eld: no object 9P\n");
  EXPECT_EQ(Read(u"t.eld"_s), Joined({MakeObject(u"2P"_s, 2)}));
}

TEST_F(CommandsTest, ConvertsLineByLine) {
  const Outcome comets =
      Run({u"convert"_s, u"mpc-comets"_s, QStringLiteral(VYN_MPC_DIR "/comets.txt"), u"c.eld"_s});
  EXPECT_EQ(comets.exitCode, 1);
  EXPECT_EQ(comets.output, "converted 12, refused 1\n");
  EXPECT_TRUE(comets.errors.endsWith("comets.txt:11:15: perihelion year is not a number\n"));
  QFile planets(QStringLiteral(VYN_MPC_DIR "/mpcorb.txt"));
  ASSERT_TRUE(planets.open(QIODevice::ReadOnly));
  // Blocks end in the middle of lines, and the last line has no end.
  QByteArray input = planets.readAll();
  const QByteArray section = input.sliced(input.lastIndexOf("\n\n") + 2);
  for (int i = 0; i < 6000; ++i) input += section;
  input += section.first(202) + "\n" + QByteArray(5'000'000, '7') + "\n" + section.chopped(1);
  Write(u"mpcorb.dat"_s, input);
  const Outcome large = Run({u"convert"_s, u"mpcorb"_s, u"mpcorb.dat"_s, u"m.eld"_s});
  EXPECT_EQ(large.exitCode, 1);
  EXPECT_EQ(large.output, "converted 48021, refused 1\n") << large.errors.toStdString();
  EXPECT_EQ(Read(u"m.eld"_s).size(), 48021 * kElementRecordSize);
  EXPECT_EQ(large.errors, "vyn-eld: mpcorb.dat:48061:9: absolute magnitude is out of range\n");
  const Outcome same = Run({u"convert"_s, u"mpcorb"_s, u"m.eld"_s, u"m.eld"_s});
  EXPECT_EQ(same.errors, "vyn-eld: m.eld: is the input itself\n");
  EXPECT_EQ(Files(), (QStringList{u"c.eld"_s, u"m.eld"_s, u"mpcorb.dat"_s}));
}

TEST_F(CommandsTest, WrongUseIsToldAndReturnsTwo) {
  const QStringList wrong[] = {{},
                               {u"frob"_s},
                               {u"count"_s},
                               {u"list"_s, u"a"_s, u"b"_s},
                               {u"count"_s, u"a"_s, u"--frob"_s},
                               {u"import"_s, u"a"_s, u"b"_s, u"--duplicate"_s, u"ask"_s},
                               {u"import"_s, u"a"_s, u"b"_s, u"--kind"_s},
                               {u"count"_s, u"a"_s, u"--json=1"_s},
                               {u"convert"_s, u"jpl"_s, u"a"_s, u"b"_s}};
  for (const QStringList& words : wrong) {
    const Outcome outcome = Run(words);
    EXPECT_EQ(outcome.exitCode, 2) << words.join(u' ').toStdString();
    EXPECT_EQ(outcome.output, "");
    EXPECT_TRUE(outcome.errors.startsWith("vyn-eld: "));
  }
  EXPECT_TRUE(Output({u"help"_s}).contains("vyn-eld convert mpc-comets|mpcorb INPUT OUTPUT"));
  EXPECT_TRUE(Output({u"import"_s, u"--help"_s}).contains("--dry-run"));
}

}  // namespace
}  // namespace vyn
