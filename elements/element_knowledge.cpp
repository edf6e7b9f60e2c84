#include "elements/element_knowledge.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <bit>
#include <future>
#include <limits>
#include <numeric>
#include <thread>

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

bool IsOneRecord(std::string_view line) {
  return line.size() == kElementRecordSize && line.back() == '\n';
}

/// Where a line begins at a position or behind it: past the next line's end, but for the first.
std::int64_t NextLine(const DiskFile& file, std::int64_t position) {
  if (position == 0) return 0;
  ForEachLine(file, position, [&position](std::int64_t at, std::string_view line) {
    position = at + static_cast<std::int64_t>(line.size());
    return !line.ends_with('\n');
  });
  return position;
}

/// Reads a file with one reader for each processor, where it is large enough to be worth it.
/// `action(reader, position, line)` is called at the same time for different readers, whose parts
/// follow one another in the file; `prepare(readers)` is called before. False when the file cannot
/// be read.
template <class Prepare, class Action>
bool ForEachLineAtOnce(const DiskFile& file, std::int64_t size, Prepare prepare, Action action) {
  constexpr std::int64_t kWorthAReader = 1 << 25;
  const auto readers = std::clamp<std::int64_t>(size / kWorthAReader, 1,
                                                std::max(1u, std::thread::hardware_concurrency()));
  prepare(static_cast<std::size_t>(readers));
  std::vector<std::int64_t> begins;
  for (std::int64_t i = 0; i < readers; ++i) begins.push_back(NextLine(file, size / readers * i));
  begins.push_back(std::numeric_limits<std::int64_t>::max());
  const auto readPart = [&](std::int64_t reader) {
    return ForEachLine(file, begins[reader], [&](std::int64_t position, std::string_view line) {
      if (position >= begins[reader + 1]) return false;
      action(static_cast<std::size_t>(reader), position, line);
      return true;
    });
  };
  std::vector<std::future<bool>> parts;
  for (std::int64_t i = 1; i < readers; ++i) {
    parts.push_back(std::async(std::launch::async, readPart, i));
  }
  bool isRead = readPart(0);
  for (auto& part : parts) isRead = part.get() && isRead;
  return isRead;
}

/// Puts the parts one behind the other, with room for more.
template <class Value>
void Join(std::vector<std::vector<Value>>& parts, std::vector<Value>& whole) {
  std::size_t count = 0;
  for (const auto& part : parts) count += part.size();
  whole.clear();
  whole.reserve(WithRoomToGrow(count));
  for (auto& part : parts) {
    whole.insert(whole.end(), part.begin(), part.end());
    std::vector<Value>().swap(part);
  }
}

}  // namespace

std::shared_ptr<ElementKnowledge> ElementKnowledge::Of(const DiskFile& file,
                                                       const FileIdentity& now, Wanted wanted) {
  for (const auto& known : Kept()) {
    if (!known || known->identity_ != now) continue;
    const auto found = known;
    KeepFirst(found);
    return found;
  }
  auto knowledge = std::make_shared<ElementKnowledge>();
  knowledge->identity_ = now;
  if (!knowledge->Read(file, wanted)) return nullptr;
  KeepFirst(knowledge);
  return knowledge;
}

int ElementKnowledge::CountObjects(const DiskFile& file) {
  std::vector<int> counts;
  const bool isRead = ForEachLineAtOnce(
      file, file.OpenedIdentity().size, [&](std::size_t readers) { counts.resize(readers); },
      [&](std::size_t reader, std::int64_t, std::string_view line) {
        if (BeginsObject(line)) ++counts[reader];
      });
  return isRead ? std::accumulate(counts.begin(), counts.end(), 0) : -1;
}

bool ElementKnowledge::Read(const DiskFile& file, Wanted wanted) {
  std::vector<std::vector<std::int64_t>> positions;
  std::vector<std::vector<IdentifierKey>> keys;
  std::atomic<bool> isRegular = identity_.size % kElementRecordSize == 0;
  const bool wantsKeys = wanted == Wanted::PositionsAndIdentifiers;
  const auto prepare = [&](std::size_t readers) {
    const std::size_t expected = identity_.size / kElementRecordSize / readers + 1;
    positions.resize(readers);
    keys.resize(readers);
    for (auto& part : positions) part.reserve(expected);
    for (auto& part : keys) part.reserve(wantsKeys ? expected : 0);
  };
  const auto learn = [&](std::size_t reader, std::int64_t position, std::string_view line) {
    if (!IsOneRecord(line)) isRegular = false;
    if (!BeginsObject(line)) return;
    positions[reader].push_back(position);
    if (wantsKeys) keys[reader].push_back(IdentifierKey::OfLine(line));
  };
  if (!ForEachLineAtOnce(file, identity_.size, prepare, learn)) return false;
  Join(positions, positions_);
  if (wantsKeys) Join(keys, keys_);
  hasKeys_ = wantsKeys;
  isRegular_ = isRegular;
  return true;
}

bool ElementKnowledge::ReadKeys(const DiskFile& file) {
  ElementKnowledge fresh;
  fresh.identity_ = identity_;
  const bool isRead = fresh.Read(file, Wanted::PositionsAndIdentifiers);
  if (isRead && fresh.positions_ == positions_) keys_ = std::move(fresh.keys_);
  return keys_.size() == positions_.size();
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
  if (!isRegular_) return Forget();
  positions_.push_back(position);
  if (!hasKeys_) return;
  keys_.push_back(IdentifierKey::OfLine(firstRecord));
  if (keys_.size() * 4 > table_.size() * 3) table_.clear();
  if (!table_.empty()) Insert(static_cast<std::uint32_t>(keys_.size() - 1));
}

void ElementKnowledge::ObjectReplaced(std::int64_t from, std::int64_t to,
                                      std::string_view firstRecord) {
  const auto place = std::lower_bound(positions_.begin(), positions_.end(), from);
  if (!isRegular_ || place == positions_.end() || *place != from) return Forget();
  *place = to;
  if (!hasKeys_) return;
  IdentifierKey& key = keys_[place - positions_.begin()];
  const IdentifierKey newKey = IdentifierKey::OfLine(firstRecord);
  if (key == newKey) return;
  key = newKey;
  table_.clear();
}

void ElementKnowledge::BytesShifted(std::int64_t position, std::int64_t growth) {
  if (!isRegular_) return Forget();
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

void ElementKnowledge::HoldsFor(const FileIdentity& now) {
  if (!isForgotten_) identity_ = now;
}

void ElementKnowledge::Forget() {
  isForgotten_ = true;
  identity_ = {};
}

}  // namespace vyn
