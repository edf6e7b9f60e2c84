#include "engine/property_path.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <limits>

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr qsizetype kMaxPathLength = 1024;
constexpr qsizetype kMaxWords = 64;

constexpr std::array<QStringView, 8> kPlanets{u"Mercury", u"Venus",  u"Earth",  u"Mars",
                                              u"Jupiter", u"Saturn", u"Uranus", u"Neptune"};
constexpr std::array<QStringView, 5> kDwarfPlanets{u"Ceres", u"Pluto", u"Haumea", u"Makemake",
                                                   u"Eris"};
constexpr std::array<QStringView, 2> kElementClasses{u"Solar.Comet", u"Solar.MinorPlanet"};
constexpr std::array<QStringView, 6> kClasses{u"Solar.Planet",    u"Solar.DwarfPlanet",
                                              u"Solar.Comet",     u"Solar.MinorPlanet",
                                              u"Solar.Meteorite", u"Solar.DustTrail"};

/// What a class says of itself and not of each member.
constexpr std::array<QStringView, 11> kClassOnly{
    u"Brighter",    u"Count",        u"CountOfVisible", u"DataAdd",  u"DataPtr", u"File",
    u"OrbitalType", u"SpectralType", u"Status",         u"Symbolic", u"*"};

/// What an element class answers from its loaded file, or carries out on it.
constexpr std::array<QStringView, 5> kElementFacts{u"Count", u"CountOfVisible", u"DataAdd",
                                                   u"DataPtr", u"File"};

constexpr std::array<QStringView, 5> kTextAndSwitch{u"ID", u"JapaneseName", u"EnglishName", u"Name",
                                                    u"Number"};

constexpr std::array<QStringView, 2> kMoonNames{u"Solar.Moon",
                                                u"Solar.Planet.Earth.Satellite.Moon"};
constexpr QStringView kMoon = u"Solar.Planet.Earth.Satellite.No1";

char16_t Fold(char16_t c) {
  if (static_cast<unsigned>(c) - u'A' < 26u) return static_cast<char16_t>(c + 32);
  return c < 0x80 ? c : QChar::toCaseFolded(c);
}

constexpr qsizetype kHashedAtOnce = 4;
constexpr std::uint64_t kLowerCaseBits = 0x0020002000200020;
constexpr std::uint64_t kNotAsciiBits = 0xFF80FF80FF80FF80;

/// Up to four characters as one number, the same for all that Fold makes the same.
std::uint64_t FoldedForHash(const char16_t* characters, qsizetype count) {
  std::array<char16_t, kHashedAtOnce> folded{};
  std::copy_n(characters, count, folded.begin());
  auto bits = std::bit_cast<std::uint64_t>(folded);
  if ((bits & kNotAsciiBits) == 0) return bits | kLowerCaseBits;
  std::transform(folded.begin(), folded.end(), folded.begin(), Fold);
  return std::bit_cast<std::uint64_t>(folded) | kLowerCaseBits;
}

template <std::size_t N>
bool IsOneOf(QStringView word, const std::array<QStringView, N>& words) {
  return std::any_of(words.begin(), words.end(),
                     [word](QStringView candidate) { return SameWord(word, candidate); });
}

QStringView FirstWord(QStringView path) {
  const qsizetype dot = path.indexOf(u'.');
  return dot < 0 ? path : path.first(dot);
}

/// What stands behind a path of which `path` is at or below; empty when nothing does.
QStringView Behind(QStringView path, qsizetype ancestorLength) {
  return path.size() > ancestorLength ? path.sliced(ancestorLength + 1) : QStringView();
}

bool IsDigit(QChar c) { return c >= u'0' && c <= u'9'; }

bool IsPathCharacter(QChar c) {
  return c.unicode() > 0x20 && !c.isSpace() && c != u'=' && c != u'"' && c != u'(' && c != u')' &&
         c != u';' && c != u'?' && c.unicode() != 0x7F;
}

