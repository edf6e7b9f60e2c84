#include "bench/large_file.h"

#include <algorithm>
#include <map>

#include <QFile>
#include <QTemporaryDir>

#include "elements/element_record.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

QByteArray LastRecord(const QByteArray& block) {
  QByteArray record = block.first(kElementRecordSize);
  const RecordField& field = FieldOf(ElementField::Identifier);
  const QByteArray identifier = "THE LAST ONE";
  record.replace(field.offset, field.width,
                 identifier.leftJustified(static_cast<qsizetype>(field.width), ' ', true));
  return record;
}

bool WriteFile(const QString& path, int objects) {
  QFile source(BenchSourceFile());
  QFile file(path);
  if (!source.open(QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly)) return false;
  const QByteArray block = source.readAll();
  if (block.size() < kElementRecordSize) return false;
  qint64 rest = (qint64{objects} - 1) * kElementRecordSize;
  for (; rest > 0; rest -= block.size()) {
    file.write(block.constData(), std::min<qint64>(rest, block.size()));
  }
  file.write(LastRecord(block));
  return file.flush();
}

}  // namespace

QString BenchSourceFile() {
  const QString chosen = qEnvironmentVariable("VYN_BENCH_ELEMENTS");
  return chosen.isEmpty() ? QStringLiteral(VYN_DATA_DIR "/minor_planets.eld") : chosen;
}

QString LargeElementFile(int objects) {
  static const QTemporaryDir folder;
  static std::map<int, QString> made;
  const QString path = folder.filePath(u"%1.eld"_s.arg(objects));
  if (!made.contains(objects)) made[objects] = WriteFile(path, objects) ? path : QString();
  return made[objects];
}

}  // namespace vyn
