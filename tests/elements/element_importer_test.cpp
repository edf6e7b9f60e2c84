// Importing and updating objects: every way a decision can go, its flags and what is then in the
// file.
#include "elements/element_importer.h"

#include <functional>

#include <QDir>

#include "resources/string_table.h"
#include "tests/elements/element_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// Gives prepared answers and writes down what it was asked.
class PreparedDecisions final : public ImportDecisions {
 public:
  explicit PreparedDecisions(std::vector<Answer> answers) : answers_(std::move(answers)) {}

  Answer AskBlankIdentifier(const QString& name) override {
    log += u"blank "_s + name + u'\n';
    return Next();
  }
  Answer AskDuplicate(ImportMode mode, const QString& identifier, const QString& name) override {
    log += (mode == ImportMode::Import ? u"duplicate "_s : u"edited "_s) + identifier + u' ' +
           name + u'\n';
    return Next();
  }
  int ShowInformation(const QString& text) override {
    log += text + u'\n';
    return 1;
  }
  void ShowPlain(const QString& text) override { log += u"plain ["_s + text.left(1) + u"]\n"_s; }

  QString log;
  std::function<void()> onQuestion;

 private:
  Answer Next() {
    if (onQuestion) onQuestion();
    return TakeFirst(answers_);
  }

  std::vector<Answer> answers_;
};

class ElementImporterTest : public ElementCase {
 protected:
  int Run(const QByteArray& source, const QByteArray& target, ImportMode mode, int flags,
          std::vector<ImportDecisions::Answer> answers = {}, int object = 0) {
    const QString sourcePath = Write(u"source.eld"_s, source);
    PreparedDecisions decisions(std::move(answers));
    ElementImporter importer(Write(u"target.eld"_s, target), decisions);
    flags_ = flags;
    const int result = importer.DoImportElement(sourcePath, object, &flags_, mode);
    log_ = decisions.log;
    error_ = importer.ErrorText();
    EXPECT_EQ(Files(), (QStringList{u"source.eld"_s, u"target.eld"_s}));
    return result;
  }

  QByteArray Target() const { return Read(u"target.eld"_s); }

  int flags_ = 0;
  QString log_;
  QString error_;
};

QByteArray WithIdentifierBytes(const QByteArray& record, const QByteArray& bytes) {
  return QByteArray(record).replace(188, bytes.size(), bytes);
}

const QByteArray& Edited() {
  static const QByteArray record = MakeRecord('C', u"2P"_s, u"手製"_s).replace(414, 1, "*");
  return record;
}

TEST_F(ElementImporterTest, DecidesByIdentifierModeAndEditedMark) {
  const QByteArray fresh = MakeRecord('C', u"2p"_s, u"新"_s);
  const QByteArray old = MakeRecord('C', u"2P"_s, u"旧"_s);
  const QByteArray other = MakeRecord('C', u"1P"_s);
  using enum ImportMode;
  EXPECT_EQ(Run(fresh, other, Import, 0), 1);
  EXPECT_EQ(Target(), other + fresh);
  EXPECT_EQ(Run(fresh, other, Update, 0), 1) << "an update adds what is not there";
  EXPECT_EQ(Target(), other + fresh);
  EXPECT_EQ(Run(fresh, other + old, Update, 0), 1);
  EXPECT_EQ(Target(), other + fresh);
  EXPECT_EQ(log_, u""_s);
  EXPECT_EQ(Run(fresh, other + old, Import, 0, {{0}}), -1);
  EXPECT_EQ(log_, u"duplicate 2p 新\n"_s);
  EXPECT_EQ(Run(fresh, other + Edited(), Update, 0, {{0}}), -1);
  EXPECT_EQ(log_, u"edited 2p 新\n"_s);
  EXPECT_EQ(Target(), other + Edited());
}

