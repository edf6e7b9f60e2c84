// What the program writes: UTF-8 on standard output and standard error, and a bar on a terminal.
#pragma once

#include <cstdint>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>

namespace vyn::eld {

/// A line on standard output.
void Print(const QString& line);
/// A line on standard error, beginning with the program's name.
void PrintError(const QString& line);

/// A JSON array on standard output, one element a line.
class JsonList {
 public:
  JsonList();
  ~JsonList();
  JsonList(const JsonList&) = delete;
  JsonList& operator=(const JsonList&) = delete;

  void Add(const QJsonObject& element);

 private:
  bool isEmpty_ = true;
};

/// How far a long run is, drawn on standard error when that is a terminal.
class ProgressBar {
 public:
  explicit ProgressBar(std::int64_t whole);
  ~ProgressBar();
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;

  void Show(std::int64_t done);
  /// Makes room for a line; the bar comes back with the next step.
  void Clear();

 private:
  std::int64_t whole_;
  int percent_ = -1;
  bool isTerminal_;
};

}  // namespace vyn::eld
