#include "elements/data_pointers.h"

#include <QList>

namespace vyn {
namespace {

QStringView WithoutLeadingBlanks(QStringView text) {
  while (text.startsWith(u' ')) text = text.sliced(1);
  return text;
}

std::optional<std::int64_t> ReadCount(QStringView item) {
  qsizetype length = 0;
  while (length < item.size() && item[length] >= u'0' && item[length] <= u'9') ++length;
  bool isNumber = false;
  const std::int64_t count = item.first(length).toLongLong(&isNumber);
  return isNumber ? std::optional(count) : std::nullopt;
}

std::optional<std::uintptr_t> ReadAddress(QStringView item) {
  if (item.size() < 3) return std::nullopt;
  bool isNumber = false;
  const std::uintptr_t address = item.trimmed().toULongLong(&isNumber, 16);
  return isNumber && address != 0 ? std::optional(address) : std::nullopt;
}

}  // namespace

bool ElementDataPointers::Has(int object) const {
  return object >= 0 && object < objectCount && RecordCountOf(object) > 0 &&
         FirstRecordOf(object) + RecordCountOf(object) <= recordCount;
}

std::int64_t ElementDataPointers::RecordCountOf(int object) const {
  const std::int64_t end = object + 1 < objectCount ? firstRecords[object + 1] : recordCount;
  return end - firstRecords[object];
}

std::optional<ElementDataPointers> ReadDataPointers(QStringView reply) {
  const QList<QStringView> items = WithoutLeadingBlanks(reply).split(u',');
  if (items.size() != 4) return std::nullopt;
  const auto recordCount = ReadCount(items[0]);
  const auto records = ReadAddress(WithoutLeadingBlanks(items[1]));
  const auto objectCount = ReadCount(WithoutLeadingBlanks(items[2]));
  const auto firstRecords = ReadAddress(WithoutLeadingBlanks(items[3]));
  if (!recordCount || !records || !objectCount || !firstRecords) return std::nullopt;
  // NOLINTBEGIN(performance-no-int-to-ptr): the engine tells its addresses as text.
  return ElementDataPointers{*recordCount, reinterpret_cast<const char*>(*records), *objectCount,
                             reinterpret_cast<const std::uint32_t*>(*firstRecords)};
  // NOLINTEND(performance-no-int-to-ptr)
}

}  // namespace vyn
