// The text in which data sets are kept on disk; docs/data_sets.md describes it.
#pragma once

#include <utility>
#include <vector>

#include <QString>
#include <QStringView>

namespace vyn {

struct DataSetText {
  int number = 0;  ///< its place in the list
  /// Paths below the set, such as "Location.Longitude", with their values.
  std::vector<std::pair<QString, QString>> members;
};

QString WriteDataSets(const std::vector<DataSetText>& sets);

/// The sets of a text. Lines that mean nothing are passed over.
std::vector<DataSetText> ReadDataSets(QStringView text);

}  // namespace vyn
