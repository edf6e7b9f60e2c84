#include "host/menus.h"

#include <array>
#include <functional>
#include <utility>
#include <vector>

#include <QMenu>
#include <QMenuBar>

#include "core_link/statement.h"
#include "engine/reference_engine.h"
#include "engine/sky/observer.h"
#include "host/command_panel.h"
#include "host/dialog_catalogue.h"
#include "host/main_window.h"
#include "host/sites.h"
#include "host/sky_view.h"
#include "host/view_state.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

struct ViewRow {
  QStringView text;
  QStringView shortcut;
  ViewKind kind;
  QStringView command;
};

struct StepRow {
  QStringView text;
  QStringView shortcut;
  TimeUnit unit;
  int count;
};

struct SpeedRow {
  QStringView text;
  double speed;
};

struct ObserverRow {
  QStringView text;
  int bodyNumber;
};

// clang-format off
constexpr std::array<ViewRow, 3> kViews{{
  {u"地平座標の空(&H)",       u"F2", ViewKind::Horizon,     u"View.Projection = Stereographic; View.Coordinate = Horizon; Show Sky"},
  {u"黄道座標の空(&E)",       u"F3", ViewKind::Ecliptic,    u"View.Projection = Stereographic; View.Coordinate = Ecliptic; Show Sky"},
  {u"外から見た太陽系(&S)",   u"F4", ViewKind::SolarSystem, u"View.Projection = SolarSystem; View.Center = Solar.Sun; Show Sky"},
}};

constexpr std::array<StepRow, 10> kSteps{{
  {u"1分進む",   u"Ctrl+Right",       TimeUnit::Minute,  1},
  {u"1分戻る",   u"Ctrl+Left",        TimeUnit::Minute, -1},
  {u"1時間進む", u"Shift+Right",      TimeUnit::Hour,    1},
  {u"1時間戻る", u"Shift+Left",       TimeUnit::Hour,   -1},
  {u"1日進む",   u"PgUp",             TimeUnit::Day,     1},
  {u"1日戻る",   u"PgDown",           TimeUnit::Day,    -1},
  {u"1か月進む", u"Shift+PgUp",       TimeUnit::Month,   1},
  {u"1か月戻る", u"Shift+PgDown",     TimeUnit::Month,  -1},
  {u"1年進む",   u"Ctrl+Shift+PgUp",  TimeUnit::Year,    1},
  {u"1年戻る",   u"Ctrl+Shift+PgDown", TimeUnit::Year,  -1},
}};

constexpr std::array<SpeedRow, 5> kSpeeds{{
  {u"止める(&0)",              0.0},
  {u"実時間で進める(&1)",      1.0},
  {u"1秒に1分進める(&2)",     60.0},
  {u"1秒に1時間進める(&3)", 3600.0},
  {u"1秒に1日進める(&4)",  86400.0},
}};

constexpr std::array<ObserverRow, 3> kObservers{{
  {u"地球から見る(&E)", 4},
  {u"月から見る(&M)",   1},
  {u"太陽から見る(&S)", 0},
}};
// clang-format on

/// Adds entries to a menu. Those that tell a state are checked anew whenever the menu opens.
class MenuBuilder {
 public:
  explicit MenuBuilder(QMenu& menu) : menu_(menu) {}

  QAction* Add(QStringView text, std::function<void()> act, QStringView shortcut = {}) {
    QAction* action = menu_.addAction(text.toString());
    if (!shortcut.isEmpty()) action->setShortcut(QKeySequence(shortcut.toString()));
    QObject::connect(action, &QAction::triggered, &menu_, std::move(act));
    return action;
  }

  void AddChecked(QStringView text, std::function<void()> act, std::function<bool()> isChecked,
                  QStringView shortcut = {}) {
    QAction* action = Add(text, std::move(act), shortcut);
    action->setCheckable(true);
    const auto refresh = [action, isChecked = std::move(isChecked)] {
      action->setChecked(isChecked());
    };
    QObject::connect(&menu_, &QMenu::aboutToShow, action, refresh);
    QObject::connect(action, &QAction::triggered, action, refresh);
  }

  void WhenShown(std::function<void()> act) {
    QObject::connect(&menu_, &QMenu::aboutToShow, &menu_, std::move(act));
  }

  void AddSeparator() { menu_.addSeparator(); }

 private:
  QMenu& menu_;
};

QMenu& AddMenu(MainWindow& window, const QString& title) {
  return *window.menuBar()->addMenu(title);
}

