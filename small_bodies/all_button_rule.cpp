#include "small_bodies/all_button_rule.h"

#include <algorithm>

namespace vyn {
namespace {

template <class Predicate>
qint64 CountCells(const tagDataColumn& cells, Predicate predicate) {
  qint64 count = 0;
  for (qint64 row = 0; row < cells.CellCount(); ++row) count += predicate(cells.Cell(row)) ? 1 : 0;
  return count;
}

}  // namespace

bool AllButtonSwitchesOn(const tagDataColumn& cells) {
  const qint64 on = CountCells(cells, [](const tagDataItem& cell) { return cell.value >= 1; });
  if (on == 0) return true;
  return on != cells.CellCount() && on > cells.CellCount() / 2;
}

int AllButtonOption(const tagDataColumn& cells) {
  std::vector<qint64> counts(static_cast<std::size_t>(std::max(cells.optionCount, 1)), 0);
  for (std::size_t option = 0; option < counts.size(); ++option) {
    counts[option] = CountCells(
        cells, [&](const tagDataItem& cell) { return cell.value == static_cast<int>(option); });
  }
  const auto most = std::ranges::max_element(counts);
  const int option = static_cast<int>(most - counts.begin());
  return *most == cells.CellCount() ? (option + 1) % static_cast<int>(counts.size()) : option;
}

}  // namespace vyn
