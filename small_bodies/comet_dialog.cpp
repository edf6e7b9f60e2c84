#include "small_bodies/comet_dialog.h"

namespace vyn {
namespace {

using enum ObjectColumnKind;
using enum ColumnUse;

constexpr int kVectorColumn = 11;

constexpr QStringView kShapes[] = {u"輪郭", u"濃淡"};
enum Shape { kOutline, kSurface };

// clang-format off
constexpr ObjectColumn kColumns[] = {
  {.title = u"認識符号",     .path = u".ID", .sample = u"XXXXXXXXXXXXXX", .isIdentifier = true},
  {.title = u"名称(日本語)", .path = u".JapaneseName", .stretches = true},
  {.title = u"名称(英語)",   .path = u".EnglishName",  .stretches = true},
  {.title = u"個別",         .kind = Check, .key = 'V', .path = u".Individual"},
  {.title = u"等級限定",     .kind = Indicator,         .path = u".Brighter",    .bitmap = 13200},
  {.title = u"軌道タイプ",   .kind = Indicator,         .path = u".OrbitalType", .bitmap = 13201},
  {.title = u"符号",         .kind = Check, .key = 'Q', .path = u".ID.Visible",           .use = WhenShown},
  {.title = u"名称(日本語)", .kind = Check, .key = 'J', .path = u".JapaneseName.Visible", .use = WhenShown},
  {.title = u"名称(英語)",   .kind = Check, .key = 'G', .path = u".EnglishName.Visible",  .use = WhenShown},
  {.title = u"等級",         .kind = Check, .key = 'T', .path = u".Magnitude",            .use = WhenShown},
  {.title = u"日付",         .kind = Check, .key = 'U', .path = u".Date",                 .use = WhenShown},
  {.title = u"移動量",       .kind = Check, .key = 'R', .path = u".Vector",               .use = WhenShown},
  {.title = u"空の軌道",     .kind = Check, .key = 'K', .path = u".Orbit.InTheSky",       .use = WhenShownInSky},
  {.title = u"軌道",         .kind = Check, .key = 'X', .path = u".Orbit",                .use = WhenShownInSolarMode},
  {.title = u"軌道面",       .kind = Check, .key = 'Z', .path = u".OrbitalPlane",         .use = WhenShownInSolarMode, .secondPath = u".EclipticPlane"},
  {.title = u"黄道垂線",     .kind = Check, .key = 'L', .path = u".Orbit.Perpendicular",  .use = WhenShownInSolarMode},
  {.title = u"イオンテイル", .kind = Check, .key = '1', .path = u".IonTail",              .use = WhenShown},
  {.title = u"ダストテイル", .kind = Check, .key = '2', .path = u".DustTail",             .use = WhenShown},
  {.title = u"形状",         .kind = Choice, .key = '3',                                  .use = WhenShown, .options = kShapes},
};
// clang-format on

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