TEST_F(ElementImporterTest, EveryAnswerAboutADuplicateDoesWhatItSays) {
  const QByteArray fresh = MakeRecord('C', u"2p"_s, u"新"_s);
  const QByteArray& old = Edited();
  const QByteArray renamed = WithIdentifierBytes(fresh, QByteArray("3P\0            ", 15));
  struct Case {
    int flags;
    std::vector<ImportDecisions::Answer> answers;
    int result;
    int flagsAfter;
    QByteArray target;
  };
  const Case cases[] = {
      {0, {{0}}, -1, 0x001, old},
      {0, {{1}}, -1, 0x008, old},
      {0, {{2}}, 0, 0x002, fresh},
      {0, {{3}}, 0, 0x012, fresh},
      {0, {{4, u" 3P "_s}}, 1, 0x404, old + renamed},
      {0, {{4, u" "_s}, {4, u"2p"_s}, {0}}, -1, 0x005, old},
      {0x008, {}, -1, 0x008, old},
      {0x010, {}, 0, 0x010, fresh},
      {0x018, {}, 0, 0x018, fresh},
  };
  for (const ImportMode mode : {ImportMode::Import, ImportMode::Update}) {
    for (const Case& row : cases) {
      EXPECT_EQ(Run(fresh, old, mode, row.flags, row.answers), row.result);
      EXPECT_EQ(flags_, row.flagsAfter);
      EXPECT_EQ(Target(), row.target) << row.flagsAfter;
    }
  }
  Run(fresh, old, ImportMode::Import, 0, {{4, u" "_s}, {4, u"2p"_s}, {0}});
  EXPECT_EQ(log_,
            u"duplicate 2p 新\n認識符号を入力してください。\n"
            u"duplicate 2p 新\nこの認識符号はすでに使用されています。\n"
            u"duplicate 2p 新\n"_s);
}

TEST_F(ElementImporterTest, EveryAnswerAboutABlankIdentifierDoesWhatItSays) {
  const QByteArray fresh = MakeRecord('C', {}, u"新"_s);
  const QByteArray old = MakeRecord('C', u"2P"_s);
  // What stood behind the NUL stays there.
  const QByteArray junk = WithIdentifierBytes(fresh, QByteArray(" \0abcdefgh", 10));
  struct Case {
    QByteArray source;
    int flags;
    std::vector<ImportDecisions::Answer> answers;
    int result;
    int flagsAfter;
    QByteArray target;
  };
  const Case cases[] = {
      {fresh, 0, {{0}}, -1, 0x100, old},
      {fresh, 0, {{1}}, -1, 0x200, old},
      {fresh, 0x200, {}, -1, 0x200, old},
      {fresh,
       0,
       {{2, u" "_s}, {2, u" 3P"_s}},
       1,
       0x400,
       old + WithIdentifierBytes(fresh, QByteArray("3P\0", 3))},
      {fresh,
       0,
       {{2, u"123456789012345"_s}},
       1,
       0x400,
       old + WithIdentifierBytes(fresh, "123456789012345")},
      {junk,
       0,
       {{2, u"3P"_s}},
       1,
       0x400,
       old + WithIdentifierBytes(fresh, QByteArray("3P\0bcdefgh", 10))},
      // The object is not written, and the question not put again.
      {fresh, 0, {{2, u"2p"_s}}, 1, 0, old},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(Run(row.source, old, ImportMode::Import, row.flags, row.answers), row.result);
    EXPECT_EQ(flags_, row.flagsAfter);
    EXPECT_EQ(Target(), row.target) << row.flagsAfter;
  }
  EXPECT_EQ(log_, u"blank 新\nこの認識符号はすでに使用されています。\n"_s);
}

