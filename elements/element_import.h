// Imports objects into the core engine's current element file, asking the user where the files do
// not tell what to do.
#pragma once

#include <cstdint>

#include <QString>

#include "core_link/cor_vyn.h"
#include "core_link/export.h"

class QWidget;

namespace vyn {

/// One importing operation; a fresh one serves each object of a run.
class VYN_EXPORT CElementImport {
 public:
  /// A flag of 0 means minor planets, any other comets. The engine is not owned.
  CElementImport(int cometFlag, CCorVyn* engine);
  virtual ~CElementImport();

  /// Copies the object with this number, from 0, of another element file into the current one.
  /// `flags` holds the decisions of the whole run and starts at 0; `parent` is the window for
  /// questions. Returns the number of the object in the current file that now holds the data, -1
  /// when the user skipped it, -2 on failure with the reason in ErrorText().
  int ImportElement(const QString& sourcePath, std::int32_t object, std::int32_t* flags,
                    QWidget* parent);
  /// The same, but an object that is there already is refreshed without a question unless the user
  /// has edited it.
  int UpdateElement(const QString& sourcePath, std::int32_t object, std::int32_t* flags,
                    QWidget* parent);

  /// The path of the engine's current element file.
  QString GetFileName();

  /// Why the last import or update failed; empty when it did not.
  const QString& ErrorText() const { return errorText_; }

 private:
  QString kind_;
  CCorVyn* engine_;
  QString errorText_;
};

}  // namespace vyn
