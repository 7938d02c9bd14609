#include "shell/error_reporter.h"

#include <gtest/gtest.h>

#include "support/test_desk.h"

namespace test {
namespace {

constexpr const char* kDetails =
    "Quorbit Number Desk has preformed an illigal operation at SaveNewRecord\r\n"
    "\r\n"
    "Error Details: \r\n"
    "\r\n"
    "Error Number [9] \r\n"
    "Error Source [QND] \r\n"
    "Error Description [Subscript out of range] \r\n"
    "Error LastDllError [0] \r\n";

class FailingMail : public base::Mail {
 public:
  void Send(const base::MailMessage&) override { throw base::Error(base::kInvalidCall); }
};

struct Reporting {
  LoggedBoxes boxes;
  LoggedMail mail;
  MemorySettings settings;
  void Report(base::Mail& with_mail) {
    const base::Ports ports{.boxes = boxes, .mail = with_mail, .settings = settings};
    shell::DeskErrorReporter(ports, {}).Report("SaveNewRecord", base::Error(base::kSubscript));
  }
};

TEST(ErrorReporter, TellsWhatFailedAndWhere) {
  Reporting reporting;
  reporting.boxes.answers = {base::Answer::kNo};
  reporting.Report(reporting.mail);
  ASSERT_EQ(reporting.boxes.shown.size(), 1u);
  EXPECT_EQ(reporting.boxes.shown[0].text,
            std::string(kDetails) + "\r\nDo you wish to report the error to us\r\n");
  EXPECT_EQ(reporting.boxes.shown[0].buttons, base::BoxButtons::kYesNo);
  EXPECT_EQ(reporting.boxes.shown[0].icon, base::BoxIcon::kNone);
  EXPECT_TRUE(reporting.mail.sent.empty());
}

TEST(ErrorReporter, MailsTheReportOnYes) {
  Reporting reporting;
  reporting.settings.Save("Velmonte", "Data", "DataBaseName", "Mine.dat");
  reporting.Report(reporting.mail);
  ASSERT_EQ(reporting.mail.sent.size(), 1u);
  EXPECT_EQ(reporting.mail.sent[0].subject,
            "QND ERROR - Quorbit Number Desk - Date 01/01/2000 00:00:00");
  EXPECT_EQ(reporting.mail.sent[0].body, std::string(kDetails) +
                                             "Version [3.9.0] \r\n"
                                             "Current Database [Mine.dat] \r\n");
}

TEST(ErrorReporter, NamesNoDatabaseWhereNoneWasChosen) {
  Reporting reporting;
  reporting.Report(reporting.mail);
  EXPECT_TRUE(reporting.mail.sent[0].body.ends_with("Current Database [Not Found!] \r\n"));
}

TEST(ErrorReporter, PassesOverAMailThatFails) {
  Reporting reporting;
  FailingMail failing;
  reporting.Report(failing);
  EXPECT_EQ(reporting.boxes.shown.size(), 1u);
}

}  // namespace
}  // namespace test
