// Any bytes as a record: the padding reader and every reader of fields.
#include "elements/code_page_932.h"
#include "elements/element_record.h"
#include "tests/fuzz/fuzz_input.h"
#include "tools/vyn-eld/record_check.h"

using namespace vyn;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const PaddedRecord record = ReadPaddedRecord(bytes);
  VYN_MUST((record.failedStep == 0) == (record.consumed > 0));
  VYN_MUST(record.consumed <= static_cast<int>(size));
  if (record.failedStep == 0) VYN_MUST(record.View().ends_with("\r\n"));
  for (const std::string_view view : {bytes, record.View()}) {
    for (const RecordField& field : kRecordFields) {
      FieldText(view, field.field);
      if (field.IsNumber()) ReadNumber(view, field.field);
    }
    ReadDate(view, kPerihelionDate);
    IdentifierOf(view);
  }
  eld::DefectsOf(record.View());
  const DecodedText text = DecodeCodePage932(bytes);
  if (text.valid) {
    const QByteArray back = EncodeCodePage932(text.text);
    VYN_MUST(DecodeCodePage932({back.data(), std::size_t(back.size())}).text == text.text);
  }
  return 0;
}
