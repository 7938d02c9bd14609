#pragma once

#include <functional>
#include <memory>
#include <string>

#include "base/controls/form.h"
#include "script/line_parser.h"
#include "script/ports.h"
#include "shell/desk.h"

namespace script {

// What a script plays on: one desk after the other on the same folder and settings, with the
// script behind its doors.
class Stage {
 public:
  // Opens the stored preferences anew, as each process of the desk does.
  using OpenSettings = std::function<std::unique_ptr<base::Settings>()>;

  // The disk must outlive the stage. The folder is a path of the desk.
  Stage(base::FileSystem& files, OpenSettings open_settings, std::string program_folder)
      : files_(files),
        open_settings_(std::move(open_settings)),
        program_folder_(std::move(program_folder)),
        settings_(open_settings_()) {}

  ScriptedPorts ports;
  int line = 0;  // of the script, the one that is played
  base::FileSystem& Files() { return files_; }
  base::Settings& Settings() { return *settings_; }
  // A path of the desk below the program folder.
  std::string PathOf(const std::string& name) const { return program_folder_ + "/" + name; }

  // A new process of the desk, up to its idle message loop or to the splash window. Throws
  // WrongScript while one is running.
  void Start(bool wait_in_splash);
  // The user closes the frame.
  void Stop();

  // The desk last started; it can be asked after its end. Throws WrongScript before the first
  // start.
  shell::Desk& Desk();
  bool Started() const { return desk_ != nullptr; }
  // Throw WrongScript when there is no such window, not loaded, or no such control.
  base::Form& Window(const std::string& name);
  // A reference to a window alone, or with a property, is none to a control.
  base::Control& Control(const Reference& reference);

 private:
  base::FileSystem& files_;
  const OpenSettings open_settings_;
  const std::string program_folder_;
  std::unique_ptr<base::Settings> settings_;
  std::unique_ptr<shell::Desk> desk_;
};

// The control that a reference names in its window; null when there is none.
base::Control* FindControl(const base::Form& window, const Reference& reference);

}  // namespace script
