// The core engine as the dialogs see it: command text in, reply text out.
#pragma once

#include <QString>

#include "core_link/export.h"

namespace vyn {

/// The host's core engine. A host derives one class from it and hands pointers to the dialogs,
/// which never own them. All calls come from the user-interface thread, one at a time.
class VYN_EXPORT CCorVyn {
 public:
  CCorVyn() = default;
  CCorVyn(const CCorVyn&) = delete;
  CCorVyn& operator=(const CCorVyn&) = delete;
  virtual ~CCorVyn();

  /// Carries out a command: one or more statements separated by ";". A query is "? " and a
  /// property path, an assignment is the path, " = " and the value, a method call is the path and
  /// a call such as ".Init()", and "Show Sky" redraws. Returns the replies of the queries, joined
  /// with nothing between them; an unknown path replies with an empty text. Never throws.
  virtual QString Doit(const QString& command) = 0;

  /// The property path of the body with this number, e.g. "Solar.Sun" for 0; empty for an
  /// unknown number.
  virtual QString ObjNumToName(int bodyNumber) const = 0;

  /// The number of the body on which the observer stands: 0 the Sun, 1 the Moon, others other
  /// bodies.
  virtual int GetLocationObject() const = 0;

  /// The time system in use: 0 JST, 1 LST, 2 UT, 3 LMT.
  virtual int GetTimeSys() const = 0;

  /// Whether the engine's own window is still there. A dialog that can do without an engine sends
  /// nothing once it is gone.
  virtual bool WindowExists() const { return true; }
};

}  // namespace vyn
