// Templates 13002 and 13005: the grids of planets and dwarf planets, built from their tables.
#include "resources/planet_grid.h"
#include "resources/templates/templates.h"

namespace vyn::templates {

using namespace layout;

namespace {

constexpr int kNumberChars = 5;

TemplateItem Cell(const GridColumn& column, const GridBody& body, int control) {
  if (control == 0) return stretch();
  const bool isLanguage =
      column.feature == GridFeature::Japanese || column.feature == GridFeature::English;
  TemplateItem item = isLanguage ? radio(control, u"") : check(control, u"");
  const QString bodyName = QString::fromUtf16(body.text).section(QLatin1Char('('), 0, 0);
  item.accessibleName = bodyName + u' ' + QString::fromUtf16(column.text);
  return item;
}

TemplateItem Headings(const PlanetGrid& grid) {
  TemplateItem line = row(stretch());
  for (const GridColumn& column : grid.columns) {
    line.children.push_back(label(column.heading, column.text));
  }
  return line;
}

TemplateItem BodyRow(const PlanetGrid& grid, int body) {
  TemplateItem line = row(label(grid.bodies[body].label, grid.bodies[body].text));
  for (const GridColumn& column : grid.columns) {
    line.children.push_back(Cell(column, grid.bodies[body], column.controls[body]));
  }
  return line;
}

TemplateItem OnButtons(const PlanetGrid& grid) {
  TemplateItem line = row(label(grid.allLabel, grid.allText));
  for (const GridColumn& column : grid.columns) {
    const bool isLanguage = column.offButton == 0;
    line.children.push_back(compact(button(column.onButton, isLanguage ? column.text : u"オン")));
  }
  return line;
}

TemplateItem OffButtons(const PlanetGrid& grid) {
  TemplateItem line = row(stretch());
  for (const GridColumn& column : grid.columns) {
    line.children.push_back(column.offButton == 0 ? stretch()
                                                  : compact(button(column.offButton, u"オフ")));
  }
  return line;
}

TemplateItem NumberLine(const GridNumber& number) {
  return row(label(number.label, number.labelText), edit(number.edit, kNumberChars),
             spin(number.spin), label(number.unit, number.unitText));
}

DialogTemplate FromGrid(const PlanetGrid& grid) {
  TemplateItem cells = arranged(ControlKind::Grid, Headings(grid));
  for (int body = 0; body < static_cast<int>(grid.bodies.size()); ++body) {
    cells.children.push_back(BodyRow(grid, body));
  }
  cells.children.push_back(OnButtons(grid));
  cells.children.push_back(OffButtons(grid));

  const GridNumber& magnification = grid.magnification;
  // clang-format off
  TemplateItem numbers = row(
    group(grid.magnificationGroup, magnification.labelText,
      row(edit(magnification.edit, kNumberChars), spin(magnification.spin),
          label(magnification.unit, magnification.unitText))),
    titled(group(grid.vectorGroup, u"",
      check(grid.vectorCheck, u"移動量表示(&T)："),
      row(NumberLine(grid.vectorSpan), NumberLine(grid.vectorMultiplier)))),
    stretch());
  // clang-format on
  return {grid.templateNumber, QString::fromUtf16(grid.caption),
          withButtons(column(std::move(cells), std::move(numbers)), colorButton(grid.colorButton))};
}

}  // namespace

DialogTemplate Planet() { return FromGrid(PlanetsGrid()); }
DialogTemplate DwarfPlanet() { return FromGrid(DwarfPlanetsGrid()); }

}  // namespace vyn::templates
