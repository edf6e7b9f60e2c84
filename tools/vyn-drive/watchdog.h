// Ends a run that has come to a standstill, such as a window that waits for someone who never
// comes.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace vyn::drive {

/// Calls `expired` on a thread of its own when no sign of life came for `patience`.
class Watchdog {
 public:
  Watchdog(std::chrono::milliseconds patience, std::function<void()> expired);
  ~Watchdog();
  Watchdog(const Watchdog&) = delete;
  Watchdog& operator=(const Watchdog&) = delete;

  void Alive();

 private:
  void Watch();

  const std::chrono::milliseconds patience_;
  const std::function<void()> expired_;
  std::mutex mutex_;
  std::condition_variable changed_;
  bool isAlive_ = false;
  bool isStopping_ = false;
  std::thread thread_;
};

}  // namespace vyn::drive