TEST_F(ElementImporterTest, ObjectsGoWithAllTheirPagesAndNewIdentifiersIntoEach) {
  const QByteArray source = Joined({MakeObject(u"a"_s, 1), MakeObject(u"b"_s, 3)});
  const QByteArray target = Joined({MakeObject(u"b"_s, 1, u"旧"_s), MakeObject(u"c"_s, 2)});
  EXPECT_EQ(Run(source, target, ImportMode::Update, 0, {}, 1), 0);
  EXPECT_EQ(Target(), Joined({MakeObject(u"b"_s, 3), MakeObject(u"c"_s, 2)}));
  EXPECT_EQ(Run(source, target, ImportMode::Import, 0, {{4, u"123456789012345"_s}}, 1), 2);
  EXPECT_EQ(Target(), target + Joined({MakeObject(u"123456789012345"_s, 3)}));
}

TEST_F(ElementImporterTest, LinesThatEndEarlyAreFilledUp) {
  const QByteArray whole = MakeRecord('C', u"2P"_s, u"名"_s);
  const QByteArray named = WithIdentifierBytes(MakeRecord('C', {}), QByteArray("x\0", 2));
  struct Case {
    int content;
    QByteArray padded;
  };
  const Case cases[] = {{187, named}, {203, MakeRecord('C', u"2P"_s)}, {254, whole}};
  for (const Case& row : cases) {
    const QByteArray source = whole.left(row.content) + "\r\n" + MakeRecord('C', u"3P"_s);
    EXPECT_EQ(Run(source, {}, ImportMode::Import, 0, {{2, u"x"_s}}), 0);
    EXPECT_EQ(Target(), row.padded) << row.content;
    EXPECT_EQ(Run(source, {}, ImportMode::Import, 0, {}, 1), 0);
    EXPECT_EQ(Target(), MakeRecord('C', u"3P"_s));
  }
}

/// One word of flags goes through a whole run: what was said of all later ones is not asked again,
/// and what was said of one does not hold for the next.
TEST_F(ElementImporterTest, DecisionsHoldForTheRestOfARun) {
  const QByteArray target = Joined({MakeObject(u"a"_s, 1, u"旧"_s), MakeObject(u"b"_s, 2, u"旧"_s),
                                    MakeObject(u"c"_s, 1, u"旧"_s)});
  const std::vector<ElementRecords> objects = {MakeObject(u"A"_s, 2), MakeObject({}, 1),
                                               MakeObject(u"d"_s, 1), MakeObject({}, 2),
                                               MakeObject(u"B"_s, 1), MakeObject(u"D"_s, 3)};
  const QString source = Write(u"source.eld"_s, Joined(objects));
  struct Case {
    std::vector<ImportDecisions::Answer> answers;
    std::vector<int> results;
    int flags;
    QByteArray target;
  };
  const Case cases[] = {
      {{{1}, {1}}, {-1, -1, 3, -1, -1, -1}, 0x208, target + objects[2][0]},
      {{{3}, {1}},
       {0, -1, 3, -1, 1, 3},
       0x212,
       Joined({objects[0], objects[4], MakeObject(u"c"_s, 1, u"旧"_s), objects[5]})},
      {{{0}, {0}, {1}, {0}, {2}}, {-1, -1, 3, -1, -1, 3}, 0x303, target + Joined({objects[5]})},
      {{{2}, {2, u"c"_s}, {0}, {3}},
       {0, 1, 3, -1, 1, 3},
       0x112,
       Joined({objects[0], objects[4], MakeObject(u"c"_s, 1, u"旧"_s), objects[5]})},
  };
  for (const Case& row : cases) {
    const QString path = Write(u"target.eld"_s, target);
    PreparedDecisions decisions(row.answers);
    int flags = 0;
    for (int object = 0; object < 6; ++object) {
      ElementImporter importer(path, decisions);
      EXPECT_EQ(importer.DoImportElement(source, object, &flags, ImportMode::Import),
                row.results[object])
          << decisions.log.toStdString();
    }
    EXPECT_EQ(flags, row.flags);
    EXPECT_EQ(Target(), row.target) << row.flags;
  }
}

