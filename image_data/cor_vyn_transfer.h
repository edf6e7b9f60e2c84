// Moves the members of data sets between the core engine and a dialog's fields, in one direction.
#pragma once

#include <functional>

#include <QString>
#include <QStringView>

#include "image_data/data_set_record.h"

namespace vyn {

enum class TransferDirection { Read, Send };

/// The number at the beginning of a text, 0 where there is none or it is not finite.
double FiniteNumber(QStringView text);

/// One transfer. Reading asks "? PATH.MEMBER" and sets the field: an empty reply is 0 or an empty
/// text. Sending assigns the field. Nothing is redrawn.
class CorVynTransfer {
 public:
  /// Carries a command to the core engine and returns the reply.
  using Doit = std::function<QString(const QString& command)>;

  CorVynTransfer(Doit doit, TransferDirection direction)
      : doit_(std::move(doit)), direction_(direction) {}

  bool IsSending() const { return direction_ == TransferDirection::Send; }

  /// A real number, sent with six decimals.
  void UpdateCorVyn(const QString& path, QStringView member, double& field) const;
  /// A text, sent without quotes.
  void UpdateCorVyn(const QString& path, QStringView member, QString& field) const;
  /// The path of a file.
  void UpdateCorVynFile(const QString& path, QStringView member, QString& field) const;
  /// "true" or "false"; any other reply leaves the field.
  void UpdateCorVynBool(const QString& path, QStringView member, int& field) const;
  void UpdateCorVynInt(const QString& path, QStringView member, int& field) const;
  /// A Julian date in universal time. What is no moment to be sent is not sent; a reply up to the
  /// year 1600 leaves the field.
  void UpdateCorVynDate(const QString& path, QStringView member, ObservationTime& field) const;
  /// Degrees, minutes and seconds, negative when the flag is set. The seconds read are truncated.
  void UpdateCorVynLngLat(const QString& path, QStringView member, int& negative, int& degrees,
                          int& minutes, int& seconds) const;

 private:
  QString Ask(const QString& path, QStringView member) const;
  void Assign(const QString& path, QStringView member, const QString& value) const;

  Doit doit_;
  TransferDirection direction_;
};

/// The signed angle in degrees that a flag, degrees, minutes and seconds mean.
double SignedDegrees(int negative, int degrees, int minutes, int seconds);

/// "time = jst(2024, 4, 9, 3, 20, SECOND)": the seconds as each dialog writes them.
QString TimeAssignment(const ObservationTime& time, const QString& second);

}  // namespace vyn
