#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <map>
#include <memory>
#include <string>

#include "base/host/host_file_system.h"
#include "shell/desk.h"
#include "shell/settings_store.h"
#include "ui/platform/platform.h"
#include "ui/platform/single_desk.h"

class QWidget;

namespace ui {

class FrameView;

// The desk on the screen: the doors to the platform, the desk itself, and a view for each window
// that it shows.
class App : public QObject, public base::DesktopView {
  Q_OBJECT

 public:
  // `program_folder` and `settings_file` are paths of the host.
  App(const std::string& program_folder, const std::string& settings_file);
  ~App() override;

  // Starts the desk. It ends the application's event loop when its last window is gone.
  void Start();
  shell::Desk& Desk() { return desk_; }
  // The window that stands in front of all others of the desk comes to the front of the screen.
  void ComeToFront();
  // The view of an open window; null when it has none.
  QWidget* ViewOf(base::Form& form) const;

  void Shown(base::Form& form) override;
  void Raised(base::Form& form) override;
  void Unloaded(base::Form& form) override;
  void FocusMoved(base::Control* control) override;
  void PopUp(base::MenuItem& menu) override;

 private:
  void StoreRegion();
  void TryForLock();
  FrameView* Frame();

  base::HostFileSystem files_;
  shell::SettingsStore settings_;
  Platform platform_;
  shell::Desk desk_;
  std::map<base::Form*, QPointer<QWidget>> views_;
  QPointer<FrameView> frame_;
  QTimer lock_clock_;
};

// Runs the program; the exit code.
int RunProgram(int argc, char** argv);

}  // namespace ui
