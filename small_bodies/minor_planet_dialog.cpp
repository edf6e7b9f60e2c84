#include "small_bodies/minor_planet_dialog.h"

#include "core_link/statement.h"
#include "small_bodies/element_columns.h"

namespace vyn {
namespace {

constexpr int kVectorColumn = 12;

constexpr std::array kSpectralColumn{ObjectColumn{.title = u"スペクトル型",
                                                  .kind = ObjectColumnKind::Indicator,
                                                  .path = u".SpectralType",
                                                  .bitmap = 13202}};

constexpr auto kColumns =
    JoinedColumns(IdentifierColumn(u"XXXXXXXXXX"), kNameColumns, kSpectralColumn, kSwitchColumns);

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
