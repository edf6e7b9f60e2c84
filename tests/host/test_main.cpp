// The host's tests paint text and open windows, so they run inside an application without a screen.
#include <QApplication>
#include <QFont>

#include <gtest/gtest.h>

#include "siblings/registry/registry.h"

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setFont(QFont(QStringLiteral("IPAPGothic"), 10));
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
