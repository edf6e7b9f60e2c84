// The two core engines of a script, and the printing and counting of what dialogs send to them.
#pragma once

#include "engine/reference_engine.h"
#include "engine/watched_cor_vyn.h"

namespace vyn::drive {

/// Which handles a dialog is given.
enum class HandleChoice { None, One, Two };

/// Which commands are printed.
enum class TraceLevel { All, Changes, Off };

class TracedEngines {
 public:
  /// Calls `onCommand` at every command.
  explicit TracedEngines(std::function<void()> onCommand);

  CCorVyn* CommandHandle();
  CCorVyn* SecondHandle();

  /// The engine behind the command handle, for what the script itself does: untraced.
  ReferenceEngine& Engine() { return engine_; }

  /// Queries and changes sent since the last call, to both handles.
  struct Counts {
    int queries = 0;
    int changes = 0;
  };
  Counts TakeCounts() { return std::exchange(counts_, {}); }

  HandleChoice handles = HandleChoice::One;
  TraceLevel trace = TraceLevel::Changes;

 private:
  void Watch(QStringView handle, const QString& command);

  const std::function<void()> onCommand_;
  Counts counts_;
  ReferenceEngine engine_;
  // Separate, so that a command sent to both is not carried out twice.
  ReferenceEngine secondEngine_;
  WatchedCorVyn watched_;
  WatchedCorVyn secondWatched_;
};

}  // namespace vyn::drive
