// What holds of vyn-eld whatever the files: a dry run foretells the run, JSON can be parsed, what
// cannot be read or written is told, and nothing else changes.
#include <random>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>

#include "tests/print_text.h"
#include "tests/vyn_eld/vyn_eld_case.h"

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

class PropertyTest : public VynEldCase {
 protected:
  QJsonArray Json(const QStringList& words, int exitCode = 0) {
    const Outcome outcome = Run(words);
    EXPECT_EQ(outcome.exitCode, exitCode) << outcome.errors.toStdString();
    QJsonParseError error;
    const auto json = QJsonDocument::fromJson(outcome.output, &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError)
        << words.join(u' ').toStdString() << ": " << outcome.output.left(300).toStdString();
    EXPECT_TRUE(json.isArray());
    // One element a line, whatever the texts hold.
    EXPECT_EQ(outcome.output.count('\n'), json.array().size() + (json.array().isEmpty() ? 1 : 2));
    return json.array();
  }

  /// What stands in the folder, byte for byte.
  QHash<QString, QByteArray> Contents() const {
    QHash<QString, QByteArray> contents;
    for (const QString& name : Files()) contents.insert(name, Read(name));
    return contents;
  }
};

std::vector<QByteArray> RealRecords(const char* path, int first, int count) {
  QFile file(QString::fromUtf8(path));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  file.seek(qint64{first} * kElementRecordSize);
  std::vector<QByteArray> records;
  for (int i = 0; i < count; ++i) records.push_back(file.read(kElementRecordSize));
  return records;
}

/// Sources and targets out of real records: objects of several pages, doubles, other casings,
/// marks of a person's hand, missing identifiers, lines that are no records.
class Mixture {
 public:
  explicit Mixture(unsigned seed) : random_(seed) {
    for (const auto& records : {RealRecords(VYN_DATA_DIR "/comets.eld", 480, 12),
                                RealRecords(VYN_DATA_DIR "/minor_planets.eld", 0, 6)}) {
      records_.insert(records_.end(), records.begin(), records.end());
    }
  }

  QByteArray File(int objects, bool mayBeBroken) {
    QByteArray file;
    for (int i = 0; i < objects; ++i) {
      file += Object();
      if (mayBeBroken && OneIn(12)) file += "no record\r\n";
    }
    return file;
  }

 private:
  bool OneIn(unsigned chances) { return random_() % chances == 0; }

  QByteArray Object() {
    QByteArray record = records_[random_() % records_.size()];
    if (OneIn(3)) Put(record, ElementField::EditedMark, "*");
    if (OneIn(4)) Put(record, ElementField::AbsoluteMagnitude, " 9.75");
    if (OneIn(15)) Put(record, ElementField::Identifier, QByteArray(15, ' '));
    if (OneIn(6)) Lower(record);
    QByteArray object = record;
    while (OneIn(4)) object += record.replace(0, 1, "+");
    return object;
  }

  static void Put(QByteArray& record, ElementField field, const QByteArray& text) {
    record.replace(FieldOf(field).offset, text.size(), text);
  }

  static void Lower(QByteArray& record) {
    const auto& field = FieldOf(ElementField::Identifier);
    record.replace(field.offset, field.width, record.mid(field.offset, field.width).toLower());
  }

  std::mt19937 random_;
  std::vector<QByteArray> records_;
};

class DryRun : public PropertyTest, public testing::WithParamInterface<unsigned> {};

