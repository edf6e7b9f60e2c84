#include "siblings/common_dialogs/color_dialog.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFontComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include "core_link/cor_vyn.h"
#include "core_link/statement.h"

namespace vyn {
namespace {

constexpr int kMinPoints = 6;
constexpr int kMaxPoints = 72;
constexpr int kDefaultPoints = 10;

/// The font of a label stands beside its colour.
QString FontPathOf(const QString& colorPath) {
  QString path = colorPath;
  if (path.endsWith(QLatin1String(".Color"), Qt::CaseInsensitive)) path.chop(6);
  return path + QStringLiteral(".Font");
}

QIcon Swatch(const QColor& color) {
  QPixmap pixmap(32, 16);
  pixmap.fill(color);
  return pixmap;
}

}  // namespace

CSetColorDialog::CSetColorDialog(CCorVyn* commandHandle, CCorVyn* secondHandle,
                                 const QString& firstText, const QString& secondText,
                                 const QString& colorPath, QWidget* parent)
    : QDialog(parent),
      commandHandle_(commandHandle),
      secondHandle_(secondHandle),
      firstText_(firstText),
      secondText_(secondText),
      colorPath_(colorPath),
      fontPath_(FontPathOf(colorPath)) {
  setWindowTitle(QStringLiteral("色・フォント"));
  BuildControls();
  ReadState();
}

int CSetColorDialog::DoModal() { return exec() == QDialog::Accepted ? 1 : 2; }

void CSetColorDialog::BuildControls() {
  colorButton_ = new QPushButton(QStringLiteral("色の選択(&O)..."));
  family_ = new QFontComboBox;
  points_ = new QSpinBox;
  points_->setRange(kMinPoints, kMaxPoints);
  points_->setSuffix(QStringLiteral(" ポイント"));
  sample_ = new QLabel(secondText_.isEmpty() ? QStringLiteral("見本 Sample") : secondText_);
  sample_->setAlignment(Qt::AlignCenter);
  sample_->setMinimumSize(280, 64);
  sample_->setAutoFillBackground(true);

  auto* form = new QFormLayout;
  form->addRow(QStringLiteral("色："), colorButton_);
  form->addRow(QStringLiteral("フォント(&F)："), family_);
  form->addRow(QStringLiteral("大きさ(&S)："), points_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
  buttons->button(QDialogButtonBox::Cancel)->setText(QStringLiteral("キャンセル"));
  auto* layout = new QVBoxLayout(this);
  if (!firstText_.isEmpty()) layout->addWidget(new QLabel(firstText_));
  layout->addLayout(form);
  layout->addWidget(sample_);
  layout->addWidget(buttons);

  connect(colorButton_, &QPushButton::clicked, this, &CSetColorDialog::ChooseColor);
  connect(family_, &QFontComboBox::currentFontChanged, this, &CSetColorDialog::OnFontChanged);
  connect(points_, &QSpinBox::valueChanged, this, &CSetColorDialog::OnFontChanged);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &CSetColorDialog::reject);
}

void CSetColorDialog::ReadState() {
  savedColor_ = Ask(colorPath_);
  savedFont_ = Ask(fontPath_);
  color_ = QColor::isValidColor(savedColor_) ? QColor(savedColor_) : QColor(Qt::white);
  const QSignalBlocker familyBlocker(family_);
  const QSignalBlocker pointsBlocker(points_);
  const QString family = savedFont_.section(QLatin1Char(','), 0, 0).trimmed();
  if (!family.isEmpty()) family_->setCurrentFont(QFont(family));
  const int points = savedFont_.section(QLatin1Char(','), 1, 1).toInt();
  points_->setValue(points > 0 ? points : kDefaultPoints);
  ShowSample();
}

void CSetColorDialog::ChooseColor() {
  QColorDialog chooser(color_, this);
  chooser.setOption(QColorDialog::DontUseNativeDialog);
  connect(&chooser, &QColorDialog::currentColorChanged, this, &CSetColorDialog::OnColorChanged);
  const QColor before = color_;
  if (chooser.exec() == QDialog::Rejected && color_ != before) OnColorChanged(before);
}

void CSetColorDialog::OnColorChanged(const QColor& color) {
  color_ = color;
  colorChanged_ = true;
  ShowSample();
  Send(colorPath_, color.name());
}

void CSetColorDialog::OnFontChanged() {
  fontChanged_ = true;
  ShowSample();
  Send(fontPath_,
       QStringLiteral("%1,%2").arg(family_->currentFont().family()).arg(points_->value()));
}

void CSetColorDialog::ShowSample() {
  colorButton_->setIcon(Swatch(color_));
  QFont font(family_->currentFont().family(), points_->value());
  sample_->setFont(font);
  QPalette palette = sample_->palette();
  palette.setColor(QPalette::Window, QColor(0x10, 0x14, 0x28));
  palette.setColor(QPalette::WindowText, color_);
  sample_->setPalette(palette);
}

void CSetColorDialog::reject() {
  if (colorChanged_) PutBack(colorPath_, savedColor_);
  if (fontChanged_) PutBack(fontPath_, savedFont_);
  QDialog::reject();
}

QString CSetColorDialog::Ask(const QString& path) const {
  return commandHandle_ != nullptr ? commandHandle_->Doit(statement::Query(path)) : QString();
}

/// Both engines draw labels, so both learn of the change.
void CSetColorDialog::Send(const QString& path, const QString& value) {
  const QString command = path + u" = " + value + statement::kRedraw;
  if (commandHandle_ != nullptr) commandHandle_->Doit(command);
  if (secondHandle_ != nullptr) secondHandle_->Doit(command);
}

void CSetColorDialog::PutBack(const QString& path, const QString& value) {
  Send(path, value.isEmpty() ? QStringLiteral("\"\"") : value);
}

}  // namespace vyn
