#include "small_bodies/comet_dialog.h"

#include "small_bodies/element_columns.h"

namespace vyn {
namespace {

constexpr int kVectorColumn = 11;

constexpr QStringView kShapes[] = {u"輪郭", u"濃淡"};
enum Shape { kOutline, kSurface };

// clang-format off
constexpr std::array kTailColumns{
  ObjectColumn{.title = u"イオンテイル", .kind = ObjectColumnKind::Check,  .key = '1', .path = u".IonTail",  .use = ColumnUse::WhenShown},
  ObjectColumn{.title = u"ダストテイル", .kind = ObjectColumnKind::Check,  .key = '2', .path = u".DustTail", .use = ColumnUse::WhenShown},
  ObjectColumn{.title = u"形状",         .kind = ObjectColumnKind::Choice, .key = '3',                       .use = ColumnUse::WhenShown, .options = kShapes},
};
// clang-format on

constexpr auto kColumns =
    JoinedColumns(IdentifierColumn(u"XXXXXXXXXXXXXX"), kNameColumns, kSwitchColumns, kTailColumns);

}  // namespace

CDlgComet::CDlgComet(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CDlgElementClass(commandHandle, secondHandle,
                       {.base = {.templateNumber = 13000,
                                 .registryKey = 13374,
                                 .classPath = QStringLiteral("Solar.Comet"),
                                 .listControl = kCometControls.ObjectList(),
                                 .columns = kColumns},
                        .controls = kCometControls,
                        .vectorColumn = kVectorColumn,
                        .cometFlag = 1,
                        .importFolderName = 13384,
                        .elementFolderName = 13391},
                       {{kCometControls.OrbitalTypeList(), u"OrbitalType", u"軌道タイプ"}},
                       parent) {}

CDlgComet::CDlgComet(QWidget* parent) : CDlgComet(nullptr, nullptr, parent) {}

int CDlgComet::CellOption(int, const QString& objectPath) {
  const bool isOutline = IsVisible(objectPath + QStringView(u".IonTail.Outline")) ||
                         IsVisible(objectPath + QStringView(u".DustTail.Outline"));
  return isOutline ? kOutline : kSurface;
}

void CDlgComet::SendOption(int, const QString& path, int option) {
  DoitVisible(path + QStringView(u".IonTail.Outline"), option == kOutline);
  DoitVisible(path + QStringView(u".DustTail.Outline"), option == kOutline);
  DoitVisible(path + QStringView(u".IonTail.Surface"), option == kSurface);
  DoitVisible(path + QStringView(u".DustTail.Surface"), option == kSurface);
}

}  // namespace vyn
