#include "host/main_window.h"

#include <stdexcept>

#include <QApplication>
#include <QMenu>
#include <QMessageBox>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "core_link/dialog.h"
#include "core_link/statement.h"
#include "core_link/window_message.h"
#include "engine/reference_engine.h"
#include "host/command_panel.h"
#include "host/dialog_catalogue.h"
#include "host/menus.h"
#include "host/site_dialog.h"
#include "host/sky_view.h"
#include "siblings/controls/object_list_box.h"
#include "small_bodies/comet_tail_dialog.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr int kClockTickMs = 50;
constexpr int kCometTemplate = 13000;
constexpr int kCometList = 1705;
constexpr double kMillisecondsPerDay = 86400000.0;

/// False for a dialog that is not open; one that is closing is deleted a moment later.
bool BringToFront(CVynDialog* dialog) {
  if (dialog == nullptr || !dialog->isVisible()) return false;
  dialog->raise();
  dialog->activateWindow();
  return true;
}

}  // namespace

MainWindow::MainWindow(ReferenceEngine& engine)
    : engine_(engine),
      watched_(engine, [this](const QString& command) { panel_->Append(command); }),
      view_(new SkyView(engine, [this](const QString& command) { Send(command); })),
      panel_(new CommandPanel(this)) {
  setWindowTitle(u"vyn-planetarium"_s);
  setCentralWidget(view_);
  addDockWidget(Qt::BottomDockWidgetArea, panel_);
  resizeDocks({panel_}, {130}, Qt::Vertical);
  BuildMenus(*this);
  engine_.SetRedrawHandler([view = view_] { view->update(); });
  connect(view_, &SkyView::cometMenuRequested, this, &MainWindow::ShowCometMenu);
  clock_.setInterval(kClockTickMs);
  connect(&clock_, &QTimer::timeout, this, &MainWindow::OnClock);
}

MainWindow::~MainWindow() { engine_.SetRedrawHandler(nullptr); }

QString MainWindow::Send(const QString& command) { return watched_.Doit(command); }

CVynDialog* MainWindow::OpenDialog(const DialogEntry& entry) {
  QPointer<CVynDialog>& dialog = dialogs_[entry.templateNumber];
  if (BringToFront(dialog)) return dialog;
  dialog = Open(entry.make(&watched_, nullptr, this));
  if (dialog != nullptr && entry.templateNumber == kCometTemplate) OfferCometMenuIn(*dialog);
  return dialog;
}

CVynDialog* MainWindow::OpenCometTail(const QString& objectPath) {
  QPointer<CVynDialog>& dialog = cometTails_[objectPath];
  if (BringToFront(dialog)) return dialog;
  auto* tails = new CDlgCometTail(objectPath, this);
  tails->SetCorVyn(&watched_, nullptr);
  dialog = Open(tails);
  return dialog;
}

/// After Cancel a dialog asks for no redraw, so the window does.
CVynDialog* MainWindow::Open(CVynDialog* dialog) {
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  connect(dialog, &CVynDialog::helpRequested, this, &MainWindow::ShowHelp);
  connect(dialog, &QDialog::finished, this, [this] { Send(u"Show Sky"_s); });
  try {
    dialog->Create();
  } catch (const std::invalid_argument&) {
    QMessageBox::critical(this, dialog->windowTitle(),
                          u"エンジンの返答が矛盾しているため開けません。"_s);
    delete dialog;
    return nullptr;
  }
  return dialog;
}

QString MainWindow::SelectedComet() const {
  const auto found = dialogs_.find(kCometTemplate);
  if (found == dialogs_.end() || found->second == nullptr) return {};
  const auto* list = static_cast<CVynListBoxAObj*>(found->second->GetDlgItem(kCometList));
  const qint64 row = list->GetValueSelect();
  return row < 0 ? QString() : u"Solar.Comet.No"_s + QString::number(row + 1);
}

void MainWindow::OfferCometMenuIn(CVynDialog& cometDialog) {
  QWidget* list = cometDialog.GetDlgItem(kCometList);
  list->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(list, &QWidget::customContextMenuRequested, this, [this, list](const QPoint& at) {
    if (const QString comet = SelectedComet(); !comet.isEmpty()) {
      ShowCometMenu(comet, list->mapToGlobal(at));
    }
  });
}

void MainWindow::ShowCometMenu(const QString& objectPath, const QPoint& globalPosition) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addSection(engine_.Property(objectPath + u".ID"));
  connect(menu->addAction(u"テイル編集(&T)..."_s), &QAction::triggered, this,
          [this, objectPath] { OpenCometTail(objectPath); });
  menu->popup(globalPosition);
}

void MainWindow::ShowHelp(int templateNumber) {
  const DialogEntry* entry = FindDialog(templateNumber);
  if (entry == nullptr) return;
  auto* window = new QDialog(this);
  window->setAttribute(Qt::WA_DeleteOnClose);
  window->setWindowTitle(u"ヘルプ"_s);
  auto* text = new QTextBrowser;
  text->setMarkdown(entry->help.toString());
  auto* layout = new QVBoxLayout(window);
  layout->setContentsMargins({});
  layout->addWidget(text);
  window->resize(460, 380);
  window->show();
}

void MainWindow::GoTo(double jdUt) { Send(TimeStatement(jdUt).chopped(1) + statement::kRedraw); }

void MainWindow::Step(TimeUnit unit, int count) {
  GoTo(Stepped(engine_.JulianDate(), unit, count));
}

void MainWindow::RunClock(double speed) {
  clockSpeed_ = speed;
  if (speed == 0.0) {
    clock_.stop();
    return;
  }
  sinceTick_.start();
  clock_.start();
}

void MainWindow::OnClock() {
  const double days = static_cast<double>(sinceTick_.restart()) / kMillisecondsPerDay;
  GoTo(engine_.JulianDate() + days * clockSpeed_);
}

/// The engine keeps the observer's body outside its property tree; the property tells it to whoever
/// reads the commands.
void MainWindow::StandOn(int bodyNumber) {
  engine_.SetLocationObject(bodyNumber);
  Send(u"Location.Object = "_s + engine_.ObjNumToName(bodyNumber) + statement::kRedraw);
}

void MainWindow::StandAt(const Site& site) {
  Send(u"location = location(%1, %2, %3)"_s.arg(site.longitudeDeg, 0, 'f', 6)
           .arg(site.latitudeDeg, 0, 'f', 6)
           .arg(static_cast<int>(site.heightM)) +
       u"; show sky");
}

void MainWindow::AskForSite() {
  const Site site{engine_.Number(u"Location.Longitude"), engine_.Number(u"Location.Latitude"),
                  engine_.Number(u"Location.Altitude")};
  SiteDialog dialog(site, this);
  if (dialog.exec() == QDialog::Accepted) StandAt(dialog.Chosen());
}

bool MainWindow::event(QEvent* event) {
  if (event->type() != kTextRequestMessage) return QMainWindow::event(event);
  AnswerTextRequest(*static_cast<CVynMessage*>(event));
  event->accept();
  return true;
}

/// The dialog that asks is the one whose button was just pressed.
void MainWindow::AnswerTextRequest(const CVynMessage& message) const {
  const auto* dialog = qobject_cast<const CVynDialog*>(QApplication::activeWindow());
  const DialogEntry* entry = dialog != nullptr ? FindDialog(dialog->TemplateNumber()) : nullptr;
  if (entry == nullptr) return;
  *static_cast<QString*>(message.lParam) =
      (message.wParam == 0 ? entry->colored : entry->sample).toString();
}

}  // namespace vyn
