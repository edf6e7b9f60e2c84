// Format of the cards: FITS standard 4.0, section 4.
#include "siblings/images/fits_header.h"

#include <algorithm>
#include <array>

#include <fitsio.h>

#include <QByteArray>

namespace vyn {
namespace {

constexpr int kCardSize = 80;
constexpr int kValueStart = 9;

/// Beginnings of the keys whose values are read as numbers, such as NAXIS2, TSCAL1.
constexpr std::array kNumbers{"BITPIX", "NAXIS",   "PCOUNT",  "GCOUNT",  "TFIELDS", "THEAP",
                              "TBCOL",  "TNULL",   "TSCAL",   "TZERO",   "BSCALE",  "BZERO",
                              "BLANK",  "ZBITPIX", "ZPCOUNT", "ZGCOUNT", "ZTHEAP",  "ZSCALE",
                              "ZZERO",  "ZBLANK",  "ZDITHER"};

/// Of those by which is divided: a block's length is a ZVAL.
constexpr std::array kDivisors{"ZNAXIS", "ZTILE", "ZVAL"};

template <std::size_t N>
bool BeginsWithAny(const QByteArray& text, const std::array<const char*, N>& keys) {
  return std::ranges::any_of(keys, [&text](const char* key) { return text.startsWith(key); });
}

QByteArray ValueOf(const QByteArray& card) {
  const qsizetype slash = card.indexOf('/');
  return card.first(slash >= kValueStart ? slash : card.size()).sliced(kValueStart).trimmed();
}

/// A value may be left out; an exponent may begin with a D.
bool IsNumberOrNothing(QByteArray value) {
  bool isNumber = false;
  value.replace('D', 'E').toDouble(&isNumber);
  return isNumber || value.isEmpty();
}

bool IsDivisorSound(const QByteArray& card) {
  bool isNumber = false;
  const qlonglong length = ValueOf(card).toLongLong(&isNumber);
  const bool isCountOfAxes = card.startsWith("ZNAXIS ");
  return isNumber && length >= 1 && (!isCountOfAxes || length <= MAX_COMPRESS_DIM);
}

bool IsCardSound(const QByteArray& card) {
  constexpr QByteArrayView kLongKey("HIERARCH ");
  if (card.startsWith(kLongKey)) {
    // Behind this word any key may stand, also one that is known; nobody has a reason to do that.
    const QByteArray key = card.sliced(kLongKey.size()).trimmed();
    return !BeginsWithAny(key, kDivisors) && !BeginsWithAny(key, kNumbers);
  }
  if (BeginsWithAny(card, kDivisors)) return IsDivisorSound(card);
  return !BeginsWithAny(card, kNumbers) || IsNumberOrNothing(ValueOf(card));
}

}  // namespace

bool IsHeaderSound(QByteArrayView file, qint64 start) {
  for (; start + kCardSize <= file.size(); start += kCardSize) {
    const QByteArray card = file.sliced(start, kCardSize).toByteArray().toUpper();
    if (card.startsWith("END     ")) return true;
    if (!IsCardSound(card)) return false;
  }
  return false;
}

}  // namespace vyn