TEST_F(ElementImporterTest, AnObjectEndsAtTheFirstOtherRecord) {
  const QByteArray first = MakeRecord('C', u"2P"_s, u"名"_s);
  const QByteArray page = MakeRecord('+', u"2P"_s);
  struct Case {
    const char* name;
    QByteArray source;
    QByteArray target;
  };
  const Case cases[] = {
      {"pages that end early", first.left(254) + "\r\n" + page.left(203) + "\r\n" + page,
       first + page + page},
      {"a placeholder", first + MakeRecord('N', {}) + page, first},
      {"a last line without its end", first + page.left(415), first},
      {"a line of another length", first + page.left(300) + "\r\n", first},
      {"pages before the object", page + first, first},
      {"a minor planet", first + MakeRecord('M', u"3"_s), first},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(Run(row.source, {}, ImportMode::Import, 0), 0) << row.name;
    EXPECT_EQ(Target(), row.target) << row.name;
    EXPECT_EQ(error_ + log_, QString()) << row.name;
  }
}

TEST_F(ElementImporterTest, ANameThatIsCutWithinACharacterIsAskedWithoutIt) {
  QByteArray record = MakeRecord('C', u"2P"_s, u"星"_s.repeated(29) + u'x');
  record[311] = '\x90';
  Run(record, Edited(), ImportMode::Import, 0, {{0}});
  EXPECT_EQ(log_, QString(u"duplicate 2P "_s + u"星"_s.repeated(29) + u"x\n"_s));
  QByteArray nameless = record;
  nameless.replace(188, 2, "  ");
  Run(nameless, Edited(), ImportMode::Update, 0, {{0}});
  EXPECT_EQ(log_, QString(u"blank "_s + u"星"_s.repeated(29) + u"x\n"_s));
}

/// What is wrong with the target is told, and the target stays as it was.
TEST_F(ElementImporterTest, FailuresOfTheTargetAreToldByTheirNumbers) {
  const QByteArray fresh = MakeRecord('C', u"2P"_s);
  const QByteArray longer = fresh + MakeRecord('+', u"2P"_s);
  const QByteArray old = MakeRecord('C', u"2P"_s, u"旧"_s);
  struct Case {
    const char* name;
    QByteArray source;
    QByteArray target;
    QString message;
  };
  const Case cases[] = {
      {"an object at no record", fresh, "junk\r\n" + old, FilledString(13456, {u"6"_s})},
      {"an object without a line end", fresh, old.left(415), LoadString(13453)},
      {"the same behind another", fresh, MakeRecord('C', u"1P"_s) + old.left(300),
       LoadString(13453)},
      {"an end within a record", MakeRecord('C', u"3P"_s), old + "tail",
       FilledString(13458, {u"0"_s})},
  };
  for (const Case& row : cases) {
    EXPECT_EQ(Run(row.source, row.target, ImportMode::Update, 0), -2) << row.name;
    EXPECT_EQ(error_.toStdString(), row.message.toStdString()) << row.name;
    EXPECT_EQ(Target(), row.target) << row.name;
  }
  for (const QString& target : {PathOf(u"none.eld"_s), PathOf({}), QString()}) {
    PreparedDecisions decisions({});
    ElementImporter importer(target, decisions);
    int flags = 0;
    const QString source = Write(u"source.eld"_s, longer);
    EXPECT_EQ(importer.DoImportElement(source, 0, &flags, ImportMode::Update), -2);
    EXPECT_EQ(importer.ErrorText(), FilledString(13461, {target}));
    EXPECT_EQ(Files(), (QStringList{u"source.eld"_s, u"target.eld"_s}));
  }
}