void BuildDialogMenu(MainWindow& window) {
  MenuBuilder menu(AddMenu(window, u"設定(&D)"_s));
  for (const DialogEntry& entry : DialogCatalogue()) {
    menu.Add(entry.menuText, [&window, &entry] { window.OpenDialog(entry); });
  }
  QAction* tails = menu.Add(u"選択した彗星のテイル(&L)...",
                            [&window] { window.OpenCometTail(window.SelectedComet()); });
  menu.WhenShown([&window, tails] { tails->setEnabled(!window.SelectedComet().isEmpty()); });
  menu.AddSeparator();
  menu.Add(
      u"終了(&X)", [&window] { window.close(); }, u"Ctrl+Q");
}

void BuildCenterMenu(MainWindow& window, QMenu& parent) {
  MenuBuilder menu(*parent.addMenu(u"中心(&C)"_s));
  for (const BodyRow& row : kBodies) {
    menu.AddChecked(
        row.japaneseName,
        [&window, &row] {
          window.Send(u"View.Center = "_s + row.path + u"; View.Center.Track = TRUE" +
                      statement::kRedraw);
        },
        [&window, &row] {
          const ViewState view = ReadViewState(window.Engine());
          const bool isKept = view.isTracking || view.kind == ViewKind::SolarSystem;
          return isKept && view.center == row.body;
        });
  }
  menu.AddSeparator();
  menu.AddChecked(
      u"空で追尾する(&T)",
      [&window] {
        const bool isOn = ReadViewState(window.Engine()).isTracking;
        window.Send(u"View.Center.Track = "_s + (isOn ? u"FALSE"_s : u"TRUE"_s) +
                    statement::kRedraw);
      },
      [&window] { return ReadViewState(window.Engine()).isTracking; });
}

void BuildViewMenu(MainWindow& window) {
  QMenu& viewMenu = AddMenu(window, u"表示(&V)"_s);
  MenuBuilder menu(viewMenu);
  for (const ViewRow& row : kViews) {
    menu.AddChecked(
        row.text, [&window, &row] { window.Send(row.command.toString()); },
        [&window, &row] { return ReadViewState(window.Engine()).kind == row.kind; }, row.shortcut);
  }
  menu.AddSeparator();
  BuildCenterMenu(window, viewMenu);
  menu.Add(
      u"拡大(&I)", [&window] { window.View().Zoom(1.0); }, u"+");
  menu.Add(
      u"縮小(&O)", [&window] { window.View().Zoom(-1.0); }, u"-");
  menu.AddSeparator();
  viewMenu.addAction(window.Panel().toggleViewAction());
}

void BuildTimeMenu(MainWindow& window) {
  MenuBuilder menu(AddMenu(window, u"時刻(&T)"_s));
  menu.Add(
      u"現在(&N)", [&window] { window.GoTo(CurrentMoment()); }, u"Home");
  menu.AddSeparator();
  for (const StepRow& row : kSteps) {
    menu.Add(
        row.text, [&window, &row] { window.Step(row.unit, row.count); }, row.shortcut);
  }
  menu.AddSeparator();
  for (const SpeedRow& row : kSpeeds) {
    menu.AddChecked(
        row.text, [&window, &row] { window.RunClock(row.speed); },
        [&window, &row] { return window.ClockSpeed() == row.speed; });
  }
}

bool IsAt(const ReferenceEngine& engine, const NamedSite& site) {
  return engine.Number(u"Location.Longitude") == site.longitudeDeg &&
         engine.Number(u"Location.Latitude") == site.latitudeDeg;
}

void BuildPlaceMenu(MainWindow& window) {
  MenuBuilder menu(AddMenu(window, u"場所(&P)"_s));
  for (const ObserverRow& row : kObservers) {
    menu.AddChecked(
        row.text, [&window, &row] { window.StandOn(row.bodyNumber); },
        [&window, &row] { return window.Engine().GetLocationObject() == row.bodyNumber; });
  }
  menu.AddSeparator();
  for (const NamedSite& site : kSites) {
    menu.AddChecked(
        site.name,
        [&window, &site] {
          window.StandAt({site.longitudeDeg, site.latitudeDeg, double(site.heightMeters)});
        },
        [&window, &site] { return IsAt(window.Engine(), site); });
  }
  menu.AddSeparator();
  menu.Add(u"経度・緯度を指定(&L)...", [&window] { window.AskForSite(); });
}

}  // namespace

void BuildMenus(MainWindow& window) {
  BuildDialogMenu(window);
  BuildViewMenu(window);
  BuildTimeMenu(window);
  BuildPlaceMenu(window);
}

}  // namespace vyn
