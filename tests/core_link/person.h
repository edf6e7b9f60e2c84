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
    QObject::connect(&timer_, &QTimer::timeout, [this] { Act(); });
    timer_.start(0);
  }
  ~Person() { EXPECT_EQ(done_, actions_.size()) << "a window did not come up"; }

 private:
  void Act() {
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
  QTimer timer_;
};

}  // namespace vyn
