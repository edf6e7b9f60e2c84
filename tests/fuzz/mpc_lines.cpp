// Any line in the Minor Planet Center's formats: what is converted is a record without defect.
#include "tests/fuzz/fuzz_input.h"
#include "tools/vyn-eld/mpc_line.h"
#include "tools/vyn-eld/packed_designation.h"
#include "tools/vyn-eld/record_check.h"

using namespace vyn;
using namespace vyn::eld;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view line(reinterpret_cast<const char*>(data), size);
  for (const auto convert : {&ConvertComet, &ConvertMinorPlanet}) {
    RecordBytes record;
    const auto problem = convert(line, record);
    if (problem) VYN_MUST(problem->column > 0 && !problem->reason.empty());
    const std::string_view bytes(record.data(), record.size());
    if (!problem) VYN_MUST(DefectsOf(bytes).isEmpty() && !IdentifierOf(bytes).isEmpty());
  }
  IsSeparator(line);
  LooksLikeElements(line);
  UnpackNumber(line);
  UnpackMinorPlanet(line);
  UnpackComet(line);
  UnpackDate(line);
  return 0;
}
