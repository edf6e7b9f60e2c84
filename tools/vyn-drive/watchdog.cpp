#include "tools/vyn-drive/watchdog.h"

#include <utility>

namespace vyn::drive {

Watchdog::Watchdog(std::chrono::milliseconds patience, std::function<void()> expired)
    : patience_(patience), expired_(std::move(expired)), thread_([this] { Watch(); }) {}

Watchdog::~Watchdog() {
  {
    const std::lock_guard lock(mutex_);
    isStopping_ = true;
  }
  changed_.notify_one();
  thread_.join();
}

void Watchdog::Alive() {
  {
    const std::lock_guard lock(mutex_);
    isAlive_ = true;
  }
  changed_.notify_one();
}

void Watchdog::Watch() {
  std::unique_lock lock(mutex_);
  while (!isStopping_) {
    isAlive_ = false;
    if (!changed_.wait_for(lock, patience_, [this] { return isAlive_ || isStopping_; })) {
      expired_();
      return;
    }
  }
}

}  // namespace vyn::drive
