#include "engine/data_set_files.h"

#include <algorithm>
#include <vector>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include "engine/data_set_text.h"
#include "engine/data_sets.h"
#include "siblings/files/common_file.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 kMaxFileBytes = 16 << 20;

/// Members that are not the set's own data.
bool IsStored(QStringView member) { return !SameWord(member, u"File"); }

QString SetPath(const QString& basePath, int number) {
  return basePath + u".#"_s + QString::number(number);
}

/// A path as this system writes it: dialogs join folder and name with a backslash.
QString CleanPath(const QString& path) {
  return path.isEmpty() ? QString() : QDir::cleanPath(CCommonFile::OpenablePath(path));
}

/// Empty where none is named. A relative one is none, so that a folder of another system, such as
/// "C:\\images", does not come into being wherever the program happens to run.
QString FolderOf(const PropertyTree& tree, const QString& basePath) {
  const QString folder = CleanPath(ValueAt(tree, basePath + u".SavePath"_s));
  return QDir::isAbsolutePath(folder) ? folder : QString();
}

/// What stands below a set's path; the set's own value is its switch.
QString MemberWord(const QString& path, qsizetype setPathLength) {
  return path.size() > setPathLength ? path.sliced(setPathLength + 1) : u"Visible"_s;
}

DataSetText TextOfSet(PropertyTree& tree, const QString& basePath, int number) {
  DataSetText set{number, {}};
  PropertyNode* root = tree.Find(SetPath(basePath, number));
  if (root == nullptr) return set;
  tree.ForEachValue(*root, [&](const PropertyNode& node) {
    const QString member = MemberWord(node.path, root->path.size());
    if (IsStored(member)) set.members.emplace_back(member, node.value);
  });
  return set;
}

QString WriteFile(const QString& path, const std::vector<DataSetText>& sets) {
  QSaveFile file(path);
  const QByteArray text = WriteDataSets(sets).toUtf8();
  const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
  if (isWritten && file.commit()) return {};
  return u"%1 cannot be written: %2"_s.arg(path, file.errorString());
}

/// Empty for a file that may be written.
QString Objection(const QString& path, const QString& folder, int number) {
  const QFileInfo file(path);
  if (path.isEmpty()) return u"set %1 has no file"_s.arg(number);
  const bool isInFolder = file.absolutePath() == QFileInfo(folder).absoluteFilePath();
  const bool isText = file.suffix().compare("txt"_L1, Qt::CaseInsensitive) == 0;
  return isInFolder && isText ? QString() : u"%1 is no file of data sets"_s.arg(path);
}

struct LoadedSet {
  DataSetText text;
  QString file;
};

/// The sets of one file, put behind those there.
QString ReadFile(const QString& path, std::vector<LoadedSet>& sets) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly) || file.size() > kMaxFileBytes) {
    return u"%1 cannot be read"_s.arg(path);
  }
  const QString text = QString::fromUtf8(file.readAll());
  for (DataSetText& set : ReadDataSets(text)) sets.push_back({std::move(set), path});
  return {};
}

void TakeSet(PropertyTree& tree, const QString& setPath, const LoadedSet& set) {
  for (const auto& [member, value] : set.text.members) {
    const QString path = tree.Canonical(QString(setPath + u'.' + member));
    if (IsWithin(path, setPath) && IsStored(member)) tree.SetValue(tree.Make(path), value);
  }
  tree.SetValue(tree.Make(setPath + u".File"_s), QDir::toNativeSeparators(set.file));
}

}  // namespace

QString DataSetFiles::Save(PropertyTree& tree, const QString& basePath) {
  const int count = CountOfDataSets(tree, basePath);
  const QString folder = FolderOf(tree, basePath);
  if (folder.isEmpty()) return count > 0 ? u"there is no folder to save in"_s : QString();
  QStringList problems;
  std::map<QString, std::vector<DataSetText>> files;
  for (int number = 1; number <= count; ++number) {
    const QString path = CleanPath(ValueAt(tree, SetPath(basePath, number) + u".File"_s));
    const QString objection = Objection(path, folder, number);
    if (!objection.isEmpty()) problems += objection;
    if (objection.isEmpty()) files[path].push_back(TextOfSet(tree, basePath, number));
  }
  if (!files.empty()) QDir().mkpath(folder);
  for (const auto& [path, sets] : files) {
    const QString problem = WriteFile(path, sets);
    if (!problem.isEmpty()) problems += problem;
  }
  if (problems.isEmpty()) ForgetUnused(basePath, files);
  return problems.join(u"; "_s);
}

/// Only once every set is safe in a file may an old file go.
void DataSetFiles::ForgetUnused(const QString& basePath,
                                const std::map<QString, std::vector<DataSetText>>& files) {
  std::set<QString>& known = known_[basePath.toLower()];
  for (const QString& path : known) {
    if (!files.contains(path)) QFile::remove(path);
  }
  known.clear();
  for (const auto& [path, sets] : files) known.insert(path);
}

QString DataSetFiles::Load(PropertyTree& tree, const QString& basePath) {
  const QString folder = FolderOf(tree, basePath);
  if (folder.isEmpty()) return u"there is no folder to load from"_s;
  std::vector<LoadedSet> sets;
  QStringList problems;
  std::set<QString>& known = known_[basePath.toLower()];
  known.clear();
  const QStringList names = QDir(folder).entryList({u"*.txt"_s}, QDir::Files, QDir::Name);
  for (const QString& name : names) {
    const QString path = folder + u'/' + name;
    const QString problem = ReadFile(path, sets);
    if (!problem.isEmpty()) problems += problem;
    if (!sets.empty() && sets.back().file == path) known.insert(path);
  }
  std::ranges::stable_sort(sets, {}, [](const LoadedSet& set) { return set.text.number; });
  for (int number = CountOfDataSets(tree, basePath); number > 0; --number) {
    tree.ClearWithin(SetPath(basePath, number));
  }
  for (std::size_t i = 0; i < sets.size(); ++i) {
    TakeSet(tree, SetPath(basePath, static_cast<int>(i) + 1), sets[i]);
  }
  tree.SetValue(tree.Make(basePath + u".Count"_s), QString::number(sets.size()));
  return problems.join(u"; "_s);
}

}  // namespace vyn
