#include "shell/settings_store.h"

#include <gtest/gtest.h>

#include "base/host/host_file_system.h"
#include "base/language/error.h"
#include "support/failing_disk.h"
#include "support/temp_folder.h"

namespace test {
namespace {

using shell::DecodeSettingsLine;
using shell::EncodeSettingsLine;
using shell::SettingsStore;

class Store : public testing::Test {
 protected:
  std::string Path() const { return folder_.Path() + "/settings.txt"; }
  std::string Text() { return files_.ReadAll(Path()); }
  TempFolder folder_;
  base::HostFileSystem files_;
};

TEST_F(Store, KeepsTextsOverARestart) {
  SettingsStore(files_, Path()).Save("Velmonte", "Data", "DataBaseName", "Mine.dat");
  SettingsStore store(files_, Path());
  EXPECT_EQ(store.Find("velmonte", "DATA", "databasename"), "Mine.dat");
  EXPECT_FALSE(store.Find("velmonte", "Data", "other").has_value());
  EXPECT_EQ(Text(), "Velmonte|Data|DataBaseName=Mine.dat\n");
}

TEST_F(Store, OverwritesWithoutRegardToCase) {
  SettingsStore store(files_, Path());
  store.Save("Velmonte", "s", "k", "1");
  store.Save("velmonte", "S", "K", "2");
  EXPECT_EQ(Text(), "Velmonte|s|k=2\n");
}

TEST_F(Store, EscapesWhatSeparates) {
  SettingsStore store(files_, Path());
  store.Save("a|b", "c=d", "e\\f", "g=h|i\r\n\xA3");
  EXPECT_EQ(Text(), "a\\|b|c\\=d|e\\\\f=g\\=h\\|i\\r\\n\xC2\xA3\n");
  EXPECT_EQ(SettingsStore(files_, Path()).Find("a|b", "c=d", "e\\f"), "g=h|i\r\n\xA3");
}

TEST_F(Store, IgnoresAndKeepsDamagedLines) {
  files_.Replace(Path(), "rubbish\r\n\nVelmonte|s|k=1\r\n|||\n\xFF\xFE|x\na|b|c=\\");
  SettingsStore store(files_, Path());
  EXPECT_EQ(store.Find("Velmonte", "s", "k"), "1");
  store.Save("Velmonte", "s", "k", "2");
  EXPECT_EQ(Text(), "rubbish\r\n\nVelmonte|s|k=2\n|||\n\xFF\xFE|x\na|b|c=\\\n");
}

TEST_F(Store, ReadsAFileThatATextEditorMarked) {
  files_.Replace(Path(), "\xEF\xBB\xBFVelmonte|s|k=1\r\n");
  EXPECT_EQ(SettingsStore(files_, Path()).Find("Velmonte", "s", "k"), "1");
}

TEST_F(Store, ABadValueCostsItsOwnTextOnly) {
  files_.Replace(Path(), std::string("v|s|a=\xFF") + '\0' + "z\nv|s|b=1\n");
  SettingsStore store(files_, Path());
  EXPECT_EQ(store.Find("v", "s", "a"), std::string("?\0z", 3));
  EXPECT_EQ(store.Find("v", "s", "b"), "1");
}

TEST_F(Store, WritesNothingForTheTextItHas) {
  SettingsStore(files_, Path()).Save("v", "s", "k", "1");
  FailingDisk disk(files_);
  SettingsStore store(disk, Path());
  disk.FailFromNow(1, base::Error(base::kDiskFull));
  EXPECT_NO_THROW(store.Save("V", "S", "K", "1"));
  EXPECT_FALSE(disk.HasFailed());
}

TEST_F(Store, TheLastOfDoubledKeysCounts) {
  files_.Replace(Path(), "v|s|k=1\nv|s|k=2\n");
  EXPECT_EQ(SettingsStore(files_, Path()).Find("v", "s", "k"), "2");
}

TEST_F(Store, AFailedSaveLeavesTheOldStore) {
  FailingDisk disk(files_);
  SettingsStore store(disk, Path());
  store.Save("v", "s", "k", "1");
  disk.FailFromNow(1, base::Error(base::kDiskFull));
  EXPECT_THROW(store.Save("v", "s", "k", "2"), base::Error);
  EXPECT_EQ(store.Find("v", "s", "k"), "1");
  EXPECT_EQ(Text(), "v|s|k=1\n");
}

TEST_F(Store, NeverOverwritesAFileThatItCouldNotRead) {
  files_.Replace(Path(), "v|s|k=1\n");
  FailingDisk disk(files_);
  disk.FailFromNow(1, base::Error(base::kPathAccess));
  SettingsStore store(disk, Path());
  EXPECT_FALSE(store.Find("v", "s", "k").has_value());
  try {
    store.Save("v", "s", "k", "2");
    FAIL();
  } catch (const base::Error& error) {
    EXPECT_EQ(error.Number(), base::kPathAccess);
  }
  EXPECT_EQ(Text(), "v|s|k=1\n");
}

TEST(SettingsLine, NeedsFourParts) {
  for (const char* line : {"", "a", "a|b", "a|b|c", "a|b=c", "a|b|=c", "a|b|c\\"}) {
    EXPECT_FALSE(DecodeSettingsLine(line).has_value()) << line;
  }
  EXPECT_EQ(DecodeSettingsLine("a|b|c=")->text, "");
  EXPECT_EQ(EncodeSettingsLine({"a", "b", "c", "d=e"}), "a|b|c=d\\=e");
}

}  // namespace
}  // namespace test
