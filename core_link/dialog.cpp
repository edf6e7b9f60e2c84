#include "core_link/dialog.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSlider>
#include <QVBoxLayout>

#include "core_link/reply.h"
#include "core_link/statement.h"
#include "core_link/window_message.h"
#include "siblings/common_dialogs/color_dialog.h"
#include "siblings/controls/controls.h"
#include "siblings/controls/template_builder.h"
#include "siblings/registry/registry.h"

namespace vyn {
namespace {

const QString kPlacementName = QStringLiteral("WindowPosition");
constexpr int kStillOpen = -1;

}  // namespace

/// Holds notifications off while values are shown; nests.
class CVynDialog::ExchangeGuard {
 public:
  explicit ExchangeGuard(bool& exchanging) : exchanging_(exchanging), before_(exchanging) {
    exchanging_ = true;
  }
  ~ExchangeGuard() { exchanging_ = before_; }
  Q_DISABLE_COPY_MOVE(ExchangeGuard)

 private:
  bool& exchanging_;
  bool before_;
};

CVynDialog::CVynDialog(CCorVyn* commandHandle, CCorVyn* secondHandle, int templateNumber,
                       const QString& registryKey, QWidget* parent)
    : QDialog(parent),
      commandHandle_(commandHandle),
      secondHandle_(secondHandle),
      templateNumber_(templateNumber),
      registryKey_(registryKey) {}

CVynDialog::~CVynDialog() = default;

void CVynDialog::SetCorVyn(CCorVyn* commandHandle, CCorVyn* secondHandle) {
  commandHandle_ = commandHandle;
  secondHandle_ = secondHandle;
}

int CVynDialog::DoModal() {
  if (!Open()) return kCancelButton;
  return exec() == QDialog::Accepted ? kOkButton : kCancelButton;
}

bool CVynDialog::Create(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent) {
  SetCorVyn(commandHandle, secondHandle);
  if (parent != parentWidget()) setParent(parent, windowFlags());
  if (!Open()) return false;
  show();
  return true;
}

bool CVynDialog::CreateChildOf(CVynDialog& parent) {
  return Create(parent.commandHandle_, nullptr, &parent);
}

bool CVynDialog::Open() {
  BuildFromTemplate();
  setResult(kStillOpen);
  if (OnInitDialog()) FocusFirstControl();
  RestorePlacement();
  return result() == kStillOpen;
}

/// The controls are made anew at every opening, so that nothing of an earlier one stays.
void CVynDialog::BuildFromTemplate() {
  const DialogTemplate& dialogTemplate = FindDialogTemplate(templateNumber_);
  setWindowTitle(dialogTemplate.caption);
  delete body_;
  body_ = new QWidget(this);
  if (layout() == nullptr) {
    auto* frame = new QVBoxLayout(this);
    frame->setContentsMargins({});
    frame->setSizeConstraint(QLayout::SetMinimumSize);
  }
  layout()->addWidget(body_);
  controls_ = std::make_unique<ControlSet>(BuildControls(dialogTemplate, body_));
  setProperty("controlId", 0);
}

bool CVynDialog::OnInitDialog() {
  AttachControls();
  return true;
}

void CVynDialog::AttachControls() {
  ConnectButton(kOkButton, &QDialog::accept);
  ConnectButton(kCancelButton, &QDialog::reject);
  if (auto* help = qobject_cast<QPushButton*>(GetDlgItem(kHelpButton))) {
    connect(help, &QPushButton::clicked, this, &CVynDialog::OnHelp);
  }
}

void CVynDialog::ConnectButton(int id, void (QDialog::*slot)()) {
  auto* button = qobject_cast<QPushButton*>(GetDlgItem(id));
  if (button == nullptr) return;
  button->setDefault(id == kOkButton);
  connect(button, &QPushButton::clicked, this, slot);
}

void CVynDialog::DrawAsColorButton(int id) {
  if (auto* button = qobject_cast<CVynButton*>(GetDlgItem(id))) {
    button->SetColors(0xC4C4C4, 0x6B6B6B, 0xC4C4C4);
  }
}

void CVynDialog::DoDataExchange(CDataExchange&) {}

void CVynDialog::OnOK() { Close(QDialog::Accepted); }
void CVynDialog::OnCancel() { Close(QDialog::Rejected); }
void CVynDialog::OnHelp() { Q_EMIT helpRequested(templateNumber_); }

void CVynDialog::OnDestroy() { SavePlacement(); }

void CVynDialog::Close(int result) {
  OnDestroy();
  done(result);
}

void CVynDialog::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F1) {
    OnHelp();
  } else {
    QDialog::keyPressEvent(event);
  }
}

/// The window system knows nothing of a dialog that takes no input while it runs an import.
void CVynDialog::closeEvent(QCloseEvent* event) {
  if (isEnabled()) {
    QDialog::closeEvent(event);
  } else {
    event->ignore();
  }
}

void CVynDialog::UpdateData(bool save) {
  if (!controls_) return;
  const ExchangeGuard guard(exchanging_);
  CDataExchange exchange(*controls_, save);
  DoDataExchange(exchange);
}

QWidget* CVynDialog::GetDlgItem(int id) const {
  if (id == 0) return const_cast<CVynDialog*>(this);
  return controls_ ? controls_->byId.value(id) : nullptr;
}

