#include "core_link/data_exchange.h"

#include "core_link/number_text.h"
#include "core_link/reply.h"
#include "siblings/controls/controls.h"
#include "siblings/controls/template_builder.h"

namespace vyn {

void CDataExchange::Check(int id, int& value) {
  auto* box = qobject_cast<QCheckBox*>(controls_.byId.value(id));
  if (box == nullptr) return;
  if (saving_) {
    value = box->isChecked() ? 1 : 0;
  } else {
    box->setChecked(value != 0);
  }
}

void CDataExchange::Radio(int firstId, int& value) {
  QButtonGroup* group = controls_.radioGroups.value(firstId);
  if (group == nullptr) return;
  if (saving_) {
    value = group->checkedId();
    return;
  }
  // An exclusive group does not let its last button be unchecked.
  group->setExclusive(false);
  for (QAbstractButton* button : group->buttons()) button->setChecked(group->id(button) == value);
  group->setExclusive(true);
}

void CDataExchange::Text(int id, QString& value) {
  QWidget* control = controls_.byId.value(id);
  if (auto* edit = qobject_cast<QLineEdit*>(control)) {
    if (saving_) {
      value = edit->text();
    } else {
      edit->setText(value);
    }
  } else if (auto* label = qobject_cast<QLabel*>(control)) {
    if (saving_) {
      value = label->text();
    } else {
      label->setText(value);
    }
  }
}

void CDataExchange::Int(int id, int& value) {
  QString text = QString::number(value);
  Text(id, text);
  if (saving_) value = reply::ToInt(text);
}

void CDataExchange::DDX_Double(int id, double& value, int maxChars, int maxDecimals) {
  QString text = ShortNumberText(value, maxChars, maxDecimals);
  Text(id, text);
  if (saving_) value = reply::ToDouble(text);
}

void CDataExchange::DDX_DoubleFmt(int id, double& value, int decimals, int maxChars) {
  QString text = FixedText(value, decimals);
  while (text.size() > maxChars && decimals > 0) text = FixedText(value, --decimals);
  Text(id, text);
  if (saving_) value = reply::ToDouble(text);
}

}  // namespace vyn
