#include "script/line_parser.h"

#include <gtest/gtest.h>

#include "script/wrong_script.h"

namespace script {
namespace {

TEST(Words, AreSeparatedByBlanksAndTabs) {
  const struct {
    const char* line;
    std::vector<Word> words;
  } table[] = {
      {"", {}},
      {"  \t ", {}},
      {"start", {{"start"}}},
      {"  pick  A.B\t5 ", {{"pick"}, {"A.B"}, {"5"}}},
      {"stop\r", {{"stop"}}},
      {R"(pick A.B "5")", {{"pick"}, {"A.B"}, {"5", true}}},
      {R"(type A.B "")", {{"type"}, {"A.B"}, {"", true}}},
      {R"("a b" "c")", {{"a b", true}, {"c", true}}},
      {R"("say \"hi\" \\")", {{"say \"hi\" \\", true}}},
      {R"("\r\n\u00a3")", {{"\r\n\xC2\xA3", true}}},
      {"\"\xC2\xA3 5\"", {{"\xC2\xA3 5", true}}},
  };
  for (const auto& row : table) EXPECT_EQ(SplitWords(row.line), row.words) << row.line;
}

TEST(Words, RefuseWhatIsNoJsonString) {
  for (const char* line :
       {R"("open)", R"("a\")", R"("a\x")", R"("a"b)", R"(a"b")", "\"a\tb\"", "\"\xFF\""}) {
    EXPECT_THROW(SplitWords(line), WrongScript) << line;
  }
}

TEST(Words, OnlyAnUnquotedNumberIsAnIndex) {
  EXPECT_EQ(WholeNumber({"45"}), 45);
  EXPECT_EQ(WholeNumber({"-1"}), -1);
  for (const Word& word :
       {Word{"5", true}, Word{"5.5"}, Word{"x"}, Word{""}, Word{"5x"}, Word{"99999999999"}}) {
    EXPECT_EQ(WholeNumber(word), std::nullopt) << word.text;
  }
}

TEST(Lines, CommentsAndBlankLinesArePassedOver) {
  for (const char* line : {"", "  ", "# a comment", "  # a comment", "\r"}) {
    EXPECT_TRUE(IsPassedOver(line)) << line;
  }
  EXPECT_FALSE(IsPassedOver("start # now"));
}

TEST(References, NameAWindowAControlAndAProperty) {
  const struct {
    const char* text;
    const char* window;
    const char* control;
    int index;
    const char* property;
  } table[] = {
      {"MainWindow", "MainWindow", "", Reference::kNoIndex, ""},
      {"MainWindow.txtDate", "MainWindow", "txtDate", Reference::kNoIndex, ""},
      {"MainWindow.txtDate.Tag", "MainWindow", "txtDate", Reference::kNoIndex, "Tag"},
      {"MainWindow.Label2(7)", "MainWindow", "Label2", 7, ""},
      {"MainWindow.Label2(17).Caption", "MainWindow", "Label2", 17, "Caption"},
  };
  for (const auto& row : table) {
    const Reference reference = ParseReference(row.text);
    EXPECT_EQ(reference.text, row.text);
    EXPECT_EQ(reference.window, row.window) << row.text;
    EXPECT_EQ(reference.control, row.control) << row.text;
    EXPECT_EQ(reference.index, row.index) << row.text;
    EXPECT_EQ(reference.property, row.property) << row.text;
  }
}

TEST(References, RefuseOtherForms) {
  for (const char* text : {"", ".", "A.", ".B", "A.B.", "A.B.C.D", "A.B(", "A.B()", "A.B(x)",
                           "A.B(7", "A.B(-1)", "A.B(1)(2)", "A.B(7)x", "A..C", "A.(7)"}) {
    EXPECT_THROW(ParseReference(text), WrongScript) << text;
  }
}

TEST(Expectations, SplitAtTheFirstSignOutsideQuotes) {
  const struct {
    const char* text;
    const char* question;
    char sign;
    const char* right;
  } table[] = {
      {R"(get A.B = "x")", "get A.B", '=', R"("x")"},
      {R"(get A.B ~ "x")", "get A.B", '~', R"("x")"},
      {R"(call PadBall "a = b" = "c")", R"(call PadBall "a = b")", '=', R"("c")"},
      {R"(call PadBall "a \" ~ b" = 1)", R"(call PadBall "a \" ~ b")", '=', "1"},
      {R"(get A.B = "p = q")", "get A.B", '=', R"("p = q")"},
      {R"(file a=b = null)", "file a=b", '=', "null"},
      {R"(boxes = [{"a": 1}])", "boxes", '=', R"([{"a": 1}])"},
  };
  for (const auto& row : table) {
    const Expectation expectation = ParseExpectation(row.text);
    EXPECT_EQ(expectation.question, row.question);
    EXPECT_EQ(expectation.sign, row.sign) << row.text;
    EXPECT_EQ(expectation.right, row.right) << row.text;
  }
}

TEST(Expectations, NeedASign) {
  for (const char* text : {"", "get A.B", "get A.B=1", R"(get "A = B")", "= 1"}) {
    EXPECT_THROW(ParseExpectation(text), WrongScript) << text;
  }
}

}  // namespace
}  // namespace script
