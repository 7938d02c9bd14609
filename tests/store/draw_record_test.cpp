#include "store/draw_record.h"

#include <gtest/gtest.h>

#include "base/language/error.h"

namespace store {
namespace {

DrawRecord Sample() {
  return {.spare = 0,
          .b = {"03", "12", "19", "27", "35", "41"},
          .day = "Sa",
          .bb = "08",
          .date = "05/12/05"};
}

TEST(PadBall, PadsOnlyTextsShorterThanTwo) {
  EXPECT_EQ(PadBall(""), "00");
  EXPECT_EQ(PadBall("7"), "07");
  EXPECT_EQ(PadBall("07"), "07");
  EXPECT_EQ(PadBall("123"), "123");
}

TEST(DrawRecord, LiesOnDiskAsFortyFourBytes) {
  const std::string expected(
      "\0\0\2\0"
      "03\2\0"
      "12\2\0"
      "19\2\0"
      "27\2\0"
      "35\2\0"
      "41\2\0Sa\2\0"
      "08\10\0"
      "05/12/05",
      44);
  EXPECT_EQ(EncodeRecord(Sample()), expected);
}

TEST(DrawRecord, KeepsSlotsWithoutABall) {
  DrawRecord record = Sample();
  record.b[5] = "00";
  record.bb = "00";
  EXPECT_EQ(EncodeRecord(record).size(), 44u);
}

TEST(DrawRecord, WritesSpareAsSignedLittleEndian) {
  DrawRecord record = Sample();
  record.spare = -2;
  EXPECT_EQ(EncodeRecord(record).substr(0, 2), "\xFE\xFF");
}

TEST(DrawRecord, WritesEmptyTextsAsTheirLengthAlone) {
  EXPECT_EQ(EncodeRecord(DrawRecord{}), std::string(20, '\0'));
}

TEST(DrawRecord, RefusesATextThatItsLengthCannotCount) {
  DrawRecord record = Sample();
  record.day = std::string(65536, 'x');
  EXPECT_THROW(EncodeRecord(record), base::Error);
}

TEST(DrawLine, StandsInFixedColumns) {
  EXPECT_EQ(DrawLine(Sample()), "03 12 19 27 35 41 08 05/12/05 0 Sa");
}

TEST(DrawLine, PadsABlankRecordLikeAnyOther) {
  EXPECT_EQ(DrawLine(DrawRecord{}), "00 00 00 00 00 00 00  0 ");
}

TEST(DrawLine, PadsOneDigitBalls) {
  DrawRecord record = Sample();
  record.b[0] = "3";
  record.bb = "";
  EXPECT_EQ(DrawLine(record), "03 12 19 27 35 41 00 05/12/05 0 Sa");
}

TEST(DrawLine, ComesBackFromItsColumns) {
  DrawRecord parsed;
  ParseDrawLine(DrawLine(Sample()), parsed);
  EXPECT_EQ(parsed, Sample());
}

TEST(DrawLine, IsParsedWithoutSpare) {
  DrawRecord parsed;
  parsed.spare = 5;
  ParseDrawLine("03 12 19 27 35 41 08 05/12/05 0 Sa", parsed);
  EXPECT_EQ(parsed.spare, 5);
}

TEST(DrawLine, LosesTheDayBehindAShortDate) {
  DrawRecord record = Sample();
  record.date = "5/12/05";
  DrawRecord parsed;
  ParseDrawLine(DrawLine(record), parsed);
  EXPECT_EQ(parsed.date, "5/12/05 ");
  EXPECT_EQ(parsed.day, "a");
}

TEST(DrawLine, LosesTheDayBehindAWideSpare) {
  DrawRecord record = Sample();
  record.spare = 10;
  DrawRecord parsed;
  ParseDrawLine(DrawLine(record), parsed);
  EXPECT_EQ(parsed.day, " S");
}

TEST(DrawLine, GivesEmptyFieldsBehindItsEnd) {
  DrawRecord parsed = Sample();
  ParseDrawLine("03 12", parsed);
  EXPECT_EQ(parsed.b[0], "03");
  EXPECT_EQ(parsed.b[1], "12");
  EXPECT_EQ(parsed.b[2], "");
  EXPECT_EQ(parsed.date, "");
  EXPECT_EQ(parsed.day, "");
}

// What a record that was cut short lacks, byte by byte: zeros for a length, blanks for a text.
TEST(DecodeRecord, KnowsWhatItLacksToBeWhole) {
  const std::string whole = EncodeRecord(Sample());
  DrawRecord draw;
  EXPECT_EQ(DecodeRecord(whole, 0, draw).missing, "");
  EXPECT_EQ(draw, Sample());
  EXPECT_EQ(DecodeRecord(whole, 0, draw).offset, 44u);
  EXPECT_EQ(DecodeRecord(whole, 44, draw).missing, "");
  EXPECT_EQ(draw, DrawRecord{});
  for (std::size_t size = 1; size < whole.size(); ++size) {
    const std::string part = whole.substr(0, size);
    const RecordEnd end = DecodeRecord(part, 0, draw);
    EXPECT_EQ(end.offset, size);
    const RecordEnd mended = DecodeRecord(part + end.missing, 0, draw);
    EXPECT_EQ(mended.missing, "") << size;
    EXPECT_EQ(mended.offset, size + end.missing.size()) << size;
  }
  EXPECT_EQ(DecodeRecord(whole.substr(0, 5), 0, draw).missing, " " + std::string(16, '\0'));
}

}  // namespace
}  // namespace store
