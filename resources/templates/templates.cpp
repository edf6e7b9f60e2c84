#include "resources/templates/templates.h"

namespace vyn::templates {

std::vector<DialogTemplate> All() {
  return {Planet(), DwarfPlanet(), Satellite(), Sun(), Solar(), ZodiacalLight()};
}

}  // namespace vyn::templates
