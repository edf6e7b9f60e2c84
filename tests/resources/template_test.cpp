// What must hold for every dialog template.
#include <gtest/gtest.h>

#include <QSet>

#include "resources/dialog_template.h"
#include "resources/string_table.h"
#include "resources/templates/templates.h"

namespace vyn {
namespace {

/// Closed by the run that it shows.
constexpr int kProgressTemplate = 13010;

TEST(Templates, EveryNumberStandsOnceInADialog) {
  for (const DialogTemplate& dialog : templates::All()) {
    QSet<int> numbers;
    for (const TemplateItem* item : ControlsOf(dialog)) {
      EXPECT_FALSE(numbers.contains(item->id)) << dialog.number << " has " << item->id << " twice";
      numbers.insert(item->id);
    }
    const bool closesByButton = numbers.contains(kOkButton) || dialog.number == kProgressTemplate;
    EXPECT_TRUE(closesByButton) << dialog.number;
    EXPECT_FALSE(dialog.caption.isEmpty()) << dialog.number;
  }
}

TEST(StringTable, KeepsTheSettingsKeysThatExist) {
  EXPECT_EQ(LoadString(13363), QStringLiteral("Dialog\\SunMoon"));
  EXPECT_EQ(LoadString(13478), QStringLiteral("Dialog\\ZodicalLight"));
  EXPECT_EQ(LoadString(1), QString());
}

}  // namespace
}  // namespace vyn
