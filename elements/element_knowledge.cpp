#include "elements/element_knowledge.h"

#include <algorithm>
#include <array>
#include <bit>

#include "elements/element_record.h"
#include "elements/line_scan.h"

namespace vyn {
namespace {

/// The file that is changed, the one that is imported, and one more of each kind.
using KeptFiles = std::array<std::shared_ptr<ElementKnowledge>, 4>;

/// The one used last stands first.
KeptFiles& Kept() {
  static KeptFiles kept;
  return kept;
}

void KeepFirst(const std::shared_ptr<ElementKnowledge>& knowledge) {
  KeptFiles& kept = Kept();
  const auto place = std::find(kept.begin(), kept.end() - 1, knowledge);
  *place = knowledge;
  std::rotate(kept.begin(), place, place + 1);
}

/// An import adds objects one by one; growing a large table would need it twice for a moment.
std::size_t WithRoomToGrow(std::size_t count) { return count + count / 4 + 1; }

}  // namespace

std::shared_ptr<ElementKnowledge> ElementKnowledge::Of(const DiskFile& file) {
  const std::optional<FileIdentity> identity = file.Identity();
  if (!identity) return nullptr;
  for (const auto& known : Kept()) {
    if (!known || known->identity_ != *identity) continue;
    const auto found = known;
    KeepFirst(found);
    return found;
  }
  auto knowledge = std::make_shared<ElementKnowledge>();
  knowledge->identity_ = *identity;
  if (!knowledge->ReadPositions(file)) return nullptr;
  KeepFirst(knowledge);
  return knowledge;
}

int ElementKnowledge::CountObjects(const DiskFile& file) {
  int count = 0;
  const bool isRead = ForEachLine(file, 0, [&count](std::int64_t, std::string_view line) {
    count += BeginsObject(line) ? 1 : 0;
    return true;
  });
  return isRead ? count : -1;
}

bool ElementKnowledge::ReadPositions(const DiskFile& file) {
  positions_.reserve(WithRoomToGrow(identity_.size / kElementRecordSize));
  return ForEachLine(file, 0, [this](std::int64_t position, std::string_view line) {
    if (BeginsObject(line)) positions_.push_back(position);
    return true;
  });
}

bool ElementKnowledge::ReadKeys(const DiskFile& file) {
  keys_.clear();
  keys_.reserve(WithRoomToGrow(positions_.size()));
  const bool isRead = ForEachLine(file, 0, [this](std::int64_t, std::string_view line) {
    if (BeginsObject(line)) keys_.push_back(IdentifierKey::OfLine(line));
    return true;
  });
  return isRead && keys_.size() == positions_.size();
}

std::int64_t ElementKnowledge::PositionOf(int object) const {
  return object >= 0 && object < ObjectCount() ? positions_[object] : -1;
}

int ElementKnowledge::Find(const DiskFile& file, const IdentifierKey& key) {
  if (!hasKeys_) hasKeys_ = ReadKeys(file);
  if (!hasKeys_) return -1;
  if (table_.empty()) BuildTable();
  const std::uint32_t object = table_[SlotOf(key)];
  return object == kNoObject ? -1 : static_cast<int>(object);
}

void ElementKnowledge::BuildTable() {
  // At most half full, with room for as many objects again.
  table_.assign(std::bit_ceil(std::max<std::size_t>(keys_.size() * 2, 1024)), kNoObject);
  for (std::size_t object = 0; object < keys_.size(); ++object) {
    Insert(static_cast<std::uint32_t>(object));
  }
}

void ElementKnowledge::Insert(std::uint32_t object) {
  const IdentifierKey& key = keys_[object];
  if (key.IsBlank()) return;
  std::uint32_t& slot = table_[SlotOf(key)];
  slot = std::min(slot, object);
}

/// Where the key stands, or the free place where it would.
std::size_t ElementKnowledge::SlotOf(const IdentifierKey& key) const {
  const std::size_t mask = table_.size() - 1;
  std::size_t slot = key.Hash() & mask;
  while (table_[slot] != kNoObject && keys_[table_[slot]] != key) slot = (slot + 1) & mask;
  return slot;
}

void ElementKnowledge::ObjectAdded(std::int64_t position, std::string_view firstRecord) {
  positions_.push_back(position);
  if (!hasKeys_) return;
  keys_.push_back(IdentifierKey::OfLine(firstRecord));
  if (keys_.size() * 4 > table_.size() * 3) table_.clear();
  if (!table_.empty()) Insert(static_cast<std::uint32_t>(keys_.size() - 1));
}

void ElementKnowledge::ObjectReplaced(std::int64_t from, std::int64_t to,
                                      std::string_view firstRecord) {
  const auto place = std::lower_bound(positions_.begin(), positions_.end(), from);
  if (place == positions_.end() || *place != from) return Forget();
  *place = to;
  if (!hasKeys_) return;
  IdentifierKey& key = keys_[place - positions_.begin()];
  const IdentifierKey newKey = IdentifierKey::OfLine(firstRecord);
  if (key == newKey) return;
  key = newKey;
  table_.clear();
}

void ElementKnowledge::BytesShifted(std::int64_t position, std::int64_t growth) {
  const auto begin = std::lower_bound(positions_.begin(), positions_.end(), position);
  const auto end =
      std::lower_bound(begin, positions_.end(), position - std::min<std::int64_t>(growth, 0));
  std::for_each(end, positions_.end(), [growth](std::int64_t& at) { at += growth; });
  if (begin == end) return;
  if (hasKeys_) {
    const auto keysBegin = keys_.begin() + (begin - positions_.begin());
    keys_.erase(keysBegin, keysBegin + (end - begin));
  }
  positions_.erase(begin, end);
  table_.clear();
}

void ElementKnowledge::HoldsFor(const DiskFile& file) {
  if (!isForgotten_) identity_ = file.Identity().value_or(FileIdentity{});
}

void ElementKnowledge::Forget() {
  isForgotten_ = true;
  identity_ = {};
}

}  // namespace vyn
