// The display switches of a class's objects, one bit an object and switch: an element file may hold
// more than a million objects.
#pragma once

#include <array>

#include <QList>
#include <QString>
#include <QStringList>
#include <QStringView>

namespace vyn {

/// The switches that every object has, by the feature behind the object's path.
// clang-format off
inline constexpr std::array<QStringView, 18> kObjectSwitches{
    u"Individual",          u"ID.Visible",      u"JapaneseName.Visible", u"EnglishName.Visible",
    u"Magnitude",           u"Date",            u"Vector",               u"Orbit.InTheSky",
    u"Orbit",               u"OrbitalPlane",    u"EclipticPlane",        u"Orbit.Perpendicular",
    u"IonTail",             u"DustTail",        u"IonTail.Outline",      u"DustTail.Outline",
    u"IonTail.Surface",     u"DustTail.Surface",
};
// clang-format on

inline constexpr int kIndividualSwitch = 0;

/// The number of the switch with this feature in any casing; -1 when there is none.
int ObjectSwitchOf(QStringView feature);

/// One switch of all objects, numbered from 0, with the two texts that answer for it. Copies share
/// their bits until one of them changes.
class SwitchColumn {
 public:
  bool operator==(const SwitchColumn&) const = default;

  qsizetype Count() const { return count_; }
  qsizetype OnCount() const { return onCount_; }

  void Resize(qsizetype count);
  void Remove(qsizetype index);
  bool IsOn(qsizetype index) const;
  QString Text(qsizetype index) const { return IsOn(index) ? onText_ : offText_; }

  /// Sets one object's switch. False when the column answers with another text than `text` for
  /// it, as once some objects were switched with "TRUE" and others with "true".
  bool Set(qsizetype index, QStringView text);

  /// Sets every object's switch.
  void Fill(QStringView text);

  /// The same, and the answers are "TRUE" and "FALSE" again.
  void Reset(QStringView text);

  /// The whole column as texts that SetMembers takes: "1-3,5 TRUE/FALSE" are the numbers, from 1,
  /// of the objects that are on ("none" without any), and the two answers. What would be very long
  /// comes in pieces, the further ones as "+7,9-12".
  QStringList Members() const;

  /// Takes one of these texts; a text that begins with "+" adds to what is on.
  void SetMembers(QStringView text);

 private:
  QStringList RangePieces() const;
  void SetBit(qsizetype index, bool on);
  void SetRange(QStringView range);

  QList<quint64> words_;
  qsizetype count_ = 0;
  qsizetype onCount_ = 0;
  QString onText_ = QStringLiteral("TRUE");
  QString offText_ = QStringLiteral("FALSE");
};

using ObjectSwitches = std::array<SwitchColumn, kObjectSwitches.size()>;

}  // namespace vyn
