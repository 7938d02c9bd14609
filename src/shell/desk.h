#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/controls/user.h"
#include "base/windows/desktop.h"
#include "main/main_window.h"
#include "shell/frame_window.h"
#include "shell/notices.h"
#include "shell/small_windows.h"
#include "store/session.h"
#include "wheels/wheel_wizard.h"

namespace shell {

// The whole desk without a screen: its windows, its shared state and the road from start to end.
class Desk {
 public:
  // `program_folder` is the host folder that holds DataBases, as a path of the desk. The ports must
  // outlive the desk.
  Desk(base::Ports ports, std::string program_folder);
  ~Desk();

  // Opens the splash window, which goes on to the frame by itself if the settings say so.
  void Start();
  // The user closes the frame: placement is stored, all windows are unloaded from the last opened
  // to the first. Does nothing when the frame is closed already.
  void Stop();
  // True once the frame has been closed (or the splash before the frame came up).
  bool Ended() const;

  base::Desktop& Desktop();
  base::User& User();
  store::Session& Session();

  // The loaded window of this name (any case); null when it is not open.
  base::Form* Find(std::string_view name);
  // The instances that views are made for; null while they do not exist.
  FrmMain* Frame();
  main_window::MainWindow* Main();
  wheels::WheelWizard* Wheels();
  // What the wheel window holds, or held when it was last open.
  const wheels::WheelState& WheelState() const;

  // Writes what waits in the table of draws to the file. Does nothing without a main window, and
  // while a procedure of it runs that changes draws.
  void StorePending();
  // Takes the last change of a draw back; the text tells which, and is empty where none was.
  std::string Undo();
  // The names of the earlier states kept of the open database, the newest first.
  std::vector<std::string> Earlier();
  // Tries for a database that another desk holds; true when it is this desk's from now on.
  bool TryForLock();
  // What the status bar has to tell of the open database.
  std::vector<Notice> Notices();

 private:
  void TellUnreadableSettings();

  struct Parts;
  std::unique_ptr<Parts> parts_;
};

}  // namespace shell
