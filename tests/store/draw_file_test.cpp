#include "store/draw_file.h"

#include <gtest/gtest.h>

#include "base/language/error.h"
#include "store/session.h"
#include "support/test_desk.h"

namespace test {
namespace {

// A file in memory that counts how often it is read.
class MemoryFiles : public base::NoFiles {
 public:
  class MemoryFile : public base::File {
   public:
    explicit MemoryFile(MemoryFiles& owner) : owner_(owner) {}
    std::int64_t Length() override { return static_cast<std::int64_t>(owner_.bytes.size()); }
    std::string ReadAt(std::int64_t offset, std::size_t count) override {
      ++owner_.reads;
      if (offset >= Length()) return {};
      return owner_.bytes.substr(static_cast<std::size_t>(offset), count);
    }
    base::FileIdentity Identity() override { return {.number = 1, .size = Length()}; }
    void Append(std::string_view bytes) override { owner_.bytes += bytes; }

   private:
    MemoryFiles& owner_;
  };
  std::unique_ptr<base::File> Open(const std::string&) override {
    return std::make_unique<MemoryFile>(*this);
  }
  std::optional<base::FileIdentity> Identify(const std::string&) override {
    return base::FileIdentity{.number = 1};
  }
  std::string ReadAll(const std::string&) override { return bytes; }
  std::string bytes;
  int reads = 0;
};

TEST(DrawFile, ReturnsThePositionBehindTheRecord) {
  MemoryFiles files;
  files.bytes = Encode(SampleDraws(2));
  store::DrawFile file(files);
  file.Open("x");
  store::DrawRecord record;
  EXPECT_EQ(file.Read(1, record), 45);
  EXPECT_EQ(record, SampleDraws(1)[0]);
  EXPECT_EQ(file.Read(45, record), 89);
}

TEST(DrawFile, ReadsTheDiskRarely) {
  MemoryFiles files;
  files.bytes = Encode(SampleDraws(2000));
  store::Session session(files);
  session.database.Open("x");
  WalkFile(session);
  EXPECT_EQ(session.draw_count, 2000);
  EXPECT_LT(files.reads, 20);
}

TEST(DrawFile, SeesWhatItAppended) {
  MemoryFiles files;
  store::DrawFile file(files);
  file.Open("x");
  store::DrawRecord record;
  EXPECT_EQ(file.Read(1, record), 1);
  file.Append(store::EncodeRecord(SampleDraws(3)[2]));
  EXPECT_EQ(file.Length(), 44);
  EXPECT_EQ(file.Read(1, record), 45);
  EXPECT_EQ(record, SampleDraws(3)[2]);
}

TEST(DrawFile, AppendsOnlyToWhatWasReadToItsEnd) {
  MemoryFiles files;
  files.bytes = Encode(SampleDraws(1));
  store::DrawFile file(files);
  file.Open("x");
  EXPECT_THROW(file.Append("y"), base::Error);
  EXPECT_EQ(files.bytes, Encode(SampleDraws(1)));
}

// What was read once is not asked of the disk again, so that a scan sees the file as it was opened.
TEST(DrawFile, KeepsWhatItRead) {
  MemoryFiles files;
  files.bytes = Encode(SampleDraws(2));
  store::DrawFile file(files);
  file.Open("x");
  store::DrawRecord record;
  file.Read(1, record);
  files.bytes = "";
  EXPECT_EQ(file.Read(45, record), 89);
  EXPECT_EQ(record, SampleDraws(2)[1]);
  file.Forget();
  EXPECT_EQ(file.Read(1, record), 1);
  EXPECT_EQ(file.Length(), 0);
}

TEST(DrawFile, ClosedIsABadFileNumber) {
  MemoryFiles files;
  store::DrawFile file(files);
  try {
    file.Length();
    FAIL();
  } catch (const base::Error& error) {
    EXPECT_EQ(error.Number(), 52);
  }
}

TEST(DrawFile, ReadsBlankFieldsFromAnEmptyFile) {
  MemoryFiles files;
  store::Session session(files);
  session.database.Open("x");
  WalkFile(session);
  EXPECT_EQ(session.draw_count, 1);
  EXPECT_EQ(session.database.Positions(), (std::vector<std::int32_t>{0, 1}));
  EXPECT_TRUE(session.database.BeginsBlank());
  EXPECT_EQ(session.current_draw, store::DrawRecord{});
}

TEST(DrawFile, AppendingKeepsTheIndexInStep) {
  MemoryFiles files;
  files.bytes = Encode(SampleDraws(2));
  store::Session session(files);
  session.database.Open("x");
  WalkFile(session);
  session.current_draw = SampleDraws(3)[2];
  AppendCurrentDraw(session);
  EXPECT_EQ(session.database.Positions(), (std::vector<std::int32_t>{0, 1, 45, 89}));
  EXPECT_EQ(session.draw_count, 3);
  EXPECT_EQ(session.current_draw_number, 4);
  EXPECT_EQ(session.file_pos, 89);
  EXPECT_EQ(session.database.Length(), 132);
}

TEST(DrawFile, AppendingBeyondTheCounterOverflowsBeforeItWrites) {
  MemoryFiles files;
  files.bytes = Encode(SampleDraws(32767));
  store::Session session(files);
  session.database.Open("x");
  WalkFile(session);
  EXPECT_THROW(AppendCurrentDraw(session), base::Error);
  EXPECT_EQ(files.bytes.size(), 32767u * 44);
}

TEST(DrawFile, KeepsSpareOfTheLastRecordRead) {
  MemoryFiles files;
  store::DrawRecord record = SampleDraws(1)[0];
  record.spare = 7;
  files.bytes = store::EncodeRecord(record);
  store::DrawFile file(files);
  file.Open("x");
  store::DrawRecord read;
  file.Read(1, read);
  EXPECT_EQ(read.spare, 7);
}

TEST(Session, AnIndexOutsideTheFileIsASubscriptError) {
  MemoryFiles files;
  store::Session session(files);
  EXPECT_THROW(session.database.PositionOf(1), base::Error);
  EXPECT_EQ(session.database.PositionOf(0), 0);
}

}  // namespace
}  // namespace test
