// Any bytes as an element file: what is learned of it is what reading it line by line tells.
#include "elements/element_file.h"
#include "elements/element_record.h"
#include "elements/line_scan.h"
#include "tests/fuzz/scratch_file.h"
#include "tools/vyn-eld/record_check.h"

using namespace vyn;
using namespace Qt::StringLiterals;

namespace {

struct Object {
  std::int64_t position;
  IdentifierKey key;
};

/// As plainly as it can be said.
std::vector<Object> ObjectsOf(std::string_view bytes) {
  std::vector<Object> objects;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::string_view rest = bytes.substr(at, kLongestLine);
    const std::string_view line = rest.substr(0, std::min(rest.find('\n'), rest.size() - 1) + 1);
    if (line[0] == 'C' || line[0] == 'M') {
      objects.push_back({static_cast<std::int64_t>(at), IdentifierKey::OfLine(line)});
    }
    at += line.size();
  }
  return objects;
}

void CheckFinding(ElementFile& file, const std::vector<Object>& objects) {
  for (std::size_t i = 0; i < objects.size(); ++i) {
    VYN_MUST(file.GetFileSeekPosByNumber(static_cast<int>(i)) == objects[i].position);
    const int found = file.SearchObjectFileIndex(objects[i].key);
    VYN_MUST(objects[i].key.IsBlank() ? found == -1 : found <= static_cast<int>(i));
    if (found >= 0) VYN_MUST(objects[found].key == objects[i].key);
    file.CountElementRecords(objects[i].position);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::vector<Object> objects = ObjectsOf(bytes);
  const QString path = fuzz::WriteScratch(u"scan.eld"_s, bytes);
  DiskFile plain;
  VYN_MUST(plain.Open(path, DiskFile::Mode::Read));
  VYN_MUST(ElementKnowledge::CountObjects(plain) == static_cast<int>(objects.size()));
  ElementFile file(path);
  VYN_MUST(file.GetObjectCount() == static_cast<int>(objects.size()));
  CheckFinding(file, objects);
  const auto result = eld::CheckRecords(
      plain, [](const auto&) {}, [](std::int64_t) {});
  VYN_MUST(result.has_value());
  return 0;
}
