// What was learned about element files, kept between operations while a file is unchanged: where
// each object begins and which identifier it has. Asking an element file about one object after
// another takes one reading of the file, not one for each object.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "elements/identifier_key.h"
#include "siblings/files/disk_file.h"

namespace vyn {

/// Objects are numbered from 0 in file order. Not to be used from several threads.
class ElementKnowledge {
 public:
  enum class Wanted { Positions, PositionsAndIdentifiers };

  /// What is known of an open file: what was learned before when the file is as it was then (same
  /// file, size and time of change), else what one reading tells. `now` is how the file is now.
  /// Null when it cannot be read.
  static std::shared_ptr<ElementKnowledge> Of(const DiskFile& file, const FileIdentity& now,
                                              Wanted wanted);
  /// The same of a file that was just opened, where only positions are wanted.
  static std::shared_ptr<ElementKnowledge> Of(const DiskFile& file) {
    return Of(file, file.OpenedIdentity(), Wanted::Positions);
  }

  /// The number of objects in a file, without learning anything else; -1 when it cannot be read.
  static int CountObjects(const DiskFile& file);

  int ObjectCount() const { return static_cast<int>(positions_.size()); }
  /// Where the object's first record begins, in bytes; -1 when there is no such object.
  std::int64_t PositionOf(int object) const;
  /// The first object with this identifier, which must not be blank; -1 for none. Where identifiers
  /// were not wanted before, the first call reads those of the whole file.
  int Find(const DiskFile& file, const IdentifierKey& key);

  // The file was changed by its owner, who keeps what is known true to it. Where lines and records
  // are not the same thing, a change makes all be forgotten.

  void ObjectAdded(std::int64_t position, std::string_view firstRecord);
  /// The object that began at a position was written anew and begins at another now.
  void ObjectReplaced(std::int64_t from, std::int64_t to, std::string_view firstRecord);
  /// Bytes were taken out from a position on (`growth` is negative), or put there.
  void BytesShifted(std::int64_t position, std::int64_t growth);
  /// What is known holds for the file as it is now.
  void HoldsFor(const FileIdentity& now);
  /// Nothing is known any more.
  void Forget();
  bool IsForgotten() const { return isForgotten_; }

 private:
  static constexpr std::uint32_t kNoObject = 0xFFFFFFFF;

  bool Read(const DiskFile& file, Wanted wanted);
  bool ReadKeys(const DiskFile& file);
  void BuildTable();
  void Insert(std::uint32_t object);
  std::size_t SlotOf(const IdentifierKey& key) const;

  FileIdentity identity_;
  bool isForgotten_ = false;
  bool isRegular_ = false;  ///< every line is one record
  std::vector<std::int64_t> positions_;
  /// One for each object once identifiers have been asked for.
  std::vector<IdentifierKey> keys_;
  bool hasKeys_ = false;
  /// The objects by the hash of their keys; empty until it is needed. Of objects with the same
  /// identifier it holds the first.
  std::vector<std::uint32_t> table_;
};

}  // namespace vyn