QList<QWidget*> CVynDialog::Controls() const {
  return controls_ ? controls_->inOrder : QList<QWidget*>();
}

void CVynDialog::Enable(int id, bool on) {
  if (QWidget* control = GetDlgItem(id)) control->setEnabled(on);
}

void CVynDialog::Enable(std::initializer_list<int> ids, bool on) {
  for (const int id : ids) Enable(id, on);
}

bool CVynDialog::IsChecked(int id) const {
  const auto* button = qobject_cast<QAbstractButton*>(GetDlgItem(id));
  return button != nullptr && button->isChecked();
}

QString CVynDialog::EditText(int id) const {
  const auto* edit = qobject_cast<QLineEdit*>(GetDlgItem(id));
  return edit != nullptr ? edit->text() : QString();
}

void CVynDialog::OnSpin(int id, std::function<void(int)> handler) {
  connect(static_cast<CVynSpinButton*>(GetDlgItem(id)), &CVynSpinButton::deltaPressed, this,
          [handler = std::move(handler)](int delta) { handler(delta); });
}

void CVynDialog::OnSlid(int id, std::function<void(int)> handler) {
  connect(static_cast<QSlider*>(GetDlgItem(id)), &QSlider::valueChanged, this,
          [this, handler = std::move(handler)](int position) {
            if (!exchanging_) handler(position);
          });
}

void CVynDialog::ShowSlider(int id, int position) {
  const ExchangeGuard guard(exchanging_);
  static_cast<QSlider*>(GetDlgItem(id))->setValue(position);
}

void CVynDialog::ShowEdit(int id, const QString& text) {
  const ExchangeGuard guard(exchanging_);
  auto* edit = static_cast<QLineEdit*>(GetDlgItem(id));
  if (edit->text() != text) edit->setText(text);  // setting the same text would move the cursor
}

void CVynDialog::OnTextChanged(int id, std::function<void()> handler) {
  connect(static_cast<QLineEdit*>(GetDlgItem(id)), &QLineEdit::textChanged, this,
          [this, handler = std::move(handler)] {
            if (!exchanging_) handler();
          });
}

void CVynDialog::ShowInformation(const QString& text) {
  QMessageBox(QMessageBox::Information, windowTitle(), text, QMessageBox::Ok, this).exec();
}

bool CVynDialog::HasCorVyn() const {
  return commandHandle_ != nullptr && commandHandle_->WindowExists();
}

QString CVynDialog::Doit(const QString& command) {
  return commandHandle_ != nullptr ? commandHandle_->Doit(command) : QString();
}

QString CVynDialog::GetString(const QString& path) { return Doit(statement::Query(path)); }
int CVynDialog::GetInt(const QString& path) { return reply::ToInt(GetString(path)); }
double CVynDialog::GetDouble(const QString& path) { return reply::ToDouble(GetString(path)); }
bool CVynDialog::GetBool(const QString& path) { return reply::ToBool(GetString(path)); }

void CVynDialog::DoitVisible(const QString& path, bool on) {
  Doit(path + (on ? QStringLiteral(" = true") : QStringLiteral(" = false")));
}

QString CVynDialog::GetScriptBool(const QString& path, bool on) {
  return statement::Bool(path, on);
}

QString CVynDialog::GetScriptVisible(const QString& path, bool on) {
  return statement::Visible(path, on);
}

bool CVynDialog::IsSolarMode() {
  return reply::IsSolarSystem(GetString(QStringLiteral("View.Projection")));
}

bool CVynDialog::IsHorizonView() {
  const QString coordinate = GetString(QStringLiteral("View.Coordinate"));
  return coordinate.compare(QLatin1String("Horizon"), Qt::CaseInsensitive) == 0;
}

QString CVynDialog::AskParent(quintptr which) const {
  QString text;
  if (parentWidget() != nullptr) {
    CVynMessage question(kTextRequestMessage, which, &text);
    QApplication::sendEvent(parentWidget(), &question);
  }
  return text;
}

void CVynDialog::ChooseColorAndFont(const QString& colorPath) {
  const QString firstText = AskParent(0);
  const QString secondText = AskParent(1);
  CSetColorDialog dialog(commandHandle_, secondHandle_, firstText, secondText, colorPath, this);
  dialog.DoModal();
}

void CVynDialog::FocusFirstControl() {
  for (QWidget* control : Controls()) {
    if (control->isEnabled() && (control->focusPolicy() & Qt::TabFocus) && !control->isHidden()) {
      control->setFocus(Qt::TabFocusReason);
      return;
    }
  }
}

/// A dialog comes up where the user left it, unless that place is on no screen any more.
void CVynDialog::RestorePlacement() {
  const QStringList place = CRegistry(registryKey_).Read(kPlacementName).split(QLatin1Char(','));
  if (place.size() != 2) return;
  const QPoint corner(place[0].toInt(), place[1].toInt());
  if (QGuiApplication::screenAt(corner) != nullptr) move(corner);
}

void CVynDialog::SavePlacement() {
  if (registryKey_.isEmpty()) return;
  CRegistry(registryKey_).Write(kPlacementName, QStringLiteral("%1,%2").arg(x()).arg(y()));
}

}  // namespace vyn
