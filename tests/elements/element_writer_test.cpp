// Writing fields into element records, to the byte.
#include "elements/element_writer.h"

#include <gtest/gtest.h>

#include "elements/code_page_932.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

QByteArray Columns(const QByteArray& record, ElementField field) {
  return record.mid(FieldOf(field).offset, FieldOf(field).width);
}

QByteArray WithColumns(ElementField field, const QByteArray& columns) {
  return BlankRecord('C').replace(FieldOf(field).offset, columns.size(), columns);
}

TEST(ElementWriter, NumbersStandOnTheirPoint) {
  struct Case {
    const char* name;
    ElementField field;
    const char* old;
    QString typed;
    const char* written;
  };
  // clang-format off
  const Case cases[] = {
    {"year",                        ElementField::PerihelionYear,      "    ",        u"2020"_s,        "2020"},
    {"negative year",               ElementField::PerihelionYear,      "2000",        u"-12"_s,         " -12"},
    {"month",                       ElementField::PerihelionMonth,     "12",          u"1"_s,           "01"},
    {"day",                         ElementField::PerihelionDay,       "         ",   u"1.5"_s,         "01.5     "},
    {"whole day",                   ElementField::PerihelionDay,       "         ",   u"7"_s,           "07       "},
    {"four digits before point",    ElementField::Equinox,             "      ",      u"2000.0"_s,      "2000.0"},
    {"old decimals kept",           ElementField::Equinox,             "2000.0",      u"1950"_s,        "1950.0"},
    {"negative equinox",            ElementField::Equinox,             "2000.0",      u"-50"_s,         "-50.00"},
    {"blanks around",               ElementField::Inclination,         "          ",  u"  5.25 "_s,     "  5.25    "},
    {"cut at the field's end",      ElementField::Eccentricity,        "          ",  u"0.123456789"_s, "0.12345678"},
    {"blank leaves the field",      ElementField::Eccentricity,        "0.96714291",  u"  "_s,          "0.96714291"},
    {"shorter than before",         ElementField::Eccentricity,        "0.96714291",  u"0.5"_s,         "0.50000000"},
    {"a prefix of what was",        ElementField::Eccentricity,        "0.96714291",  u"0.967"_s,       "0.96700000"},
    {"zeros kept",                  ElementField::Eccentricity,        "0.50000000",  u"0.5"_s,         "0.50000000"},
    {"whole number over decimals",  ElementField::Eccentricity,        "0.96714291",  u"1"_s,           "1.00000000"},
    {"no digit before the point",   ElementField::Eccentricity,        "          ",  u".5"_s,          " .5       "},
    {"over the template's column",  ElementField::AbsoluteMagnitude,   "   6.0",      u"12"_s,          " 12.00"},
    {"negative magnitude",          ElementField::AbsoluteMagnitude,   "   6.0",      u"-2.5"_s,        " -2.50"},
    {"what was there is no number", ElementField::PerihelionDistance,  "xx.xxxxxxxx", u"1.5"_s,         " 1.50000000"},
    {"zero to the left of the day", ElementField::EpochDay,            "21.000000",   u"3"_s,           "03.000000"},
  };
  // clang-format on
  for (const Case& row : cases) {
    QByteArray record = WithColumns(row.field, row.old);
    WriteNumber(record, row.field, row.typed);
    EXPECT_EQ(Columns(record, row.field), row.written) << row.name;
    EXPECT_EQ(WithColumns(row.field, row.written), record) << row.name << ": beside the field";
  }
}

/// Every number that can be typed into a field, over every kind of old content, is read back.
TEST(ElementWriter, WhatIsTypedIsReadBack) {
  const QString integers[] = {u"0"_s, u"7"_s, u"12"_s, u"359"_s, u"-3"_s, u""_s};
  const QString decimals[] = {u""_s, u"."_s, u".5"_s, u".25"_s, u".000001"_s};
  const QByteArray olds[] = {"           ", "99999999999", "  1.5      ", "0.96714291 ",
                             "***********"};
  for (const RecordField& field : kRecordFields) {
    if (!field.IsNumber()) continue;
    for (const QString& integer : integers) {
      for (const QString& fraction : decimals) {
        const QString typed = integer + fraction;
        const FieldNumber meant = ReadTypedNumber(typed, field.field);
        const bool fits = integer.size() <= field.integerWidth &&
                          fraction.size() <= field.decimals + 1 && typed.size() <= field.width;
        if (meant.state != NumberState::Number || !fits) continue;
        for (const QByteArray& old : olds) {
          QByteArray record = WithColumns(field.field, old.left(field.width));
          WriteNumber(record, field.field, typed);
          const FieldNumber back = ReadNumber({record.data(), 417}, field.field);
          EXPECT_EQ(back.value, meant.value)
              << field.name << ": " << typed.toStdString() << " over " << old.toStdString();
        }
      }
    }
  }
}

