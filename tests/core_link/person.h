// Answers modal windows as they come up.
#pragma once

#include <functional>
#include <vector>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <gtest/gtest.h>

namespace vyn {

/// Does one thing after another in the modal windows that come up.
class Person {
 public:
  explicit Person(std::vector<std::function<void(QWidget*)>> actions)
      : actions_(std::move(actions)) {
    LookAgain();
  }
  ~Person() { EXPECT_EQ(done_, actions_.size()) << "a window did not come up"; }

 private:
  /// One timer for each look, since a repeating one does not fire within its own handler, from
  /// where an action may bring up the next window.
  void LookAgain() {
    QTimer::singleShot(0, &alive_, [this] { Act(); });
  }
  void Act() {
    LookAgain();
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr) return;
    if (done_ == actions_.size()) {
      ADD_FAILURE() << "one window too many: " << window->windowTitle().toStdString();
      return window->deleteLater();
    }
    actions_[done_++](window);
  }

  std::vector<std::function<void(QWidget*)>> actions_;
  std::size_t done_ = 0;
  QObject alive_;
};

}  // namespace vyn
