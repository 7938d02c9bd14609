#include "script/interpreter.h"

#include <gtest/gtest.h>

#include <sstream>

#include "script/program.h"

namespace script {
namespace {

struct Played {
  int status = 0;
  std::string out;
  std::string err;
};

// Plays a script on a fresh copy of what is delivered.
Played Play(const std::string& script, const std::vector<std::string>& options = {}) {
  std::istringstream in(script);
  std::ostringstream out;
  std::ostringstream err;
  const int status = RunProgram(options, in, out, err);
  return {status, out.str(), err.str()};
}

TEST(Interpreter, AnEmptyScriptRunsWhole) {
  const Played played = Play("\n# nothing\n  \r\n");
  EXPECT_EQ(played.status, 0);
  EXPECT_EQ(played.out, "");
  EXPECT_EQ(played.err, "");
}

TEST(Interpreter, OnlyQuestionsPrint) {
  const Played played = Play(
      "\xEF\xBB\xBF"
      "start\n"
      "click MainWindow.cmdNext\n"
      "get mainwindow.txtrecnum\n"
      "get MainWindow.ListView1.SelectedIndex\r\n"
      "get MainWindow.Option6\n"
      "get MainWindow.Check1\n"
      "get MainWindow.Combo7\n"
      "get MainWindow.CmdScan\n"
      "get MainWindow.CmdScan.Enabled\n"
      "get FRMMAIN.Label1.BackColor\n"
      "get frmMain.MnuBlue.Checked\n"
      "global currentdrawnumber\n"
      "focused");
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.status, 0);
  EXPECT_EQ(played.out,
            "\"1\"\n2\ntrue\n1\n\"All Days\"\n\"Scan\"\ntrue\n2147483651\nfalse\n1\n"
            "\"MainWindow.cmdNext\"\n");
}

TEST(Interpreter, TellsWhereTheScriptIsWrong) {
  const struct {
    const char* script;
    const char* told;
  } table[] = {
      {"start\n\ndance\n", "-:3: unknown command: dance\n"},
      {"click MainWindow.CmdScan", "-:1: the desk has not been started\n"},
      {"start\nstart", "-:2: the desk is running already\n"},
      {"start\nget Nowhere.Label1", "-:2: no window is open that is called Nowhere\n"},
      {"start\nclick FrmOptions.Label3", "-:2: no window is open that is called FrmOptions\n"},
      {"start\nclick MainWindow.Label99", "-:2: there is no control MainWindow.Label99\n"},
      {"start\nclick MainWindow.Label2", "-:2: there is no control MainWindow.Label2\n"},
      {"start\nget MainWindow.Label2(100)",
       "-:2: there is no control or property MainWindow.Label2(100)\n"},
      {"start\nget MainWindow.txtDate.Colour",
       "-:2: there is no property MainWindow.txtDate.Colour\n"},
      {"start\nclick MainWindow.cmdSave", "-:2: MainWindow.cmdSave is disabled\n"},
      {"start\nmenu MnuStatsWin", "-:2: frmMain.MnuStatsWin is disabled\n"},
      {"start\nmenu Label1", "-:2: frmMain.Label1 is no menu item\n"},
      {"start\npick MainWindow.Combo7 \"Doomsday\"", "-:2: no row reads: Doomsday\n"},
      {"start\npick MainWindow.Combo7 8", "-:2: MainWindow.Combo7 has no such item\n"},
      {"start\npick MainWindow.ListView1 0", "-:2: MainWindow.ListView1 has no such row\n"},
      {"start\npick MainWindow.CmdScan 1", "-:2: MainWindow.CmdScan has no rows\n"},
      {"start\nrows MainWindow.CmdScan", "-:2: MainWindow.CmdScan has no rows\n"},
      {"start\npaste MainWindow.Combo7 \"x\"", "-:2: MainWindow.Combo7 is no text box\n"},
      {"start\nfocus MainWindow.Label3", "-:2: MainWindow.Label3 cannot take the focus\n"},
      {"start\ntype MainWindow.TxtBall01 \"{Moon}\"", "-:2: no key is called {Moon}\n"},
      {"start\nglobal Moon", "-:2: no shared state is called Moon\n"},
      {"call Moon 1", "-:1: there is no function Moon\n"},
      {"call PadBall", "-:1: call needs more words\n"},
      {"windows now", "-:1: windows has too many words: now\n"},
      {"answer maybe", "-:1: no answer to a box: maybe\n"},
      {"clock noon", "-:1: no time of the form 2005-12-05 14:30:00: noon\n"},
      {"clock \"2005-02-30 00:00:00\"",
       "-:1: no time of the form 2005-12-05 14:30:00: 2005-02-30 00:00:00\n"},
      {"during 0 beeps", "-:1: during needs the number of a yield, from 1\n"},
      {"during 1 dance", "-:1: unknown command: dance\n"},
      {"during 1", "-:1: a command is missing\n"},
      {"expect stop = 1", "-:1: no question: stop\n"},
      {"expect beeps == 1", "-:1: expect needs QUESTION = JSON or QUESTION ~ \"REGEX\"\n"},
      {"\"beeps\"", "-:1: unknown command: beeps\n"},
  };
  for (const auto& row : table) {
    const Played played = Play(row.script);
    EXPECT_EQ(played.status, 2) << row.script;
    EXPECT_EQ(played.err, row.told);
  }
}

TEST(Interpreter, AFailedExpectEndsTheRun) {
  const Played played = Play("expect beeps = 0\nexpect beeps = 1\nbeeps\n");
  EXPECT_EQ(played.status, 1);
  EXPECT_EQ(played.out, "");
  EXPECT_EQ(played.err, "-:2: beeps is 0 and not 1\n");
}

TEST(Interpreter, KeepGoingTellsEveryDifference) {
  const Played played = Play("expect beeps = 1\nbeeps\nexpect windows ~ \"x\"\n", {"--keep-going"});
  EXPECT_EQ(played.status, 1);
  EXPECT_EQ(played.out, "0\n");
  EXPECT_EQ(played.err, "-:1: beeps is 0 and not 1\n-:3: windows is [] and does not match \"x\"\n");
}

TEST(Interpreter, KeepGoingEndsAtAWrongLine) {
  const Played played = Play("expect beeps = 1\ndance\nbeeps\n", {"--keep-going"});
  EXPECT_EQ(played.status, 2);
  EXPECT_EQ(played.out, "");
}

TEST(Interpreter, SearchesAnAnswerOfAnyLength) {
  const std::string text(320'000, 'x');
  const Played played = Play("start\npaste MainWindow.txtDate \"" + text +
                             "\"\nexpect get MainWindow.txtDate ~ \"^.(((((x)))))*z\"\n");
  EXPECT_EQ(played.status, 1);
  EXPECT_EQ(played.err, "-:3: get MainWindow.txtDate is \"" + text +
                            "\" and does not match \"^.(((((x)))))*z\"\n");
}

TEST(Interpreter, ASearchBeyondItsBoundsIsAWrongScript) {
  const Played played = Play(
      "setting a b c \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa!\"\n"
      "expect setting a b c ~ \"^.(a+)+.$\"\n"
      "beeps\n",
      {"--keep-going"});
  EXPECT_EQ(played.status, 2);
  EXPECT_EQ(played.err,
            "-:2: the regular expression takes too many steps on this answer: ^.(a+)+.$\n");
}

TEST(Interpreter, DuringRunsNestedInTheYield) {
  const Played played = Play(
      "start\n"
      "during 30 get MainWindow.CmdScan\n"
      "during 31 click MainWindow.CmdScan\n"
      "click MainWindow.CmdScan\n"
      "get MainWindow.CmdScan\n"
      "expect get MainWindow.txtRecNum ~ \"^.[0-9]{1,2}.$\"\n");
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.out, "\"Stop\"\n\"Scan\"\n");
  EXPECT_EQ(played.status, 0);
}

TEST(Interpreter, DuringMayQueueDuring) {
  const Played played = Play(
      "start\n"
      "during 10 during 1 get MainWindow.CmdScan\n"
      "click MainWindow.CmdScan\n");
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.out, "\"Stop\"\n");
}

