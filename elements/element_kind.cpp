#include "elements/element_kind.h"

namespace vyn {

using namespace Qt::StringLiterals;

QString ElementKindWord(int cometFlag) { return cometFlag != 0 ? u"COMET"_s : u"MINORPLANET"_s; }

QString AskElementFile(CCorVyn* engine, const QString& kind) {
  return engine == nullptr ? QString() : engine->Doit(u"? solar."_s + kind + u".file"_s);
}

}  // namespace vyn
