// The element file that the engine has loaded: numbers in columns, texts read on demand.
#pragma once

#include <cstdint>
#include <limits>
#include <memory>
#include <string_view>
#include <vector>

#include <QString>

#include "engine/sky/kepler.h"

namespace vyn {

/// What the numbers of one record say about a comet or minor planet.
struct SmallBody {
  OrbitElements
      orbit;  ///< in the ecliptic of J2000; its perihelionJd is NaN when it cannot be used
  double epochJd = std::numeric_limits<double>::quiet_NaN();            ///< NaN when not given
  double absoluteMagnitude = std::numeric_limits<double>::quiet_NaN();  ///< H; NaN when not given
  double magnitudeCoefficient = std::numeric_limits<double>::quiet_NaN();  ///< K or G; likewise
  double dustTailAu = 0.0;
  double ionTailAu = 0.0;
  double betaMax = 0.0;
};

/// The numbers of every object's first record, one column a number, for loops over all objects.
/// Units and missing values as in SmallBody.
struct ElementColumns {
  std::vector<double> perihelionJd;
  std::vector<double> perihelionDistanceAu;
  std::vector<double> eccentricity;
  std::vector<double> argumentOfPerihelionDeg;
  std::vector<double> ascendingNodeDeg;
  std::vector<double> inclinationDeg;
  std::vector<float> absoluteMagnitude;
  std::vector<float> magnitudeCoefficient;
  std::vector<std::uint8_t> isComet;  ///< 1 for a comet, 0 for a minor planet
};

/// Something in an element file that could not be read. Records that follow one another and have
/// the same trouble are one problem.
struct ElementProblem {
  QString file;
  std::int64_t record = 0;        ///< number of the (first) record, from 0; -1 for the whole file
  std::int64_t recordCount = 1;   ///< records that have it
  std::int64_t bytePosition = 0;  ///< where that record begins in the file
  QString reason;

  QString Text() const;  ///< all of it as one line
};

/// An element file, memory-mapped, with one object for each record that begins with C or M.
/// Object and record numbers count from 0. A file in use may be replaced by another of the same
/// name or be written in place, but must not be cut short in place.
class ElementTable {
 public:
  /// How many problems are kept; further ones are only counted.
  static constexpr int kMostProblems = 1000;

  ElementTable();
  ~ElementTable();
  ElementTable(const ElementTable&) = delete;
  ElementTable& operator=(const ElementTable&) = delete;

  /// Loads a file. What cannot be read in it is told by Problems(). A file that cannot be opened or
  /// holds no object returns false and leaves the objects of the file loaded before;
  /// Problems() then tells why.
  bool Load(const QString& path);

  /// The file's path as given; empty before the first load.
  QString FilePath() const;

  int Count() const;                                       ///< objects
  int RecordCount() const;                                 ///< whole records of any kind
  const std::vector<std::uint32_t>& FirstRecords() const;  ///< of each object, ascending
  const char* RecordData() const;                          ///< the file; null before the first load
  std::string_view Record(int record) const;               ///< empty for a number out of range

  /// Columns of the first record. Out of range: empty texts and a body that cannot be used.
  QString Identifier(int object) const;
  QString EnglishName(int object) const;
  QString JapaneseName(int object) const;
  bool IsComet(int object) const;

  /// Records of the object: 1 and its continuation records.
  int PageCount(int object) const;

  /// The object by its first record.
  SmallBody Body(int object) const;

  /// The object by the record whose range of validity holds the date; a missing bound is none. Of
  /// several the first, and where none does the one whose range is nearest.
  SmallBody BodyAt(int object, double jdTt) const;

  const ElementColumns& Columns() const;

  /// The objects that have continuation records, ascending: those for which a loop over Columns()
  /// asks BodyAt instead.
  const std::vector<std::uint32_t>& ObjectsWithPages() const;

  /// The first object whose identifier is this one, blanks at both ends and case aside; -1 for
  /// none.
  int IndexOf(QStringView identifier) const;

  /// The file has changed on disk: one object's records were changed, or taken out. Only those are
  /// read again; when the file's length shows that more has changed, all of it is. False, with
  /// everything as it was, when the file cannot be read any more or there is no such object.
  bool DataUpdate(int object);
  bool DataRemove(int object);

  /// The same for objects added at the end. An object that was added before may be written anew
  /// without another word: where the file is not the old one with more at its end, all that were
  /// added since the whole file was read are read again. Returns the first object that was read,
  /// -1 on failure.
  int DataAdd();

  /// How often a whole file has been read.
  int WholeReads() const { return wholeReads_; }

  /// What could not be read, of the last load and what was read again since.
  const std::vector<ElementProblem>& Problems() const;
  /// The number of records with a problem, also of those not kept.
  std::int64_t ProblemCount() const;

 private:
  struct Content;
  /// Maps the changed file and applies the change, given the number of records by which the file
  /// has grown; loads the whole file when the change cannot be applied.
  template <typename Change>
  bool ReadChange(Change change);
  /// Reads the whole file. One without any object is refused unless it is empty and may be.
  bool Read(const QString& path, bool mayBeEmpty);

  std::unique_ptr<Content> content_;
  std::vector<ElementProblem> loadFailure_;
  int wholeReads_ = 0;
};

}  // namespace vyn
