// Dates, numbers, labels and file types of the image dialogs, and their way to the core engine.
#include <gtest/gtest.h>

#include <QHash>
#include <QSet>

#include "image_data/cor_vyn_transfer.h"
#include "image_data/image_file_types.h"
#include "image_data/image_label.h"
#include "image_data/number_field.h"
#include "resources/dialog_template.h"

namespace vyn {
namespace {

using namespace Qt::StringLiterals;

TEST(FixDayLimit, PutsTheDayIntoItsMonth) {
  const std::array<std::array<int, 4>, 7> cases{{{1900, 2, 29, 28},
                                                 {2000, 2, 30, 29},
                                                 {2024, 2, 31, 29},
                                                 {2023, 13, 40, 31},
                                                 {2023, 4, 0, 1},
                                                 {2023, -5, 31, 31},
                                                 {2023, 4, 31, 30}}};
  for (const auto& [year, month, day, fixed] : cases) {
    EXPECT_EQ(FixDayLimit(year, month, day), fixed) << year << '/' << month << '/' << day;
  }
}

TEST(JdToSend, RefusesWhatIsNoMoment) {
  const ObservationTime good{2024, 4, 9, 3, 0, 0.0};
  EXPECT_DOUBLE_EQ(JdToSend(good).value(), 2460409.25);
  // 27 o'clock is 3 o'clock of the next day; minutes have no upper bound.
  EXPECT_DOUBLE_EQ(JdToSend({2024, 4, 8, 27, 0, 0.0}).value(), 2460409.25);
  EXPECT_DOUBLE_EQ(JdToSend({2024, 4, 9, 2, 60, 0.0}).value(), 2460409.25);
  for (const ObservationTime& bad :
       std::initializer_list<ObservationTime>{{0, 4, 9, 3, 0, 0.0},
                                              {2024, 13, 9, 3, 0, 0.0},
                                              {2024, 4, 32, 3, 0, 0.0},
                                              {2024, 4, 9, 31, 0, 0.0},
                                              {2024, 4, 9, -1, 0, 0.0},
                                              {2024, 4, 9, 3, -1, 0.0},
                                              {2024, 4, 9, 3, 0, 59.1},
                                              {2024, 4, 9, 3, 0, -0.1}}) {
    EXPECT_FALSE(JdToSend(bad)) << bad.year << ' ' << bad.hour << ' ' << bad.second;
  }
}

TEST(ReadableTime, RoundsToTenthsAndNeverShowsSixty) {
  const auto time = ReadableTime(2460409.25 - 0.01 / 86400.0).value();
  EXPECT_EQ(time.day, 9);
  EXPECT_EQ(time.hour, 3);
  EXPECT_EQ(time.second, 0.0);
  EXPECT_FALSE(ReadableTime(2305812.5));  // the last day of 1600
  EXPECT_TRUE(ReadableTime(2305813.5));
  EXPECT_FALSE(ReadableTime(0.0));
}

TEST(DateText, TruncatesSeconds) {
  const CalendarDate date{2024, 4, 9, 3, 5, 7.9, 9.0};
  EXPECT_EQ(PlainDateText(date), u"2024/4/9 3:5:7"_s);
  EXPECT_EQ(PaddedDateText(date), u"2024/04/09 03:05:07"_s);
}

/// Keeps what is sent and answers from a table.
struct Line {
  QHash<QString, QString> replies;
  QStringList sent;

