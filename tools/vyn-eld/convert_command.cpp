// The command convert: element files from one-line formats.
#include <algorithm>
#include <array>
#include <future>
#include <thread>
#include <vector>

#include "elements/line_scan.h"
#include "siblings/files/disk_file.h"
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

/// Some lines and what became of them.
struct Part {
  std::string records;
  struct Refusal {
    std::int64_t line;  ///< from 1 for the part's first line
    LineProblem problem;
  };
  std::vector<Refusal> refusals;
  std::int64_t lines = 0;
  std::int64_t converted = 0;
};

/// Calls `action` for each line, without its end.
template <class Action>
void ForEachLineOf(std::string_view text, Action action) {
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size() - 1) + 1;
    action(WithoutLineEnd(text.substr(0, length)));
    text.remove_prefix(length);
  }
}

Part ConvertPart(Converter convert, std::string_view text) {
  Part part;
  part.records.reserve(text.size() / 150 * kElementRecordSize);
  RecordBytes record;
  ForEachLineOf(text, [&](std::string_view line) {
    ++part.lines;
    if (IsSeparator(line)) return;
    if (auto problem = convert(line, record)) {
      part.refusals.push_back({part.lines, std::move(*problem)});
    } else {
      part.records.append(record.data(), record.size());
      ++part.converted;
    }
  });
  return part;
}

/// As many pieces as there are processors, cut between lines.
std::vector<std::string_view> Pieces(std::string_view text) {
  const std::size_t count = std::max(1u, std::thread::hardware_concurrency());
  std::vector<std::string_view> pieces;
  for (std::size_t i = 1; i <= count && !text.empty(); ++i) {
    const std::size_t wanted = text.size() / (count - i + 1);
    const std::size_t length =
        i == count ? text.size() : std::min(text.find('\n', wanted), text.size() - 1) + 1;
    pieces.push_back(text.substr(0, length));
    text.remove_prefix(length);
  }
  return pieces;
}

/// Converts a file block by block into another one.
class Conversion {
 public:
  Conversion(Converter convert, const QString& input, const QString& output)
      : convert_(convert), input_(input), output_(output), temporary_(output + u".part"_s) {}

  int Run() {
    if (!from_.Open(input_, DiskFile::Mode::Read)) return Fail(input_ + u": cannot be read"_s);
    for (const QString& written : {output_, temporary_}) {
      if (IsTheInput(written)) return Fail(written + u": is the input itself"_s);
    }
    if (!to_.Open(temporary_, DiskFile::Mode::Create) || !to_.Truncate(0)) {
      return Fail(output_ + u": cannot be written"_s);
    }
    ProgressBar bar(from_.OpenedIdentity().size);
    const bool isRead = ConvertBlocks(bar);
    bar.Clear();
    return Finish(isRead);
  }

 private:
  bool IsTheInput(const QString& path) const {
    const auto identity = DiskFile::IdentityOf(path);
    return identity && identity->IsSameFile(from_.OpenedIdentity());
  }

  /// While one block is being converted, what came of the one before is written.
  bool ConvertBlocks(ProgressBar& bar) {
    constexpr std::int64_t kBlockSize = 1 << 22;
    std::array<std::vector<char>, 2> blocks{std::vector<char>(kBlockSize),
                                            std::vector<char>(kBlockSize)};
    std::vector<std::future<Part>> before;
    std::int64_t position = 0;
    std::int64_t count = kBlockSize;
    for (int i = 0; isWritten_ && count == kBlockSize; ++i) {
      bar.Show(position);
      std::vector<char>& block = blocks[i % 2];
      count = from_.ReadAt(position, block.data(), kBlockSize);
      if (count < 0) break;
      const std::string_view text =
          WholeLines({block.data(), static_cast<std::size_t>(count)}, count == kBlockSize);
      position = text.ends_with('\n') || count < kBlockSize
                     ? position + static_cast<std::int64_t>(text.size())
                     : NextLine(position);
      auto parts = Begin(text);
      for (auto& part : before) Add(part.get(), bar);
      before = std::move(parts);
    }
    for (auto& part : before) Add(part.get(), bar);
    return count >= 0;
  }

  /// What follows the last line's end comes with the next block. Of a line that is longer than a
  /// block the beginning is enough to tell that it is none of elements.
  static std::string_view WholeLines(std::string_view text, bool goesOn) {
    if (!goesOn) return text;
    constexpr std::size_t kBeginning = 1024;
    const std::size_t lastEnd = text.rfind('\n');
    return text.substr(0, lastEnd == text.npos ? kBeginning : lastEnd + 1);
  }

  std::int64_t NextLine(std::int64_t position) const {
    ForEachLine(from_, position, [&position](std::int64_t at, std::string_view line) {
      position = at + static_cast<std::int64_t>(line.size());
      return !line.ends_with('\n');
    });
    return position;
  }

  std::vector<std::future<Part>> Begin(std::string_view text) {
    if (!isInElements_) text = BehindHeading(text);
    std::vector<std::future<Part>> parts;
    for (const std::string_view piece : Pieces(text)) {
      parts.push_back(std::async(std::launch::async, ConvertPart, convert_, piece));
    }
    return parts;
  }

  /// What is left of a text from the first line of elements on.
  std::string_view BehindHeading(std::string_view text) {
    const char* first = text.data() + text.size();
    ForEachLineOf(text, [&](std::string_view line) {
      isInElements_ = isInElements_ || LooksLikeElements(line);
      if (!isInElements_) ++lineNumber_;
      if (isInElements_) first = std::min(first, line.data());
    });
    return text.substr(static_cast<std::size_t>(first - text.data()));
  }

  void Add(const Part& part, ProgressBar& bar) {
    for (const Part::Refusal& refusal : part.refusals) {
      bar.Clear();
      PrintError(u"%1:%2:%3: %4"_s.arg(input_)
                     .arg(lineNumber_ + refusal.line)
                     .arg(refusal.problem.column)
                     .arg(QString::fromStdString(refusal.problem.reason)));
    }
    refused_ += static_cast<std::int64_t>(part.refusals.size());
    lineNumber_ += part.lines;
    converted_ += part.converted;
    isWritten_ = isWritten_ && to_.WriteAt(writtenTo_, part.records);
    writtenTo_ += static_cast<std::int64_t>(part.records.size());
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
  std::int64_t writtenTo_ = 0;
  std::int64_t lineNumber_ = 0;
  std::int64_t converted_ = 0;
  std::int64_t refused_ = 0;
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
