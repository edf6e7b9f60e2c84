// Blocks of small bodies against the same bodies reckoned alone: orbits of every shape, at moments
// near and far from perihelion, with and without what a record may leave blank.
#include "engine/sky/small_body_block.h"

#include <cmath>

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "elements/element_record.h"
#include "engine/sky/bodies.h"
#include "engine/sky/magnitudes.h"
#include "siblings/astro/calendar.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

void Put(QByteArray& record, ElementField field, const QByteArray& text) {
  record.replace(FieldOf(field).offset, text.size(), text);
}

QByteArray Record(char kind, double q, double e, double angleDeg, double inclinationDeg) {
  QByteArray record(kElementRecordSize, ' ');
  record[0] = kind;
  Put(record, ElementField::PerihelionYear, "20200101.25");
  Put(record, ElementField::PerihelionDistance, QByteArray::number(q, 'f', 4));
  Put(record, ElementField::Eccentricity, QByteArray::number(e, 'f', 6));
  Put(record, ElementField::ArgumentOfPerihelion, QByteArray::number(angleDeg, 'f', 2));
  Put(record, ElementField::AscendingNode, QByteArray::number(357.5 - angleDeg, 'f', 2));
  Put(record, ElementField::Inclination, QByteArray::number(inclinationDeg, 'f', 2));
  Put(record, ElementField::AbsoluteMagnitude, "12.3");
  Put(record, ElementField::MagnitudeCoefficient, kind == 'C' ? "6.0" : "0.25");
  Put(record, ElementField::LineEnd, "\r\n");
  return record;
}

QByteArray EveryShape() {
  QByteArray file;
  for (const char kind : {'M', 'C'}) {
    for (const double e : {0.0, 1e-6, 0.05, 0.3, 0.6, 0.85, 0.9, 0.900001, 0.97, 0.9999, 0.999999,
                           1.0, 1.000001, 1.2, 3.4}) {
      for (const double q : {0.01, 0.9, 2.7, 39.0}) {
        for (const double inclination : {0.0, 12.3, 90.0, 175.0, 180.0}) {
          file += Record(kind, q, e, 10.0 + 80.0 * q + 50.0 * e, inclination);
        }
      }
    }
  }
  return file;
}

class SmallBodyBlockTest : public testing::Test {
 protected:
  void Load(const QByteArray& bytes) {
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
    file.close();
    ASSERT_TRUE(table_.Load(path_));
  }

  /// What single objects are told by the functions for one orbit.
  void Compare(double jdTt) {
    const StateVector earth = HeliocentricState(Body::Earth, jdTt);
    for (int first = 0; first < table_.Count(); first += SmallBodyBlock::kSize) {
      SmallBodyBlock block;
      ReckonBlock(table_, first, jdTt, earth, &block);
      const int count = std::min(SmallBodyBlock::kSize, table_.Count() - first);
      for (int i = 0; i < count; ++i) CompareOne(block, i, first + i, jdTt, earth);
    }
  }

  void CompareOne(const SmallBodyBlock& block, int i, int object, double jdTt,
                  const StateVector& earth) {
    const SmallBody body = table_.BodyAt(object, jdTt);
    const auto [position, velocity] = StateAt(body.orbit, jdTt);
    const Vector3 place{block.x[i], block.y[i], block.z[i]};
    const Vector3 seen{block.seenX[i], block.seenY[i], block.seenZ[i]};
    const Vector3 seenAlone = ApparentPlace(position - earth.position, velocity - earth.velocity);
    // A double tells a moment to 4e-5 s; close to the Sun a body moves on by that much.
    const double bound = 1e-11 * Length(position) + 5e-10 * Length(velocity);
    SCOPED_TRACE(testing::Message() << "object " << object << " e " << body.orbit.eccentricity
                                    << " q " << body.orbit.perihelionDistanceAu << " jd " << jdTt);
    ASSERT_LE(Length(place - position), bound);
    ASSERT_LE(Length(seen - seenAlone), 2.0 * bound);
    const bool comet = table_.IsComet(object);
    const auto magnitude = comet ? CometMagnitude : MinorPlanetMagnitude;
    const double coefficient =
        std::isnan(body.magnitudeCoefficient) ? (comet ? 4.0 : 0.15) : body.magnitudeCoefficient;
    const double alone =
        magnitude(body.absoluteMagnitude, coefficient, IlluminationOf(position, seenAlone));
    ASSERT_NEAR(block.magnitude[i], alone, 1e-3);
  }

