#include "base/windows/desktop.h"

#include <algorithm>

#include "base/language/error.h"
#include "base/language/text.h"

namespace base {
namespace {

std::string RunTimeErrorText(const Error& error) {
  return "Run-time error '" + std::to_string(error.Number()) + "':" + std::string(kLineBreak) +
         std::string(kLineBreak) + error.Description();
}

}  // namespace

void Desktop::Load(Form& form) {
  if (form.Loaded()) return;
  form.SetLoaded(true);
  open_.insert(open_.begin(), &form);
  load_order_.push_back(&form);
  if (form.on.load) form.on.load();
}

void Desktop::Show(Form& form) {
  Load(form);
  if (!form.Loaded()) return;  // its own load may have closed it
  const bool shown_before = form.Visible();
  if (shown_before && open_.front() == &form) return;
  form.SetVisible(true);
  if (!shown_before) View().Shown(form);
  Activate(form);
}

void Desktop::Activate(Form& form) {
  if (!form.Loaded()) return;
  BringToFront(form);
  if (!form.on.activate) return;
  try {
    form.on.activate();
  } catch (const WindowClosed&) {
    // Its own activation ended with it; whoever shows the window goes on.
    if (form.Loaded()) throw;
  }
}

void Desktop::BringToFront(Form& form) {
  const auto place = std::find(open_.begin(), open_.end(), &form);
  if (place == open_.end()) return;
  // The frame is the ground that the working windows and dialogs stand on.
  if (form.Role() == FormRole::kFrame) {
    std::rotate(place, place + 1, open_.end());
  } else {
    std::rotate(open_.begin(), place, place + 1);
  }
  View().Raised(form);
}

void Desktop::Unload(Form& form) {
  if (!form.Loaded()) return;
  std::erase(waiting_to_close_, &form);
  if (form.on.unload) form.on.unload();
  std::erase(waiting_to_close_, &form);  // a box in there may have let another closing in
  form.SetLoaded(false);
  form.SetVisible(false);
  std::erase(open_, &form);
  std::erase(load_order_, &form);
  if (focused_ && &focused_->Window() == &form) {
    focused_ = nullptr;
    View().FocusMoved(nullptr);
  }
  View().Unloaded(form);
  GiveUp(form);
}

bool Desktop::IsHeld(const Form& form) const {
  const bool takes_all = form.Role() == FormRole::kFrame && !held_.empty();
  return takes_all || std::find(held_.begin(), held_.end(), &form) != held_.end();
}

void Desktop::Close(Form& form) {
  if (IsHeld(form)) {
    waiting_to_close_.push_back(&form);
  } else {
    Unload(form);
  }
}

void Desktop::CloseWaiting() {
  const auto now = std::find_if(waiting_to_close_.begin(), waiting_to_close_.end(),
                                [this](const Form* form) { return !IsHeld(*form); });
  if (now == waiting_to_close_.end()) return;
  Form& form = **now;
  std::erase(waiting_to_close_, &form);
  Dispatch([&] { Unload(form); });
}

// --- Windows by name

void Desktop::Add(std::string name, Maker make) {
  places_.push_back({.name = std::move(name), .make = std::move(make), .window = nullptr});
}

const Desktop::Place* Desktop::Find(std::string_view name) const {
  const auto place = std::find_if(places_.begin(), places_.end(), [&](const Place& candidate) {
    return EqualNoCase(candidate.name, name);
  });
  return place == places_.end() ? nullptr : &*place;
}

Form& Desktop::Window(std::string_view name) {
  const Place* const found = Find(name);
  if (!found) throw Error(kInvalidCall);
  Place& place = places_[static_cast<std::size_t>(found - places_.data())];
  if (!place.window) place.window = place.make();
  return *place.window;
}

Form* Desktop::Existing(std::string_view name) const {
  const Place* const place = Find(name);
  return place ? place->window.get() : nullptr;
}

bool Desktop::IsLoaded(std::string_view name) const {
  const Form* const form = Existing(name);
  return form && form->Loaded();
}

void Desktop::UnloadAllBut(const Form& form) {
  const std::vector<Form*> windows = load_order_;
  for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
    if (*window == &form) continue;
    try {
      Unload(**window);
    } catch (const Error&) {
      // The others close all the same.
    }
  }
}

void Desktop::GiveUp(const Form& form) {
  for (Place& place : places_) {
    if (place.window.get() != &form) continue;
    if (depth_ > 0) buried_.push_back(place.window);
    place.window.reset();
  }
}

// --- Focus and events

void Desktop::SetFocus(Control& control) {
  if (&control == focused_ || !control.TakesFocus() || !control.Enabled()) return;
  Control* const old = focused_;
  focused_ = &control;
  if (old && old->on.lost_focus) old->on.lost_focus();
  if (focused_ == &control && control.on.got_focus) control.on.got_focus();
  View().FocusMoved(focused_);
}

void Desktop::FocusNext() {
  if (!focused_) return;
  const auto& controls = focused_->Window().Controls();
  const auto start = std::find(controls.begin(), controls.end(), focused_) - controls.begin();
  const auto count = static_cast<std::ptrdiff_t>(controls.size());
  for (std::ptrdiff_t step = 1; step < count; ++step) {
    Control& next = *controls[static_cast<std::size_t>((start + step) % count)];
    if (!next.TakesFocus() || !next.Enabled() || !next.Visible()) continue;
    SetFocus(next);
    return;
  }
}

void Desktop::TakeSentTabs() {
  for (; tabs_sent_ > 0; --tabs_sent_) FocusNext();
}

void Desktop::Dispatch(const std::function<void()>& event) {
  ++depth_;
  try {
    event();
  } catch (const Error& error) {
    ports_.boxes.Ask({.text = RunTimeErrorText(error), .icon = BoxIcon::kCritical});
  } catch (const WindowClosed&) {
    // The procedure's window is gone, and with it what it was doing.
  } catch (...) {
    --depth_;
    throw;
  }
  if (--depth_ == 0) buried_.clear();
  CloseWaiting();
}

void Desktop::Yield() {
  struct Waiting {
    explicit Waiting(int& yields) : yields(yields) { ++yields; }
    ~Waiting() { --yields; }
    int& yields;
  };
  const Waiting waiting(yields_);
  ports_.pump.Pump();
}

void Desktop::YieldFor(const Form& form) {
  Yield();
  if (!form.Loaded()) throw WindowClosed();
}

}  // namespace base
