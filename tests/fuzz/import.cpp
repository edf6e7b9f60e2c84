// Imports from a hostile source into a hostile target, with any decisions. Afterwards what is known
// of the target is what is in it, and other objects are where they were.
#include "elements/element_importer.h"
#include "tests/fuzz/scratch_file.h"

using namespace vyn;
using namespace Qt::StringLiterals;

namespace {

/// Decides as the input says; once it is used up, everything is skipped.
class FuzzedDecisions final : public ImportDecisions {
 public:
  explicit FuzzedDecisions(fuzz::Input& input) : input_(input) {}

  Answer AskBlankIdentifier(const QString&) override { return Next(); }
  Answer AskDuplicate(ImportMode, const QString&, const QString&) override { return Next(); }
  int ShowInformation(const QString&) override { return 1; }
  void ShowPlain(const QString&) override {}

 private:
  Answer Next() {
    if (input_.IsEmpty()) return {1, {}};
    const int choice = input_.Byte() % 6;
    return {choice, QString::fromUtf8(input_.UpTo('\n'))};
  }

  fuzz::Input& input_;
};

void MustKnowTheFile(const QString& path) {
  ElementFile known(path);
  const int count = known.GetObjectCount();
  const qint64 size = fuzz::ReadScratch(u"target.eld"_s).size();
  known.ForgetKnowledge();
  VYN_MUST(known.GetObjectCount() == count);
  VYN_MUST(known.Size() == size);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::Input input(data, size);
  const ImportMode mode = input.Byte() % 2 == 0 ? ImportMode::Import : ImportMode::Update;
  const int decided = input.Byte();
  int flags = (decided & 0x18) | (decided % 2 == 0 ? 0 : import_flag::kSkipAllBlanks);
  const std::size_t sourceSize = input.Byte() * 32;
  const std::string_view sourceBytes = input.Bytes(sourceSize);
  const std::size_t targetSize = input.Byte() * 32;
  const std::string_view targetBytes = input.Bytes(targetSize);
  const QString source = fuzz::WriteScratch(u"source.eld"_s, sourceBytes);
  const QString target = fuzz::WriteScratch(u"target.eld"_s, targetBytes);
  FuzzedDecisions decisions(input);
  const bool isAligned = targetBytes.size() % 417 == 0;
  for (int object = -1; object < 8; ++object) {
    ElementImporter importer(target, decisions);
    const int result = importer.DoImportElement(source, object, &flags, mode);
    VYN_MUST(result >= -2);
    if (result == -2) VYN_MUST(!importer.ErrorText().isEmpty());
    importer.Target().Release();
    VYN_MUST(!isAligned || fuzz::ReadScratch(u"target.eld"_s).size() % 417 == 0);
    VYN_MUST(!QFile::exists(fuzz::ScratchPath(u"target.$$E"_s)));
    MustKnowTheFile(target);
  }
  return 0;
}
