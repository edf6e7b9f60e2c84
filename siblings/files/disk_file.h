// A file that is read and written at positions, locked against other processes and brought to the
// disk: what changing a file safely needs and Qt's own file does not give.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <utility>

#include <QString>

namespace vyn {

/// What tells a file from another one, and from itself after a change.
struct FileIdentity {
  std::uint64_t device = 0;
  std::uint64_t number = 0;  ///< of the file on its device
  std::int64_t size = 0;     ///< bytes
  std::int64_t changedNs = 0;

  bool operator==(const FileIdentity&) const = default;
  bool IsSameFile(const FileIdentity& other) const {
    return device == other.device && number == other.number;
  }
};

/// An open file; nothing but a regular file can be opened. Operations return false or -1 when the
/// system refuses them.
class DiskFile {
 public:
  enum class Mode {
    Read,
    Change,  ///< reading and writing; the file must exist
    Create,  ///< the same; it is made if there is none, and keeps what it holds
  };

  DiskFile() = default;
  ~DiskFile() { Close(); }
  DiskFile(DiskFile&& other) noexcept
      : handle_(std::exchange(other.handle_, kClosed)), opened_(other.opened_) {}
  DiskFile& operator=(DiskFile&& other) noexcept {
    std::swap(handle_, other.handle_);
    std::swap(opened_, other.opened_);
    return *this;
  }

  bool Open(const QString& path, Mode mode);
  void Close();
  bool IsOpen() const { return handle_ != kClosed; }

  /// Reads up to `size` bytes; fewer only at the file's end. Returns their number.
  std::int64_t ReadAt(std::int64_t position, char* bytes, std::int64_t size) const;
  /// Writes all bytes; false may leave a part of them written.
  bool WriteAt(std::int64_t position, std::string_view bytes);
  bool Truncate(std::int64_t size);
  /// Waits until all that was written is on the disk.
  bool Sync();
  /// Gives the file the owner and the permissions of another, as far as the system allows.
  void TakePermissionsOf(const DiskFile& other);

  /// Waits until no other process, and no other open file of this one, holds the lock. It is given
  /// back when the file is closed, also by a process that dies. Where the file system has no locks
  /// this does nothing.
  bool Lock(int timeoutMs);

  std::optional<FileIdentity> Identity() const;
  /// What Identity() was when the file was opened.
  const FileIdentity& OpenedIdentity() const { return opened_; }
  static std::optional<FileIdentity> IdentityOf(const QString& path);

 private:
  static constexpr std::intptr_t kClosed = -1;
  bool TryLock();

  std::intptr_t handle_ = kClosed;
  FileIdentity opened_;
};

/// Whether there is anything with this name, a link without its target too.
bool PathIsTaken(const QString& path);
/// Whether it is a link.
bool IsLink(const QString& path);
/// Whether the system lets this process write the file.
bool IsWritable(const QString& path);
bool RemoveFile(const QString& path);
/// Fails where `to` is taken.
bool RenameFile(const QString& from, const QString& to);
/// Brings the names in the folder of a file to the disk.
void SyncFolderOf(const QString& path);
/// Where a path leads through links; the path itself when it is none. The last target need not
/// exist.
QString LinkTarget(const QString& path);

}  // namespace vyn
