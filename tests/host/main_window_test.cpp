#include <algorithm>

#include <QAction>
#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include "core_link/dialog.h"
#include "core_link/window_message.h"
#include "engine/reference_engine.h"
#include "host/comet_picker.h"
#include "host/command_panel.h"
#include "host/dialog_catalogue.h"
#include "host/main_window.h"
#include "host/sky_canvas.h"
#include "host/sky_view.h"
#include "host/solar_canvas.h"
#include "resources/dialog_template.h"
#include "siblings/controls/object_list_box.h"
#include "siblings/registry/registry.h"
#include "tests/core_link/person.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

class MainWindowTest : public testing::Test {
 protected:
  MainWindowTest() {
    CRegistry::UseFile(settings_.filePath(u"settings.ini"_s));
    engine_.LoadStartingState();
    window_ = std::make_unique<MainWindow>(engine_);
    window_->resize(900, 700);
    window_->show();
  }

  QImage Sky() { return window_->View().grab().toImage(); }

  void Click(CVynDialog& dialog, int id) {
    QWidget* control = dialog.GetDlgItem(id);
    ASSERT_NE(control, nullptr) << id;
    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, control->height() / 2));
  }

  QAction* Action(const QString& text) {
    for (QAction* action : window_->findChildren<QAction*>()) {
      if (action->text() == text) return action;
    }
    return nullptr;
  }

  bool IsCheckedInMenu(const QString& text) {
    QAction* action = Action(text);
    for (QMenu* menu : window_->findChildren<QMenu*>()) Q_EMIT menu->aboutToShow();
    return action != nullptr && action->isChecked();
  }

  QMenu* PopUp() {
    for (QMenu* menu : window_->findChildren<QMenu*>()) {
      if (menu->isVisible()) return menu;
    }
    return nullptr;
  }

  QTemporaryDir settings_;
  ReferenceEngine engine_;
  std::unique_ptr<MainWindow> window_;
};

TEST_F(MainWindowTest, ClickInADialogChangesTheSkyAndCancelPutsItBack) {
  window_->Send(u"View.Center = Solar.Moon; View.Center.Track = TRUE; View.Angle = 2; Show Sky"_s);
  const QImage before = Sky();
  CVynDialog* dialog = window_->OpenDialog(*FindDialog(13004));
  Click(*dialog, 1025);
  EXPECT_TRUE(engine_.IsOn(u"Solar.Moon.Disk.Grid"));
  EXPECT_NE(before, Sky());
  EXPECT_TRUE(window_->Panel().Text().contains(
      u"solar.planet.earth.satellite.moon.disk.grid.visible = TRUE;"_s));
  Click(*dialog, kCancelButton);
  EXPECT_EQ(before, Sky());
  EXPECT_TRUE(window_->Panel().Text().endsWith(u"Show Sky"_s));
}

TEST_F(MainWindowTest, EveryDialogOpensOnceAndHasHelp) {
  for (const DialogEntry& entry : DialogCatalogue()) {
    CVynDialog* dialog = window_->OpenDialog(entry);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(dialog->TemplateNumber(), entry.templateNumber);
    EXPECT_EQ(window_->OpenDialog(entry), dialog);
    EXPECT_FALSE(entry.help.isEmpty());
    const auto windows = window_->findChildren<QDialog*>().size();
    Click(*dialog, kHelpButton);
    EXPECT_EQ(window_->findChildren<QDialog*>().size(), windows + 1);
  }
}

TEST_F(MainWindowTest, EngineThatContradictsItselfOpensNoDialog) {
  window_->Send(u"solar.planet.satellite.count = 1"_s);
  const Person person({[](QWidget* box) { box->close(); }});
  EXPECT_EQ(window_->OpenDialog(*FindDialog(13003)), nullptr);
}

TEST_F(MainWindowTest, AnswersWhatADialogColours) {
  CVynDialog* dialog = window_->OpenDialog(*FindDialog(13004));
  dialog->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
  QString texts[2];
  for (quintptr which = 0; which < 2; ++which) {
    CVynMessage message(kTextRequestMessage, which, &texts[which]);
    QApplication::sendEvent(window_.get(), &message);
    EXPECT_TRUE(message.isAccepted());
  }
  EXPECT_EQ(texts[0], u"太陽・月の名称"_s);
  EXPECT_EQ(texts[1], u"太陽 Sun"_s);
}

TEST_F(MainWindowTest, MenusFollowTheEngine) {
  EXPECT_TRUE(IsCheckedInMenu(u"地平座標の空(&H)"_s));
  EXPECT_TRUE(IsCheckedInMenu(u"東京"_s));
  engine_.Doit(u"View.Projection = SolarSystem"_s);
  EXPECT_TRUE(IsCheckedInMenu(u"外から見た太陽系(&S)"_s));
  EXPECT_FALSE(IsCheckedInMenu(u"地平座標の空(&H)"_s));
  Action(u"黄道座標の空(&E)"_s)->trigger();
  EXPECT_EQ(engine_.Property(u"View.Coordinate"_s), u"Ecliptic"_s);
  Action(u"月から見る(&M)"_s)->trigger();
  EXPECT_EQ(engine_.GetLocationObject(), 1);
  EXPECT_TRUE(IsCheckedInMenu(u"月から見る(&M)"_s));
  Action(u"シドニー"_s)->trigger();
  EXPECT_DOUBLE_EQ(engine_.Number(u"Location.Latitude"), -33.87);
  EXPECT_TRUE(IsCheckedInMenu(u"シドニー"_s));
  Action(u"1か月進む"_s)->trigger();
  EXPECT_EQ(engine_.Property(u"Time.Month"_s), u"2"_s);
}

