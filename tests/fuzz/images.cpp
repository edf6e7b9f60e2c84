// Any bytes as an image of the kinds that are decoded here, or by a library that trusts what it
// reads: what comes out is none, or one of a size that is allowed.
#include "siblings/images/image_decoders.h"
#include "siblings/images/image_limits.h"
#include "tests/fuzz/fuzz_input.h"

using namespace vyn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray file(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  for (const auto decode : {&DecodeTga, &DecodeDds, &DecodeDib, &DecodeFits}) {
    const QImage image = decode(file);
    VYN_MUST(image.isNull() || IsImageSizeAllowed(image.size(), 4));
    if (!image.isNull())
      VYN_MUST(image.pixelColor(image.width() - 1, image.height() - 1).isValid());
  }
  return 0;
}
