// Makes every picture of the documents from the program itself, so that none goes stale.
//
//     QT_QPA_PLATFORM=offscreen make-pictures DATA-FOLDER PICTURES-FOLDER

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <functional>
#include <memory>

#include "scan/ball_selector.h"
#include "shell/program_folder.h"
#include "ui/app.h"
#include "ui/bind/binder.h"
#include "ui/theme/theme.h"
#include "ui/windows/help_view.h"
#include "ui/windows/message_dialog.h"
#include "wheels/wheel_window.h"

namespace {

constexpr int kSettle = 250;  // milliseconds for the bars to come to rest

constexpr QSize kFrame(1200, 820);  // the frame's first size

QDir pictures;

// The palette that the pictures are made in.
struct Palette {
  const char* suffix;  // of the pictures' names
  const char* setting;
};
constexpr Palette kPalettes[] = {{"", ""}, {"-dark", "Quorbit Number Desk|Settings|Theme=Dark\n"}};
const Palette* palette = nullptr;

void Settle() {
  QEventLoop loop;
  QTimer::singleShot(kSettle, &loop, &QEventLoop::quit);
  loop.exec();
}

void Keep(QWidget* widget, const char* name) {
  ui::Binder::SyncAll();
  QCoreApplication::processEvents();
  const QString file = pictures.filePath(QLatin1String(name) + QLatin1String(palette->suffix) +
                                         QStringLiteral(".png"));
  std::printf("%s\n", qPrintable(file));
  if (!widget || !widget->grab().save(file)) std::printf("  could not be made\n");
}

// A desk on the delivered databases, with settings of its own.
class Scene {
 public:
  Scene(const QString& data, const QByteArray& settings) {
    shell::DeliverFiles(data.toStdString(), home_.path().toStdString());
    QFile file(home_.filePath(QStringLiteral("settings.txt")));
    if (file.open(QIODevice::WriteOnly)) file.write(settings + palette->setting);
    file.close();
    app_ = std::make_unique<ui::App>(home_.path().toStdString(), file.fileName().toStdString());
    app_->Start();
    if (app_->Desk().Frame()) FrameView()->resize(kFrame);
    Settle();
  }
  ~Scene() {
    app_->Desk().Stop();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  base::User& User() { return app_->Desk().User(); }
  main_window::MainWindow& Main() { return *app_->Desk().Main(); }
  shell::FrmMain& Frame() { return *app_->Desk().Frame(); }
  QWidget* FrameView() { return app_->ViewOf(Frame()); }
  base::Form& Window(const char* name) { return *app_->Desk().Find(name); }
  QWidget* ViewOf(const char* window) { return app_->ViewOf(Window(window)); }
  void Close(const char* window) { User().Close(Window(window)); }
  void KeepFrame(const char* name) {
    Settle();
    Keep(FrameView(), name);
  }

 private:
  QTemporaryDir home_;
  std::unique_ptr<ui::App> app_;
};

constexpr const char* kStart = "Velmonte|390|SplashScreen=1\nVelmonte|390|Tips=False\n";

// Keeps the box that `act` brings up, then presses its first button.
void KeepBox(const char* name, const std::function<void()>& act) {
  QTimer::singleShot(kSettle, [name] {
    QWidget* const box = QApplication::activeModalWidget();
    Keep(box, name);
    if (box) box->close();
  });
  act();
}

void MakeSplash(const QString& data) {
  Scene scene(data, "");
  Keep(scene.ViewOf("frmSplash"), "splash");
}

// The main window before, during and after a scan, and its panels.
void MakeMainWindow(const QString& data) {
  Scene scene(data, kStart);
  scene.KeepFrame("main-before");
  QTimer during;
  int beats = 0;
  QObject::connect(&during, &QTimer::timeout, [&] {
    if (++beats == 1) Keep(scene.FrameView(), "main-during");
  });
  during.start(0);
  scene.User().Click(scene.Main().CmdScan);
  during.stop();
  scene.KeepFrame("main-after");

  scene.User().Click(scene.Main().Label5);
  scene.KeepFrame("graph-options");
  scene.User().Pick(scene.Main().LstGraphStyles, 2);
  scene.KeepFrame("style-cold-hot");
  scene.User().Pick(scene.Main().LstGraphStyles, 0);
  scene.KeepFrame("style-blue");
  scene.User().Pick(scene.Main().LstGraphStyles, 1);
  scene.User().Click(scene.Main().Label4);
  for (int k = 0; k < 6; ++k) scene.Main().Txtb1(k).SetText(std::to_string(5 + 7 * k));
  scene.User().Click(scene.Main().Labscanwinners);
  scene.KeepFrame("combinations");
  scene.User().Click(scene.Main().Label8);
  scene.User().Click(scene.Main().OpScanRange);
  scene.KeepFrame("scan-filter");
  scene.User().Click(scene.Main().Label3);
  scene.User().Pick(scene.Main().ListView1, 5);
  scene.User().DoubleClick(scene.Main().ListView1);
  scene.KeepFrame("row-editor");
  scene.User().Click(scene.Main().CmdCancelSave);
  scene.User().Click(scene.Main().cmdAdd);
  scene.User().Type(scene.Main().TxtBall01, "0312192735");
  scene.KeepFrame("entry");
}

void MakeDialogs(const QString& data) {
  Scene scene(data, kStart);
  scene.User().Choose(scene.Frame().MnuOptions);
  Settle();
  Keep(scene.ViewOf("FrmOptions"), "options");
  scene.Close("FrmOptions");
  scene.User().Choose(scene.Frame().mnuHelpAbout);
  Settle();
  Keep(scene.ViewOf("frmAbout"), "about");
  scene.Close("frmAbout");

  scene.User().Choose(scene.Frame().mnuHelpContents);
  Settle();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (qobject_cast<ui::HelpView*>(window) && window->isVisible()) Keep(window, "help");
  }
  scene.Main().ProgressBar1(1).SetValue(40000);
  KeepBox("error", [&] { scene.User().Pick(scene.Main().Combo11, 0); });
}

void MakeBallSelector(const QString& data) {
  Scene scene(data, kStart);
  scene.User().Choose(scene.Frame().MnuNumberSelector);
  auto& board = static_cast<scan::FrmDropDown&>(scene.Window("FrmDropDown"));
  scene.User().Click(board.CmdScan);
  scene.KeepFrame("ball-selector");
}

// The road from a scan to the wheel, step by step.
void MakeWheels(const QString& data) {
  Scene scene(data, kStart);
  base::User& user = scene.User();
  user.Click(scene.Main().CmdScan);
  user.Click(scene.Main().lblbuttons(2));
  auto& wheel = static_cast<wheels::FrmTxt&>(scene.Window("FrmTxt"));
  scene.KeepFrame("wheel-start");
  user.Click(wheel.Label11(1));
  user.Click(wheel.cmdwizardp(0));
  user.Pick(wheel.List2, 5);
  scene.KeepFrame("wheel-chosen");
  user.Pick(wheel.List1, 6);
  user.Click(wheel.cmdwizar(1));
  scene.KeepFrame("wheel-numbers");
  user.Click(wheel.cmdwizard(0));
  user.Click(wheel.cmdwizard(1));
  scene.KeepFrame("wheel-made");
  user.DoubleClick(wheel.TXTActiveNumbers(2));
  user.Click(wheel.TXTActiveNumbers(2));
  scene.KeepFrame("wheel-quick-numbers");
  user.Click(wheel.Label8);
  user.Pick(wheel.List2, wheel.List2.ListCount() - 1);
  user.Click(wheel.cmdwizard(1));
  scene.KeepFrame("wheel-largest");
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  if (argc != 3) {
    std::fputs("usage: make-pictures DATA-FOLDER PICTURES-FOLDER\n", stderr);
    return 2;
  }
  const QString data = QString::fromLocal8Bit(argv[1]);
  pictures = QDir(QString::fromLocal8Bit(argv[2]));
  pictures.mkpath(QStringLiteral("."));
  ui::Theme::Current();
  for (const Palette& each : kPalettes) {
    palette = &each;
    MakeSplash(data);
    MakeMainWindow(data);
    MakeDialogs(data);
    MakeBallSelector(data);
    MakeWheels(data);
  }
  return 0;
}