TEST_F(MainWindowTest, PanelKeepsOneLineForARunOfTheClockOrTheView) {
  CommandPanel panel(nullptr);
  for (const char16_t* command :
       {u"? solar.sun.visible", u"time = jst(1)", u"time = jst(2)", u"View.Angle = 3",
        u"View.Angle = 2", u"solar.sun.visible = TRUE;", u"solar.sun.visible = TRUE;"}) {
    panel.Append(QString::fromUtf16(command));
  }
  EXPECT_EQ(panel.Text().split(u'\n'),
            (QStringList{u"? solar.sun.visible"_s, u"time = jst(2)"_s, u"View.Angle = 2"_s,
                         u"solar.sun.visible = TRUE;"_s, u"solar.sun.visible = TRUE;"_s}));
}

TEST_F(MainWindowTest, DraggingTheSkyTakesItAlong) {
  engine_.Doit(u"View.Angle = 60; View.Azimuth = 150; View.Altitude = 20"_s);
  SkyView& view = window_->View();
  const auto directionAt = [&](const QPointF& point) {
    Frame frame;
    frame.size = view.size();
    frame.view = ReadViewState(engine_);
    return SkyProjection(SkyMiddle(frame), frame.view.angleDeg, frame.size).ToDirection(point);
  };
  const QPoint from(400, 300);
  const QPoint to(430, 280);
  const Vector3 grabbed = directionAt(from);
  QTest::mousePress(&view, Qt::LeftButton, {}, from);
  QTest::mouseMove(&view, to);
  QTest::mouseRelease(&view, Qt::LeftButton, {}, to);
  EXPECT_LT(AngleBetween(directionAt(to), grabbed), 0.01);
  EXPECT_NE(ReadViewState(engine_).direction.longitudeDeg, 150.0);
}

TEST_F(MainWindowTest, WheelZoomsTheSkyAndTheSolarSystem) {
  window_->View().Zoom(1.0);
  EXPECT_LT(ReadViewState(engine_).angleDeg, 90.0);
  for (int i = 0; i < 100; ++i) window_->View().Zoom(1.0);
  EXPECT_DOUBLE_EQ(ReadViewState(engine_).angleDeg, kMinAngleDeg);
  window_->Send(u"View.Projection = SolarSystem"_s);
  const double before = ReadViewState(engine_).distanceAu;
  window_->View().Zoom(-1.0);
  EXPECT_GT(ReadViewState(engine_).distanceAu, before);
}

class CometTailTest : public MainWindowTest {
 protected:
  CometTailTest() {
    engine_.LoadElements(ElementKind::Comet, QStringLiteral(VYN_DATA_DIR "/comets.eld"));
    window_->Send(u"View.Projection = SolarSystem; View.Center = Solar.Sun; Show Sky"_s);
  }

  static QString Comet(CVynDialog* tails) {
    return static_cast<QLabel*>(tails->GetDlgItem(1951))->text();
  }

  CVynDialog* OpenTails() {
    for (CVynDialog* dialog : window_->findChildren<CVynDialog*>()) {
      if (dialog->TemplateNumber() == 13011 && dialog->isVisible()) return dialog;
    }
    return nullptr;
  }
};

TEST_F(CometTailTest, OpensFromTheMenuOnACometInTheSky) {
  const Frame frame = ReadFrame(engine_, window_->View().size());
  QPainter unused;
  const SolarCanvas canvas(unused, frame);
  const auto apart = std::find_if(frame.scene.comets.begin(), frame.scene.comets.end(),
                                  [&](const SceneSmallBody& comet) {
                                    const auto at = canvas.camera.ToPicture(comet.heliocentric);
                                    return at && canvas.IsInPicture(*at, -20.0);
                                  });
  ASSERT_NE(apart, frame.scene.comets.end());
  const QPoint at = canvas.camera.ToPicture(apart->heliocentric)->toPoint();
  const auto ask = [this](const QPoint& at) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, window_->View().mapToGlobal(at));
    QApplication::sendEvent(&window_->View(), &event);
  };
  ask({3, 3});
  EXPECT_EQ(PopUp(), nullptr);
  ask(at);
  ASSERT_NE(PopUp(), nullptr);
  PopUp()->actions().last()->trigger();
  CVynDialog* tails = OpenTails();
  ASSERT_NE(tails, nullptr);
  const QString path = CometAt(frame, at);
  EXPECT_TRUE(Comet(tails).contains(engine_.Property(path + u".ID"))) << qPrintable(path);
  EXPECT_EQ(window_->OpenCometTail(path), tails);
}

TEST_F(CometTailTest, OpensOnTheRowThatIsSelectedInTheDialog) {
  QAction* entry = Action(u"選択した彗星のテイル(&L)..."_s);
  const auto isOffered = [&] {
    for (QMenu* menu : window_->findChildren<QMenu*>()) Q_EMIT menu->aboutToShow();
    return entry->isEnabled();
  };
  EXPECT_FALSE(isOffered());
  CVynDialog* comets = window_->OpenDialog(*FindDialog(13000));
  EXPECT_FALSE(isOffered());
  auto* list = static_cast<CVynListBoxAObj*>(comets->GetDlgItem(1705));
  list->SetValueSelect(4, 1, 1);
  EXPECT_TRUE(isOffered());
  Q_EMIT list->customContextMenuRequested({10, 60});
  ASSERT_NE(PopUp(), nullptr);
  PopUp()->actions().last()->trigger();
  ASSERT_NE(OpenTails(), nullptr);
  EXPECT_TRUE(Comet(OpenTails()).contains(engine_.Property(u"Solar.Comet.No5.ID"_s)));
}

}  // namespace
}  // namespace vyn
