#include "siblings/astro/direction_cosines.h"

#include <erfa.h>

#include "siblings/astro/angles.h"

namespace vyn {
namespace {

Matrix3 FromErfa(const double matrix[3][3]) {
  Matrix3 result;
  for (int i = 0; i < 3; ++i) {
    for (int j = 0; j < 3; ++j) result.rows[i][j] = matrix[i][j];
  }
  return result;
}

Matrix3 FrameRotation(void (*rotate)(double, double[3][3]), double angleDeg) {
  double matrix[3][3];
  eraIr(matrix);
  rotate(angleDeg * kRadPerDeg, matrix);
  return FromErfa(matrix);
}

}  // namespace

Vector3 AdToDc(double longitudeDeg, double latitudeDeg) {
  double c[3];
  eraS2c(longitudeDeg * kRadPerDeg, latitudeDeg * kRadPerDeg, c);
  return {c[0], c[1], c[2]};
}

Spherical DcToAd(const Vector3& directionCosines) {
  double vector[3] = {directionCosines.x, directionCosines.y, directionCosines.z};
  double longitude = 0.0;
  double latitude = 0.0;
  eraC2s(vector, &longitude, &latitude);
  return {degmal(longitude * kDegPerRad), latitude * kDegPerRad};
}

Vector3 RotateDc(const Matrix3& rotation, const Vector3& directionCosines) {
  return rotation * directionCosines;
}

Matrix3 FrameRotationX(double angleDeg) { return FrameRotation(eraRx, angleDeg); }
Matrix3 FrameRotationY(double angleDeg) { return FrameRotation(eraRy, angleDeg); }
Matrix3 FrameRotationZ(double angleDeg) { return FrameRotation(eraRz, angleDeg); }

}  // namespace vyn
