// Three-dimensional vectors and 3x3 matrices, as little of them as positions and rotations need.
#pragma once

#include <array>
#include <cmath>

namespace vyn {

/// A point or direction in a right-handed frame; the unit is that of whoever made it.
struct Vector3 {
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;

  constexpr bool operator==(const Vector3&) const = default;
};

constexpr Vector3 operator+(const Vector3& a, const Vector3& b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vector3 operator-(const Vector3& a, const Vector3& b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Vector3 operator-(const Vector3& a) { return {-a.x, -a.y, -a.z}; }
constexpr Vector3 operator*(const Vector3& a, double factor) {
  return {a.x * factor, a.y * factor, a.z * factor};
}
constexpr Vector3 operator*(double factor, const Vector3& a) { return a * factor; }
constexpr Vector3 operator/(const Vector3& a, double divisor) { return a * (1.0 / divisor); }

constexpr double Dot(const Vector3& a, const Vector3& b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
constexpr Vector3 Cross(const Vector3& a, const Vector3& b) {
  return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
inline double Length(const Vector3& a) { return std::sqrt(Dot(a, a)); }

/// The vector of length 1 in the same direction; the zero vector stays as it is.
inline Vector3 Normalized(const Vector3& a) {
  const double length = Length(a);
  return length > 0.0 ? a / length : a;
}

/// The angle between two directions in radians, 0 to pi, exact for small and for near-straight
/// angles too.
inline double AngleBetween(const Vector3& a, const Vector3& b) {
  return std::atan2(Length(Cross(a, b)), Dot(a, b));
}

/// A matrix by rows.
struct Matrix3 {
  std::array<std::array<double, 3>, 3> rows{{{1.0, 0.0, 0.0}, {0.0, 1.0, 0.0}, {0.0, 0.0, 1.0}}};
};

constexpr Vector3 operator*(const Matrix3& m, const Vector3& v) {
  const auto& [r0, r1, r2] = m.rows;
  return {r0[0] * v.x + r0[1] * v.y + r0[2] * v.z, r1[0] * v.x + r1[1] * v.y + r1[2] * v.z,
          r2[0] * v.x + r2[1] * v.y + r2[2] * v.z};
}

constexpr Matrix3 operator*(const Matrix3& a, const Matrix3& b) {
  Matrix3 product;
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) {
      product.rows[i][j] =
          a.rows[i][0] * b.rows[0][j] + a.rows[i][1] * b.rows[1][j] + a.rows[i][2] * b.rows[2][j];
    }
  }
  return product;
}

/// The transpose, which for a rotation is its inverse.
constexpr Matrix3 Transposed(const Matrix3& m) {
  Matrix3 result;
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) result.rows[i][j] = m.rows[j][i];
  }
  return result;
}

}  // namespace vyn
