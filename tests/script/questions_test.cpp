#include "script/questions.h"

#include <gtest/gtest.h>

#include "script/wrong_script.h"

namespace script {
namespace {

// A stage without a disk on which no desk was started.
class Questions : public testing::Test {
 protected:
  std::string Ask(const std::string& text) {
    const Arguments words(SplitWords(text));
    return FindQuestion(words.Command())(stage_, words).dump();
  }

  base::NoFiles files_;
  Stage stage_{files_, [] { return std::make_unique<base::Settings>(); }, "/desk"};
};

TEST_F(Questions, LogsArePrintedAndForgotten) {
  stage_.ports.beeper.Beep();
  stage_.ports.beeper.Beep();
  EXPECT_EQ(Ask("beeps"), "2");
  EXPECT_EQ(Ask("beeps"), "0");

  stage_.ports.mail.Send({"help@example.org", "Error \xA3", "It failed\r\n"});
  EXPECT_EQ(Ask("mails"),
            "[{\"recipient\":\"help@example.org\",\"subject\":\"Error \xC2\xA3\",\"body\":\"It "
            "failed\\r\\n\"}]");
  EXPECT_EQ(Ask("mails"), "[]");

  stage_.ports.shell.Open({"Open", "a.txt", "", "/desk", 1});
  EXPECT_EQ(Ask("opens"),
            R"([{"verb":"Open","file":"a.txt","parameters":"","folder":"/desk","show":1}])");
  EXPECT_EQ(Ask("opens"), "[]");

  stage_.ports.printer.Print("Report");
  EXPECT_EQ(Ask("prints"), R"(["Report"])");
  EXPECT_EQ(Ask("prints"), "[]");
}

TEST_F(Questions, BoxesTellHowTheyWereAnswered) {
  stage_.ports.boxes.answers = {{base::Answer::kCancel}};
  stage_.ports.boxes.inputs = {{std::nullopt}};
  stage_.ports.boxes.Ask({.text = "Try again?",
                          .title = "Disk",
                          .icon = base::BoxIcon::kExclamation,
                          .buttons = base::BoxButtons::kRetryCancel});
  stage_.ports.boxes.Input({.prompt = "How many?", .default_text = "1"});
  stage_.ports.boxes.Input({.prompt = "How many?", .title = "Draws", .default_text = "1"});
  EXPECT_EQ(Ask("boxes"),
            R"([{"kind":"message","title":"Disk","text":"Try again?","icon":"exclamation",)"
            R"("buttons":"retrycancel","default":"retry","answer":"cancel"},)"
            R"({"kind":"input","title":"Quorbit Number Desk","text":"How many?","default":"1",)"
            R"("answer":null},)"
            R"({"kind":"input","title":"Draws","text":"How many?","default":"1","answer":"1"}])");
  EXPECT_EQ(Ask("boxes"), "[]");
}

TEST_F(Questions, BeforeTheStartThereIsNoWindowAndNoState) {
  EXPECT_EQ(Ask("windows"), "[]");
  EXPECT_EQ(Ask("file any"), "null");
  EXPECT_EQ(Ask("setting a b c"), "null");
  for (const char* text : {"get MainWindow", "rows MainWindow.List7", "global DrawPos", "focused",
                           "call DrawLine 1"}) {
    EXPECT_THROW(Ask(text), WrongScript) << text;
  }
}

TEST_F(Questions, StateIsPrintedWhole) {
  ASSERT_NO_THROW(stage_.Start(true));
  EXPECT_EQ(Ask("global DRAWPOS"), "[0]");
  EXPECT_EQ(Ask("global CurrentBalls"), "[0,0,0,0,0,0,0]");
  EXPECT_EQ(Ask("global CurrentDraw"),
            R"({"Spare":0,"B1":"","B2":"","B3":"","B4":"","B5":"","B6":"","Day":"","BB":"",)"
            R"("Date":""})");
  EXPECT_EQ(Ask("global DataBaseChanged"), "false");
  EXPECT_EQ(Json::parse(Ask("global BallCount")).size(), 1501u);
  EXPECT_EQ(Json::parse(Ask("global PositionHits")).size(), 7u);
  EXPECT_EQ(Json::parse(Ask("global PositionMarks"))[6].size(), 101u);
  EXPECT_EQ(Ask("focused"), "null");
}

}  // namespace
}  // namespace script