/// While a person thinks, others may use the file.
TEST_F(ElementImporterTest, WhatHappensToTheTargetDuringAQuestionIsSeen) {
  const QByteArray fresh = MakeRecord('C', u"2p"_s, u"新"_s);
  const QByteArray other = MakeRecord('C', u"1P"_s);
  const QString source = Write(u"source.eld"_s, fresh);
  const QString path = PathOf(u"target.eld"_s);
  struct Case {
    std::function<void()> change;
    int result;
    QByteArray target;
  };
  const Case cases[] = {
      {[&] { Write(u"target.eld"_s, other + Edited()); }, 1, other + fresh},
      {[&] { Write(u"target.eld"_s, other); }, 1, other + fresh},
      {[&] { ElementFile(path).WriteElement(-1, MakeObject(u"x"_s, 1)); }, 0,
       fresh + MakeRecord('C', u"x"_s)},
      {[&] { QFile::remove(path); }, -2, "(no file)"},
  };
  for (const Case& row : cases) {
    Write(u"target.eld"_s, Edited());
    PreparedDecisions decisions(std::vector<ImportDecisions::Answer>{{2}});
    decisions.onQuestion = row.change;
    ElementImporter importer(path, decisions);
    int flags = 0;
    EXPECT_EQ(importer.DoImportElement(source, 0, &flags, ImportMode::Import), row.result);
    EXPECT_EQ(Target(), row.target);
  }
}

TEST_F(ElementImporterTest, FailuresAreToldByTheirNumbers) {
  const QByteArray good = MakeRecord('C', u"2P"_s);
  const auto errorOf = [&](const QByteArray& source, int object = 0) {
    EXPECT_EQ(Run(source, good, ImportMode::Import, 0, {}, object), -2);
    EXPECT_EQ(Target(), good);
    return error_;
  };
  EXPECT_EQ(errorOf(good, 1), FilledString(13446, {u"1"_s, u"1"_s, PathOf(u"source.eld"_s)}));
  EXPECT_EQ(errorOf({}), FilledString(13446, {u"0"_s, u"0"_s, PathOf(u"source.eld"_s)}));
  EXPECT_EQ(errorOf("C\r\n"), LoadString(13450));
  EXPECT_EQ(errorOf(good.left(200)), LoadString(13451));
  EXPECT_EQ(errorOf(good.left(210)), LoadString(13452));
  EXPECT_EQ(errorOf(good.left(415)), LoadString(13453));
  EXPECT_EQ(errorOf(good.left(415) + "\n\n"), LoadString(13454));
  EXPECT_EQ(log_, u"plain []\n"_s);

  PreparedDecisions decisions({});
  ElementImporter importer(PathOf(u"target.eld"_s), decisions);
  int flags = 0;
  EXPECT_EQ(importer.DoImportElement(PathOf({}), 0, &flags, ImportMode::Import), -2);
  EXPECT_EQ(importer.ErrorText(), FilledString(13445, {PathOf({})})) << "a folder is no file";
}

/// The box shows the record before the malformed one, as a trace of where the reading was.
TEST_F(ElementImporterTest, AMalformedRecordBehindAnObjectEndsItWithAPlainBox) {
  const QByteArray good = MakeRecord('C', u"2P"_s);
  const QByteArray malformed = MakeRecord('+', {}).left(415) + "  ";
  EXPECT_EQ(Run(good + malformed, {}, ImportMode::Import, 0), 0);
  EXPECT_EQ(log_, u"plain [C]\n"_s);
  EXPECT_EQ(error_, u""_s);
  EXPECT_EQ(Target(), good);
}

TEST_F(ElementImporterTest, AFileCanBeImportedIntoItself) {
  const QByteArray bytes = Joined({MakeObject(u"a"_s, 2), MakeObject(u"b"_s, 1)});
  const QString path = Write(u"a.eld"_s, bytes);
  PreparedDecisions decisions({{4, u"c"_s}});
  int flags = 0;
  EXPECT_EQ(ElementImporter(path, decisions).DoImportElement(path, 1, &flags, ImportMode::Import),
            2);
  EXPECT_EQ(Read(u"a.eld"_s).size(), bytes.size() + 417);
  EXPECT_EQ(ElementImporter(path, decisions).DoImportElement(path, 0, &flags, ImportMode::Update),
            0);
}

}  // namespace
}  // namespace vyn
