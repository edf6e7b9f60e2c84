#include "engine/data_sets.h"

#include <array>
#include <limits>
#include <vector>

#include <QStringList>

#include "core_link/reply.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr std::array<QStringView, 3> kSpotMembers{u"Longitude", u"Latitude", u"Type"};

QString MemberPathOf(const QString& basePath, int number) {
  return basePath + u".#"_s + QString::number(number);
}

QString CountPath(const QString& basePath) { return basePath + u".Count"_s; }

void SetMember(PropertyTree& tree, const QString& memberPath, QStringView word, QStringView value) {
  tree.SetValue(tree.Make(memberPath + u'.' + word), value);
}

QStringList LabelsIn(PropertyTree& tree, const QString& basePath) {
  QStringList labels;
  if (PropertyNode* base = tree.Find(basePath)) {
    tree.ForEachValue(*base, [&labels](const PropertyNode& node) {
      if (SameWord(node.Word(), u"Label") && !node.value.isEmpty()) labels += node.value;
    });
  }
  return labels;
}

/// Labels stay with their images when others are deleted, so a new one is one that nobody bears. It
/// has the letter and the digits of those there, because dialogs learn them from the first they
/// meet.
QString FreeLabel(PropertyTree& tree, const QString& basePath, int number) {
  const QStringList taken = LabelsIn(tree, basePath);
  const QString model = taken.isEmpty() ? u"I01"_s : taken.first();
  const int digits = model.size() <= 5 ? static_cast<int>(model.size()) - 1 : 0;
  for (int n = number;; ++n) {
    const QString label = model.front() + u"%1"_s.arg(n, digits, 10, QChar(u'0'));
    if (!taken.contains(label, Qt::CaseInsensitive)) return label;
  }
}

void GiveLabel(PropertyTree& tree, const QString& basePath, int number) {
  PropertyNode& label = tree.Make(MemberPathOf(basePath, number) + u".Label"_s);
  if (!label.hasValue) tree.SetValue(label, FreeLabel(tree, basePath, number));
}

/// What the node has for new members stands below "*". A member that gets anything from there also
/// gets the moment that is shown.
void GiveStartingValues(PropertyTree& tree, const QString& basePath, const QString& member) {
  PropertyNode* source = tree.Find(QString(basePath + u".*"_s));
  if (source == nullptr) return;
  std::vector<std::pair<QString, QString>> values;
  tree.ForEachValue(*source, [&](const PropertyNode& node) {
    values.emplace_back(member + node.path.sliced(source->path.size()), node.value);
  });
  if (values.empty()) return;
  const bool isSunspots = SameWord(LastWord(basePath), u"Sunspot");
  const QString moment = ValueAt(tree, u"Time.JD"_s);
  if (!moment.isEmpty()) values.emplace_back(member + (isSunspots ? u".JD"_s : u".Time"_s), moment);
  for (const auto& [path, value] : values) {
    PropertyNode& node = tree.Make(path);
    if (!node.hasValue) tree.SetValue(node, value);
  }
}

/// 0 for an unknown member.
int NumberOf(const PropertyTree& tree, const QString& basePath, QStringView argument) {
  const QString path = tree.Canonical(QString(basePath + u".#"_s + argument));
  return path.isEmpty() ? 0 : reply::ToInt(LastWord(path).sliced(1));
}

}  // namespace

QString ValueAt(const PropertyTree& tree, const QString& path) {
  const PropertyNode* node = tree.Find(path);
  return node != nullptr && node->hasValue ? node->value : QString();
}

int CountOfDataSets(const PropertyTree& tree, const QString& basePath) {
  return reply::ToInt(ValueAt(tree, CountPath(basePath)));
}

void AddDataSet(PropertyTree& tree, const QString& basePath, QStringView arguments) {
  const int count = CountOfDataSets(tree, basePath);
  if (count < 0 || count == std::numeric_limits<int>::max()) return;
  const int number = count + 1;
  const QString member = MemberPathOf(basePath, number);
  if (SameWord(LastWord(basePath), u"TakenImage")) GiveLabel(tree, basePath, number);
  if (arguments.isEmpty()) GiveStartingValues(tree, basePath, member);
  std::size_t position = 0;
  for (const QStringView argument : arguments.tokenize(u',', Qt::SkipEmptyParts)) {
    if (position == kSpotMembers.size()) break;
    SetMember(tree, member, kSpotMembers[position++], argument.trimmed());
  }
  tree.SetValue(tree.Make(CountPath(basePath)), QString::number(number));
}

void DeleteDataSet(PropertyTree& tree, const QString& basePath, QStringView argument) {
  const int count = CountOfDataSets(tree, basePath);
  const int number = NumberOf(tree, basePath, argument);
  if (number < 1 || number > count) return;
  tree.RemoveMember(basePath, u"#", number);
  tree.SetValue(tree.Make(CountPath(basePath)), QString::number(count - 1));
}

}  // namespace vyn
