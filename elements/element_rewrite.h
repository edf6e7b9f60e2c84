// Rewrites an element file with records put in or left out, through a temporary file beside it, so
// that a process that dies at any moment loses no object.
//
// The temporary file is complete and on the disk before the element file is deleted and the
// temporary file takes its name. Until it is complete its first byte is NUL, so that one that was
// left half written is never taken for the whole.
#pragma once

#include <vector>

#include "siblings/files/disk_file.h"

namespace vyn {

/// A change at a record boundary: `dropped` records are left out there, `added` placeholder records
/// put there.
struct RecordChange {
  std::int64_t position = 0;  ///< in bytes
  std::int64_t dropped = 0;
  std::int64_t added = 0;
};

/// Where a rewriting stopped.
enum class RewriteStep {
  None,
  OpenTemporary,
  ReadBefore,   ///< the file ends before the change
  WriteBefore,  ///< writing what stands before the change
  ReadDropped,  ///< the file ends within the records that are left out
  WritePlaceholders,
  WriteRest,  ///< writing what stands behind the change
  Delete,     ///< deleting the element file
  Rename,     ///< the element file is deleted, the temporary file complete
};

struct RewriteResult {
  RewriteStep failedStep = RewriteStep::None;
  /// The rewritten file, open and locked, when nothing failed.
  DiskFile file;
};

/// The temporary file of an element file.
QString TemporaryPathOf(const QString& path);

/// Rewrites an open, locked element file. The changes are in ascending order and do not overlap.
/// Unless the failed step is Rename, a failure leaves the element file as it was and no temporary
/// file.
RewriteResult RewriteElementFile(const QString& path, const DiskFile& elements,
                                 const std::vector<RecordChange>& changes);

/// Gives the temporary file of an interrupted rewriting its name where the element file is gone and
/// the temporary file is complete. Returns whether it did.
bool CompleteInterruptedRewrite(const QString& path);

/// Removes a temporary file that no process is writing. The element file must be there.
void RemoveLeftTemporary(const QString& path);

}  // namespace vyn
