// Files on Windows.
#define NOMINMAX
#include <windows.h>

#include <algorithm>

#include <QDir>

#include "siblings/files/disk_file.h"

namespace vyn {
namespace {

HANDLE AsHandle(std::intptr_t handle) { return reinterpret_cast<HANDLE>(handle); }

std::wstring NativeName(const QString& path) {
  return QDir::toNativeSeparators(path).toStdWString();
}

OVERLAPPED At(std::int64_t position) {
  OVERLAPPED place{};
  place.Offset = static_cast<DWORD>(position);
  place.OffsetHigh = static_cast<DWORD>(position >> 32);
  return place;
}

/// Reading and writing take at most this many bytes at a time.
constexpr std::int64_t kMostAtOnce = 1 << 24;

/// Far behind any content, since a locked range cannot be read by others.
constexpr std::int64_t kLockPosition = std::int64_t{1} << 62;

std::uint64_t Joined(DWORD high, DWORD low) { return std::uint64_t{high} << 32 | low; }

}  // namespace

bool DiskFile::Open(const QString& path, Mode mode) {
  Close();
  if (path.isEmpty()) return false;
  const DWORD access = mode == Mode::Read ? GENERIC_READ : GENERIC_READ | GENERIC_WRITE;
  const HANDLE handle = ::CreateFileW(
      NativeName(path).c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
      nullptr, mode == Mode::Create ? OPEN_ALWAYS : OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return false;
  handle_ = reinterpret_cast<std::intptr_t>(handle);
  const auto identity = ::GetFileType(handle) == FILE_TYPE_DISK ? Identity() : std::nullopt;
  if (!identity) Close();
  opened_ = identity.value_or(FileIdentity{});
  return identity.has_value();
}

void DiskFile::Close() {
  if (IsOpen()) ::CloseHandle(AsHandle(handle_));
  handle_ = kClosed;
}

std::int64_t DiskFile::ReadAt(std::int64_t position, char* bytes, std::int64_t size) const {
  std::int64_t done = 0;
  while (done < size) {
    OVERLAPPED place = At(position + done);
    DWORD count = 0;
    const DWORD wanted = static_cast<DWORD>(std::min(size - done, kMostAtOnce));
    if (!::ReadFile(AsHandle(handle_), bytes + done, wanted, &count, &place)) {
      return ::GetLastError() == ERROR_HANDLE_EOF ? done : -1;
    }
    if (count == 0) break;
    done += count;
  }
  return done;
}

bool DiskFile::WriteAt(std::int64_t position, std::string_view bytes) {
  while (!bytes.empty()) {
    OVERLAPPED place = At(position);
    DWORD count = 0;
    const auto wanted =
        static_cast<DWORD>(std::min(static_cast<std::int64_t>(bytes.size()), kMostAtOnce));
    if (!::WriteFile(AsHandle(handle_), bytes.data(), wanted, &count, &place) || count == 0) {
      return false;
    }
    bytes.remove_prefix(count);
    position += count;
  }
  return true;
}

bool DiskFile::Truncate(std::int64_t size) {
  FILE_END_OF_FILE_INFO end{};
  end.EndOfFile.QuadPart = size;
  return ::SetFileInformationByHandle(AsHandle(handle_), FileEndOfFileInfo, &end, sizeof end) != 0;
}

bool DiskFile::Sync() { return ::FlushFileBuffers(AsHandle(handle_)) != 0; }

/// A new file takes its permissions from the folder.
void DiskFile::TakePermissionsOf(const DiskFile&) {}

bool DiskFile::TryLock() {
  // Where a file system knows no locks, work goes on without.
  OVERLAPPED place = At(kLockPosition);
  return ::LockFileEx(AsHandle(handle_), LOCKFILE_EXCLUSIVE_LOCK | LOCKFILE_FAIL_IMMEDIATELY, 0, 1,
                      0, &place) != 0 ||
         ::GetLastError() != ERROR_LOCK_VIOLATION;
}

std::optional<FileIdentity> DiskFile::Identity() const {
  BY_HANDLE_FILE_INFORMATION info;
  if (!::GetFileInformationByHandle(AsHandle(handle_), &info)) return std::nullopt;
  // The time counts in steps of 100 ns.
  return FileIdentity{
      info.dwVolumeSerialNumber, Joined(info.nFileIndexHigh, info.nFileIndexLow),
      static_cast<std::int64_t>(Joined(info.nFileSizeHigh, info.nFileSizeLow)),
      static_cast<std::int64_t>(
          Joined(info.ftLastWriteTime.dwHighDateTime, info.ftLastWriteTime.dwLowDateTime) * 100)};
}

std::optional<FileIdentity> DiskFile::IdentityOf(const QString& path) {
  DiskFile file;
  if (!file.Open(path, Mode::Read)) return std::nullopt;
  return file.Identity();
}

bool RemoveFile(const QString& path) { return ::DeleteFileW(NativeName(path).c_str()) != 0; }

bool RenameFile(const QString& from, const QString& to) {
  return ::MoveFileExW(NativeName(from).c_str(), NativeName(to).c_str(), MOVEFILE_WRITE_THROUGH) !=
         0;
}

/// Renaming writes through.
void SyncFolderOf(const QString&) {}

}  // namespace vyn
