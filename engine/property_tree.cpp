#include "engine/property_tree.h"

#include <map>

#include "core_link/reply.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

bool IsLabel(QStringView word) {
  return word.size() > 1 && word.front() == u'#' && !(word[1] >= u'0' && word[1] <= u'9');
}

bool HasLabel(QStringView path) {
  for (const QStringView word : path.tokenize(u'.')) {
    if (IsLabel(word)) return true;
  }
  return false;
}

void CountValue(PropertyNode* node, int change) {
  for (; node != nullptr; node = node->parent) node->valuesWithin += change;
}

/// The two words of nearly all assignments need no memory of their own.
QString SharedText(QStringView value) {
  static const QString kTrue = u"TRUE"_s;
  static const QString kFalse = u"FALSE"_s;
  if (value == kTrue) return kTrue;
  return value == kFalse ? kFalse : value.toString();
}

}  // namespace

PropertyTree::PropertyTree() = default;

PropertyNode* PropertyTree::FindIn(QStringView path) const {
  const auto found = index_.find(path);
  return found != index_.end() ? found->second : nullptr;
}

PropertyNode* PropertyTree::Find(QStringView path) const {
  if (PropertyNode* node = FindIn(path)) return node;
  if (const auto alias = aliases_.find(path); alias != aliases_.end()) return alias->second;
  const QString canonical = Canonical(path);
  if (canonical.isEmpty()) return nullptr;
  PropertyNode* node = FindIn(canonical);
  // A label may come to mean another member, and numbers have no end of leading zeros.
  const bool lasting = !HasLabel(path) && aliases_.size() < 4 * index_.size() + 1024;
  if (node != nullptr && lasting) aliases_.emplace(path.toString(), node);
  return node;
}

bool PropertyTree::HasValuesWithin(QStringView canonicalPath) const {
  const PropertyNode* node = FindIn(canonicalPath);
  return node != nullptr && node->valuesWithin > 0;
}

QString PropertyTree::Canonical(QStringView path) const {
  QString canonical = CanonicalPath(path);
  if (!HasLabel(canonical)) return canonical;
  QString numbered;
  for (const QStringView word : QStringView(canonical).tokenize(u'.')) {
    const QString number = IsLabel(word) ? NumberOfLabel(numbered, word) : QString();
    if (!numbered.isEmpty()) numbered += u'.';
    numbered += number.isEmpty() ? word : QStringView(number);
  }
  return numbered;
}

QString PropertyTree::NumberOfLabel(QStringView parentPath, QStringView label) const {
  const PropertyNode* parent = FindIn(parentPath);
  if (parent == nullptr) return {};
  for (const PropertyNode* child : parent->children) {
    if (!child->Word().startsWith(u'#')) continue;
    const PropertyNode* text = FindIn(QString(child->path + u".Label"_s));
    if (text != nullptr && text->hasValue && SameWord(text->value, label.sliced(1))) {
      return child->Word().toString();
    }
  }
  return {};
}

PropertyNode& PropertyTree::Make(const QString& canonicalPath) {
  if (PropertyNode* node = FindIn(canonicalPath)) return *node;
  PropertyNode* node = &root_;
  for (qsizetype end = canonicalPath.indexOf(u'.');; end = canonicalPath.indexOf(u'.', end + 1)) {
    const QString path = end < 0 ? canonicalPath : canonicalPath.first(end);
    PropertyNode* next = FindIn(path);
    node = next != nullptr ? next : &Insert(path, *node);
    if (end < 0) return *node;
  }
}

PropertyNode& PropertyTree::Insert(const QString& path, PropertyNode& parent) {
  PropertyNode& node = nodes_.emplace_back();
  node.path = path;
  node.parent = &parent;
  node.role = RoleOf(path);
  hasElementObjects_ |= node.role == PathRole::ElementClass && ObjectNumber(node.Word());
  parent.children.push_back(&node);
  index_.emplace(path, &node);
  return node;
}

void PropertyTree::SetValue(PropertyNode& node, QStringView value) {
  node.isPut = false;
  if (node.hasValue && node.value == value) return;
  if (!node.hasValue) CountValue(&node, 1);
  node.hasValue = true;
  node.value = SharedText(value);
}

void PropertyTree::ClearValue(PropertyNode& node) {
  if (!node.hasValue) return;
  CountValue(&node, -1);
  node.hasValue = false;
  node.isPut = false;
  node.value.clear();
}

void PropertyTree::ClearWithin(const QString& path) {
  PropertyNode* root = Find(path);
  if (root == nullptr) return;
  ForEachValue(*root, [this](PropertyNode& node) { ClearValue(node); });
}

void PropertyTree::RemoveMember(const QString& path, QStringView prefix, int number) {
  const PropertyNode* base = Find(path);
  if (base == nullptr) return;
  std::map<int, QString> behind;
  for (const PropertyNode* child : base->children) {
    if (!child->Word().startsWith(prefix, Qt::CaseInsensitive)) continue;
    const int childNumber = reply::ToInt(child->Word().sliced(prefix.size()));
    if (childNumber == number) ClearWithin(child->path);
    if (childNumber > number) behind.emplace(childNumber, child->path);
  }
  for (const auto& [childNumber, childPath] : behind) {
    MoveValues(childPath, path + u'.' + prefix + QString::number(childNumber - 1));
  }
}

/// `to` has no values.
void PropertyTree::MoveValues(const QString& from, const QString& to) {
  PropertyNode* root = Find(from);
  if (root == nullptr) return;
  std::vector<PropertyNode*> sources;
  ForEachValue(*root, [&](PropertyNode& node) { sources.push_back(&node); });
  for (PropertyNode* source : sources) {
    PropertyNode& target = Make(to + source->path.sliced(root->path.size()));
    SetValue(target, source->value);
    target.isPut = source->isPut;
    ClearValue(*source);
  }
}

void PropertyTree::ForEachValue(PropertyNode& root,
                                const std::function<void(PropertyNode&)>& visit) {
  ForEachNode(root, [&](PropertyNode& node) {
    if (node.hasValue) visit(node);
  });
}

void PropertyTree::ForEachNode(PropertyNode& root,
                               const std::function<void(PropertyNode&)>& visit) {
  std::vector<PropertyNode*> waiting{&root};
  while (!waiting.empty()) {
    PropertyNode* node = waiting.back();
    waiting.pop_back();
    visit(*node);
    waiting.insert(waiting.end(), node->children.rbegin(), node->children.rend());
  }
}

void PropertyTree::Clear() {
  index_.clear();
  aliases_.clear();
  nodes_.clear();
  root_ = {};
  hasElementObjects_ = false;
}

}  // namespace vyn
