#include "resources/templates/templates.h"

namespace vyn::templates {

std::vector<DialogTemplate> All() {
  return {Comet(),
          MinorPlanet(),
          Planet(),
          Satellite(),
          CometTail(),
          Sun(),
          DwarfPlanet(),
          ElementEdit(),
          ElementImportBlankId(),
          ElementImportDuplicate(),
          ElementUpdateDuplicate(),
          ElementImportProgress(),
          ZodiacalLight(),
          Meteorite(),
          DustTrail(),
          Corona(),
          Sunspot(),
          TakenImage(),
          TakenImageNew(),
          PlanetTexture(),
          Solar()};
}

}  // namespace vyn::templates
