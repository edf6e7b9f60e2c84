#include "image_data/cor_vyn_transfer.h"

#include <cmath>

#include "core_link/number_text.h"
#include "core_link/reply.h"
#include "core_link/statement.h"
#include "siblings/astro/angles.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// Moments and angles have always been sent with a closing parenthesis that nothing opens.
QString WithStrayParenthesis(double value) { return SixDecimals(value) + u')'; }

QString Joined(const QString& path, QStringView member) { return path + u'.' + member; }

}  // namespace

double FiniteNumber(QStringView text) {
  const double value = reply::ToDouble(text);
  return std::isfinite(value) ? value : 0.0;
}

QString CorVynTransfer::Ask(const QString& path, QStringView member) const {
  return doit_(statement::Query(Joined(path, member)));
}

void CorVynTransfer::Assign(const QString& path, QStringView member, const QString& value) const {
  doit_(Joined(path, member) + " = "_L1 + value);
}

void CorVynTransfer::UpdateCorVyn(const QString& path, QStringView member, double& field) const {
  if (IsSending()) {
    Assign(path, member, SixDecimals(field));
  } else {
    field = FiniteNumber(Ask(path, member));
  }
}

void CorVynTransfer::UpdateCorVyn(const QString& path, QStringView member, QString& field) const {
  if (IsSending()) {
    Assign(path, member, field);
  } else {
    field = Ask(path, member);
  }
}

void CorVynTransfer::UpdateCorVynFile(const QString& path, QStringView member,
                                      QString& field) const {
  UpdateCorVyn(path, member, field);
}

void CorVynTransfer::UpdateCorVynBool(const QString& path, QStringView member, int& field) const {
  if (IsSending()) {
    Assign(path, member, field != 0 ? u"true"_s : u"false"_s);
    return;
  }
  const QString reply = Ask(path, member);
  if (reply.compare("true"_L1, Qt::CaseInsensitive) == 0) field = 1;
  if (reply.compare("false"_L1, Qt::CaseInsensitive) == 0) field = 0;
}

void CorVynTransfer::UpdateCorVynInt(const QString& path, QStringView member, int& field) const {
  if (IsSending()) {
    Assign(path, member, QString::number(field));
  } else {
    field = reply::ToInt(Ask(path, member));
  }
}

void CorVynTransfer::UpdateCorVynDate(const QString& path, QStringView member,
                                      ObservationTime& field) const {
  if (IsSending()) {
    if (const auto jd = JdToSend(field)) Assign(path, member, WithStrayParenthesis(*jd));
    return;
  }
  if (const auto time = ReadableTime(FiniteNumber(Ask(path, member)))) field = *time;
}

void CorVynTransfer::UpdateCorVynLngLat(const QString& path, QStringView member, int& negative,
                                        int& degrees, int& minutes, int& seconds) const {
  if (IsSending()) {
    const double angle = SignedDegrees(negative, degrees, minutes, seconds);
    Assign(path, member, WithStrayParenthesis(angle));
    return;
  }
  const SexagesimalAngle angle = DegTo60(FiniteNumber(Ask(path, member)));
  negative = angle.sign != 1;
  degrees = angle.degrees;
  minutes = angle.minutes;
  // A whole second may come a hair below itself.
  seconds = static_cast<int>(angle.seconds + 1e-6);
}

double SignedDegrees(int negative, int degrees, int minutes, int seconds) {
  const double angle = degrees + minutes / 60.0 + (seconds / 60.0) / 60.0;
  return negative != 0 ? -angle : angle;
}

QString TimeAssignment(const ObservationTime& time, const QString& second) {
  return u"time = jst(%1, %2, %3, %4, %5, %6)"_s.arg(time.year)
      .arg(time.month)
      .arg(time.day)
      .arg(time.hour)
      .arg(time.minute)
      .arg(second);
}

}  // namespace vyn
