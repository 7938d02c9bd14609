#include "script/program.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "script/session_folders.h"
#include "script/wrong_script.h"
#include "support/temp_folder.h"

namespace script {
namespace {

namespace fs = std::filesystem;

struct Played {
  int status = 0;
  std::string out;
  std::string err;
};

Played Play(const std::vector<std::string>& arguments, const std::string& input = "") {
  std::istringstream in(input);
  std::ostringstream out;
  std::ostringstream err;
  const int status = RunProgram(arguments, in, out, err);
  return {status, out.str(), err.str()};
}

void Write(const fs::path& file, const std::string& text) {
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary) << text;
}

TEST(Program, NamesTheScriptFileInMessages) {
  const test::TempFolder folder;
  const std::string file = folder.Path() + "/week.desk";
  Write(file, "beeps\ndance\n");
  const Played played = Play({file});
  EXPECT_EQ(played.status, 2);
  EXPECT_EQ(played.out, "0\n");
  EXPECT_EQ(played.err, file + ":2: unknown command: dance\n");
}

TEST(Program, RefusesAScriptThatItCannotRead) {
  const test::TempFolder folder;
  for (const std::string& file : {folder.Path() + "/none.desk", folder.Path()}) {
    const Played played = Play({file});
    EXPECT_EQ(played.status, 2);
    EXPECT_EQ(played.err, "number-desk-script: " + file + " cannot be read\n");
  }
}

TEST(Program, RefusesWrongOptions) {
  EXPECT_EQ(Play({"--moon"}).err, "number-desk-script: unknown option: --moon\n");
  EXPECT_EQ(Play({"--moon"}).status, 2);
  EXPECT_EQ(Play({"--folder", "/does/not/exist"}).err,
            "number-desk-script: the folder /does/not/exist does not exist\n");
}

TEST(Program, TellsAboutItself) {
  EXPECT_EQ(Play({"--help"}).status, 0);
  EXPECT_TRUE(Play({"--help"}).out.starts_with("Usage: number-desk-script "));
  EXPECT_EQ(Play({"--version"}).out, "number-desk-script 3.9.0\n");
}

TEST(Program, WorksInTheFoldersThatItIsGiven) {
  const test::TempFolder folder;
  Write(folder.Path() + "/desk/Wheels/Wheels.INI", "[Six]\r\nName = Big One\r\n");
  fs::create_directories(folder.Path() + "/desk/DataBases");
  const std::vector<std::string> folders{"--folder", folder.Path() + "/desk", "--settings",
                                         folder.Path() + "/new/settings"};
  Played played = Play(folders,
                       "setting a b c \"kept\"\n"
                       "call ReadIniString \"six\" \"name\" \"/wheels/wheels.ini\"\n"
                       "call ReadIniString \"six\" \"name\" \"wheels\\\\wheels.ini\"\n"
                       "file \"wheels/wheels.ini\"\n"
                       "start\n");
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.out,
            "\"kept\"\n\"Big One\"\n\"Big One\"\n\"[Six]\\r\\nName = Big One\\r\\n\"\n");
  EXPECT_TRUE(fs::exists(folder.Path() + "/desk/DataBases/UK-National-Lottery.dat"));

  played = Play(folders, "setting a b c");
  EXPECT_EQ(played.out, "\"kept\"\n");
}

TEST(SessionFolders, TemporaryOnesAreACopyAndAreRemoved) {
  fs::path program;
  fs::path settings;
  {
    const SessionFolders folders("", "");
    program = folders.ProgramFolder();
    settings = folders.SettingsFolder();
    EXPECT_TRUE(program.is_absolute());
    EXPECT_TRUE(fs::exists(program / "DataBases" / "UK-National-Lottery.dat"));
    EXPECT_TRUE(fs::is_empty(settings));
    EXPECT_FALSE(fs::equivalent(program, DeliveredFolder()));
  }
  EXPECT_FALSE(fs::exists(program));
  EXPECT_FALSE(fs::exists(settings));
}

TEST(SessionFolders, NamedOnesStay) {
  const test::TempFolder folder;
  {
    const SessionFolders folders(folder.Path(), folder.Path() + "/settings");
    EXPECT_EQ(folders.ProgramFolder(), fs::canonical(folder.Path()));
  }
  EXPECT_TRUE(fs::exists(folder.Path() + "/settings"));
  EXPECT_THROW(SessionFolders(folder.Path() + "/none", ""), WrongScript);
}

}  // namespace
}  // namespace script