/// The digits of a member's number behind its prefix; nothing when the word is no numbered member.
std::optional<QStringView> MemberDigits(QStringView word) {
  const qsizetype prefix = word.startsWith(u'#') ? 1 : 2;
  if (prefix == 2 && !word.startsWith("no"_L1, Qt::CaseInsensitive)) return std::nullopt;
  QStringView digits = word.sliced(std::min(prefix, word.size()));
  const bool hasSign = digits.startsWith(u'-') || digits.startsWith(u'+');
  const QStringView unsignedDigits = digits.sliced(hasSign ? 1 : 0);
  if (unsignedDigits.isEmpty()) return std::nullopt;
  if (!std::all_of(unsignedDigits.begin(), unsignedDigits.end(), IsDigit)) return std::nullopt;
  return digits;
}

/// 0 when the digits are no member's number.
int MemberNumber(QStringView digits) {
  std::int64_t number = 0;
  for (const QChar c : digits) {
    if (!IsDigit(c)) return 0;
    number = number * 10 + (c.unicode() - u'0');
    if (number > std::numeric_limits<int>::max()) return 0;
  }
  return static_cast<int>(number);
}

/// The place names of a surface are switched only; their "Name" is no text.
bool IsTextAndSwitch(QStringView path) {
  return IsOneOf(LastWord(path), kTextAndSwitch) &&
         !SameWord(LastWord(ParentPath(path)), u"Surface");
}

/// A switch is named by what it switches.
bool IsSilent(QStringView word, QStringView path) {
  return SameWord(word, u"Visible") && !path.isEmpty() && !IsTextAndSwitch(path);
}

/// Appends the word in its canonical form; false when it is none.
bool AppendWord(QStringView word, QString* path) {
  if (word.isEmpty() || word == u"#") return false;
  if (!std::all_of(word.begin(), word.end(), IsPathCharacter)) return false;
  if (IsSilent(word, *path)) return true;
  if (!path->isEmpty()) path->append(u'.');
  const auto digits = MemberDigits(word);
  if (!digits) {
    path->append(word);
    return true;
  }
  const int number = MemberNumber(*digits);
  path->append(word.first(word.size() - digits->size())).append(QString::number(number));
  return number > 0;
}

void NameTheMoon(QString* path) {
  for (const QStringView name : kMoonNames) {
    if (IsWithin(*path, name)) path->replace(0, name.size(), kMoon.toString());
  }
}

bool IsMemberWord(QStringView classPath, QStringView word) {
  if (SameWord(classPath, kClasses[0])) return IsOneOf(word, kPlanets);
  if (SameWord(classPath, kClasses[1])) return IsOneOf(word, kDwarfPlanets);
  return ObjectNumber(word).has_value();
}

/// "Solar.Planet.Jupiter.Satellite" of a path at or below it.
QStringView SatelliteClassOf(QStringView path) {
  for (const QStringView bodies : {kClasses[0], kClasses[1]}) {
    if (!IsWithin(path, bodies)) continue;
    const QStringView body = FirstWord(Behind(path, bodies.size()));
    const qsizetype bodyEnd = bodies.size() + 1 + body.size();
    if (!IsMemberWord(bodies, body) || path.size() <= bodyEnd) return {};
    const QStringView word = FirstWord(path.sliced(bodyEnd + 1));
    if (SameWord(word, u"Satellite")) return path.first(bodyEnd + 1 + word.size());
  }
  return {};
}

QStringView OuterClassOf(QStringView path) {
  for (const QStringView candidate : kClasses) {
    if (IsWithin(path, candidate)) return path.first(candidate.size());
  }
  return {};
}

std::optional<MemberPath> MemberOf(QStringView classPath, QStringView path) {
  if (classPath.isEmpty() || path.size() <= classPath.size()) return std::nullopt;
  const QStringView rest = Behind(path, classPath.size());
  const QStringView member = FirstWord(rest);
  if (!IsMemberWord(classPath, member)) return std::nullopt;
  return MemberPath{classPath.toString(), member, Behind(rest, member.size())};
}

/// How many types there are and what they are called, not which of them are shown.
bool IsTypeFact(QStringView path, QStringView word) {
  if (!SameWord(word, u"OrbitalType") && !SameWord(word, u"SpectralType")) return false;
  return SameWord(LastWord(path), u"Count") || LastWord(ParentPath(path)).startsWith(u'#');
}

