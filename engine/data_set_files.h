// Keeps the data sets of a node such as "Solar.Sun.Corona" in text files.
#pragma once

#include <map>
#include <set>
#include <vector>

#include <QString>

#include "engine/data_set_text.h"
#include "engine/property_tree.h"

namespace vyn {

/// A set's file is named by its member "File"; sets that name the same file stand in it together.
/// Only files in the node's folder, "SavePath", are written, and only those with the extension txt.
class DataSetFiles {
 public:
  /// ".save()": writes every file whole or not at all. A file of this node that no set names any
  /// more is removed after that. Returns what went wrong, an empty text when nothing did.
  QString Save(PropertyTree& tree, const QString& basePath);

  /// ".load()": takes the sets of all files in the node's folder in place of those held, in the
  /// order of their numbers. Returns what went wrong.
  QString Load(PropertyTree& tree, const QString& basePath);

 private:
  void ForgetUnused(const QString& basePath,
                    const std::map<QString, std::vector<DataSetText>>& files);

  /// The files of each node that were read or written here.
  std::map<QString, std::set<QString>> known_;
};

}  // namespace vyn
