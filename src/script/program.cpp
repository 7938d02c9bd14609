#include "script/program.h"

#include <filesystem>
#include <fstream>
#include <istream>
#include <memory>
#include <ostream>

#include "base/host/host_file_system.h"
#include "base/host/host_paths.h"
#include "script/interpreter.h"
#include "script/options.h"
#include "script/session_folders.h"
#include "script/stage.h"
#include "script/wrong_script.h"
#include "shell/settings_store.h"
#include "shell/version.h"

namespace script {
namespace {

int Play(const Options& options, std::istream& script, std::ostream& out, std::ostream& err) {
  const SessionFolders folders(options.folder, options.settings);
  base::HostFileSystem files;
  const std::string settings =
      base::ToDeskPath((folders.SettingsFolder() / "settings.txt").string());
  Stage stage(
      files, [&] { return std::make_unique<shell::SettingsStore>(files, settings); },
      base::ToDeskPath(folders.ProgramFolder().string()));
  stage.ports.region.order = options.date_order;
  const std::string name = options.script.empty() ? "-" : options.script;
  const Rules rules{.keep_going = options.keep_going, .strict = options.strict};
  return Interpreter(stage, name, rules, out, err).Run(script);
}

int PlayFile(const Options& options, std::ostream& out, std::ostream& err) {
  std::ifstream script(options.script);
  if (!script || std::filesystem::is_directory(options.script)) {
    throw WrongScript(options.script + " cannot be read");
  }
  return Play(options, script, out, err);
}

}  // namespace

int RunProgram(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out,
               std::ostream& err) {
  try {
    const Options options = ReadOptions(arguments);
    if (options.help) {
      out << kUsage;
      return kWholeScriptRan;
    }
    if (options.version) {
      constexpr shell::Version kVersion;
      out << "number-desk-script " << kVersion.major << '.' << kVersion.minor << '.'
          << kVersion.revision << '\n';
      return kWholeScriptRan;
    }
    return options.script.empty() ? Play(options, in, out, err) : PlayFile(options, out, err);
  } catch (const std::exception& error) {
    err << "number-desk-script: " << error.what() << std::endl;
    return kScriptWrong;
  }
}

}  // namespace script