bool IsElementClassPath(QStringView path) {
  for (const QStringView elements : kElementClasses) {
    if (!IsWithin(path, elements)) continue;
    const QStringView word = FirstWord(Behind(path, elements.size()));
    return ObjectNumber(word) || IsOneOf(word, kElementFacts) || IsTypeFact(path, word) ||
           SameWord(LastWord(path), u"Members");
  }
  return false;
}

}  // namespace

/// Four characters at a time: a path is hashed for nearly every statement.
std::size_t PathHash::operator()(QStringView path) const noexcept {
  std::uint64_t hash = 0xcbf29ce484222325u;
  const char16_t* c = path.utf16();
  for (qsizetype rest = path.size(); rest > 0; rest -= kHashedAtOnce, c += kHashedAtOnce) {
    hash = (hash ^ FoldedForHash(c, std::min(rest, kHashedAtOnce))) * 0x9e3779b97f4a7c15u;
    hash ^= hash >> 29;
  }
  return static_cast<std::size_t>(hash);
}

bool PathEqual::operator()(QStringView a, QStringView b) const noexcept {
  return a.size() == b.size() &&
         std::equal(a.utf16(), a.utf16() + a.size(), b.utf16(),
                    [](char16_t x, char16_t y) { return x == y || Fold(x) == Fold(y); });
}

bool SameWord(QStringView a, QStringView b) { return PathEqual()(a, b); }

QString CanonicalPath(QStringView path) {
  if (path.size() > kMaxPathLength || path.count(u'.') >= kMaxWords) return {};
  QString canonical;
  canonical.reserve(path.size());
  for (const QStringView word : path.tokenize(u'.')) {
    if (!AppendWord(word, &canonical)) return {};
  }
  NameTheMoon(&canonical);
  return canonical;
}

bool IsWithin(QStringView path, QStringView ancestor) {
  return path.size() >= ancestor.size() && SameWord(path.first(ancestor.size()), ancestor) &&
         (path.size() == ancestor.size() || path[ancestor.size()] == u'.');
}

QStringView ParentPath(QStringView path) {
  const qsizetype dot = path.lastIndexOf(u'.');
  return dot < 0 ? QStringView() : path.first(dot);
}

QStringView LastWord(QStringView path) { return path.sliced(path.lastIndexOf(u'.') + 1); }

std::optional<int> ObjectNumber(QStringView word) {
  if (word.startsWith(u'#')) return std::nullopt;
  const auto digits = MemberDigits(word);
  if (!digits) return std::nullopt;
  const int number = MemberNumber(*digits);
  return number > 0 ? std::optional(number) : std::nullopt;
}

std::optional<MemberPath> AsMember(QStringView path) {
  if (auto satellite = MemberOf(SatelliteClassOf(path), path)) return satellite;
  return MemberOf(OuterClassOf(path), path);
}

std::optional<ClassFeature> AsClassFeature(QStringView path) {
  QStringView classPath = SatelliteClassOf(path);
  if (classPath.isEmpty()) classPath = OuterClassOf(path);
  if (classPath.isEmpty()) return std::nullopt;
  const QStringView feature = Behind(path, classPath.size());
  const QStringView word = FirstWord(feature);
  if (IsMemberWord(classPath, word) || IsOneOf(word, kClassOnly)) return std::nullopt;
  if (SameWord(LastWord(path), u"Count")) return std::nullopt;
  return ClassFeature{classPath, feature};
}

bool HasFixedMembers(QStringView classPath) {
  return SameWord(classPath, kClasses[0]) || SameWord(classPath, kClasses[1]);
}

PathRole RoleOf(QStringView path) {
  if (IsWithin(path, u"Status") || SameWord(LastWord(path), u"Status")) return PathRole::Status;
  if (IsWithin(path, u"Time")) return PathRole::Time;
  if (!IsWithin(path, u"Solar")) return PathRole::Plain;
  if (IsElementClassPath(path)) return PathRole::ElementClass;
  return AsClassFeature(path) ? PathRole::ClassFeature : PathRole::Plain;
}

}  // namespace vyn