  CorVynTransfer Transfer(TransferDirection direction) {
    return {[this](const QString& command) {
              sent.append(command);
              return replies.value(command);
            },
            direction};
  }
};

TEST(CorVynTransfer, SendsEachKindInItsForm) {
  Line line;
  const CorVynTransfer transfer = line.Transfer(TransferDirection::Send);
  DataSetRecord record;
  record.title = u"皆既"_s;
  record.radius = 0.25;
  transfer.UpdateCorVynBool(u"a"_s, u"visible", record.setVisible);
  transfer.UpdateCorVyn(u"a"_s, u"radius", record.radius);
  transfer.UpdateCorVyn(u"a"_s, u"title", record.title);
  transfer.UpdateCorVynInt(u"a"_s, u"location.Altitude", record.altitudeMeters);
  transfer.UpdateCorVynDate(u"a"_s, u"time", record);
  int degrees = 139, minutes = 45, seconds = 0, west = 0;
  transfer.UpdateCorVynLngLat(u"a"_s, u"location.longitude", west, degrees, minutes, seconds);
  west = 1;
  transfer.UpdateCorVynLngLat(u"a"_s, u"location.longitude", west, degrees, minutes, seconds);
  record.month = 13;
  transfer.UpdateCorVynDate(u"a"_s, u"time", record);
  EXPECT_EQ(line.sent,
            (QStringList{u"a.visible = false"_s, u"a.radius = 0.250000"_s, u"a.title = 皆既"_s,
                         u"a.location.Altitude = 0"_s, u"a.time = 2458209.125000)"_s,
                         u"a.location.longitude = 139.750000)"_s,
                         u"a.location.longitude = -139.750000)"_s}));
}

TEST(CorVynTransfer, ReadsWhatIsThereAndLeavesWhatIsNot) {
  Line line;
  line.replies = {{u"? a.visible"_s, u"TRUE"_s},       {u"? a.shown"_s, u"1"_s},
                  {u"? a.radius"_s, u"0.25 of S"_s},   {u"? a.nan"_s, u"nan"_s},
                  {u"? a.time"_s, u"2458209.125"_s},   {u"? a.old"_s, u"2300000.5"_s},
                  {u"? a.longitude"_s, u"-0.50841"_s}, {u"? a.zero"_s, u"0"_s}};
  const CorVynTransfer transfer = line.Transfer(TransferDirection::Read);
  DataSetRecord record;
  record.year = 1999;
  int shown = 7;
  transfer.UpdateCorVynBool(u"a"_s, u"visible", record.setVisible);
  transfer.UpdateCorVynBool(u"a"_s, u"shown", shown);
  transfer.UpdateCorVyn(u"a"_s, u"radius", record.radius);
  transfer.UpdateCorVyn(u"a"_s, u"nan", record.offsetX);
  transfer.UpdateCorVynDate(u"a"_s, u"old", record);
  EXPECT_EQ(record.year, 1999);
  transfer.UpdateCorVynDate(u"a"_s, u"time", record);
  transfer.UpdateCorVynLngLat(u"a"_s, u"longitude", record.west, record.longitudeDegrees,
                              record.longitudeMinutes, record.longitudeSeconds);
  record.south = 1;
  transfer.UpdateCorVynLngLat(u"a"_s, u"zero", record.south, record.latitudeDegrees,
                              record.latitudeMinutes, record.latitudeSeconds);
  EXPECT_EQ(record.setVisible, 1);
  EXPECT_EQ(shown, 7);
  EXPECT_EQ(record.radius, 0.25);
  EXPECT_EQ(record.offsetX, 0.0);
  EXPECT_EQ(record.year, 2018);
  EXPECT_EQ(record.hour, 0);
  EXPECT_EQ((QList<int>{record.west, record.longitudeDegrees, record.longitudeMinutes,
                        record.longitudeSeconds, record.south}),
            (QList<int>{1, 0, 30, 30, 0}));
}

struct SpinCase {
  std::span<const NumberField> fields;
  int spin;
  QString before;
  int delta;
  QString after;
};

TEST(NumberField, StepsWithinItsRange) {
  const SpinCase cases[] = {
      {DateFields(), 11128, u"30"_s, -1, u"30"_s},
      {DateFields(), 11128, u"0"_s, 1, u"0"_s},
      {DateFields(), 11122, u"99999"_s, -1, u"99999"_s},
      {DateFields(), 11141, u"58.5"_s, -1, u"59.0"_s},
      {PlacementFields(), 11155, u"359.9"_s, -1, u"0.1"_s},
      {PlacementFields(), 11155, u"0.1"_s, 1, u"359.9"_s},
      {PlacementFields(), 11146, u"0.499"_s, -1, u"0.500"_s},
      {PlacementFields(), 11146, u"0.500"_s, -1, u"0.500"_s},
      {PlacementFields(), 11152, u"0.010"_s, 1, u"0.010"_s},
      {CoronaFields(), 12003, u"9.9"_s, -1, u"10.0"_s},
      {CoronaFields(), 11113, u"0.1"_s, 1, u"0.1"_s},
      {SiteFields(), 11179, u"8900"_s, -1, u"8900"_s},
      {SunspotFields(), 11095, u"10.0"_s, -1, u"10.1"_s},
      {SunspotFields(), 11098, u"90.0"_s, -1, u"90.1"_s},
      {SunspotFields(), 11092, u"4"_s, -1, u"4"_s},
  };
  for (const SpinCase& row : cases) {
    const auto field = std::ranges::find(row.fields, row.spin, &NumberField::spin);
    ASSERT_NE(field, row.fields.end()) << row.spin;
    DataSetRecord record;
    field->SetText(record, row.before);
    field->Step(record, row.delta);
    EXPECT_EQ(field->Text(record).toStdString(), row.after.toStdString()) << row.spin;
  }
}

TEST(NumberField, AMonthsStepLowersTheDay) {
  DataSetRecord record;
  record.year = 2024;
  record.month = 3;
  record.day = 31;
  DateFields()[1].Step(record, 1);
  FixDay(record);
  EXPECT_EQ(record.month, 2);
  EXPECT_EQ(record.day, 29);
}

TEST(ImageLabels, LearnsFromTheFirst) {
  const std::array<std::pair<QString, QString>, 5> cases{{{u"I5"_s, u"I7"_s},
                                                          {u"I05"_s, u"I07"_s},
                                                          {u"A0005"_s, u"A0007"_s},
                                                          {u"A00005"_s, u"A7"_s},
                                                          {u"Q"_s, u"Q7"_s}}};
  for (const auto& [first, seventh] : cases) {
    ImageLabels labels;
    EXPECT_EQ(labels.LabelToNo(first), first == u"Q"_s ? 0 : 5);
    EXPECT_EQ(labels.LabelToNo(u"X123"_s), 123);
    EXPECT_EQ(labels.NoToLabel(7), seventh);
  }
}

TEST(IsReadExtensionType, LooksAtTheExtensionAlone) {
  for (const QString& path : {u"C:\\a\\b.PNG"_s, u"/x/y.jpe"_s, u"z.fits"_s, u"a.b.Tga"_s}) {
    EXPECT_TRUE(IsReadExtensionType(path)) << path.toStdString();
  }
  for (const QString& path : {u"a.tif"_s, u"png"_s, u"a.png.txt"_s, u""_s, u"/b.png/c"_s}) {
    EXPECT_FALSE(IsReadExtensionType(path)) << path.toStdString();
  }
}

}  // namespace
}  // namespace vyn
