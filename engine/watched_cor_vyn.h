// Lets someone watch every command on its way to a core engine: the driver's trace, the demo's
// command panel.
#pragma once

#include <functional>
#include <utility>

#include "core_link/cor_vyn.h"

namespace vyn {

/// Calls the watcher with each command text, then hands the command on. The engine is not owned.
class WatchedCorVyn final : public CCorVyn {
 public:
  using Watcher = std::function<void(const QString& command)>;

  WatchedCorVyn(CCorVyn& engine, Watcher watcher) : engine_(engine), watcher_(std::move(watcher)) {}

  QString Doit(const QString& command) override {
    if (watcher_) watcher_(command);
    return engine_.Doit(command);
  }
  QString ObjNumToName(int bodyNumber) const override { return engine_.ObjNumToName(bodyNumber); }
  int GetLocationObject() const override { return engine_.GetLocationObject(); }
  int GetTimeSys() const override { return engine_.GetTimeSys(); }
  bool WindowExists() const override { return engine_.WindowExists(); }

 private:
  CCorVyn& engine_;
  Watcher watcher_;
};

}  // namespace vyn
