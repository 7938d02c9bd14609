#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLocalServer>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <fstream>
#include <memory>

#include "base/host/host_file_system.h"
#include "running_desk.h"
#include "ui/platform/single_desk.h"

namespace ui {
namespace {

using Place = SingleDesk::Place;

QString DatabaseOf(const RunningDesk& desk) {
  return desk.home.filePath(QStringLiteral("DataBases/UK-National-Lottery.dat"));
}

qint64 SizeOf(const RunningDesk& desk) { return QFileInfo(DatabaseOf(desk)).size(); }

QString NoticesOf(RunningDesk& desk) {
  QCoreApplication::processEvents();
  desk.Frame().RefreshStatus();
  return desk.Find<QLabel>("StatusNotices")->accessibleName();
}

void Remove(RunningDesk& desk, int row) {
  main_window::MainWindow& window = *desk.app->Desk().Main();
  desk.app->Desk().User().Pick(window.ListView1, row);
  desk.app->Desk().User().Click(window.Command18);
}

// The link of this text is followed by the keyboard.
void FollowLink(RunningDesk& desk, const QString& text) {
  auto* const notices = desk.Find<QLabel>("StatusNotices");
  const QString rich = notices->text();
  const qsizetype end = rich.indexOf(QLatin1Char('>') + text + QLatin1String("</a>"));
  QVERIFY(end > 0);
  const qsizetype start = rich.lastIndexOf(QLatin1String("href=\""), end) + 6;
  emit notices->linkActivated(rich.mid(start, rich.indexOf(QLatin1Char('"'), start) - start));
}

// A desk that starts on the folder while this one goes on.
Place PlaceOfAnother(const QString& folder) {
  Place place = Place::kFirst;
  const std::unique_ptr<QThread> other(QThread::create([&] {
    SingleDesk desk(folder);
    place = desk.Take();
  }));
  other->start();
  while (!other->isFinished()) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
  return place;
}

class TrustUiTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { QStandardPaths::setTestModeEnabled(true); }
  void ARemovalIsToldAndCanBeTakenBack();
  void ARemovalIsStoredByItsLink();
  void NothingPendingIsForgottenWhenAnotherWindowComesToTheFront();
  void ADatabaseInUseIsToldUntilItIsFree();
  void TheFirstStartStoresTheMachinesDateOrder();
  void ASecondDeskBringsTheFirstToTheFront();
  void ADeskThatDoesNotAnswerIsUnheard();
  void WhatAKilledDeskLeftIsNoDesk();
  void TwoFoldersAreTwoDesks();
};

void TrustUiTest::ARemovalIsToldAndCanBeTakenBack() {
  RunningDesk desk;
  const qint64 size = SizeOf(desk);
  QCOMPARE(NoticesOf(desk), QStringLiteral("Nothing was changed"));
  Remove(desk, 3);
  QCOMPARE(NoticesOf(desk), QStringLiteral("1 removal not stored yet. Store now, "
                                           "Draw of 03/12/94 removed. Undo"));
  FollowLink(desk, QStringLiteral("Undo"));
  QCOMPARE(NoticesOf(desk), QStringLiteral("Nothing was changed"));
  QCOMPARE(desk.app->Desk().Main()->ListView1.RowCount(), 2065);
  QCOMPARE(SizeOf(desk), size);
}

void TrustUiTest::ARemovalIsStoredByItsLink() {
  RunningDesk desk;
  const qint64 size = SizeOf(desk);
  Remove(desk, 3);
  NoticesOf(desk);
  FollowLink(desk, QStringLiteral("Store now"));
  QCOMPARE(SizeOf(desk), size - 44);
  QCOMPARE(NoticesOf(desk), QStringLiteral("Draw of 03/12/94 removed. Undo"));
  FollowLink(desk, QStringLiteral("Undo"));
  QCOMPARE(SizeOf(desk), size);
}

// The main window's activation forgets what waits in the table; on the screen it is stored before.
void TrustUiTest::NothingPendingIsForgottenWhenAnotherWindowComesToTheFront() {
  RunningDesk desk;
  const qint64 size = SizeOf(desk);
  Remove(desk, 3);
  desk.app->Desk().User().Choose(desk.app->Desk().Frame()->MnuOptions);
  QCOMPARE(SizeOf(desk), size - 44);
  desk.app->Desk().User().Close(*desk.app->Desk().Find("FrmOptions"));
}

void TrustUiTest::ADatabaseInUseIsToldUntilItIsFree() {
  base::HostFileSystem files;
  RunningDesk first;
  base::LockAttempt script;
  // A script has the database of this second folder.
  RunningDesk desk;
  desk.app->Desk().User().Close(*desk.app->Desk().Main());
  desk.app->Desk().Session().database.Close();
  script = files.TryLock(
      (desk.home.path() + QStringLiteral("/DataBases/.UK-National-Lottery.lock")).toStdString());
  QVERIFY(script.lock != nullptr);
  desk.app->Desk().User().Choose(desk.app->Desk().Frame()->MnuMainWindow);
  QCOMPARE(NoticesOf(desk), QStringLiteral("In use by another desk: nothing can be stored"));
  script.lock.reset();
  QTRY_COMPARE(desk.Find<QLabel>("StatusNotices")->accessibleName(),
               QStringLiteral("Nothing was changed"));
}

void TrustUiTest::TheFirstStartStoresTheMachinesDateOrder() {
  const auto stored = [](const RunningDesk& desk) {
    std::ifstream file(desk.home.filePath(QStringLiteral("settings.txt")).toStdString());
    return std::string(std::istreambuf_iterator<char>(file), {});
  };
  RunningDesk fresh;
  const bool day_first = ScreenRegion().Dates() == base::DateOrder::kDayFirst;
  QVERIFY(stored(fresh).find(day_first ? "|Region=DD/MM/YY\n" : "|Region=MM/DD/YY\n") !=
          std::string::npos);
  RunningDesk kept(day_first ? QStringLiteral("Velmonte|390|Region=MM/DD/YY\n")
                             : QStringLiteral("Velmonte|390|Region=DD/MM/YY\n"));
  QVERIFY(stored(kept).find(day_first ? "|Region=DD/MM/YY" : "|Region=MM/DD/YY") ==
          std::string::npos);
}

void TrustUiTest::ASecondDeskBringsTheFirstToTheFront() {
  QTemporaryDir folder;
  SingleDesk first(folder.path());
  QCOMPARE(first.Take(), Place::kFirst);
  bool called = false;
  connect(&first, &SingleDesk::Called, this, [&called] { called = true; });
  QCOMPARE(PlaceOfAnother(folder.path()), Place::kSecond);
  QVERIFY(called);
}

void TrustUiTest::ADeskThatDoesNotAnswerIsUnheard() {
  QTemporaryDir folder;
  SingleDesk first(folder.path());
  QCOMPARE(first.Take(), Place::kFirst);
  SingleDesk second(folder.path());  // while this waits, the first cannot answer
  QCOMPARE(second.Take(), Place::kUnheard);
}

void TrustUiTest::WhatAKilledDeskLeftIsNoDesk() {
  QTemporaryDir folder;
  QString name;
  {
    SingleDesk killed(folder.path());
    QCOMPARE(killed.Take(), Place::kFirst);
    name = killed.SocketName();
  }
  QFile left(name);
  QVERIFY(left.open(QIODevice::WriteOnly));
  left.close();
  SingleDesk next(folder.path());
  QCOMPARE(next.Take(), Place::kFirst);
  QCOMPARE(PlaceOfAnother(folder.path()), Place::kSecond);
}

void TrustUiTest::TwoFoldersAreTwoDesks() {
  QTemporaryDir one;
  QTemporaryDir two;
  SingleDesk first(one.path());
  SingleDesk second(two.path());
  QCOMPARE(first.Take(), Place::kFirst);
  QCOMPARE(second.Take(), Place::kFirst);
}

}  // namespace
}  // namespace ui

QTEST_MAIN(ui::TrustUiTest)
#include "trust_ui_test.moc"
