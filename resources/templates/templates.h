// Every dialog template of the library, one function each.
#pragma once

#include "resources/dialog_template.h"

namespace vyn::templates {

DialogTemplate Comet();
DialogTemplate MinorPlanet();
DialogTemplate Planet();
DialogTemplate DwarfPlanet();
DialogTemplate Satellite();
DialogTemplate CometTail();
DialogTemplate Sun();
DialogTemplate ElementEdit();
DialogTemplate ElementImportBlankId();
DialogTemplate ElementImportDuplicate();
DialogTemplate ElementUpdateDuplicate();
DialogTemplate ElementImportProgress();
DialogTemplate Solar();
DialogTemplate ZodiacalLight();
DialogTemplate Meteorite();
DialogTemplate DustTrail();
DialogTemplate Corona();
DialogTemplate Sunspot();
DialogTemplate TakenImage();
DialogTemplate TakenImageNew();
DialogTemplate PlanetTexture();

std::vector<DialogTemplate> All();

}  // namespace vyn::templates
