// A page of the editor: read from a record, checked, stored in it again.
#include "elements/element_page.h"

#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "elements/editor_fields.h"
#include "elements/element_writer.h"
#include "elements/loaded_identifiers.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

bool NeverTaken(const QString&) { return false; }

/// A comet that passes every check.
QByteArray Comet() {
  QByteArray record = TemplateRecord('C', 2020);
  WriteText(record, ElementField::Identifier, u"C/2020 F3");
  return record;
}

TEST(ElementPage, RealCometsAreStoredAsTheyWereRead) {
  std::ifstream input(VYN_DATA_DIR "/comets.eld", std::ios::binary);
  const std::string file{std::istreambuf_iterator<char>(input), {}};
  ASSERT_EQ(file.size(), 1687U * kElementRecordSize);
  for (std::size_t at = 0; at < file.size(); at += kElementRecordSize) {
    const QByteArray record(file.data() + at, kElementRecordSize);
    SCOPED_TRACE(record.left(60).toStdString());
    QByteArray after = record;
    const auto problem = StorePage(ReadPage(record, true), after, NeverTaken);
    EXPECT_FALSE(problem) << problem->message.toStdString();
    EXPECT_EQ(after, record);
  }
}

TEST(ElementPage, EachFieldIsStoredInItsColumnsAlone) {
  for (const EditorField& row : kEditorFields) {
    QByteArray record = BlankRecord('C');
    ElementInput input;
    const RecordField& field = FieldOf(row.field);
    input[row.field] = field.IsNumber() ? QString::number(field.lowerBound + 1) : u"X"_s;
    ASSERT_FALSE(SetNumericField(input, row.field, record)) << field.name;
    EXPECT_NE(record, BlankRecord('C')) << field.name;
    record.replace(field.offset, field.width, QByteArray(field.width, ' '));
    EXPECT_EQ(record, BlankRecord('C')) << field.name;
  }
}

TEST(ElementPage, BlankNumbersAndUnchangedTextsKeepTheirColumns) {
  QByteArray record = Comet();
  // An identifier closed with NUL, and a name in another code page.
  record.replace(FieldOf(ElementField::Identifier).offset, 9, QByteArray("2P\0junk  ", 9));
  record.replace(FieldOf(ElementField::JapaneseName).offset, 6, "\xE3\x82\xFF\x83\xFE\x81");
  ElementInput input = ReadPage(record, true);
  EXPECT_EQ(input[ElementField::Identifier], u"2P"_s);
  input[ElementField::AbsoluteMagnitude] = u"  "_s;
  input[ElementField::Memo] = u"new"_s;
  QByteArray after = record;
  ASSERT_FALSE(StorePage(input, after, NeverTaken));
  WriteText(record, ElementField::Memo, u"new");
  EXPECT_EQ(after, record);
}

TEST(ElementPage, WhatIsRefusedChangesNothing) {
  const QByteArray record = Comet();
  ElementInput input = ReadPage(record, true);
  input[ElementField::EnglishName] = u"changed"_s;
  input[ElementField::ValidToDay] = u"40"_s;
  QByteArray after = record;
  EXPECT_TRUE(StorePage(input, after, NeverTaken));
  EXPECT_EQ(after, record);
}

TEST(ElementPage, RangeMessagesNameTheFieldAndItsBounds) {
  const auto refusal = [](ElementField field, const QString& text, bool isComet) {
    ElementInput input;
    input.isComet = isComet;
    input[field] = text;
    QByteArray record = BlankRecord('C');
    const auto problem = SetNumericField(input, field, record);
    return problem ? problem->message : QString();
  };
  EXPECT_EQ(refusal(ElementField::MagnitudeCoefficient, u"100"_s, true),
            u"光度係数には  -9  以上  100  未満の値を入力してください。"_s);
  EXPECT_EQ(refusal(ElementField::MagnitudeCoefficient, u"100"_s, false),
            u"スロープパラメータには  -9  以上  100  未満の値を入力してください。"_s);
  EXPECT_EQ(refusal(ElementField::EpochMonth, u"13"_s, true),
            u"元期月には  1  以上  13  未満の値を入力してください。"_s);
  EXPECT_EQ(refusal(ElementField::PerihelionDistance, u"0"_s, true),
            u"近日点距離には 0 より大きく 100 未満の値を入力してください。"_s);
  EXPECT_EQ(refusal(ElementField::EpochMonth, u"1.5"_s, true), u"正しい数値を入力してください。"_s);
  for (const EditorField& row : kEditorFields) {
    if (row.nameMessage == 0) continue;
    const QString message =
        refusal(row.field, QString::number(FieldOf(row.field).upperBound), true);
    EXPECT_TRUE(message.contains(QString::number(FieldOf(row.field).upperBound)) &&
                !message.contains(u'%') && !message.contains(u'|'))
        << FieldOf(row.field).name << ": " << message.toStdString();
  }
}

TEST(LoadedIdentifiers, FindsOthersByIdentifierWithoutCaseAndBlanks) {
  QByteArray records;
  for (const auto& [kind, identifier] : {std::pair('C', u"  abc"_s), std::pair('+', u"page"_s),
                                         std::pair('C', u"ハレー"_s), std::pair('C', u"ABC"_s)}) {
    QByteArray record = BlankRecord(kind);
    WriteText(record, ElementField::Identifier, identifier);
    records += record;
  }
  const std::uint32_t firstRecords[] = {0, 2, 3};
  const ElementDataPointers loaded{4, records.constData(), 3, firstRecords};
  EXPECT_TRUE(IsIdentifierLoaded(loaded, u"Abc ", 0)) << "object 2 has it too";
  EXPECT_TRUE(IsIdentifierLoaded(loaded, u"ハレー", -1));
  EXPECT_FALSE(IsIdentifierLoaded(loaded, u"ハレー", 1));
  EXPECT_FALSE(IsIdentifierLoaded(loaded, u"page", -1)) << "not the first record of an object";
  EXPECT_FALSE(IsIdentifierLoaded(loaded, u"ab", -1));
}

}  // namespace
}  // namespace vyn
