#include "shell/desk.h"

#include "base/language/text.h"
#include "scan/ball_selector.h"
#include "shell/dialogs.h"
#include "shell/error_reporter.h"
#include "shell/frame.h"
#include "shell/main_window_subjects.h"
#include "shell/splash.h"
#include "wheels/number_sets.h"

namespace shell {
namespace {

constexpr const char* kSplash = "frmSplash";
constexpr const char* kFrame = "frmMain";
constexpr const char* kMain = "MainWindow";
constexpr const char* kOptions = "FrmOptions";
constexpr const char* kAbout = "frmAbout";
constexpr const char* kBallSelector = "FrmDropDown";
constexpr const char* kWheel = "FrmTxt";

// The small windows, each with its procedures.

struct SplashWindow : FrmSplash {
  SplashWindow(base::Desktop& desktop, store::Session& session, Version version,
               std::function<void()> show_frame)
      : procedures(*this, desktop, session, version, std::move(show_frame)) {
    procedures.Wire();
  }
  Splash procedures;
};

struct OptionsWindow : FrmOptions {
  OptionsWindow(base::Desktop& desktop, store::Session& session)
      : procedures(*this, desktop, session) {
    procedures.Wire();
  }
  Options procedures;
};

struct AboutWindow : FrmAbout {
  AboutWindow(base::Desktop& desktop, Version version) : procedures(*this, desktop) {
    procedures.Wire(version);
  }
  About procedures;
};

struct BallSelectorWindow : scan::FrmDropDown {
  explicit BallSelectorWindow(store::Session& session) : procedures(*this, session) {
    procedures.Wire();
  }
  scan::BallSelector procedures;
};

struct FrameWindow : FrmMain {
  FrameWindow(base::Desktop& desktop, store::Session& session, Frame::Windows& windows,
              base::ErrorReporter& reporter)
      : procedures(*this, desktop, session, windows, reporter) {
    procedures.Wire();
  }
  Frame procedures;
};

// The windows that the desk's own procedures work in, as what they are.
struct Windows {
  explicit Windows(base::Desktop& of) : desktop(of) {}
  base::Desktop& desktop;
  base::WindowOf<SplashWindow> splash{desktop, kSplash};
  base::WindowOf<FrameWindow> frame{desktop, kFrame};
  base::WindowOf<MainWindowSubjects> main{desktop, kMain};
  base::WindowOf<wheels::WheelWizard> wheel{desktop, kWheel};
};

// What the frame asks of the windows that it opens.
class FrameNeighbours : public Frame::Windows {
 public:
  explicit FrameNeighbours(const shell::Windows& windows) : windows_(windows) {}
  void ShowMainWindow() override {
    MainWindowSubjects& window = windows_.main.Get();
    window.Move(0, 0);
    windows_.desktop.Show(window);
  }
  void ShowOptions() override { windows_.desktop.Show(kOptions); }
  void ShowAbout() override { windows_.desktop.Show(kAbout); }
  void ShowBallSelector() override { windows_.desktop.Show(kBallSelector); }
  void FillFromListView() override {
    if (MainWindowSubjects* window = windows_.main.Peek()) window->Browsing().FillFromListView();
  }
  void MakeWheel() override {
    if (MainWindowSubjects* window = windows_.main.Peek()) {
      window->Frequencies().MakeWheel();
    } else {
      windows_.wheel.Get().TakeOver({});
    }
  }
  void ShowWheelWindow() override { windows_.wheel.Get().ShowAlone(); }
  void StandardDeviation() override {
    if (MainWindowSubjects* window = windows_.main.Peek()) {
      window->GraphOptions().StandardDeviation();
    }
  }
  bool GraphStylesFilled() override {
    MainWindowSubjects* const window = windows_.main.Peek();
    return window && window->LstGraphStyles.ListCount() > 0;
  }
  void ChooseStyle(scan::GraphOptions::Style style) override {
    windows_.main.Get().GraphOptions().ChooseStyle(style);
  }

 private:
  const shell::Windows& windows_;
};

// What the main window asks of the frame and of the wheels.
class MainWindowNeighbours : public MainWindowSubjects::FrameSide {
 public:
  explicit MainWindowNeighbours(const Windows& windows) : windows_(windows) {}
  void SaveMenus() override { Procedures().SaveMenus(); }
  void DoMenus() override { Procedures().DoMenus(); }
  void MarkMainWindow(bool in_use) override { Procedures().MarkMainWindow(in_use); }
  void SetHelpFile(const std::string& path) override { Procedures().SetHelpFile(path); }
  void ShowStatus(const std::string& text) override {
    windows_.frame.Get().lblStatus.SetCaption(text);
  }
  void PopUpGraphMenu() override { windows_.desktop.View().PopUp(windows_.frame.Get().MnuGraph); }
  void HandOverToWheels() override {
    windows_.wheel.Get().TakeOver(wheels::TemperatureEntries(windows_.main.Get().ProgressBar1));
  }

