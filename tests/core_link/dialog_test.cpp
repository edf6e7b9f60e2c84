// The life of a dialog where a host meets it: modal, modeless, as a child, opened again, without an
// engine.
#include "core_link/dialog.h"

#include <gtest/gtest.h>

#include <QHash>
#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "core_link/window_message.h"
#include "major_bodies/solar_dialog.h"
#include "major_bodies/sun_dialog.h"
#include "major_bodies/zodiacal_light_dialog.h"
#include "siblings/controls/controls.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

/// An engine that answers from a table and keeps every command that is no query.
class RecordingEngine final : public CCorVyn {
 public:
  QString Doit(const QString& command) override {
    if (command.startsWith(u"? ")) return values.value(command.mid(2));
    changes.append(command);
    return {};
  }
  QString ObjNumToName(int) const override { return u"Solar.Sun"_s; }
  int GetLocationObject() const override { return 4; }
  int GetTimeSys() const override { return 0; }

  QHash<QString, QString> values;
  QStringList changes;
};

void Click(const CVynDialog& dialog, int id) {
  QTest::mouseClick(dialog.GetDlgItem(id), Qt::LeftButton, {}, {8, 8});
}

const QString kBothOff =
    u"solar.ZodiacalLight.Visible = FALSE;solar.CounterGlow.Visible = FALSE;"_s;

TEST(Dialog, ModalReturnsTheButtonThatClosedIt) {
  RecordingEngine engine;
  CDlgZodiacalLight dialog(&engine, nullptr, nullptr);
  for (const int button : {kOkButton, kCancelButton}) {
    QTimer::singleShot(0, &dialog, [&] { Click(dialog, button); });
    EXPECT_EQ(dialog.DoModal(), button);
  }
  EXPECT_EQ(engine.changes, QStringList{kBothOff});
}

TEST(Dialog, OpensAnewWithTheStateOfThatMoment) {
  RecordingEngine engine;
  CDlgZodiacalLight dialog(&engine, nullptr, nullptr);
  ASSERT_TRUE(dialog.Create());
  Click(dialog, 11102);
  Click(dialog, kOkButton);
  engine.values.insert(u"solar.CounterGlow.visible"_s, u"TRUE"_s);
  engine.changes.clear();
  ASSERT_TRUE(dialog.Create());
  Click(dialog, 11103);
  Click(dialog, kCancelButton);
  EXPECT_EQ(
      engine.changes,
      (QStringList{kBothOff + u";Show Sky",
                   u"solar.ZodiacalLight.Visible = FALSE;solar.CounterGlow.Visible = TRUE;"_s}));
  EXPECT_FALSE(dialog.isVisible());
}

TEST(Dialog, ChildTakesTheCommandHandleAlone) {
  RecordingEngine first, second;
  CDlgSun parent(&first, &second, nullptr);
  ASSERT_TRUE(parent.Create());
  CDlgZodiacalLight child(nullptr);
  ASSERT_TRUE(child.CreateChildOf(parent));
  EXPECT_EQ(child.parentWidget(), &parent);
  Click(child, 11103);
  EXPECT_EQ(first.changes.size(), 1);
  EXPECT_TRUE(second.changes.isEmpty());
}

TEST(Dialog, WithoutAnEngineItOpensEmptyAndCloses) {
  CDlgSun dialog(nullptr);
  ASSERT_TRUE(dialog.Create());
  Click(dialog, 1001);
  EXPECT_TRUE(static_cast<QCheckBox*>(dialog.GetDlgItem(1001))->isChecked());
  Click(dialog, kCancelButton);
  EXPECT_FALSE(dialog.isVisible());
}

TEST(Dialog, ScriptBeforeOpeningDescribesTheInitialValues) {
  RecordingEngine engine;
  CDlgSun dialog(&engine, nullptr, nullptr);
  QString script;
  EXPECT_EQ(dialog.GetScript(script), 1);
  EXPECT_TRUE(script.startsWith(u"solar.sun.visible = FALSE;solar.sun.japanesename.visible"));
  EXPECT_TRUE(engine.changes.isEmpty());
}

TEST(Dialog, AsksForHelpByButtonAndKey) {
  RecordingEngine engine;
  CDlgSun dialog(&engine, nullptr, nullptr);
  QSignalSpy asked(&dialog, &CVynDialog::helpRequested);
  ASSERT_TRUE(dialog.Create());
  Click(dialog, kHelpButton);
  QTest::keyClick(&dialog, Qt::Key_F1);
  EXPECT_EQ(asked, (QList<QVariantList>{{13004}, {13004}}));
}

TEST(Dialog, ComesBackWhereItWasLeft) {
  RecordingEngine engine;
  {
    CDlgSun dialog(&engine, nullptr, nullptr);
    ASSERT_TRUE(dialog.Create());
    dialog.move(123, 45);
    dialog.accept();
  }
  CDlgSun dialog(&engine, nullptr, nullptr);
  ASSERT_TRUE(dialog.Create());
  EXPECT_EQ(dialog.pos(), QPoint(123, 45));
}

TEST(WindowMessage, OneNameIsOneType) {
  const auto first = RegisterWindowMessage(u"SatelliteCheckListChangedMessage"_s);
  EXPECT_EQ(RegisterWindowMessage(u"SatelliteCheckListChangedMessage"_s), first);
  EXPECT_NE(RegisterWindowMessage(u"another"_s), first);
}

TEST(SpinButton, SendsDeltasByMouseKeysAndWheel) {
  QLineEdit edit;
  CVynSpinButton spin;
  spin.SetBuddy(&edit);
  spin.resize(16, 24);
  QList<int> deltas;
  QObject::connect(&spin, &CVynSpinButton::deltaPressed, &spin,
                   [&](int delta, Qt::KeyboardModifiers) { deltas.append(delta); });
  QTest::mouseClick(&spin, Qt::LeftButton, {}, spin.UpRect().center());
  QTest::mouseClick(&spin, Qt::LeftButton, {}, spin.DownRect().center());
  QTest::keyClick(&edit, Qt::Key_Up);
  QTest::keyClick(&edit, Qt::Key_Down);
  spin.setEnabled(false);
  QTest::mouseClick(&spin, Qt::LeftButton, {}, spin.UpRect().center());
  EXPECT_EQ(deltas, (QList<int>{-1, 1, -1, 1}));
}

}  // namespace
}  // namespace vyn
