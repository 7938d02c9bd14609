#include "ui/app.h"

#include <QApplication>
#include <QDir>
#include <QStandardPaths>
#include <QTimer>
#include <exception>

#include "base/host/host_paths.h"
#include "shell/preferences.h"
#include "shell/program_folder.h"
#include "ui/bind/binder.h"
#include "ui/theme/theme.h"
#include "ui/views.h"
#include "ui/windows/frame_view.h"
#include "ui/windows/message_dialog.h"

namespace ui {
namespace {

constexpr const char* kFolder = "number-desk";
constexpr int kLockPause = 1000;  // milliseconds

// Beside an installed program, otherwise where the installation was meant to be.
QString DeliveredFolder() {
  const QDir beside(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/") +
                    QLatin1String(kFolder));
  return beside.exists() ? beside.absolutePath() : QStringLiteral(DESK_INSTALLED_DATA);
}

std::string ProgramFolder() {
  const QString user = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                       QLatin1Char('/') + QLatin1String(kFolder);
  return shell::ChooseProgramFolder(QCoreApplication::applicationDirPath().toStdString(),
                                    DeliveredFolder().toStdString(), user.toStdString());
}

std::string SettingsFile() {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                    QLatin1Char('/') + QLatin1String(kFolder));
  folder.mkpath(QStringLiteral("."));
  return folder.filePath(QStringLiteral("settings.txt")).toStdString();
}

constexpr const char* kUnheard =
    "A desk is open on these databases already, and does not answer. Close it first, or wait until "
    "it is done.";

void TellFailure(const std::string& words) {
  MessageDialog({.text = base::ToDeskPath(words), .icon = base::BoxIcon::kCritical}, nullptr).Ask();
}

}  // namespace

App::App(const std::string& program_folder, const std::string& settings_file)
    : settings_(files_, base::ToDeskPath(settings_file)),
      platform_(files_, settings_),
      desk_(platform_.All(), base::ToDeskPath(program_folder)) {
  Theme::Current().Attach(&settings_);
  desk_.Desktop().SetView(this);
  desk_.Session().keeps_pending = true;
  lock_clock_.setInterval(kLockPause);
  connect(&lock_clock_, &QTimer::timeout, this, &App::TryForLock);
}

App::~App() {
  Theme::Current().Attach(nullptr);
  desk_.Stop();
  desk_.Desktop().SetView(nullptr);
  for (const auto& [form, view] : views_) delete view;
  delete frame_;
}

void App::Start() {
  StoreRegion();
  lock_clock_.start();
  desk_.Start();
  if (desk_.Ended()) QCoreApplication::quit();
}

// As an installer would: the first start on a machine takes over the order of its dates.
void App::StoreRegion() {
  try {
    shell::StoreRegion(settings_, platform_.All().region.Dates());
  } catch (const base::Error&) {
    // Settings that cannot be kept are told where they matter.
  }
}

// A script may hold the database. Once it is done, this desk stores again.
void App::TryForLock() {
  if (desk_.TryForLock() && frame_) frame_->RefreshStatus();
}

void App::ComeToFront() {
  QWidget* const window = frame_ ? frame_ : QApplication::activeWindow();
  if (!window) return;
  window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
  window->show();
  window->raise();
  window->activateWindow();
}

FrameView* App::Frame() {
  if (!frame_ && desk_.Frame() && desk_.Frame()->Loaded()) {
    frame_ = new FrameView(desk_, *desk_.Frame());
  }
  return frame_;
}

QWidget* App::ViewOf(base::Form& form) const {
  if (form.Role() == base::FormRole::kFrame) return frame_;
  const auto found = views_.find(&form);
  return found == views_.end() ? nullptr : found->second.data();
}

void App::Shown(base::Form& form) {
  // Working windows come while the frame is still loading, so it may be made for their sake.
  if (form.Role() == base::FormRole::kFrame) {
    if (FrameView* const frame = Frame()) frame->ShowInPlace();
    return;
  }
  FrameView* const frame = form.Role() == base::FormRole::kChild ? Frame() : nullptr;
  QWidget* const owner = frame_ && frame_->isVisible() ? frame_ : nullptr;
  QWidget* const view = MakeView(desk_, form, owner);
  if (!view) return;
  views_[&form] = view;
  if (frame) {
    frame->AddChild(form, view);
  } else {
    view->show();
  }
}

void App::Raised(base::Form& form) {
  // The main window's activation, when it comes back, forgets what waits in its table.
  if (&form != desk_.Main()) desk_.StorePending();
  QWidget* const view = ViewOf(form);
  if (!view) return;
  if (form.Role() == base::FormRole::kChild) {
    if (frame_) frame_->RaiseChild(form);
  } else if (view->isVisible()) {
    view->raise();
    view->activateWindow();
  }
}

void App::Unloaded(base::Form& form) {
  if (form.Role() == base::FormRole::kFrame) {
    if (frame_) {
      frame_->Release();
      frame_->hide();
      frame_->deleteLater();
      frame_ = nullptr;
    }
    platform_.Help().Close();
  } else if (QWidget* const view = ViewOf(form)) {
    for (Binder* binder : view->findChildren<Binder*>()) binder->Detach();
    views_.erase(&form);
    if (form.Role() == base::FormRole::kChild && frame_) {
      frame_->RemoveChild(form);
    } else {
      view->hide();
      view->deleteLater();
    }
  }
  if (desk_.Ended()) QCoreApplication::quit();
}

void App::FocusMoved(base::Control* control) {
  QWidget* const view = control ? ViewOf(control->Window()) : nullptr;
  if (!view) return;
  for (Binder* binder : view->findChildren<Binder*>()) {
    if (binder->Form() == &control->Window()) binder->FocusOn(*control);
  }
}

void App::PopUp(base::MenuItem& menu) {
  if (frame_) frame_->PopUp(menu);
}

int RunProgram(int argc, char** argv) {
  QApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("number-desk"));
  QCoreApplication::setApplicationVersion(QStringLiteral(DESK_VERSION));
  QGuiApplication::setApplicationDisplayName(QString());
  QGuiApplication::setDesktopFileName(QStringLiteral("number-desk"));
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/program.svg")));
  Theme::Current();
  try {
    const std::string folder = ProgramFolder();
    SingleDesk single(QString::fromStdString(folder));
    switch (single.Take()) {
      case SingleDesk::Place::kSecond:
        return 0;
      case SingleDesk::Place::kUnheard:
        TellFailure(kUnheard);
        return 1;
      case SingleDesk::Place::kFirst:
        break;
    }
    App app(folder, SettingsFile());
    QObject::connect(&single, &SingleDesk::Called, &app, &App::ComeToFront);
    QTimer::singleShot(0, &app, &App::Start);
    return QApplication::exec();
  } catch (const std::exception& failure) {
    TellFailure(failure.what());
    return 1;
  }
}

}  // namespace ui
