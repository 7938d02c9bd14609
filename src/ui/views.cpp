#include "ui/views.h"

#include <algorithm>
#include <array>

#include "ui/windows/about_view.h"
#include "ui/windows/ball_selector_view.h"
#include "ui/windows/main_window_view.h"
#include "ui/windows/options_view.h"
#include "ui/windows/splash_view.h"
#include "ui/windows/wheel_view.h"

namespace ui {
namespace {

struct Maker {
  const char* window;
  QWidget* (*make)(shell::Desk& desk, base::Form& form, QWidget* owner);
};

template <typename View, typename Window>
QWidget* Make(shell::Desk& desk, base::Form& form, QWidget* owner) {
  return new View(desk, dynamic_cast<Window&>(form),
                  form.Role() == base::FormRole::kDialog ? owner : nullptr);
}

// The frame makes its own.
constexpr std::array kMakers{
    Maker{"MainWindow", Make<MainWindowView, main_window::MainWindow>},
    Maker{"FrmDropDown", Make<BallSelectorView, scan::FrmDropDown>},
    Maker{"FrmTxt", Make<WheelView, wheels::FrmTxt>},
    Maker{"frmSplash", Make<SplashView, shell::FrmSplash>},
    Maker{"FrmOptions", Make<OptionsView, shell::FrmOptions>},
    Maker{"frmAbout", Make<AboutView, shell::FrmAbout>},
};

}  // namespace

QWidget* MakeView(shell::Desk& desk, base::Form& form, QWidget* owner) {
  const auto* const maker =
      std::find_if(kMakers.begin(), kMakers.end(),
                   [&](const Maker& candidate) { return form.Name() == candidate.window; });
  return maker == kMakers.end() ? nullptr : maker->make(desk, form, owner);
}

}  // namespace ui
