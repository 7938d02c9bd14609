#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/form.h"
#include "base/controls/simple_controls.h"
#include "base/ports/ports.h"

namespace base {

// Thrown by Desktop::YieldFor when the window of the running procedure was closed in the yield. It
// ends the procedure silently and is no Error: no trap takes it.
struct WindowClosed {};

// What shows the windows. Every method may be left alone.
class DesktopView {
 public:
  virtual ~DesktopView() = default;
  virtual void Shown(Form& /*form*/) {}
  virtual void Raised(Form& /*form*/) {}
  virtual void Unloaded(Form& /*form*/) {}
  virtual void FocusMoved(Control* /*control*/) {}
  virtual void PopUp(MenuItem& /*menu*/) {}
};

// The window system as data: which windows are open and in front, which control has the focus, and
// the place where every event enters the desk.
class Desktop {
 public:
  explicit Desktop(Ports ports) : ports_(ports) {}

  Ports& World() { return ports_; }
  void SetView(DesktopView* view) { view_ = view; }
  DesktopView& View() { return view_ ? *view_ : quiet_view_; }

  // Runs Form_Load if the window is not loaded.
  void Load(Form& form);
  // Loads, shows and brings to the front; the activation event runs unless it stood there already.
  void Show(Form& form);
  // The user's switch to an open window: to the front, and its activation event.
  void Activate(Form& form);
  void BringToFront(Form& form);
  // Runs Form_Unload and takes the window off the desktop.
  void Unload(Form& form);
  // The user's closing of a window. While one is held that would go with it, this waits until the
  // event is over that holds it.
  void Close(Form& form);
  // Loaded windows, front first.
  const std::vector<Form*>& OpenForms() const { return open_; }
  // The same in the order in which they were loaded.
  const std::vector<Form*>& LoadOrder() const { return load_order_; }

  // --- Windows by name (any case). Each exists at most once: it is made when it is first asked for
  // and given up when it is unloaded; it lives on until no event procedure can be using it.

  using Maker = std::function<std::shared_ptr<Form>()>;
  void Add(std::string name, Maker make);
  // Error 5 for a name that was not added.
  Form& Window(std::string_view name);
  // Null while it does not exist.
  Form* Existing(std::string_view name) const;
  void Show(std::string_view name) { Show(Window(name)); }
  bool IsLoaded(std::string_view name) const;
  // Gives every window up as it is, before what it works with goes.
  void DropWindows() { places_.clear(); }
  // Unloads every window but this one, the last loaded first. One that fails to close does not keep
  // the others open.
  void UnloadAllBut(const Form& form);

  Control* Focused() const { return focused_; }
  // Lost-focus of the old control, then got-focus of the new one. Controls that take no focus or
  // are disabled are passed over.
  void SetFocus(Control& control);
  // The next control in the order of the window that can take the focus.
  void FocusNext();
  // Asks for a Tab key once the running key has done its work.
  void SendTab() { ++tabs_sent_; }
  // Moves the focus on for each Tab asked for.
  void TakeSentTabs();
  void DropSentTabs() { tabs_sent_ = 0; }

  // Runs one event. An Error that no trap takes is shown as a run-time error and ends the event.
  void Dispatch(const std::function<void()>& event);
  // Lets pending events run, nested in the running procedure.
  void Yield();
  // The same for a procedure of this window: throws WindowClosed if the yield closed it.
  void YieldFor(const Form& form);
  // Whether a procedure is waiting in a yield for the running event.
  bool IsYielding() const { return yields_ > 0; }
  // How many events are running inside each other.
  int Depth() const { return depth_; }

  // While this lives no event closes the window: a procedure of it must come to its end, although
  // it yields.
  class Hold {
   public:
    Hold(Desktop& desktop, const Form& form) : desktop_(desktop) {
      desktop_.held_.push_back(&form);
    }
    ~Hold() { desktop_.held_.pop_back(); }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    Desktop& desktop_;
  };
  bool IsHeld(const Form& form) const;

 private:
  Ports ports_;
  DesktopView* view_ = nullptr;
  DesktopView quiet_view_;
  std::vector<Form*> open_;
  std::vector<Form*> load_order_;
  Control* focused_ = nullptr;
  struct Place {
    std::string name;
    Maker make;
    std::shared_ptr<Form> window;
  };
  std::vector<Place> places_;

  const Place* Find(std::string_view name) const;
  void GiveUp(const Form& form);
  void CloseWaiting();

  std::vector<const Form*> held_;
  std::vector<Form*> waiting_to_close_;
  int depth_ = 0;
  int yields_ = 0;
  int tabs_sent_ = 0;
  std::vector<std::shared_ptr<Form>> buried_;
};

// A window by its name, for whoever works in it as what it is.
template <typename T>
class WindowOf {
 public:
  WindowOf(Desktop& desktop, std::string name) : desktop_(desktop), name_(std::move(name)) {}
  T& Get() const { return dynamic_cast<T&>(desktop_.Window(name_)); }
  T* Peek() const { return dynamic_cast<T*>(desktop_.Existing(name_)); }

 private:
  Desktop& desktop_;
  std::string name_;
};

}  // namespace base
