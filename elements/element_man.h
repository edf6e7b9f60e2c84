// Creates, edits and deletes objects of the core engine's current element file.
#pragma once

#include <cstdint>
#include <functional>

#include <QByteArray>
#include <QString>

#include "core_link/cor_vyn.h"
#include "core_link/export.h"

class QWidget;

namespace vyn {

struct ElementDataPointers;
class ElementFile;

/// Objects are numbered from 0. Only the file is changed; the caller tells the engines. A message
/// tells of what cannot be read or written.
class VYN_EXPORT CElementMan {
 public:
  /// Comets, without an engine.
  CElementMan() : CElementMan(1, nullptr, nullptr) {}
  /// A flag of 0 means minor planets, any other comets. The engines are not owned; the editor gets
  /// both. `parent` is the window for the editor and messages, null for the active one.
  CElementMan(int cometFlag, CCorVyn* engine, CCorVyn* secondEngine, QWidget* parent = nullptr);

  /// Runs the editor on a new object and appends it. 1 on success, 0 when the user cancelled or
  /// it could not be written.
  int AddNewObject();
  /// Runs the editor on an object and writes it back. 1 when the file was changed, 0 when the user
  /// cancelled or changed nothing, or on failure.
  int EditObject(int object);
  /// Takes the object's records out of the file. 1 on success, 0 on failure.
  int DeleteObject(int object);

  /// The number of objects in a file; 0 when it cannot be opened.
  int CountObjects(const QString& path);
  /// Tells the user why there is no object in a file. 1 when it is empty, 0 when something is wrong
  /// with it.
  int CheckElementFile(const QString& path);

  /// Where the engine has its elements. The addresses are views into its memory. False when it
  /// gives none.
  bool GetElementIndex(std::int64_t* recordCount, const char** elements, std::int64_t* objectCount,
                       const std::uint32_t** firstRecords);

 private:
  bool GetElementIndex(ElementDataPointers& index);
  int ChangeFile(const QString& path, const std::function<bool(ElementFile&)>& change);
  QWidget* Window() const;
  void ShowMessage(int icon, const QString& text);

  QString kind_;
  CCorVyn* engine_;
  CCorVyn* secondEngine_;
  QWidget* parent_;
};

}  // namespace vyn
