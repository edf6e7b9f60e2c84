// The command convert: element files from one-line formats.
#include <cstdio>

#include "elements/line_scan.h"
#include "tools/vyn-eld/command.h"
#include "tools/vyn-eld/mpc_line.h"
#include "tools/vyn-eld/output.h"

namespace vyn::eld {
namespace {

using namespace Qt::StringLiterals;

using Converter = std::optional<LineProblem> (*)(std::string_view line, RecordBytes& record);

struct Format {
  const char16_t* name;
  Converter convert;
};

constexpr Format kFormats[] = {{u"mpc-comets", &ConvertComet}, {u"mpcorb", &ConvertMinorPlanet}};

Converter FindConverter(const QString& name) {
  for (const Format& format : kFormats) {
    if (name == format.name) return format.convert;
  }
  return nullptr;
}

std::string_view WithoutLineEnd(std::string_view line) {
  if (line.ends_with('\n')) line.remove_suffix(1);
  if (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

/// Converts a file line by line into another one.
class Conversion {
 public:
  Conversion(Converter convert, const QString& input, const QString& output)
      : convert_(convert), input_(input), output_(output), temporary_(output + u".part"_s) {}

  int Run() {
    if (!from_.Open(input_, DiskFile::Mode::Read)) return Fail(input_ + u": cannot be read"_s);
    const bool isSame =
        PathIsTaken(output_) &&
        DiskFile::IdentityOf(output_).value_or(FileIdentity{}).IsSameFile(from_.OpenedIdentity());
    if (isSame) return Fail(output_ + u": is the input itself"_s);
    if (!to_.Open(temporary_, DiskFile::Mode::Create) || !to_.Truncate(0)) {
      return Fail(output_ + u": cannot be written"_s);
    }
    ProgressBar bar(from_.OpenedIdentity().size);
    const bool isRead = ForEachLine(from_, 0, [&](std::int64_t position, std::string_view line) {
      bar.Show(position);
      Take(line, bar);
      return isWritten_;
    });
    Flush();
    bar.Clear();
    return Finish(isRead);
  }

 private:
  void Take(std::string_view line, ProgressBar& bar) {
    // A line that is longer than any is taken in pieces, of which the first tells all.
    if (isInLine_) {
      isInLine_ = !line.ends_with('\n');
      return;
    }
    isInLine_ = !line.ends_with('\n');
    ++lineNumber_;
    line = WithoutLineEnd(line);
    if (IsSeparator(line)) return;
    if (!isInElements_) isInElements_ = LooksLikeElements(line);
    if (!isInElements_) return;
    RecordBytes record;
    if (const auto problem = convert_(line, record)) {
      bar.Clear();
      Report(*problem);
    } else {
      ++converted_;
      Add(record);
    }
  }

  void Report(const LineProblem& problem) {
    ++refused_;
    PrintError(u"%1:%2:%3: %4"_s.arg(input_)
                   .arg(lineNumber_)
                   .arg(problem.column)
                   .arg(QString::fromStdString(problem.reason)));
  }

  void Add(const RecordBytes& record) {
    constexpr std::size_t kWriteAtOnce = 1 << 20;
    pending_.append(record.data(), record.size());
    if (pending_.size() >= kWriteAtOnce) Flush();
  }

  void Flush() {
    isWritten_ = isWritten_ && to_.WriteAt(writtenTo_, pending_);
    writtenTo_ += static_cast<std::int64_t>(pending_.size());
    pending_.clear();
  }

  /// The output takes its name when it is complete.
  int Finish(bool isRead) {
    to_.Close();
    const bool isDone = isRead && isWritten_ && (!PathIsTaken(output_) || RemoveFile(output_)) &&
                        RenameFile(temporary_, output_);
    if (!isDone) {
      RemoveFile(temporary_);
      return Fail(isRead ? output_ + u": cannot be written"_s : input_ + u": cannot be read"_s);
    }
    Print(u"converted %1, refused %2"_s.arg(converted_).arg(refused_));
    if (converted_ == 0) PrintError(input_ + u": no line of elements was found"_s);
    return refused_ > 0 || converted_ == 0 ? kFoundTrouble : kDone;
  }

  static int Fail(const QString& reason) {
    PrintError(reason);
    return kFoundTrouble;
  }

  const Converter convert_;
  const QString input_;
  const QString output_;
  const QString temporary_;
  DiskFile from_;
  DiskFile to_;
  std::string pending_;
  std::int64_t writtenTo_ = 0;
  std::int64_t lineNumber_ = 0;
  std::int64_t converted_ = 0;
  std::int64_t refused_ = 0;
  bool isInLine_ = false;
  bool isInElements_ = false;
  bool isWritten_ = true;
};

}  // namespace

int Convert(const Words& words) {
  const Converter converter = FindConverter(words.plain.first());
  if (converter == nullptr) {
    PrintError(u"unknown format: "_s + words.plain.first() + u"; mpc-comets or mpcorb"_s);
    return kWrongUse;
  }
  return Conversion(converter, words.plain.at(1), words.plain.at(2)).Run();
}

}  // namespace vyn::eld
