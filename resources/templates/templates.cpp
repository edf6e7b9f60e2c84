#include "resources/templates/templates.h"

namespace vyn::templates {

std::vector<DialogTemplate> All() { return {Sun(), Solar(), ZodiacalLight()}; }

}  // namespace vyn::templates
