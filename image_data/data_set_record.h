// The values of the selected data set as an image dialog holds them between its controls and the
// core engine.
#pragma once

#include <QString>

#include "image_data/observation_time.h"
#include "image_data/placement.h"

namespace vyn {

/// Where an image was taken, as the edits show it.
struct ObservationSite {
  int west = 0;  ///< 0 east, 1 west
  int longitudeDegrees = 0;
  int longitudeMinutes = 0;
  int longitudeSeconds = 0;
  int south = 0;  ///< 0 north, 1 south
  int latitudeDegrees = 0;
  int latitudeMinutes = 0;
  int latitudeSeconds = 0;
  int altitudeMeters = 0;
};

/// All that the image dialogs show; each uses the part of it that its data sets have.
struct DataSetRecord : ObservationTime, ObservationSite, Placement {
  int layerVisible = 0;
  double layerBrightness = 1.0;  ///< opacity, 0.1 to 1.0
  int setVisible = 0;
  double setBrightness = 1.0;
  int isActive = 0;
  QString title;
  QString imagePath;
  double range = 0.0;
  double viewAngleDeg = 3.0;
  int diskMultiplier = 1;

  double centralLongitudeDeg = 0.0;  ///< "CM"
  double centralLatitudeDeg = 0.0;   ///< "De"
  double spotLongitudeDeg = 0.0;
  double spotLatitudeDeg = 0.0;
  int spotType = 1;
};

}  // namespace vyn
