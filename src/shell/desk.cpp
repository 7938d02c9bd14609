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
              main_window::ErrorReporter& reporter)
      : procedures(*this, desktop, session, windows, reporter) {
    procedures.Wire();
  }
  Frame procedures;
};

}  // namespace

class Desk::Parts : public Frame::Windows,
                    public MainWindowSubjects::FrameSide,
                    public wheels::WheelWizard::FrameSide {
 public:
  Parts(base::Ports ports, std::string program_folder)
      : desktop(ports),
        user(desktop),
        session(ports.files),
        reporter(ports, Version{}),
        splash([this] {
          return std::make_shared<SplashWindow>(desktop, session, Version{},
                                                [this] { desktop.Show(frame.Get()); });
        }),
        frame([this] { return std::make_shared<FrameWindow>(desktop, session, *this, reporter); }),
        main([this] {
          return std::make_shared<MainWindowSubjects>(session, desktop, reporter, *this);
        }),
        options([this] { return std::make_shared<OptionsWindow>(desktop, session); }),
        about([this] { return std::make_shared<AboutWindow>(desktop, Version{}); }),
        selector([this] { return std::make_shared<BallSelectorWindow>(session); }),
        wheel([this] {
          return std::make_shared<wheels::WheelWizard>(session, desktop, wheel_state, *this);
        }) {
    session.program_folder = std::move(program_folder);
    desktop.on_closed = [this](base::Form& form) { Release(form); };
  }

  base::Desktop desktop;
  base::User user;
  store::Session session;
  DeskErrorReporter reporter;
  base::WindowSlot<SplashWindow> splash;
  base::WindowSlot<FrameWindow> frame;
  base::WindowSlot<MainWindowSubjects> main;
  base::WindowSlot<OptionsWindow> options;
  base::WindowSlot<AboutWindow> about;
  base::WindowSlot<BallSelectorWindow> selector;
  wheels::WheelState wheel_state;
  base::WindowSlot<wheels::WheelWizard> wheel;

 private:
  void Release(base::Form& form) {
    splash.Release(form, desktop) || frame.Release(form, desktop) || main.Release(form, desktop) ||
        options.Release(form, desktop) || about.Release(form, desktop) ||
        selector.Release(form, desktop) || wheel.Release(form, desktop);
  }

  // What the frame asks for.
  void ShowMainWindow() override {
    MainWindowSubjects& window = main.Get();
    window.Move(0, 0);
    desktop.Show(window);
  }
  void ShowOptions() override { desktop.Show(options.Get()); }
  void ShowAbout() override { desktop.Show(about.Get()); }
  void FillFromListView() override {
    if (MainWindowSubjects* window = main.Peek()) window->Browsing().FillFromListView();
  }

  void MakeWheel() override {
    if (MainWindowSubjects* window = main.Peek()) {
      window->Frequencies().MakeWheel();
    } else {
      wheel.Get().TakeOver({});
    }
  }
  void ShowWheelWindow() override { wheel.Get().ShowAlone(); }
  void ShowBallSelector() override { desktop.Show(selector.Get()); }
  void StandardDeviation() override {
    if (MainWindowSubjects* window = main.Peek()) window->GraphOptions().StandardDeviation();
  }
  bool GraphStylesFilled() override {
    return main.Peek() && main.Peek()->LstGraphStyles.ListCount() > 0;
  }
  void ChooseStyle(scan::GraphOptions::Style style) override {
    main.Get().GraphOptions().ChooseStyle(style);
  }

  // What the main window asks of the frame.
  void SaveMenus() override { frame.Get().procedures.SaveMenus(); }
  void PopUpGraphMenu() override { desktop.View().PopUp(frame.Get().MnuGraph); }
  void HandOverToWheels() override {
    wheel.Get().TakeOver(wheels::TemperatureEntries(main.Get().ProgressBar1));
  }
  void DoMenus() override { frame.Get().procedures.DoMenus(); }
  void MarkMainWindow(bool in_use) override { frame.Get().procedures.MarkMainWindow(in_use); }
  void MarkWheelWindow(bool in_use) override { frame.Get().procedures.MarkWheelWindow(in_use); }
  void ShowStatus(const std::string& text) override { frame.Get().lblStatus.SetCaption(text); }
  void SetHelpFile(const std::string& path) override { frame.Get().procedures.SetHelpFile(path); }
};

Desk::Desk(base::Ports ports, std::string program_folder)
    : parts_(std::make_unique<Parts>(ports, std::move(program_folder))) {}

Desk::~Desk() = default;

void Desk::Start() {
  TellUnreadableSettings();
  parts_->desktop.Dispatch([this] { parts_->desktop.Show(parts_->splash.Get()); });
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
  if (!window) window = parts_->splash.Peek();
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

FrmMain* Desk::Frame() { return parts_->frame.Peek(); }
main_window::MainWindow* Desk::Main() { return parts_->main.Peek(); }
wheels::WheelWizard* Desk::Wheels() { return parts_->wheel.Peek(); }
const wheels::WheelState& Desk::WheelState() const { return parts_->wheel_state; }

void Desk::StorePending() {
  parts_->desktop.Dispatch([this] {
    if (MainWindowSubjects* const window = parts_->main.Peek())
      window->WorkingCopy().StorePending();
  });
}

std::string Desk::Undo() {
  std::string told;
  parts_->desktop.Dispatch([&] {
    if (MainWindowSubjects* const window = parts_->main.Peek()) told = window->Undo().TakeBack();
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
  if (!parts_->main.Peek()) return {};
  return NoticesOf(parts_->session.database);
}

}  // namespace shell