TEST(ElementWriter, TypedNumbersAreToldFromOtherTexts) {
  const auto stateOf = [](const QString& text) {
    return ReadTypedNumber(text, ElementField::Eccentricity).state;
  };
  for (const QString& text : {u"1"_s, u"-1"_s, u" 0.5 "_s, u".5"_s, u"5."_s}) {
    EXPECT_EQ(stateOf(text), NumberState::Number) << text.toStdString();
  }
  for (const QString& text :
       {u"+1"_s, u"1e3"_s, u"1,5"_s, u"-"_s, u"１"_s, u"0x1"_s, u"0.12345678901234567890"_s}) {
    EXPECT_EQ(stateOf(text), NumberState::NotANumber) << text.toStdString();
  }
  EXPECT_EQ(stateOf(u"  "_s), NumberState::Blank);
  EXPECT_EQ(ReadTypedNumber(u"1.5", ElementField::EpochYear).state, NumberState::NotANumber);
}

TEST(ElementWriter, TextsAreCutBetweenCharacters) {
  QByteArray record = BlankRecord('M');
  WriteText(record, ElementField::JapaneseName, u"あ"_s.repeated(40));
  EXPECT_EQ(Columns(record, ElementField::JapaneseName), QByteArray("\x82\xa0").repeated(30));
  WriteText(record, ElementField::JapaneseName, QString(u"x"_s + u"あ"_s.repeated(40)));
  EXPECT_EQ(Columns(record, ElementField::JapaneseName),
            "x" + QByteArray("\x82\xa0").repeated(29) + " ");
  WriteText(record, ElementField::JapaneseName, u"\n\0\x7F短"_s);
  EXPECT_EQ(Columns(record, ElementField::JapaneseName),
            QByteArray("   \x92\x5A").leftJustified(60, ' '));
  WriteText(record, ElementField::JapaneseName, u"");
  EXPECT_EQ(record, BlankRecord('M'));
}

TEST(CodePage932, EveryCharacterIsWrittenAsItWasRead) {
  for (int lead = 0x81; lead <= 0xFC; ++lead) {
    if (lead >= 0xA0 && lead < 0xE0) continue;
    for (int trail = 0x40; trail <= 0xFC; ++trail) {
      const char bytes[] = {static_cast<char>(lead), static_cast<char>(trail)};
      const DecodedText read = DecodeCodePage932({bytes, 2});
      if (!read.valid) continue;
      EXPECT_EQ(DecodeCodePage932(EncodeCodePage932(read.text).toStdString()).text, read.text)
          << std::hex << lead << trail;
    }
  }
}

TEST(CodePage932, ChoosesTheUsualCode) {
  EXPECT_EQ(EncodeCodePage932(u"ﾊﾚｰA\\~"), "\xCA\xDA\xB0\x41\\~");
  EXPECT_EQ(EncodeCodePage932(u"髙①ⅰ≒¬"), "\xFB\xFC\x87\x40\xFA\x40\x81\xE0?");
  EXPECT_EQ(EncodeCodePage932(u"〜～−－‖"), "\x81\x60\x81\x60\x81\x7C\x81\x7C\x81\x61");
  EXPECT_EQ(EncodeCodePage932(u"é🌟x"), "??x");
  EXPECT_EQ(EncodeCodePage932(u"aあ", 2), "a");
}

TEST(ElementWriter, TemplatesHaveWhatIsUsualForTheirKind) {
  const auto expected = [](char kind, const QByteArray& columns67to155) {
    QByteArray record = BlankRecord(kind);
    record.replace(51, 10, "20260101.0");
    record.replace(67, columns67to155.size(), columns67to155);
    return record;
  };
  EXPECT_EQ(TemplateRecord('C', 2026),
            expected('C',
                     "1.0         1.0          0.0        0.0        0.0      2000.0    6.0 "
                     "10.0  0.01 0.01 1.0"));
  EXPECT_EQ(TemplateRecord('M', 2026),
            expected('M',
                     " 0.0        1.0          0.0        0.0        0.0      2000.0   16.0 "
                     " 0.15"));
  EXPECT_EQ(TemplateRecord('C', 2026).size(), kElementRecordSize);
}

}  // namespace
}  // namespace vyn
