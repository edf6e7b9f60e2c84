// Property paths: their comparison without regard to case, their one canonical spelling, and which
// of them are classes of bodies, members of classes, or more than plain values.
#pragma once

#include <cstddef>
#include <optional>

#include <QString>
#include <QStringView>

namespace vyn {

/// Hash and equality without regard to case, for containers that are searched by views.
struct PathHash {
  using is_transparent = void;
  std::size_t operator()(QStringView path) const noexcept;
};
struct PathEqual {
  using is_transparent = void;
  bool operator()(QStringView a, QStringView b) const noexcept;
};

/// The spelling under which a property is kept, casing aside, with the words in the casing given:
///  - a switch is named without its ".Visible"; only where a text bears the same name (ID,
///    JapaneseName, EnglishName, Name, Number) the switch keeps it;
///  - the Moon is "Solar.Planet.Earth.Satellite.No1" by each of its names;
///  - "#007" is "#7".
/// Empty for what is no path: empty words, white space, control or operator characters, members
/// numbered outside 1 to 2147483647, more than 1024 characters or 64 words.
QString CanonicalPath(QStringView path);

/// Whether `path` is `ancestor` or stands below it.
bool IsWithin(QStringView path, QStringView ancestor);

/// The path without its last word; empty for a single word.
QStringView ParentPath(QStringView path);
QStringView LastWord(QStringView path);

bool SameWord(QStringView a, QStringView b);

/// A path of a member of a class: "Solar.Comet.No3.Orbit" is member "No3" of "Solar.Comet" with the
/// feature "Orbit"; the feature is empty for the member itself.
struct MemberPath {
  QString classPath;
  QStringView member;
  QStringView feature;
};

/// The innermost class that a canonical path is a member of.
std::optional<MemberPath> AsMember(QStringView path);

/// A path of a whole class: "Solar.Planet.Vector.Span" is the feature "Vector.Span" of every
/// planet; the feature is empty for the class path, the switch of its members.
struct ClassFeature {
  QStringView classPath;
  QStringView feature;
};

/// What a canonical path means for the members of its class; nothing when it is no class's path or
/// belongs to the class alone (counts, limits, files).
std::optional<ClassFeature> AsClassFeature(QStringView path);

/// Whether the class has members by name that are always there, as the planets.
bool HasFixedMembers(QStringView classPath);

/// The number n of the word "Non"; nothing when it is another word.
std::optional<int> ObjectNumber(QStringView word);

/// What an assignment to a path has to heed besides storing the value.
enum class PathRole : unsigned char {
  Plain,         ///< nothing
  Time,          ///< "Time" and what is below it
  ClassFeature,  ///< sets every member of a class
  ElementClass,  ///< an element class's file, counts, data commands and objects
  Status,        ///< a status: asked for, never kept
};
PathRole RoleOf(QStringView canonicalPath);

}  // namespace vyn