TEST_P(DryRun, ChangesNothingAndForetellsTheRun) {
  const QStringList ways[] = {{},
                              {u"--update"_s},
                              {u"--duplicate=overwrite"_s},
                              {u"--update"_s, u"--duplicate=overwrite"_s},
                              {u"--kind=comet"_s, u"--update"_s},
                              {u"--kind"_s, u"minorplanet"_s, u"--blank"_s, u"skip"_s}};
  Mixture mixture(GetParam());
  for (const QStringList& way : ways) {
    Write(u"s.eld"_s, mixture.File(14, true));
    Write(u"t.eld"_s, mixture.File(8, false));
    const QStringList words = QStringList{u"import"_s, u"s.eld"_s, u"t.eld"_s} + way;
    const auto before = Contents();
    const Outcome foretold = Run(words + QStringList{u"--dry-run"_s});
    const QJsonArray told =
        Json(words + QStringList{u"--dry-run"_s, u"--json"_s}, foretold.exitCode);
    ASSERT_EQ(Contents(), before);
    const Outcome done = Run(words);
    EXPECT_EQ(foretold.LastLine(), done.LastLine()) << foretold.output.toStdString();
    EXPECT_EQ(foretold.exitCode, done.exitCode);
    QHash<QString, int> actions;
    for (const auto& object : told) ++actions[object[u"action"].toString()];
    EXPECT_TRUE(
        done.LastLine().startsWith(u"added %1, overwritten %2, skipped "_s.arg(actions[u"add"_s])
                                       .arg(actions[u"overwrite"_s])
                                       .toUtf8()))
        << done.output.toStdString();
    EXPECT_EQ(Files(), (QStringList{u"s.eld"_s, u"t.eld"_s}));
    EXPECT_EQ(Read(u"t.eld"_s).size() % kElementRecordSize, 0);
  }
}

INSTANTIATE_TEST_SUITE_P(Mixtures, DryRun, testing::Range(1u, 9u));

TEST_F(PropertyTest, RealFilesGoThroughImportAndDeleteUnchanged) {
  for (const char* path : {VYN_DATA_DIR "/comets.eld", VYN_DATA_DIR "/minor_planets.eld"}) {
    const QString source = QString::fromUtf8(path);
    Write(u"t.eld"_s, {});
    const int count = Json({u"count"_s, source, u"--json"_s}).first()[u"objects"].toInt();
    EXPECT_EQ(Run({u"import"_s, source, u"t.eld"_s}).output,
              "added " + QByteArray::number(count) + ", overwritten 0, skipped 0, failed 0\n");
    QFile file(source);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray all = file.readAll();
    EXPECT_TRUE(Read(u"t.eld"_s) == all);
    EXPECT_EQ(Run({u"import"_s, source, u"t.eld"_s, u"--update"_s, u"--dry-run"_s})
                  .output.count("no difference"),
              count);
    QStringList identifiers;
    for (const auto& object : Json({u"list"_s, u"t.eld"_s, u"--json"_s})) {
      identifiers += object[u"identifier"].toString();
    }
    EXPECT_EQ(identifiers.size(), count);
    const QStringList deleted = identifiers.first(count / 2);
    EXPECT_EQ(Run(QStringList{u"delete"_s, u"t.eld"_s, u"--"_s} + deleted).output,
              "deleted " + QByteArray::number(deleted.size()) + '\n');
    EXPECT_EQ(Run({u"count"_s, u"t.eld"_s}).output,
              QByteArray::number(count - deleted.size()) + '\n');
    EXPECT_TRUE(all.endsWith(Read(u"t.eld"_s)));
  }
}

TEST_F(PropertyTest, JsonHoldsAnyText) {
  // A file may hold what no program writes.
  const QString awkward = u"\"\\\x1F\t'日本ー"_s;
  Write(u"t.eld"_s,
        Joined({MakeObject(u"1P"_s, 2, u"\"\\00'日本ー"_s), MakeObject(u"\"2\"\\"_s, 1)}) +
            MakeRecord('C', u"1P"_s));
  Write(u"t.eld"_s, Read(u"t.eld"_s).replace("\\00'", "\\\x1F\t'"));
  Write(u"s.eld"_s, Joined({MakeObject(u"1p"_s, 1, u"\"'\\"_s)}));
  const QString file = u"t.eld"_s;
  EXPECT_EQ(Json({u"count"_s, file, file, u"--json"_s}).size(), 2);
  EXPECT_EQ(Json({u"list"_s, file, u"--json"_s})[0][u"Japanese name"].toString(), awkward);
  EXPECT_EQ(Json({u"show"_s, file, u"\"2\"\\"_s, u"--json"_s})[0][u"identifier"].toString(),
            u"\"2\"\\");
  EXPECT_EQ(Json({u"show"_s, u"--json"_s, file, u"1p"_s}).size(), 2);
  EXPECT_GT(Json({u"check"_s, file, u"--json"_s}, 1).size(), 0);
  const QJsonArray foretold =
      Json({u"import"_s, u"s.eld"_s, file, u"--update"_s, u"--dry-run"_s, u"--json"_s});
  EXPECT_EQ(foretold[0][u"action"].toString(), u"overwrite"_s);
  const QJsonArray done = Json({u"import"_s, u"s.eld"_s, file, u"--update"_s, u"--json"_s});
  ASSERT_EQ(done.size(), 1);
  EXPECT_EQ(done[0][u"overwritten"].toInt(), 1);
  EXPECT_EQ(done[0][u"added"].toInt(-1) + done[0][u"skipped"].toInt(-1), 0);
  EXPECT_EQ(done[0][u"failed"].toInt(-1), 0);
  EXPECT_EQ(Json({u"count"_s, u"--json"_s, u"no.eld"_s}, 1).size(), 0);
}

