// What the tests of element files share: short ways of making records and files.
#pragma once

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include "elements/element_file.h"
#include "elements/element_record.h"
#include "elements/element_writer.h"

namespace vyn {

/// A record with an identifier and a name by which one can tell it from others.
inline QByteArray MakeRecord(char kind, const QString& identifier, const QString& name = {}) {
  QByteArray record = BlankRecord(kind);
  WriteText(record, ElementField::Identifier, identifier);
  WriteText(record, ElementField::JapaneseName, name);
  return record;
}

/// The records of an object with some pages.
inline ElementRecords MakeObject(const QString& identifier, int pages, const QString& name = {}) {
  ElementRecords records = {MakeRecord('C', identifier, name)};
  for (int page = 1; page < pages; ++page) records.push_back(MakeRecord('+', identifier, name));
  return records;
}

inline QByteArray Joined(const std::vector<ElementRecords>& objects) {
  QByteArray bytes;
  for (const ElementRecords& records : objects) {
    for (const QByteArray& record : records) bytes += record;
  }
  return bytes;
}

/// The next of the answers that a test has prepared, which is used up.
template <class Answer>
Answer TakeFirst(std::vector<Answer>& answers) {
  if (answers.empty()) {
    ADD_FAILURE() << "no answer is left";
    return {};
  }
  Answer answer = std::move(answers.front());
  answers.erase(answers.begin());
  return answer;
}

/// A test with a folder of its own.
class ElementCase : public ::testing::Test {
 protected:
  QString PathOf(const QString& name) const { return folder_.filePath(name); }

  QString Write(const QString& name, const QByteArray& bytes) {
    QFile file(PathOf(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return file.fileName();
  }

  QByteArray Read(const QString& name) const {
    QFile file(PathOf(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
  }

  QStringList Files() const {
    return QDir(folder_.path()).entryList(QDir::Files | QDir::System | QDir::Hidden, QDir::Name);
  }

 private:
  QTemporaryDir folder_;
};

}  // namespace vyn