  QTemporaryDir folder_;
  QString path_ = folder_.filePath(u"shapes.eld"_s);
  ElementTable table_;
};

TEST_F(SmallBodyBlockTest, EveryShapeOfOrbitIsWhereItIsAlone) {
  Load(EveryShape());
  ASSERT_NE(table_.Count() % SmallBodyBlock::kSize, 0) << "the last block is not full";
  const double perihelion = CalcJd(2020, 1, 1.25);
  for (const double days : {0.0, 1e-3, -0.5, 3.0, -40.0, 365.0, 1234.5, -5000.0, 30000.0, -2e5}) {
    Compare(perihelion + days);
  }
}

TEST_F(SmallBodyBlockTest, MinorPlanetsInEveryPhaseAreAsBrightAsAlone) {
  QByteArray file;
  for (int i = 0; i < 300; ++i) file += Record('M', 0.7 + 0.001 * i, 0.1, 0.7 * i, 0.01 * i);
  Load(file);
  for (int month = 0; month < 12; ++month) Compare(CalcJd(2021, 1, 1) + 30.0 * month);
}

TEST_F(SmallBodyBlockTest, WhatIsMissingIsToldAndLeavesTheNeighboursAlone) {
  QByteArray withoutNode = Record('M', 2.5, 0.1, 10.0, 5.0);
  Put(withoutNode, ElementField::AscendingNode, "        ");
  QByteArray withoutBrightness = Record('M', 2.5, 0.1, 10.0, 5.0);
  Put(withoutBrightness, ElementField::AbsoluteMagnitude, "    ");
  QByteArray withoutSlope = Record('M', 2.5, 0.1, 10.0, 5.0);
  Put(withoutSlope, ElementField::MagnitudeCoefficient, "    ");
  const QByteArray whole = Record('M', 2.5, 0.1, 10.0, 5.0);
  Load(whole + withoutNode + whole + withoutBrightness + withoutSlope);
  const double jdTt = CalcJd(2021, 1, 1);
  const StateVector earth = HeliocentricState(Body::Earth, jdTt);
  SmallBodyBlock block;
  ReckonBlock(table_, 0, jdTt, earth, &block);
  for (const int object : {0, 2, 4}) CompareOne(block, object, object, jdTt, earth);
  EXPECT_TRUE(std::isnan(block.x[1]) && std::isnan(block.seenZ[1]) &&
              std::isnan(block.magnitude[1]));
  EXPECT_EQ(block.x[3], block.x[0]);
  EXPECT_TRUE(std::isnan(block.magnitude[3]));
}

TEST_F(SmallBodyBlockTest, ObjectsWithPagesUseTheOneValidThen) {
  QByteArray early = Record('M', 2.5, 0.1, 10.0, 5.0);
  Put(early, ElementField::ValidToYear, "20210101");
  QByteArray late = Record('+', 2.6, 0.2, 20.0, 6.0);
  Put(late, ElementField::ValidFromYear, "20210101");
  Load(Record('M', 3.0, 0.1, 1.0, 1.0) + early + late + Record('M', 3.1, 0.1, 1.0, 1.0));
  ASSERT_EQ(table_.PageCount(1), 2);
  Compare(CalcJd(2020, 6, 1));
  Compare(CalcJd(2022, 6, 1));
}

}  // namespace
}  // namespace vyn