TEST_F(PropertyTest, ADryRunForetellsThatTheTargetCannotBeWritten) {
  Write(u"s.eld"_s, MakeRecord('C', {}) + Joined({MakeObject(u"1P"_s, 1), MakeObject(u"2P"_s, 1)}));
  QDir(QFileInfo(PathOf(u"x"_s)).path()).mkdir(u"folder"_s);
  for (const QString& target : {u"no.eld"_s, u"no/folder.eld"_s, u"folder"_s}) {
    const QStringList words{u"import"_s, u"s.eld"_s, target};
    const Outcome foretold = Run(words + QStringList{u"--dry-run"_s});
    const Outcome done = Run(words);
    EXPECT_EQ(done.LastLine(), "added 0, overwritten 0, skipped 1, failed 1\n");
    EXPECT_EQ(foretold.LastLine(), done.LastLine()) << foretold.output.toStdString();
    EXPECT_EQ(foretold.exitCode, 1);
    EXPECT_EQ(Files(), QStringList{u"s.eld"_s});
  }
}

TEST_F(PropertyTest, AnObjectNamedTwiceIsDeletedOnce) {
  Write(u"t.eld"_s, Joined({MakeObject(u"1P"_s, 1), MakeObject(u"2P"_s, 2)}));
  const Outcome outcome = Run({u"delete"_s, u"t.eld"_s, u"2P"_s, u" 2p "_s, u"2P"_s});
  EXPECT_EQ(outcome.output, "deleted 1\n");
  EXPECT_EQ(Read(u"t.eld"_s), Joined({MakeObject(u"1P"_s, 1)}));
}

TEST_F(PropertyTest, WordsBehindTwoDashesAreNames) {
  Write(u"--help"_s, Joined({MakeObject(u"--json"_s, 1)}));
  EXPECT_EQ(Run({u"count"_s, u"--"_s, u"--help"_s}).output, "1\n");
  EXPECT_EQ(Run({u"delete"_s, u"--"_s, u"--help"_s, u"--json"_s}).output, "deleted 1\n");
  EXPECT_EQ(Run({u"list"_s, u"--find"_s, u"--json"_s, u"--"_s, u"--help"_s}).exitCode, 1);
  EXPECT_TRUE(Run({u"count"_s, u"--help"_s}).output.startsWith("usage:"));
}

TEST_F(PropertyTest, ConvertNeverWritesOverItsInput) {
  const QByteArray input = "C/1995 O1 lines\r\n";
  for (const auto& [from, to] :
       {std::pair(u"a.eld.part"_s, u"a.eld"_s), std::pair(u"a.eld"_s, u"a.eld"_s),
        std::pair(u"a.eld"_s, u"./a.eld"_s)}) {
    Write(from, input);
    const Outcome outcome = Run({u"convert"_s, u"mpc-comets"_s, from, to});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_TRUE(outcome.errors.endsWith(": is the input itself\n")) << outcome.errors.toStdString();
    EXPECT_EQ(Read(from), input);
    EXPECT_EQ(Files(), QStringList{from});
    QFile::remove(PathOf(from));
  }
}

