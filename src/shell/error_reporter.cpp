#include "shell/error_reporter.h"

#include <cerrno>

#include "base/deployment.h"
#include "base/language/dates.h"
#include "base/language/numbers.h"
#include "shell/preferences.h"
#include "store/setting_names.h"

namespace shell {
namespace {

constexpr const char* kErrorSource = "QND";

// Only errors of files come from the host and have a system error behind them.
int LastSystemError(const base::Error& error) {
  return error.Number() > base::kBadFileName && error.Number() <= base::kPathNotFound ? errno : 0;
}

}  // namespace

std::string ErrorDetails(const ErrorReport& report) {
  return report.title + " has preformed an illigal operation at " + report.procedure +
         "\r\n"
         "\r\n"
         "Error Details: \r\n"
         "\r\n"
         "Error Number [" +
         base::IntegerText(report.number) +
         "] \r\n"
         "Error Source [" +
         report.source +
         "] \r\n"
         "Error Description [" +
         report.description +
         "] \r\n"
         "Error LastDllError [" +
         base::IntegerText(report.last_system_error) + "] \r\n";
}

void DeskErrorReporter::Report(std::string_view procedure, const base::Error& error) {
  const ErrorReport report{.title = base::kProgramTitle,
                           .procedure = std::string(procedure),
                           .number = error.Number(),
                           .source = kErrorSource,
                           .description = error.Description(),
                           .last_system_error = LastSystemError(error)};
  const base::Answer answer =
      ports_.boxes.Ask({.text = ErrorDetails(report) + "\r\n"
                                                       "Do you wish to report the error to us\r\n",
                        .buttons = base::BoxButtons::kYesNo});
  if (answer != base::Answer::kYes) return;
  try {
    Mail(report);
  } catch (const base::Error&) {
    // Without a mail program there is nothing more to tell.
  }
}

void DeskErrorReporter::Mail(const ErrorReport& report) {
  const std::string now = base::FormatDate(ports_.clock.Now(), "DD/MM/YYYY HH:NN:SS");
  const std::string database = ports_.settings.Get(store::kDeskApplication, store::kDataSection,
                                                   store::kDataBaseNameKey, "Not Found!");
  ports_.mail.Send({.recipient = base::kSupportAddress,
                    .subject = "QND ERROR - " + report.title + " - Date " + now,
                    .body = ErrorDetails(report) + "Version [" + VersionText(version_) +
                            "] \r\n"
                            "Current Database [" +
                            database + "] \r\n"});
}

}  // namespace shell
