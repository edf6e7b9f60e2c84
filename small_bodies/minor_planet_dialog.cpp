#include "small_bodies/minor_planet_dialog.h"

#include "core_link/statement.h"

namespace vyn {
namespace {

using enum ObjectColumnKind;
using enum ColumnUse;

constexpr int kVectorColumn = 12;

// clang-format off
constexpr ObjectColumn kColumns[] = {
  {.title = u"認識符号",     .path = u".ID", .sample = u"XXXXXXXXXX", .isIdentifier = true},
  {.title = u"名称(日本語)", .path = u".JapaneseName", .stretches = true},
  {.title = u"名称(英語)",   .path = u".EnglishName",  .stretches = true},
  {.title = u"個別",         .kind = Check, .key = 'V', .path = u".Individual"},
  {.title = u"等級限定",     .kind = Indicator,         .path = u".Brighter",     .bitmap = 13200},
  {.title = u"軌道タイプ",   .kind = Indicator,         .path = u".OrbitalType",  .bitmap = 13201},
  {.title = u"スペクトル型", .kind = Indicator,         .path = u".SpectralType", .bitmap = 13202},
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
};
// clang-format on

}  // namespace

CDlgMinorPlanet::CDlgMinorPlanet(CCorVyn* commandHandle, CCorVyn* secondHandle, QWidget* parent)
    : CDlgElementClass(commandHandle, secondHandle,
                       {.base = {.templateNumber = 13001,
                                 .registryKey = 13375,
                                 .classPath = QStringLiteral("Solar.MinorPlanet"),
                                 .listControl = kMinorPlanetControls.ObjectList(),
                                 .columns = kColumns},
                        .controls = kMinorPlanetControls,
                        .vectorColumn = kVectorColumn,
                        .cometFlag = 0,
                        .importFolderName = 13385,
                        .elementFolderName = 13392},
                       {{kMinorPlanetControls.OrbitalTypeList(), u"OrbitalType", u"軌道タイプ"},
                        {kSpectralTypeList, u"SpectralType", u"スペクトル型"}},
                       parent) {}

CDlgMinorPlanet::CDlgMinorPlanet(QWidget* parent) : CDlgMinorPlanet(nullptr, nullptr, parent) {}

void CDlgMinorPlanet::AttachControls() {
  CDlgElementClass::AttachControls();
  OnClicked({kSymbolicCheck}, &CDlgMinorPlanet::OnBnClickedChkSymbolic);
}

void CDlgMinorPlanet::DoDataExchange(CDataExchange& exchange) {
  CDlgElementClass::DoDataExchange(exchange);
  exchange.Check(kSymbolicCheck, symbolicFlag_);
}

void CDlgMinorPlanet::InitDisplay() { symbolicFlag_ = GetBool(Path(u".Symbolic")) ? 1 : 0; }

/// "Z" is never offered.
void CDlgMinorPlanet::InitMoreTypes() {
  std::vector<tagLimitTypeInfo> types;
  for (char16_t letter = u'A'; letter < u'Z'; ++letter) {
    const QString name(letter);
    if (GetInt(Path(u".SpectralType.") + name + QStringView(u".Count")) > 0) {
      types.push_back({name + QStringView(u"型"), name});
    }
  }
  ShowTypes(Types(kSpectralTypeList), std::move(types));
}

void CDlgMinorPlanet::OnBnClickedChkSymbolic() {
  if (!HasCorVyn()) return;
  UpdateData(true);
  Doit(Path(u".Symbolic = ") + QStringView(symbolicFlag_ != 0 ? u"True" : u"False") +
       statement::kRedraw);
}

}  // namespace vyn
