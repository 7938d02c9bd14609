// How the desk feels on a screen with 32,767 draws: a full scan through the window, the longest
// time in which the window answers nothing, and the start to the first painted window.
//
//     screen_bench DATA-FOLDER        on the display that is set

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "base/host/host_file_system.h"
#include "shell/settings_store.h"
#include "support/temp_folder.h"
#include "support/test_desk.h"
#include "ui/app.h"

namespace {

constexpr int kDraws = 32767;

// A program folder of the delivered files whose first database is this long (0 leaves it alone).
void Prepare(const test::TempFolder& folder, const char* data, int draws) {
  std::filesystem::copy(data, folder.Path(), std::filesystem::copy_options::recursive);
  base::HostFileSystem files;
  if (draws > 0) {
    files.Replace(folder.Path() + "/DataBases/UK-National-Lottery.dat",
                  test::Encode(test::SampleDraws(draws)));
  }
  shell::SettingsStore settings(files, folder.Path() + "/settings.txt");
  settings.Save("Velmonte", "390", "Tips", "False");
  settings.Save("Velmonte", "390", "SplashScreen", "1");
}

void MeasureStart(const char* data) {
  const test::TempFolder folder;
  Prepare(folder, data, 0);
  QElapsedTimer clock;
  clock.start();
  ui::App app(folder.Path(), folder.Path() + "/settings.txt");
  app.Start();
  QCoreApplication::processEvents();
  std::printf("start to first painted window   %5lld ms\n",
              static_cast<long long>(clock.elapsed()));
  app.Desk().Stop();
  // The views go before the desk that they show.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void MeasureScan(const char* data) {
  const test::TempFolder folder;
  Prepare(folder, data, kDraws);
  ui::App app(folder.Path(), folder.Path() + "/settings.txt");
  app.Start();
  QCoreApplication::processEvents();

  // A timer that fires in every pumping shows how long the window was silent in between.
  QElapsedTimer silence;
  qint64 longest = 0;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout,
                   [&] { longest = std::max(longest, silence.restart()); });
  QElapsedTimer clock;
  clock.start();
  silence.start();
  watch.start(0);
  app.Desk().User().Click(app.Desk().Main()->CmdScan);
  std::printf("scan of %d draws with window %5lld ms, longest silence %lld ms\n", kDraws,
              static_cast<long long>(clock.elapsed()), static_cast<long long>(longest));
  app.Desk().Stop();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: screen_bench DATA-FOLDER\n", stderr);
    return 2;
  }
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  MeasureStart(argv[1]);
  MeasureScan(argv[1]);
  return 0;
}
