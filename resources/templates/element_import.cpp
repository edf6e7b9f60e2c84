// Templates 13007 to 13010: what an import asks about single objects, and how far it is.
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

namespace {

const QString kImportCaption = QStringLiteral("軌道要素ファイル追加");
constexpr int kIdentifierChars = 15;

TemplateItem OkLine() { return row(stretch(), button(kOkButton, u"OK")); }

/// The import and the update differ in why they ask.
DialogTemplate Duplicate(int number, const char16_t* reason) {
  // clang-format off
  return {number, kImportCaption, column(
    column(
      label(1920, reason),
      form(
        row(label(1921, u"認識符号："), label(1922, u"")),
        row(label(1923, u"名称："), label(1924, u""))),
      group(1925, u"処理を選択してください：",
        radio(1926, u"この天体を登録しません。"),
        radio(1927, u"この天体を含む、すでに登録されている天体をすべて登録しません。"),
        radio(1928, u"この天体を上書き登録します。"),
        radio(1929, u"この天体を含む、すでに登録されている天体をすべて上書き登録します。"),
        radio(1930, u"この天体の認識符号を変更して登録します。"),
        indented(row(label(1931, u"認識符号："),
          named(edit(1932, kIdentifierChars), u"新しい認識符号"), stretch())))),
    OkLine())};
  // clang-format on
}

}  // namespace

DialogTemplate ElementImportBlankId() {
  // clang-format off
  return {13007, kImportCaption, column(
    column(
      label(1900, u"認識符号が指定されていません。"),
      form(row(label(1901, u"名称："), label(1902, u""))),
      group(1903, u"処理を選択してください：",
        radio(1904, u"この天体を登録しません。"),
        radio(1905, u"この天体を含む、認識符号のない天体をすべて登録しません。"),
        radio(1906, u"この天体の認識符号を指定して登録します。"),
        indented(row(label(1907, u"認識符号："), edit(1908, kIdentifierChars), stretch())))),
    OkLine())};
  // clang-format on
}

DialogTemplate ElementImportDuplicate() {
  return Duplicate(13008, u"この天体はすでに登録されています。");
}

DialogTemplate ElementUpdateDuplicate() {
  return Duplicate(13009, u"この天体は修正されています。");
}

DialogTemplate ElementImportProgress() {
  // clang-format off
  return {13010, QStringLiteral("計算中"), column(
    wide(control(ControlKind::Progress, 1940), 50),
    row(stretch(), button(1941, u"中止"), stretch()))};
  // clang-format on
}

}  // namespace vyn::templates
