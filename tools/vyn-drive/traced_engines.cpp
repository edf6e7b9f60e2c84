#include "tools/vyn-drive/traced_engines.h"

#include "tools/vyn-drive/output.h"

namespace vyn::drive {

TracedEngines::TracedEngines(std::function<void()> onCommand)
    : onCommand_(std::move(onCommand)),
      watched_(engine_, [this](const QString& command) { Watch(u"doit", command); }),
      secondWatched_(secondEngine_, [this](const QString& command) { Watch(u"doit2", command); }) {}

CCorVyn* TracedEngines::CommandHandle() {
  return handles == HandleChoice::None ? nullptr : &watched_;
}

CCorVyn* TracedEngines::SecondHandle() {
  return handles == HandleChoice::Two ? &secondWatched_ : nullptr;
}

void TracedEngines::Watch(QStringView handle, const QString& command) {
  onCommand_();
  const bool isQuery = command.startsWith(u'?');
  ++(isQuery ? counts_.queries : counts_.changes);
  if (trace == TraceLevel::All || (trace == TraceLevel::Changes && !isQuery)) {
    Print(handle + u": " + Bare(command));
  }
}

}  // namespace vyn::drive
