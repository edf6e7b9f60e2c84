// Runs the driver's tests in the surroundings in which the driver runs.
#include <gtest/gtest.h>

#include "tools/vyn-drive/application.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  const auto application = vyn::drive::StartApplication(argc, argv);
  return RUN_ALL_TESTS();
}
