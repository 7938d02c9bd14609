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
    void Append(std::string_view bytes) override { owner_.bytes += bytes; }

   private:
    MemoryFiles& owner_;
  };
  std::unique_ptr<base::File> Open(const std::string&) override {
    return std::make_unique<MemoryFile>(*this);
  }
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
  session.file.Open("x");
  WalkFile(session);
  EXPECT_EQ(session.draw_count, 2000);
  EXPECT_LT(files.reads, 20);
}

TEST(DrawFile, WritesOnlyBehindTheEnd) {
  MemoryFiles files;
  files.bytes = Encode(SampleDraws(1));
  store::DrawFile file(files);
  file.Open("x");
  EXPECT_THROW(file.Write(1, SampleDraws(1)[0]), base::Error);
  file.Write(45, SampleDraws(1)[0]);
  EXPECT_EQ(files.bytes, Encode(SampleDraws(1)) + Encode(SampleDraws(1)));
}

TEST(DrawFile, SeesWhatItAppended) {
  MemoryFiles files;
  store::DrawFile file(files);
  file.Open("x");
  store::DrawRecord record;
  EXPECT_EQ(file.Read(1, record), 1);
  file.Write(1, SampleDraws(3)[2]);
  EXPECT_EQ(file.Read(1, record), 45);
  EXPECT_EQ(record, SampleDraws(3)[2]);
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
  session.file.Open("x");
  WalkFile(session);
  EXPECT_EQ(session.draw_count, 1);
  EXPECT_EQ(session.draw_pos, (std::vector<std::int32_t>{0, 1}));
  EXPECT_EQ(session.current_draw, store::DrawRecord{});
}

TEST(DrawFile, AppendingKeepsTheIndexInStep) {
  MemoryFiles files;
  files.bytes = Encode(SampleDraws(2));
  store::Session session(files);
  session.file.Open("x");
  session.file_len = session.file.Length();
  WalkFile(session);
  session.current_draw = SampleDraws(3)[2];
  AppendCurrentDraw(session);
  EXPECT_EQ(session.draw_pos, (std::vector<std::int32_t>{0, 1, 45, 89}));
  EXPECT_EQ(session.draw_count, 3);
  EXPECT_EQ(session.current_draw_number, 4);
  EXPECT_EQ(session.file_pos, 89);
  EXPECT_EQ(session.file_len, 132);
}

TEST(DrawFile, AppendingBeyondTheCounterOverflowsBeforeItWrites) {
  MemoryFiles files;
  store::Session session(files);
  session.file.Open("x");
  session.draw_pos.resize(32768);
  EXPECT_THROW(AppendCurrentDraw(session), base::Error);
  EXPECT_EQ(files.bytes, "");
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
  EXPECT_THROW(session.PositionOf(1), base::Error);
  EXPECT_EQ(session.PositionOf(0), 0);
}

}  // namespace
}  // namespace test
