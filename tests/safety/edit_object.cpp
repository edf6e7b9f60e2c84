// Changes the number of an object's records as the element editor's OK does:
//   edit_object FILE RECORD PAGES
#include <cstdio>
#include <cstdlib>

#include <QFile>

#include "elements/element_file.h"
#include "elements/element_record.h"

int main(int argc, char** argv) {
  if (argc != 4) return 2;
  const QString path = QFile::decodeName(argv[1]);
  const std::int64_t position = std::atoll(argv[2]) * vyn::kElementRecordSize;
  const vyn::ElementRecords before = vyn::ElementFile(path).ReadRecords(position);
  if (before.empty()) return 1;
  vyn::ElementRecords after = before;
  after.resize(std::atoi(argv[3]), before.front());
  after.front()[vyn::FieldOf(vyn::ElementField::EditedMark).offset] = '*';
  for (std::size_t page = 1; page < after.size(); ++page) after[page][0] = '+';
  vyn::ElementFile file(path);
  const bool isWritten = file.ReplaceUnchanged(position, before, after);
  if (!isWritten) std::fprintf(stderr, "%s\n", file.ErrorText().toUtf8().constData());
  return isWritten ? 0 : 1;
}
