#include "host/frame.h"

#include <cmath>

#include <QPainter>
#include <QStringList>

#include "engine/reference_engine.h"
#include "host/labels.h"
#include "host/sky_painter.h"
#include "host/solar_canvas.h"
#include "host/solar_painter.h"
#include "host/vector_registers.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

CalendarDate LocalDate(const ReferenceEngine& engine) {
  const double zone = engine.Number(u"Time.TimeZone", 9.0);
  return ChangeTimezone(JdToDate2(engine.JulianDate(), 1.0), zone);
}

QString TwoDigits(int number) { return u"%1"_s.arg(number, 2, 10, QChar(u'0')); }

QString MomentText(const CalendarDate& date) {
  const QString zone =
      date.timezoneHours == 9.0
          ? u"日本時"_s
          : u"UT%1%2"_s.arg(date.timezoneHours < 0 ? u""_s : u"+"_s).arg(date.timezoneHours);
  return u"%1年%2月%3日 %4:%5:%6 %7"_s.arg(date.year)
      .arg(date.month)
      .arg(date.day)
      .arg(TwoDigits(date.hour), TwoDigits(date.minute), TwoDigits(static_cast<int>(date.second)),
           zone);
}

QString DegreesText(double degrees, QStringView positive, QStringView negative) {
  return (degrees < 0.0 ? negative : positive) + u"%1°"_s.arg(std::abs(degrees), 0, 'f', 2);
}

QString PlaceText(const ReferenceEngine& engine, SkyBody body) {
  return RowOf(body).japaneseName + u" "_s +
         DegreesText(engine.Number(u"Location.Longitude"), u"東経", u"西経") + u' ' +
         DegreesText(engine.Number(u"Location.Latitude"), u"北緯", u"南緯");
}

QString ExtentText(const Frame& frame) {
  if (frame.view.kind == ViewKind::SolarSystem) {
    return RowOf(frame.view.center).japaneseName + u"から "_s + DistanceText(frame.view.distanceAu);
  }
  return u"視野 %1°"_s.arg(frame.view.angleDeg, 0, 'g', 3);
}

/// The line at the bottom that tells when, where and how much is shown.
void PaintStatus(QPainter& painter, const Frame& frame) {
  const QString text =
      QStringList{frame.momentText, frame.placeText, ExtentText(frame)}.join(u"　"_s);
  QRectF area = StatusArea(frame.size);
  const LabelStyle style{QColor(0xC8, 0xD4, 0xE8), LabelFont(10)};
  area.setWidth(QFontMetricsF(style.font).horizontalAdvance(text));
  DrawText(painter, area, text, style);
}

}  // namespace

Frame ReadFrame(ReferenceEngine& engine, const QSizeF& size) {
  Frame frame;
  frame.size = size;
  frame.view = ReadViewState(engine);
  frame.display = ReadDisplayState(engine);
  frame.overlays = ReadOverlays(engine);
  frame.scene = BuildScene(engine, frame.view.kind);
  AddSatellites(frame.display.satellites, frame.view.kind, &frame.scene);
  const CalendarDate date = LocalDate(engine);
  frame.dateText = u"%1月%2日"_s.arg(date.month).arg(date.day);
  frame.momentText = MomentText(date);
  frame.placeText = PlaceText(engine, frame.scene.viewpoint.body);
  return frame;
}

void PaintFrame(QPainter& painter, const Frame& frame) {
  painter.setRenderHint(QPainter::Antialiasing);
  if (frame.view.kind == ViewKind::SolarSystem) {
    PaintSolarSystem(painter, frame);
  } else {
    PaintSky(painter, frame);
  }
  PaintStatus(painter, frame);
  ClearVectorRegisters();
}

QRectF StatusArea(const QSizeF& pictureSize) {
  return {12.0, pictureSize.height() - 28.0, 540.0, 20.0};
}

QString LabelText(const Frame& frame, SkyBody body) {
  const BodyDisplay& display = frame.display.Of(body);
  const BodyRow& row = RowOf(body);
  QStringList parts;
  if (display.japaneseName) parts << row.japaneseName.toString();
  if (display.englishName) parts << row.englishName.toString();
  if (display.number) parts << NumberText(Primary::Earth, 1);
  if (display.date) parts << frame.dateText;
  if (display.magnitude) {
    parts << u"%1等"_s.arg(frame.scene.Of(body).magnitude, 0, 'f', 1);
  }
  return parts.join(u' ');
}

}  // namespace vyn