TEST(Interpreter, ErrorsInsideAYieldEndTheRunAtTheirLine) {
  const char* const kScan = "click MainWindow.CmdScan\nbeeps\n";
  const struct {
    const char* during;
    int status;
    const char* told;
  } table[] = {
      {"during 20 click MainWindow.cmdFirst\n", 2, "-:2: MainWindow.cmdFirst is disabled\n"},
      {"during 20 get FrmOptions\n", 2, "-:2: no window is open that is called FrmOptions\n"},
      {"during 20 expect beeps = 1\n", 1, "-:2: beeps is 0 and not 1\n"},
  };
  for (const auto& row : table) {
    const Played played = Play(std::string("start\n") + row.during + kScan);
    EXPECT_EQ(played.status, row.status) << row.during;
    EXPECT_EQ(played.out, "") << row.during;
    EXPECT_EQ(played.err, row.told);
  }
}

TEST(Interpreter, TheUserMayCloseTheDeskInAYield) {
  const Played played = Play("start\nduring 50 stop\nclick MainWindow.CmdScan\nwindows\n");
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.out, "[]\n");
}

TEST(Interpreter, AnswersAndBoxes) {
  const Played played = Play(
      "start\n"
      "answer no yes\n"
      "click MainWindow.cmdLast\n"
      "click MainWindow.CmdScan\n"
      "boxes\n"
      "boxes\n");
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.out,
            "[{\"kind\":\"message\",\"title\":\"Last Record\",\"text\":\"This will start a new "
            "scan, continue.\",\"icon\":\"none\",\"buttons\":\"yesno\",\"default\":\"yes\","
            "\"answer\":\"no\"}]\n[]\n");
}

