// Files on systems that follow POSIX.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include <QFile>
#include <QFileInfo>

#include "siblings/files/disk_file.h"

namespace vyn {
namespace {

constexpr int kNewFileMode = 0666;

int OpenFlags(DiskFile::Mode mode) {
  // Opening must not wait for the other end of a pipe.
  constexpr int kAlways = O_CLOEXEC | O_NONBLOCK;
  switch (mode) {
    case DiskFile::Mode::Read:
      return kAlways | O_RDONLY;
    case DiskFile::Mode::Change:
      return kAlways | O_RDWR;
    case DiskFile::Mode::Create:
      return kAlways | O_RDWR | O_CREAT;
  }
  return kAlways;
}

template <class Call>
auto Repeated(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

FileIdentity IdentityFrom(const struct stat& status) {
#ifdef __APPLE__
  const timespec& changed = status.st_mtimespec;
#else
  const timespec& changed = status.st_mtim;
#endif
  return {static_cast<std::uint64_t>(status.st_dev), static_cast<std::uint64_t>(status.st_ino),
          static_cast<std::int64_t>(status.st_size),
          static_cast<std::int64_t>(changed.tv_sec) * 1'000'000'000 + changed.tv_nsec};
}

}  // namespace

bool DiskFile::Open(const QString& path, Mode mode) {
  Close();
  if (path.isEmpty()) return false;
  const QByteArray name = QFile::encodeName(path);
  handle_ = Repeated([&] { return ::open(name.constData(), OpenFlags(mode), kNewFileMode); });
  struct stat status;
  const bool isFile =
      IsOpen() && ::fstat(static_cast<int>(handle_), &status) == 0 && S_ISREG(status.st_mode);
  if (!isFile) Close();
  if (isFile) opened_ = IdentityFrom(status);
  return isFile;
}

void DiskFile::Close() {
  if (IsOpen()) ::close(static_cast<int>(handle_));
  handle_ = kClosed;
}

std::int64_t DiskFile::ReadAt(std::int64_t position, char* bytes, std::int64_t size) const {
  std::int64_t done = 0;
  while (done < size) {
    const auto count = Repeated([&] {
      return ::pread(static_cast<int>(handle_), bytes + done, size - done, position + done);
    });
    if (count < 0) return -1;
    if (count == 0) break;
    done += count;
  }
  return done;
}

bool DiskFile::WriteAt(std::int64_t position, std::string_view bytes) {
  while (!bytes.empty()) {
    const auto count = Repeated(
        [&] { return ::pwrite(static_cast<int>(handle_), bytes.data(), bytes.size(), position); });
    if (count <= 0) return false;
    bytes.remove_prefix(count);
    position += count;
  }
  return true;
}

bool DiskFile::Truncate(std::int64_t size) {
  return Repeated([&] { return ::ftruncate(static_cast<int>(handle_), size); }) == 0;
}

bool DiskFile::Sync() {
  return Repeated([&] { return ::fsync(static_cast<int>(handle_)); }) == 0;
}

void DiskFile::TakePermissionsOf(const DiskFile& other) {
  struct stat status;
  if (::fstat(static_cast<int>(other.handle_), &status) != 0) return;
  // Only the system's administrator may give a file away; for others it is theirs already.
  [[maybe_unused]] const int owned =
      ::fchown(static_cast<int>(handle_), status.st_uid, status.st_gid);
  ::fchmod(static_cast<int>(handle_), status.st_mode & 07777);
}

bool DiskFile::TryLock() {
  // Where a file system knows no locks, work goes on without.
  return Repeated([&] { return ::flock(static_cast<int>(handle_), LOCK_EX | LOCK_NB); }) == 0 ||
         errno != EWOULDBLOCK;
}

std::optional<FileIdentity> DiskFile::Identity() const {
  struct stat status;
  if (::fstat(static_cast<int>(handle_), &status) != 0) return std::nullopt;
  return IdentityFrom(status);
}

std::optional<FileIdentity> DiskFile::IdentityOf(const QString& path) {
  struct stat status;
  if (::stat(QFile::encodeName(path).constData(), &status) != 0) return std::nullopt;
  return IdentityFrom(status);
}

bool RemoveFile(const QString& path) { return ::unlink(QFile::encodeName(path).constData()) == 0; }

bool RenameFile(const QString& from, const QString& to) {
  return !PathIsTaken(to) &&
         ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

void SyncFolderOf(const QString& path) {
  const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
  const int handle = ::open(folder.constData(), O_RDONLY | O_CLOEXEC);
  if (handle < 0) return;
  ::fsync(handle);
  ::close(handle);
}

}  // namespace vyn
