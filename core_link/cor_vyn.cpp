// Anchors the engine interface's type information in the library.
#include "core_link/cor_vyn.h"

namespace vyn {

CCorVyn::~CCorVyn() = default;

}  // namespace vyn