TEST(Interpreter, AnAnswerWithoutAButtonIsWrong) {
  const Played played =
      Play("start\nclick MainWindow.cmdLast\nanswer retry\nclick MainWindow.CmdScan\n");
  EXPECT_EQ(played.status, 2);
  EXPECT_EQ(played.err,
            "-:4: a box has no button for the answer retry: This will start a new scan, "
            "continue.\n");
}

TEST(Interpreter, StrictTellsWhatWasQueuedAndNeverUsed) {
  const std::string script =
      "during 2000 beeps\n"
      "start\n"
      "input \"7 \\u00a3\"\n"
      "answer no yes\n"
      "input cancel\n"
      "during 1000 during 1 beeps\n";
  EXPECT_EQ(Play(script).status, 0);
  EXPECT_EQ(Play(script).err, "");
  const Played played = Play(script, {"--strict"});
  EXPECT_EQ(played.status, 1);
  EXPECT_EQ(played.err,
            "-:1: this during never ran\n"
            "-:3: nothing took the input \"7 \xC2\xA3\"\n"
            "-:4: nothing took the answer no\n"
            "-:4: nothing took the answer yes\n"
            "-:5: nothing took the input cancel\n"
            "-:6: this during never ran\n");
}

TEST(Interpreter, StrictIsContentWhenAllWasUsed) {
  const Played played = Play(
      "start\n"
      "during 30 answer ok\n"
      "click MainWindow.CmdScan\n"
      "expect boxes ~ \"right click the graph.*\\\"answer\\\":\\\"ok\\\"\"\n",
      {"--strict"});
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.status, 0);
}

TEST(Interpreter, ASecondStartForgetsNothingThatWasQueued) {
  const Played played = Play(
      "start\n"
      "answer no\n"
      "during 1000000 beeps\n"
      "stop\n"
      "start\n"
      "click MainWindow.cmdLast\n"
      "click MainWindow.CmdScan\n"
      "expect boxes ~ \"\\\"answer\\\":\\\"no\\\"\"\n",
      {"--strict"});
  EXPECT_EQ(played.status, 1);
  EXPECT_EQ(played.err, "-:3: this during never ran\n");
}

TEST(Interpreter, AnEarlierFailureWinsOverWhatIsLeft) {
  Played played = Play("answer no\ndance\n", {"--strict"});
  EXPECT_EQ(played.status, 2);
  EXPECT_EQ(played.err, "-:2: unknown command: dance\n");
  played = Play("answer no\nexpect beeps = 1\n", {"--strict"});
  EXPECT_EQ(played.status, 1);
  EXPECT_EQ(played.err, "-:2: beeps is 0 and not 1\n");
  played = Play("answer no\nexpect beeps = 1\n", {"--strict", "--keep-going"});
  EXPECT_EQ(played.status, 1);
  EXPECT_EQ(played.err, "-:2: beeps is 0 and not 1\n-:1: nothing took the answer no\n");
}

