// Many points drawn at once, by classes of brightness.
#pragma once

#include <array>

#include <QColor>
#include <QImage>
#include <QPolygonF>

class QPainter;

namespace vyn {

/// Comets as points, the larger the brighter.
class CometPoints {
 public:
  /// A magnitude that is not known (NaN) counts as faint.
  void Add(const QPointF& at, double magnitude);
  void Paint(QPainter& painter) const;

  static QColor Color() { return {150, 240, 200}; }

 private:
  struct Class {
    double faintest;  ///< magnitude
    double diameterPixels;
    int alpha;
  };
  static constexpr std::array<Class, 5> kClasses{
      {{6.0, 6.0, 255}, {10.0, 4.2, 230}, {14.0, 3.0, 190}, {19.0, 2.2, 150}, {99.0, 1.8, 120}}};

  std::array<QPolygonF, kClasses.size()> points_;
};

/// A million points and more, as picture elements of one image.
class PointCloud {
 public:
  explicit PointCloud(const QSizeF& pictureSize);

  /// A point outside the picture is left out. Points are `size` picture elements wide.
  void Add(const QPointF& at, QRgb color, int size);
  void Paint(QPainter& painter) const;

 private:
  QImage image_;
};

}  // namespace vyn
