// The search by name and its history.
#include <algorithm>

#include <QComboBox>
#include <QLineEdit>

#include "core_link/wait_cursor.h"
#include "resources/string_table.h"
#include "siblings/registry/registry.h"
#include "small_bodies/element_class_dialog.h"

namespace vyn {
namespace {

constexpr int kMostSearches = 5;
constexpr int kSearchName = 13376, kNothingToSearch = 13377, kNotFound = 13378;

QString SettingName(int number) { return FilledString(kSearchName, {QString::number(number)}); }

/// As QString::toUpper, but quicker for the names of a million objects, nearly all of them ASCII.
QString UpperCased(QString text) {
  char16_t all = 0;
  for (const QChar c : std::as_const(text)) all |= c.unicode();
  if (all >= 0x80) return std::move(text).toUpper();
  for (QChar& c : text) {
    const bool isLower = static_cast<unsigned>(c.unicode()) - u'a' < 26U;
    c = QChar(static_cast<char16_t>(c.unicode() - (isLower ? 0x20 : 0)));
  }
  return text;
}

}  // namespace

void CDlgElementClass::LoadSearchHistory() {
  const CRegistry registry(RegistryKey());
  for (int number = 1; number <= kMostSearches; ++number) {
    const QString text = registry.Read(SettingName(number));
    if (text.isEmpty()) break;
    searchCombo_->addItem(text);
  }
  if (searchCombo_->count() > 0) searchCombo_->setCurrentIndex(0);
}

void CDlgElementClass::SaveSearchHistory() {
  CRegistry registry(RegistryKey());
  const int count = std::min(searchCombo_->count(), kMostSearches);
  for (int i = 0; i < count; ++i) registry.Write(SettingName(i + 1), searchCombo_->itemText(i));
}

void CDlgElementClass::RememberSearch(const QString& text) {
  const int known = searchCombo_->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (known >= 0) searchCombo_->removeItem(known);
  searchCombo_->insertItem(0, text);
  searchCombo_->setCurrentIndex(0);
  while (searchCombo_->count() > kMostSearches) searchCombo_->removeItem(kMostSearches);
}

bool CDlgElementClass::IsSearching() const {
  return searchCombo_->hasFocus() || searchCombo_->lineEdit()->hasFocus();
}

void CDlgElementClass::DoSearch(int direction) {
  const qint64 count = ObjectList().GetValueCountTotal();
  if (!HasCorVyn() || count == 0) return;
  // A statement ends at a ";".
  const QString text = searchCombo_->currentText().trimmed().remove(u';');
  if (text.isEmpty()) return ShowInformation(LoadString(kNothingToSearch));
  RememberSearch(text);
  const qint64 selected = ObjectList().GetValueSelect();
  const qint64 first = direction > 0 ? 0 : count - 1;
  const qint64 found =
      FindObject(text.toUpper(), selected >= 0 ? selected + direction : first, direction);
  if (found < 0) return ShowInformation(LoadString(kNotFound));
  ObjectList().SetValueSelect(found, 1, 1);
}

/// Without turning round at the end; -1 when there is none. Both sides are upper-cased, which finds
/// more than a comparison without regard to case would.
qint64 CDlgElementClass::FindObject(const QString& upperText, qint64 row, int direction) {
  const WaitCursor wait;
  const qint64 count = ObjectList().GetValueCountTotal();
  for (; row >= 0 && row < count; row += direction) {
    const QString path = ObjectPath(row);
    QString names =
        Doit(u"? " + path + u".ID; ? " + path + u".JapaneseName; ? " + path + u".EnglishName");
    if (UpperCased(std::move(names)).contains(upperText)) return row;
  }
  return -1;
}

}  // namespace vyn
