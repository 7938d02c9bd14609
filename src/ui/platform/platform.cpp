#include "ui/platform/platform.h"

#include <QApplication>
#include <QDateTime>
#include <QDesktopServices>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <QUrlQuery>

#include "base/host/host_paths.h"
#include "base/language/error.h"
#include "ui/bind/binder.h"
#include "ui/windows/help_view.h"
#include "ui/windows/message_dialog.h"

namespace ui {
namespace {

using std::chrono::steady_clock;

constexpr std::chrono::milliseconds kPumpPause(4);
constexpr int kDeepest = 8;

// The tools that describe a machine, the best known first.
constexpr const char* kInformationTools[] = {"kinfocenter", "hardinfo2", "hardinfo"};

}  // namespace

base::Answer ScreenBoxes::Ask(const base::MessageBox& box) {
  Binder::SyncAll();
  return MessageDialog(box, QApplication::activeWindow()).Ask();
}

std::optional<std::string> ScreenBoxes::Input(const base::InputBox& box) {
  Binder::SyncAll();
  return InputDialog(box, QApplication::activeWindow()).Ask();
}

void ScreenPump::Pump() {
  if (steady_clock::now() - last_ < kPumpPause) return;
  ++depth_;
  QCoreApplication::processEvents(depth_ <= kDeepest ? QEventLoop::AllEvents
                                                     : QEventLoop::ExcludeUserInputEvents);
  --depth_;
  last_ = steady_clock::now();
}

base::DateTime ScreenClock::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  return {now.date().year(), now.date().month(),  now.date().day(),
          now.time().hour(), now.time().minute(), now.time().second()};
}

void ScreenBeeper::Beep() { QApplication::beep(); }

void ScreenShell::Open(const base::ShellOpenRequest& request) {
  const QString file = Shown(request.file);
  const QUrl address(file);
  const bool is_address = file.startsWith(QLatin1String("mailto:"), Qt::CaseInsensitive) ||
                          file.contains(QLatin1String("://"));
  if (is_address) {
    QDesktopServices::openUrl(address);
  } else if (file.startsWith(QLatin1String("www."), Qt::CaseInsensitive)) {
    QDesktopServices::openUrl(QUrl(QStringLiteral("http://") + file));
  } else {
    QDesktopServices::openUrl(
        QUrl::fromLocalFile(QString::fromStdString(base::ResolveHostPath(request.file))));
  }
}

void ScreenMail::Send(const base::MailMessage& message) {
  const auto part = [](const std::string& text) {
    return QString::fromLatin1(QUrl::toPercentEncoding(Shown(text)));
  };
  const QString address =
      QStringLiteral("mailto:%1?subject=%2&body=%3")
          .arg(part(message.recipient), part(message.subject), part(message.body));
  if (QDesktopServices::openUrl(QUrl(address, QUrl::StrictMode))) return;
  throw base::Error(base::kInvalidCall, "No mail program could be started");
}

ScreenHelp::~ScreenHelp() { Close(); }

void ScreenHelp::Open(const std::string& file, base::HelpPage page) {
  if (!view_ || file_ != file) {
    const std::string html = files_.ReadAll(file);
    Close();
    file_ = file;
    view_ = new HelpView(QByteArray::fromStdString(html), nullptr);
  }
  view_->Open(page);
}

void ScreenHelp::Close() { delete view_; }

bool ScreenInformation::Open() {
  for (const char* tool : kInformationTools) {
    const QString path = QStandardPaths::findExecutable(QLatin1String(tool));
    if (!path.isEmpty() && QProcess::startDetached(path, {})) return true;
  }
  return false;
}

base::DateOrder OrderOf(const std::string& short_format) {
  const std::size_t day = short_format.find('d');
  const std::size_t month = short_format.find('M');
  return day < month ? base::DateOrder::kDayFirst : base::DateOrder::kMonthFirst;
}

base::DateOrder ScreenRegion::Dates() {
  return OrderOf(QLocale::system().dateFormat(QLocale::ShortFormat).toStdString());
}

base::Ports Platform::All() {
  return {.boxes = boxes_,
          .pump = pump_,
          .clock = clock_,
          .beeper = beeper_,
          .shell = shell_,
          .mail = mail_,
          .printer = printer_,
          .help = help_,
          .system_information = information_,
          .region = region_,
          .files = files_,
          .settings = settings_};
}

}  // namespace ui