TEST(Interpreter, PicksByNumberAndByText) {
  const Played played = Play(
      "start\n"
      "pick MainWindow.ListView1 3\n"
      "get MainWindow.txtRecNum\n"
      "pick MainWindow.ListView1 \"06\"\n"
      "get MainWindow.txtRecNum\n"
      "pick MainWindow.List7 5\n"
      "get MainWindow.List7.ListIndex\n"
      "global CurrentDrawNumber\n"
      "pick MainWindow.Combo7 1\n"
      "get MainWindow.Combo7\n");
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.out, "\"2\"\n\"1\"\n5\n6\n\"Saturday\"\n");
}

TEST(Interpreter, CallsPlainFunctions) {
  const struct {
    const char* call;
    const char* printed;
  } table[] = {
      {"PadBall \"7\"", "\"07\""},
      {"padball 123", "\"123\""},
      {"DoubleText 0.5", "\"0.5\""},
      {"SingleText 0.1", "\"0.1\""},
      {"ToInt16 2.5", "2"},
      {"ToInt16 \"3.5\"", "4"},
      {"ToInt16 32767.5", R"({"error":6,"description":"Overflow"})"},
      {"ToInt32 \"12a\"", R"({"error":13,"description":"Type mismatch"})"},
      {"ToByte 255", "255"},
      {"NumericValue \"12a\"", "12"},
      {"IsDate \"12/2005\"", "true"},
      {"DateText \"05/12/2005\" \"dddd\"", "\"Thursday\""},
      {"WeekDayName \"05/12/2005\"", "\"Thursday\""},
      {"CompareText \"a\" \"B\"", "-1"},
  };
  for (const auto& row : table) {
    const Played played = Play(std::string("call ") + row.call);
    EXPECT_EQ(played.err, "") << row.call;
    EXPECT_EQ(played.out, std::string(row.printed) + "\n") << row.call;
  }
  EXPECT_EQ(Play("call WeekDayName \"05/12/2005\"", {"--date-order", "uk"}).out, "\"Monday\"\n");
}

TEST(Interpreter, ReadsDrawsAndFiles) {
  const Played played = Play(
      "start\n"
      "call DrawLine 1\n"
      "call DrawLine 0.2e6\n"
      "file \"DataBases/none.txt\"\n"
      "file \"/databases/UK-National-Lottery.dat\"\n");
  EXPECT_EQ(played.err, "");
  EXPECT_TRUE(
      played.out.starts_with("\"03 05 14 22 30 44 10 19/11/94 0 Sa\"\n"
                             "{\"error\":9,\"description\":\"Subscript out of range\"}\n"
                             "null\n\"\\u0000"))
      << played.out;
}

TEST(Interpreter, SettingsAreStoredAndAsked) {
  const Played played = Play(
      "setting Velmonte Data DataBaseName\n"
      "setting Velmonte Data DataBaseName \"US-MultiState-Powerball.dat\"\n"
      "start\n"
      "global FileLen\n"
      "setting VELMONTE data databasename\n");
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.out,
            "null\n\"US-MultiState-Powerball.dat\"\n57508\n\"US-MultiState-Powerball.dat\"\n");
}

TEST(Interpreter, ASecondStartIsASecondProcessOnTheSameSettings) {
  const Played played = Play(
      "start\n"
      "menu frmMain.MnuHgight\n"
      "stop\n"
      "windows\n"
      "global MainWindowLoaded\n"
      "start splash\n"
      "windows\n"
      "click frmSplash.CmdContinue\n"
      "get frmMain.MnuHgight.Checked\n");
  EXPECT_EQ(played.err, "");
  EXPECT_EQ(played.out,
            "[]\nfalse\n[{\"name\":\"frmSplash\",\"caption\":\"Quorbit Number Desk\"}]\ntrue\n");
}

TEST(Interpreter, TextsCrossTheCodePage) {
  const Played played = Play("setting a b c \"\xC2\xA3 \\u20ac \xE6\x9C\x88\"\n");
  EXPECT_EQ(played.out, "\"\xC2\xA3 \xE2\x82\xAC ?\"\n");
}

}  // namespace
}  // namespace script
