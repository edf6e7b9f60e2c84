// What must hold for every dialog template.
#include <gtest/gtest.h>

#include <QSet>

#include "resources/dialog_template.h"
#include "resources/string_table.h"
#include "resources/templates/templates.h"

namespace vyn {
namespace {

QChar MnemonicOf(const QString& text) {
  const qsizetype mark = text.indexOf(QLatin1Char('&'));
  return mark >= 0 && mark + 1 < text.size() ? text.at(mark + 1).toUpper() : QChar();
}

TEST(Templates, NumbersAndMnemonicsStandOnceInADialog) {
  for (const DialogTemplate& dialog : templates::All()) {
    QSet<int> numbers;
    QSet<QChar> mnemonics;
    for (const TemplateItem* item : ControlsOf(dialog)) {
      EXPECT_FALSE(numbers.contains(item->id)) << dialog.number << " has " << item->id << " twice";
      numbers.insert(item->id);
      const QChar mnemonic = MnemonicOf(item->text);
      if (mnemonic.isNull()) continue;
      EXPECT_FALSE(mnemonics.contains(mnemonic))
          << dialog.number << " uses " << mnemonic.toLatin1() << " twice";
      mnemonics.insert(mnemonic);
    }
    EXPECT_TRUE(numbers.contains(kOkButton) && numbers.contains(kCancelButton)) << dialog.number;
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