#ifdef Q_OS_UNIX
TEST_F(PropertyTest, WhatIsNoFileIsNeitherReadNorWaitedFor) {
  Write(u"t.eld"_s, Joined({MakeObject(u"1P"_s, 1)}));
  const auto before = Contents();
  const QString pipe = PathOf(u"pipe"_s);
  ASSERT_EQ(::mkfifo(pipe.toUtf8().constData(), 0600), 0);
  for (const QString& what : {pipe, u"."_s, u"/dev/null"_s, u""_s, u"no.eld"_s}) {
    const QStringList calls[] = {{u"count"_s, what},
                                 {u"list"_s, what},
                                 {u"show"_s, what, u"1P"_s},
                                 {u"check"_s, what},
                                 {u"check"_s, what, u"--json"_s},
                                 {u"import"_s, what, u"t.eld"_s},
                                 {u"import"_s, u"t.eld"_s, what},
                                 {u"delete"_s, what, u"1P"_s},
                                 {u"convert"_s, u"mpcorb"_s, what, u"o.eld"_s}};
    for (const QStringList& call : calls) {
      const Outcome outcome = Run(call);
      EXPECT_EQ(outcome.exitCode, 1) << call.join(u' ').toStdString();
      EXPECT_TRUE(outcome.errors.startsWith("vyn-eld: ")) << call.join(u' ').toStdString();
      EXPECT_FALSE(outcome.errors.contains('\r'));
    }
  }
  QFile::remove(pipe);
  EXPECT_EQ(Contents(), before);
}

TEST_F(PropertyTest, AFullDiskBehindTheOutputIsNoSuccess) {
  if (!QFile::exists(u"/dev/full"_s)) GTEST_SKIP();
  const QString comets = QStringLiteral(VYN_DATA_DIR "/comets.eld");
  for (const QStringList& call : {QStringList{u"count"_s, comets},
                                  {u"list"_s, comets},
                                  {u"list"_s, comets, u"--json"_s},
                                  {u"show"_s, comets, u"1P"_s},
                                  {u"check"_s, comets},
                                  {u"help"_s}}) {
    EXPECT_EQ(Run(call, u"/dev/full"_s).exitCode, 1) << call.join(u' ').toStdString();
  }
}
#endif

TEST_F(PropertyTest, NoBarIsDrawnWhereErrorsAreKept) {
  Write(u"t.eld"_s, {});
  const QString comets = QStringLiteral(VYN_DATA_DIR "/comets.eld");
  for (const QStringList& call :
       {QStringList{u"check"_s, comets}, {u"import"_s, comets, u"t.eld"_s}}) {
    EXPECT_EQ(Run(call).errors, "");
  }
}

TEST_F(PropertyTest, OddCommandLinesAreTold) {
  const QStringList wrong[] = {{u""_s},
                               {u"COUNT"_s, u"a"_s},
                               {u"--json"_s, u"count"_s, u"a"_s},
                               {u"count"_s, u"--json"_s},
                               {u"count"_s, u"--"_s},
                               {u"count"_s, u"a"_s, u"--=x"_s},
                               {u"list"_s, u"a"_s, u"--find"_s},
                               {u"list"_s, u"a"_s, u"--json="_s},
                               {u"show"_s, u"a"_s},
                               {u"show"_s, u"a"_s, u"b"_s, u"c"_s},
                               {u"import"_s, u"a"_s, u"b"_s, u"--kind=Comet"_s},
                               {u"import"_s, u"a"_s, u"b"_s, u"--kind=comet|minorplanet"_s},
                               {u"import"_s, u"a"_s, u"b"_s, u"--duplicate="_s},
                               {u"import"_s, u"a"_s, u"b"_s, u"--dry-run=yes"_s},
                               {u"delete"_s, u"a"_s},
                               {u"delete"_s, u"a"_s, u"b"_s, u"--json"_s},
                               {u"convert"_s, u"MPCORB"_s, u"a"_s, u"b"_s},
                               {u"help"_s, u"frob"_s}};
  for (const QStringList& words : wrong) {
    EXPECT_EQ(Run(words).exitCode, 2) << words.join(u' ').toStdString();
  }
  EXPECT_TRUE(Files().isEmpty());
}

}  // namespace
}  // namespace vyn