 private:
  Frame& Procedures() { return windows_.frame.Get().procedures; }

  const Windows& windows_;
};

// What the wheel window asks of the frame.
class WheelNeighbours : public wheels::WheelWizard::FrameSide {
 public:
  explicit WheelNeighbours(const Windows& windows) : windows_(windows) {}
  void MarkWheelWindow(bool in_use) override {
    windows_.frame.Get().procedures.MarkWheelWindow(in_use);
  }
  void SetHelpFile(const std::string& path) override {
    windows_.frame.Get().procedures.SetHelpFile(path);
  }

 private:
  const Windows& windows_;
};

}  // namespace

struct Desk::Parts {
  Parts(base::Ports ports, std::string program_folder)
      : desktop(ports), user(desktop), session(ports.files), reporter(ports, Version{}) {
    session.program_folder = std::move(program_folder);
    AddWindows();
  }
  ~Parts() { desktop.DropWindows(); }
  Parts(const Parts&) = delete;
  Parts& operator=(const Parts&) = delete;

  base::Desktop desktop;
  base::User user;
  store::Session session;
  DeskErrorReporter reporter;
  wheels::WheelState wheel_state;
  const Windows windows{desktop};
  FrameNeighbours of_frame{windows};
  MainWindowNeighbours of_main{windows};
  WheelNeighbours of_wheel{windows};

 private:
  void AddWindows() {
    desktop.Add(kSplash, [this] {
      return std::make_shared<SplashWindow>(desktop, session, Version{},
                                            [this] { desktop.Show(kFrame); });
    });
    desktop.Add(kFrame, [this] {
      return std::make_shared<FrameWindow>(desktop, session, of_frame, reporter);
    });
    desktop.Add(kMain, [this] {
      return std::make_shared<MainWindowSubjects>(session, desktop, reporter, of_main);
    });
    desktop.Add(kOptions, [this] { return std::make_shared<OptionsWindow>(desktop, session); });
    desktop.Add(kAbout, [this] { return std::make_shared<AboutWindow>(desktop, Version{}); });
    desktop.Add(kBallSelector, [this] { return std::make_shared<BallSelectorWindow>(session); });
    desktop.Add(kWheel, [this] {
      return std::make_shared<wheels::WheelWizard>(session, desktop, wheel_state, of_wheel);
    });
  }
};

Desk::Desk(base::Ports ports, std::string program_folder)
    : parts_(std::make_unique<Parts>(ports, std::move(program_folder))) {}

Desk::~Desk() = default;

void Desk::Start() {
  TellUnreadableSettings();
  parts_->desktop.Dispatch([this] { parts_->desktop.Show(kSplash); });
}

// Once, before anything else: nothing that is changed in this run will be kept.
void Desk::TellUnreadableSettings() {
  base::Ports& world = parts_->desktop.World();
  const std::optional<base::Error> failure = world.settings.Failure();
  if (!failure) return;
  world.boxes.Ask({.text = "The settings could not be read, and are left as they are: " +
                           failure->Description(),
                   .icon = base::BoxIcon::kExclamation});
}

void Desk::Stop() {
  base::Form* window = Frame();
  if (!window) window = parts_->windows.splash.Peek();
  if (window) parts_->user.Close(*window);
}

bool Desk::Ended() const { return parts_->desktop.OpenForms().empty(); }

base::Desktop& Desk::Desktop() { return parts_->desktop; }
base::User& Desk::User() { return parts_->user; }
store::Session& Desk::Session() { return parts_->session; }

base::Form* Desk::Find(std::string_view name) {
  for (base::Form* form : parts_->desktop.OpenForms()) {
    if (base::EqualNoCase(form->Name(), name)) return form;
  }
  return nullptr;
}

FrmMain* Desk::Frame() { return parts_->windows.frame.Peek(); }
main_window::MainWindow* Desk::Main() { return parts_->windows.main.Peek(); }
wheels::WheelWizard* Desk::Wheels() { return parts_->windows.wheel.Peek(); }
const wheels::WheelState& Desk::WheelState() const { return parts_->wheel_state; }

void Desk::StorePending() {
  parts_->desktop.Dispatch([this] {
    if (MainWindowSubjects* const window = parts_->windows.main.Peek()) {
      window->WorkingCopy().StorePending();
    }
  });
}

std::string Desk::Undo() {
  std::string told;
  parts_->desktop.Dispatch([&] {
    if (MainWindowSubjects* const window = parts_->windows.main.Peek())
      told = window->Undo().TakeBack();
  });
  return told;
}

std::vector<std::string> Desk::Earlier() { return parts_->session.database.Earlier(); }

bool Desk::TryForLock() {
  using Access = store::OpenDatabase::Access;
  store::OpenDatabase& database = parts_->session.database;
  return database.Lock() == Access::kInUse && database.TryLock() == Access::kMine;
}

std::vector<Notice> Desk::Notices() {
  if (!parts_->windows.main.Peek()) return {};
  return NoticesOf(parts_->session.database);
}

}  // namespace shell
