// Reading element records: fields, numbers, dates, code page, lines that end early.
#include "elements/element_record.h"

#include <fstream>
#include <iterator>
#include <string>

#include <gtest/gtest.h>

#include "elements/code_page_932.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

std::string BlankRecord(char kind = 'C') {
  std::string record(kElementRecordSize, ' ');
  record[0] = kind;
  record.replace(415, 2, "\r\n");
  return record;
}

std::string RecordWith(ElementField field, std::string_view text) {
  std::string record = BlankRecord();
  return record.replace(FieldOf(field).offset, text.size(), text);
}

std::string CometFile() {
  std::ifstream file(VYN_DATA_DIR "/comets.eld", std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The record of the object with this identifier.
std::string CometRecord(QStringView identifier) {
  const std::string file = CometFile();
  for (std::size_t at = 0; at < file.size(); at += kElementRecordSize) {
    const std::string record = file.substr(at, kElementRecordSize);
    if (IdentifierOf(record) == identifier) return record;
  }
  return {};
}

TEST(ElementRecord, ReadsEveryFieldOfARealComet) {
  const std::string record = CometRecord(u"C/1995 O1");
  ASSERT_EQ(record.size(), static_cast<std::size_t>(kElementRecordSize));
  EXPECT_EQ(KindOf(record), RecordKind::Comet);
  EXPECT_EQ(FieldText(record, ElementField::ProvisionalDesignation), u"1995O1"_s);
  EXPECT_EQ(FieldText(record, ElementField::PermanentDesignation), u"C/1995 O1"_s);
  EXPECT_EQ(FieldText(record, ElementField::EnglishName), u"Hale-Bopp"_s);
  EXPECT_EQ(FieldText(record, ElementField::JapaneseName), u"ヘール・ボップ彗星"_s);
  EXPECT_EQ(FieldText(record, ElementField::Memo), u"MPC ref. MPC194091"_s);
  EXPECT_EQ(FieldText(record, ElementField::EditedMark), QString());

  const std::pair<ElementField, double> numbers[] = {
      {ElementField::Eccentricity, 0.994905},
      {ElementField::PerihelionDistance, 0.922046},
      {ElementField::ArgumentOfPerihelion, 130.6979},
      {ElementField::AscendingNode, 281.7618},
      {ElementField::Inclination, 89.7572},
      {ElementField::Equinox, 2000.0},
      {ElementField::AbsoluteMagnitude, -2.0},
      {ElementField::MagnitudeCoefficient, 4.0},
      {ElementField::DustTail, 0.01},
      {ElementField::IonTail, 0.01},
      {ElementField::BetaMax, 1.0},
  };
  for (const auto& [field, expected] : numbers) {
    const FieldNumber number = ReadNumber(record, field);
    EXPECT_EQ(number.state, NumberState::Number) << FieldOf(field).name;
    EXPECT_EQ(number.value, expected) << FieldOf(field).name;
  }
  EXPECT_NEAR(ReadDate(record, kPerihelionDate).value, 2450536.5299, 1e-6);
  EXPECT_EQ(ReadDate(record, kEpochDate).value, 2461191.5);
  EXPECT_EQ(ReadDate(record, kValidFromDate).state, NumberState::Blank);
}

TEST(ElementRecord, NumbersAreReadWholeOrNotAtAll) {
  struct Case {
    const char* text;
    NumberState state;
    double value;
  };
  const Case cases[] = {
      {"          ", NumberState::Blank, 0},
      {"  0.1", NumberState::Number, 0.1},
      {" -12.5", NumberState::Number, -12.5},
      {"+1.25", NumberState::Number, 1.25},
      {"1.", NumberState::Number, 1},
      {".5", NumberState::Number, 0.5},
      {"9999999999", NumberState::Number, 9999999999.0},
      {".999999999", NumberState::Number, .999999999},
      {"-0.0", NumberState::Number, 0},
      {"1 2", NumberState::NotANumber, 0},
      {"1e3", NumberState::NotANumber, 0},
      {"1.2.3", NumberState::NotANumber, 0},
      {"-", NumberState::NotANumber, 0},
      {".", NumberState::NotANumber, 0},
      {"--1", NumberState::NotANumber, 0},
      {"1,5", NumberState::NotANumber, 0},
      {"nan", NumberState::NotANumber, 0},
      {"0x10", NumberState::NotANumber, 0},
      {"\t1", NumberState::NotANumber, 0},
  };
  for (const auto& [text, state, value] : cases) {
    const FieldNumber number =
        ReadNumber(RecordWith(ElementField::Eccentricity, text), ElementField::Eccentricity);
    EXPECT_EQ(number.state, state) << text;
    EXPECT_EQ(number.value, value) << text;
  }
  const std::string pointInInteger = RecordWith(ElementField::PerihelionYear, "20.5");
  EXPECT_EQ(ReadNumber(pointInInteger, ElementField::PerihelionYear).state,
            NumberState::NotANumber);
}

TEST(ElementRecord, DatesNeedAllTheirFieldsInRange) {
  const auto dateState = [](const char* text) {
    return ReadDate(RecordWith(ElementField::PerihelionYear, text), kPerihelionDate).state;
  };
  EXPECT_EQ(dateState("               "), NumberState::Blank);
  EXPECT_EQ(dateState(" -120301.25"), NumberState::Number);
  for (const char* bad :
       {"2020           ", "20201301.5", "20200001.5", "20200132.0", "    0101.5", "2020xx01.5"}) {
    EXPECT_EQ(dateState(bad), NumberState::NotANumber) << bad;
  }
}

TEST(ElementRecord, RangesIncludeTheBoundsTheyShould) {
  const RecordField& q = FieldOf(ElementField::PerihelionDistance);
  EXPECT_FALSE(IsInRange(q, 0.0));
  EXPECT_TRUE(IsInRange(q, 1e-9));
  EXPECT_FALSE(IsInRange(q, 100.0));
  const RecordField& inclination = FieldOf(ElementField::Inclination);
  EXPECT_TRUE(IsInRange(inclination, 0.0));
  EXPECT_FALSE(IsInRange(inclination, 180.0));
}

TEST(ElementRecord, IdentifierIsTrimmedCutAtNulAndFillsItsColumns) {
  EXPECT_EQ(IdentifierOf(RecordWith(ElementField::Identifier, "  C/2020 F3    ")), u"C/2020 F3"_s);
  EXPECT_EQ(IdentifierOf(RecordWith(ElementField::Identifier, std::string_view("2P\0junk", 7))),
            u"2P"_s);
  std::string full = RecordWith(ElementField::Identifier, "ABCDEFGHIJKLMNO");
  full[203] = 'x';
  EXPECT_EQ(IdentifierOf(full), u"ABCDEFGHIJKLMNO"_s);
  EXPECT_EQ(IdentifierOf("C short"), QString());
}

TEST(CodePage932, ReadsTheCharactersOfTheCodePage) {
  const std::pair<const char*, QString> cases[] = {
      {"Hale-Bopp \\~", u"Hale-Bopp \\~"_s},
      {"\x83\x6E\x83\x8C\x81\x5B", u"ハレー"_s},
      {"\xCA\xDA\xB0", u"ﾊﾚｰ"_s},
      {"\x81\x60\x81\x61\x81\x7C", u"～∥－"_s},
      {"\x87\x40\xFB\xFC", u"①髙"_s},
      {"\x83\x5C\x95\x5C", u"ソ表"_s},
  };
  for (const auto& [bytes, text] : cases) {
    const DecodedText decoded = DecodeCodePage932(bytes);
    EXPECT_EQ(decoded.text, text);
    EXPECT_TRUE(decoded.valid) << bytes;
    EXPECT_FALSE(LooksLikeUtf8(bytes)) << bytes;
  }
}

TEST(CodePage932, TellsWhatIsNoTextOfTheCodePage) {
  EXPECT_FALSE(DecodeCodePage932("\x83\x6E\x83").valid);
  EXPECT_EQ(DecodeCodePage932("\x83\x6E\x83").text, u"ハ"_s);
  EXPECT_EQ(DecodeCodePage932("\x83\x6E").text, u"ハ"_s) << "nothing is left from the call before";
  EXPECT_FALSE(DecodeCodePage932("a\xFF"
                                 "b")
                   .valid);
  EXPECT_EQ(DecodeCodePage932("a\xFF"
                              "b")
                .text.size(),
            3);
  EXPECT_TRUE(LooksLikeUtf8("ハレー彗星"));
}

class ShortLine : public testing::TestWithParam<int> {};

TEST_P(ShortLine, IsFilledUpWithBlanks) {
  const int length = GetParam();
  std::string line(length - 2, 'x');
  const PaddedRecord record = ReadPaddedRecord(line + "\r\nC next line");
  ASSERT_EQ(record.failedStep, 0);
  EXPECT_EQ(record.consumed, length);
  EXPECT_EQ(record.View(), line + std::string(415 - line.size(), ' ') + "\r\n");
}

INSTANTIATE_TEST_SUITE_P(ElementRecord, ShortLine, testing::Values(189, 205, 256, 417));

TEST(ElementRecord, LinesOfOtherLengthsFailAtTheStepThatReadsTooFar) {
  const std::pair<int, int> sizesAndSteps[] = {{0, 1},   {188, 1}, {190, 2}, {204, 2},
                                               {206, 3}, {255, 3}, {257, 4}, {416, 4}};
  for (const auto& [size, step] : sizesAndSteps) {
    const PaddedRecord record = ReadPaddedRecord(std::string(size, 'x'));
    EXPECT_EQ(record.failedStep, step) << size;
    EXPECT_EQ(record.consumed, 0);
  }
  EXPECT_EQ(ReadPaddedRecord(std::string(417, 'x')).failedStep, 5);
  const std::string bareLineFeeds = std::string(415, 'x') + " \n" + std::string(417, 'x');
  EXPECT_EQ(ReadPaddedRecord(bareLineFeeds).failedStep, 5);
}

TEST(ElementRecord, TheCometFileIsReadWithoutALossInEveryField) {
  const std::string file = CometFile();
  ASSERT_EQ(file.size() % kElementRecordSize, 0U);
  int withJapaneseName = 0;
  for (std::size_t at = 0; at < file.size(); at += kElementRecordSize) {
    const std::string_view record = std::string_view(file).substr(at, kElementRecordSize);
    SCOPED_TRACE(record.substr(0, 60));
    ASSERT_EQ(ReadPaddedRecord(record).View(), record);
    ASSERT_EQ(KindOf(record), RecordKind::Comet);
    for (const RecordField& field : kRecordFields) {
      if (!field.IsNumber()) continue;
      const FieldNumber number = ReadNumber(record, field.field);
      ASSERT_NE(number.state, NumberState::NotANumber) << field.name;
      const bool blank = number.state == NumberState::Blank;
      EXPECT_TRUE(blank || IsInRange(field, number.value)) << field.name;
    }
    const DecodedText name = DecodeCodePage932(FieldBytes(record, ElementField::JapaneseName));
    EXPECT_TRUE(name.valid);
    if (!name.text.trimmed().isEmpty()) ++withJapaneseName;
  }
  EXPECT_EQ(file.size() / kElementRecordSize, 1687U);
  EXPECT_EQ(withJapaneseName, 5);
}

}  // namespace
}  // namespace vyn
