#include "engine/object_switches.h"

#include <algorithm>
#include <bit>

#include "core_link/reply.h"
#include "engine/property_path.h"

namespace vyn {
namespace {

constexpr qsizetype kWordBits = 64;
constexpr qsizetype kMaxPieceLength = 500000;
constexpr QStringView kNone = u"none";

quint64 BitOf(qsizetype index) { return quint64{1} << (index % kWordBits); }

QString RangeText(qsizetype first, qsizetype last) {
  QString text = QString::number(first + 1);
  if (last > first) text += u'-' + QString::number(last + 1);
  return text;
}

}  // namespace

int ObjectSwitchOf(QStringView feature) {
  const auto found =
      std::find_if(kObjectSwitches.begin(), kObjectSwitches.end(),
                   [feature](QStringView candidate) { return SameWord(candidate, feature); });
  return found != kObjectSwitches.end() ? static_cast<int>(found - kObjectSwitches.begin()) : -1;
}

void SwitchColumn::Resize(qsizetype count) {
  while (count_ > count) Remove(count_ - 1);
  words_.resize((count + kWordBits - 1) / kWordBits, 0);
  count_ = count;
}

/// The objects behind move up by one.
void SwitchColumn::Remove(qsizetype index) {
  if (index < 0 || index >= count_) return;
  SetBit(index, false);
  const qsizetype first = index / kWordBits;
  const quint64 below = BitOf(index) - 1;
  for (qsizetype word = first; word < words_.size(); ++word) {
    const quint64 kept = word == first ? words_[word] & below : 0;
    const quint64 next = word + 1 < words_.size() ? words_[word + 1] << (kWordBits - 1) : 0;
    const quint64 moved = (words_[word] >> 1) & (word == first ? ~below : ~quint64{0});
    words_[word] = kept | moved | next;
  }
  --count_;
  words_.resize((count_ + kWordBits - 1) / kWordBits);
}

bool SwitchColumn::IsOn(qsizetype index) const {
  return index >= 0 && index < count_ && (words_[index / kWordBits] & BitOf(index)) != 0;
}

void SwitchColumn::SetBit(qsizetype index, bool on) {
  if (index < 0 || index >= count_ || IsOn(index) == on) return;
  words_[index / kWordBits] ^= BitOf(index);
  onCount_ += on ? 1 : -1;
}

bool SwitchColumn::Set(qsizetype index, QStringView text) {
  const bool on = reply::ToBool(text);
  SetBit(index, on);
  // The first object to be switched decides how all of the column are spelled.
  if (on && onCount_ == 1 && IsOn(index)) onText_ = text.toString();
  return text == (on ? onText_ : offText_);
}

void SwitchColumn::Fill(QStringView text) {
  const bool on = reply::ToBool(text);
  (on ? onText_ : offText_) = text.toString();
  words_.fill(on ? ~quint64{0} : 0);
  if (on && count_ % kWordBits != 0) words_.back() = BitOf(count_) - 1;
  onCount_ = on ? count_ : 0;
}

void SwitchColumn::Reset(QStringView text) {
  onText_ = QStringLiteral("TRUE");
  offText_ = QStringLiteral("FALSE");
  Fill(text);
}

QStringList SwitchColumn::RangePieces() const {
  QStringList pieces{QString()};
  for (qsizetype first = 0; first < count_; ++first) {
    if (first % kWordBits == 0 && words_[first / kWordBits] == 0) {
      first += kWordBits - 1;
      continue;
    }
    if (!IsOn(first)) continue;
    qsizetype last = first;
    while (IsOn(last + 1)) ++last;
    if (pieces.back().size() > kMaxPieceLength) pieces.append(QString());
    if (!pieces.back().isEmpty()) pieces.back() += u',';
    pieces.back() += RangeText(first, last);
    first = last;
  }
  return pieces;
}

QStringList SwitchColumn::Members() const {
  QStringList pieces = RangePieces();
  for (QString& piece : pieces) piece.prepend(u'+');
  QString& head = pieces.front();
  head = (head.size() > 1 ? head.sliced(1) : kNone.toString()) + u' ' + onText_ + u'/' + offText_;
  return pieces;
}

void SwitchColumn::SetMembers(QStringView text) {
  QStringView ranges = text.sliced(text.startsWith(u'+') ? 1 : 0);
  const qsizetype blank = text.indexOf(u' ');
  if (!text.startsWith(u'+')) {
    const qsizetype slash = text.indexOf(u'/', blank + 1);
    if (blank < 0 || slash < 0) return;
    Fill(u"FALSE");
    onText_ = text.sliced(blank + 1, slash - blank - 1).toString();
    offText_ = text.sliced(slash + 1).toString();
    ranges = text.first(blank);
  }
  for (const QStringView range : ranges.tokenize(u',')) SetRange(range);
}

void SwitchColumn::SetRange(QStringView range) {
  const qsizetype dash = range.indexOf(u'-');
  const qsizetype first = range.first(dash < 0 ? range.size() : dash).toLongLong() - 1;
  const qsizetype last = dash < 0 ? first : range.sliced(dash + 1).toLongLong() - 1;
  if (first < 0) return;
  for (qsizetype index = first; index <= std::min(last, count_ - 1); ++index) SetBit(index, true);
}

}  // namespace vyn
