// An element file against a plain model of it: whatever is imported, under whatever answers, added,
// written over and taken out, the file holds what the model holds, byte for byte. The model looks
// through its objects every time; the real file knows from one operation to the next.
#include <algorithm>
#include <random>

#include "elements/element_importer.h"
#include "tests/elements/element_case.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

using Answer = ImportDecisions::Answer;

QString KeyOf(const QByteArray& record) {
  return QString::fromLatin1(record.mid(188, 15).split('\0').front()).trimmed().toUpper();
}

void Rename(ElementRecords& records, const QString& identifier) {
  const QByteArray bytes = identifier.toLatin1() + '\0';
  for (QByteArray& record : records) {
    record.replace(188, 15, QByteArray(15, ' ')).replace(188, bytes.size(), bytes);
  }
}

class Model {
 public:
  int Find(const QString& key) const {
    const auto found = std::ranges::find_if(
        objects, [&](const ElementRecords& object) { return KeyOf(object.front()) == key; });
    return key.isEmpty() || found == objects.end() ? -1 : static_cast<int>(found - objects.begin());
  }

  int Write(int index, const ElementRecords& records) {
    if (index < 0) {
      objects.push_back(records);
      return static_cast<int>(objects.size()) - 1;
    }
    objects[index] = records;
    return index;
  }

  /// Does what was answered; answers that are used up are taken away.
  int Import(ElementRecords records, ImportMode mode, int& flags, std::vector<Answer>& answers) {
    const QString key = KeyOf(records.front());
    if (key.isEmpty()) return ImportBlank(std::move(records), flags, answers);
    const int found = Find(key);
    const bool mustAsk =
        found >= 0 && (mode == ImportMode::Import || objects[found].front()[414] == '*');
    return mustAsk ? ImportDuplicate(found, std::move(records), flags, answers)
                   : Write(found, records);
  }

  std::vector<ElementRecords> objects;

 private:
  int WriteRenamed(ElementRecords records, const Answer& answer, int& flags) {
    Rename(records, answer.newIdentifier);
    flags |= 0x400;
    return Write(-1, records);
  }

  int ImportBlank(ElementRecords records, int& flags, std::vector<Answer>& answers) {
    if (flags & 0x200) return -1;
    const Answer answer = TakeFirst(answers);
    if (answer.choice < 2) {
      flags |= answer.choice == 0 ? 0x100 : 0x200;
      return -1;
    }
    const bool isTaken = Find(answer.newIdentifier.toUpper()) >= 0;
    return isTaken ? 1 : WriteRenamed(std::move(records), answer, flags);
  }

  int ImportDuplicate(int found, ElementRecords records, int& flags, std::vector<Answer>& answers) {
    if (flags & 0x010) return Write(found, records);
    if (flags & 0x008) return -1;
    for (;;) {
      const Answer answer = TakeFirst(answers);
      constexpr int kFlags[] = {0x001, 0x008, 0x002, 0x012, 0x004};
      flags |= kFlags[answer.choice];
      if (answer.choice < 2) return -1;
      if (answer.choice < 4) return Write(found, records);
      const bool isTaken = Find(answer.newIdentifier.toUpper()) >= 0;
      if (!isTaken) return WriteRenamed(std::move(records), answer, flags);
    }
  }
};

class ElementFileModel : public ElementCase,
                         public ::testing::WithParamInterface<unsigned>,
                         private ImportDecisions {
 protected:
  int Any(std::size_t count) { return static_cast<int>(random_() % count); }

  /// Of few names, so that most meet again, in any casing.
  QString AnyIdentifier() {
    const QString name = u"C/%1"_s.arg(Any(25));
    return Any(2) == 0 ? name : name.toLower();
  }

  ElementRecords AnyObject(const QString& identifier) {
    ElementRecords records = MakeObject(identifier, 1 + Any(4), QString::number(Any(1000)));
    if (Any(4) == 0) records.front()[414] = '*';
    return records;
  }

  void Fill() {
    for (int i = 0; i < 10; ++i) {
      const QString identifier = AnyIdentifier();
      if (model_.Find(identifier.toUpper()) < 0) model_.objects.push_back(AnyObject(identifier));
    }
    Write(u"target.eld"_s, Joined(model_.objects));
  }

  void ImportRun() {
    std::vector<ElementRecords> source;
    for (int i = 0; i < 8; ++i) source.push_back(AnyObject(Any(6) == 0 ? u""_s : AnyIdentifier()));
    // A name of its own: a file that is written anew at once may have the old one's time.
    const QString path = Write(u"source%1.eld"_s.arg(runs_++), Joined(source));
    const ImportMode mode = Any(3) == 0 ? ImportMode::Update : ImportMode::Import;
    int flags = 0;
    int expectedFlags = 0;
    for (int i = 0; i < static_cast<int>(source.size()); ++i) {
      const int result = ElementImporter(target_, *this).DoImportElement(path, i, &flags, mode);
      EXPECT_EQ(result, model_.Import(source[i], mode, expectedFlags, answers_));
      EXPECT_EQ(flags, expectedFlags);
      EXPECT_TRUE(answers_.empty()) << "a question too many";
      answers_.clear();
    }
  }

  // A file may hold an identifier twice: what asks for it means the first.

  void Add() {
    const ElementRecords records = AnyObject(AnyIdentifier());
    EXPECT_EQ(ElementFile(target_).WriteElement(-1, records), model_.Write(-1, records));
  }

  void WriteOver() {
    if (model_.objects.empty()) return;
    const int index = Any(model_.objects.size());
    const ElementRecords records = AnyObject(AnyIdentifier());
    EXPECT_EQ(ElementFile(target_).WriteElement(index, records), model_.Write(index, records));
  }

  void TakeOut() {
    if (model_.objects.empty()) return;
    const int index = Any(model_.objects.size());
    EXPECT_TRUE(ElementFile(target_).RemoveObjects({index}));
    model_.objects.erase(model_.objects.begin() + index);
  }

  /// Nothing that was learned on the way is wrong.
  void ExpectSame() {
    EXPECT_EQ(Read(u"target.eld"_s), Joined(model_.objects));
    ElementFile file(target_);
    EXPECT_EQ(file.GetObjectCount(), static_cast<int>(model_.objects.size()));
    for (int i = 0; i < 25; ++i) {
      const QString name = u"c/%1"_s.arg(i);
      EXPECT_EQ(file.SearchObjectFileIndex(IdentifierKey::OfText(name)),
                model_.Find(name.toUpper()));
    }
  }

  const QString target_ = PathOf(u"target.eld"_s);
  Model model_;

 private:
  Answer Remember(int choices) {
    return answers_.emplace_back(Answer{Any(choices), AnyIdentifier()});
  }
  Answer AskBlankIdentifier(const QString&) override { return Remember(3); }
  Answer AskDuplicate(ImportMode, const QString&, const QString&) override { return Remember(5); }
  int ShowInformation(const QString&) override { return 1; }
  void ShowPlain(const QString&) override { ADD_FAILURE() << "a malformed record"; }

  std::mt19937 random_{GetParam()};
  std::vector<Answer> answers_;
  int runs_ = 0;
};

TEST_P(ElementFileModel, HoldsWhatWasWrittenWhateverCameBefore) {
  Fill();
  for (int step = 0; step < 40 && !HasFailure(); ++step) {
    switch (Any(5)) {
      case 0:
        Add();
        break;
      case 1:
        WriteOver();
        break;
      case 2:
        TakeOut();
        break;
      default:
        ImportRun();
    }
    ExpectSame();
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ElementFileModel, ::testing::Range(0u, 20u));

}  // namespace
}  // namespace vyn
