#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <cmath>

#include "running_desk.h"
#include "ui/app.h"
#include "ui/bind/binder.h"
#include "ui/platform/platform.h"
#include "ui/theme/theme.h"
#include "ui/windows/frame_view.h"
#include "ui/windows/message_dialog.h"
#include "ui/windows/placement.h"

namespace ui {
namespace {

constexpr double kReadable = 4.5;

double Luminance(const QColor& colour) {
  const auto part = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
         0.0722 * part(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one);
  const double b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

}  // namespace

class DeskUi : public QObject {
  Q_OBJECT

 private slots:
  void TextIsReadableInBothPalettes();
  void FrameIsMovedOntoAPresentScreen();
  void RegionTellsTheOrderOfDayAndMonth();
  void EveryWidgetThatTakesTheFocusHasAName();
  void AltLettersOfAMenuAreUnique();
  void NoButtonCaptionIsCut();
  void NoButtonCaptionIsCutWithLargestText();
  void MenusHaveTheDesksEntries();
  void MessageBoxAnswersByItsButtonsAndEscape();
  void ThemeIsKeptInTheSettings();
  void TickingAnOptionReachesItsControl();
  void TypedKeysPassTheFilterOfTheBox();
  void TypingOverASelectionReplacesIt();
  void ClosingTheFrameEndsTheDesk();
  void ClosingTheFrameInsideAScanEndsTheDesk();
};

void DeskUi::TextIsReadableInBothPalettes() {
  const std::pair<Role, Role> pairs[] = {
      {Role::kText, Role::kWindow},     {Role::kText, Role::kCard},
      {Role::kText, Role::kTrack},      {Role::kText, Role::kSide},
      {Role::kText, Role::kShown},      {Role::kText, Role::kSelection},
      {Role::kDim, Role::kCard},        {Role::kDim, Role::kWindow},
      {Role::kDim, Role::kSide},        {Role::kDim, Role::kTrack},
      {Role::kAccent, Role::kCard},     {Role::kAccent, Role::kSelection},
      {Role::kOnAccent, Role::kAccent}, {Role::kOnBand, Role::kCold},
      {Role::kOnBand, Role::kWarm},     {Role::kOnBand, Role::kHot}};
  for (const bool dark : {false, true}) {
    for (const auto& [front, ground] : pairs) {
      const double contrast = Contrast(RoleColour(front, dark), RoleColour(ground, dark));
      QVERIFY2(contrast >= kReadable, qPrintable(QStringLiteral("role %1 on %2, dark %3: %4")
                                                     .arg(static_cast<int>(front))
                                                     .arg(static_cast<int>(ground))
                                                     .arg(dark)
                                                     .arg(contrast)));
    }
  }
}

void DeskUi::FrameIsMovedOntoAPresentScreen() {
  const QList<QRect> screens = {QRect(0, 0, 1280, 800), QRect(1280, 0, 1920, 1080)};
  const QRect fits(1300, 40, 1200, 820);
  QCOMPARE(OnScreen(fits, screens), fits);
  const QRect across(600, 10, 1200, 700);
  QCOMPARE(OnScreen(across, screens), across);
  QCOMPARE(OnScreen(QRect(5000, 5000, 1200, 820), screens), QRect(2000, 260, 1200, 820));
  QCOMPARE(OnScreen(QRect(-300, -300, 1200, 700), screens), QRect(0, 0, 1200, 700));
  QCOMPARE(OnScreen(QRect(0, 0, 4000, 3000), {QRect(0, 0, 1280, 800)}), QRect(0, 0, 1280, 800));
  QCOMPARE(OnScreen(fits, {}), fits);
}

void DeskUi::RegionTellsTheOrderOfDayAndMonth() {
  QCOMPARE(OrderOf("M/d/yy"), base::DateOrder::kMonthFirst);
  QCOMPARE(OrderOf("dd/MM/yyyy"), base::DateOrder::kDayFirst);
  QCOMPARE(OrderOf("yyyy-MM-dd"), base::DateOrder::kMonthFirst);
}

void DeskUi::EveryWidgetThatTakesTheFocusHasAName() {
  RunningDesk desk;
  CheckNames(desk);
}

void DeskUi::AltLettersOfAMenuAreUnique() {
  RunningDesk desk;
  QList<QList<QAction*>> levels = {desk.Frame().menuBar()->actions()};
  for (QMenu* menu : desk.Frame().findChildren<QMenu*>()) levels += menu->actions();
  for (const QList<QAction*>& level : levels) {
    QString letters;
    for (const QAction* action : level) {
      const qsizetype mark = action->text().indexOf(QLatin1Char('&'));
      if (mark < 0) continue;
      const QChar letter = action->text().at(mark + 1).toLower();
      QVERIFY2(!letters.contains(letter), qPrintable(action->text()));
      letters += letter;
    }
  }
}

void DeskUi::NoButtonCaptionIsCut() {
  RunningDesk desk;
  CheckCaptions(desk);
}

void DeskUi::NoButtonCaptionIsCutWithLargestText() {
  RunningDesk desk(QStringLiteral("Quorbit Number Desk|Settings|TextSize=Largest\n"));
  QCOMPARE(Theme::Current().CurrentTextSize(), TextSize::kLargest);
  CheckCaptions(desk);
  Theme::Current().SetTextSize(TextSize::kNormal);
}

void DeskUi::MenusHaveTheDesksEntries() {
  RunningDesk desk;
  QStringList menus;
  for (const QAction* action : desk.Frame().menuBar()->actions()) menus += action->text();
  QCOMPARE(menus.first(), QStringLiteral("&Tool Windows"));
  QCOMPARE(menus.last(), QStringLiteral("&Help"));
  QVERIFY(menus.contains(QStringLiteral("&View")));
}

void DeskUi::MessageBoxAnswersByItsButtonsAndEscape() {
  const auto answer = [](base::BoxButtons buttons, Qt::Key key) {
    MessageDialog dialog({.text = "Go on?\r\nReally?", .buttons = buttons}, nullptr);
    QTimer::singleShot(0, &dialog, [&dialog, key] { QTest::keyClick(&dialog, key); });
    return dialog.Ask();
  };
  QCOMPARE(answer(base::BoxButtons::kYesNo, Qt::Key_Return), base::Answer::kYes);
  QCOMPARE(answer(base::BoxButtons::kYesNo, Qt::Key_Escape), base::Answer::kNo);
  QCOMPARE(answer(base::BoxButtons::kYesNoCancel, Qt::Key_Escape), base::Answer::kCancel);
  QCOMPARE(answer(base::BoxButtons::kRetryCancel, Qt::Key_Return), base::Answer::kRetry);
  QCOMPARE(answer(base::BoxButtons::kOk, Qt::Key_Escape), base::Answer::kOk);
}

void DeskUi::ThemeIsKeptInTheSettings() {
  RunningDesk desk;
  Theme::Current().SetMode(Mode::kDark);
  QVERIFY(Theme::Current().Dark());
  QFile file(desk.home.filePath(QStringLiteral("settings.txt")));
  QVERIFY(file.open(QIODevice::ReadOnly));
  QVERIFY(file.readAll().contains("Quorbit Number Desk|Settings|Theme=Dark"));
  Theme::Current().SetMode(Mode::kLight);
  QVERIFY(!Theme::Current().Dark());
}

void DeskUi::TickingAnOptionReachesItsControl() {
  RunningDesk desk;
  desk.app->Desk().User().Choose(desk.app->Desk().Frame()->MnuOptions);
  base::Form* const form = desk.app->Desk().Find("FrmOptions");
  QVERIFY(form);
  QWidget* const view = desk.app->ViewOf(*form);
  QVERIFY(view && view->isVisible());
  auto& tips = static_cast<base::Tick&>(*form->Find("ChkMsgBox"));
  auto* const box = view->findChild<QAbstractButton*>(QStringLiteral("ChkMsgBox"));
  QVERIFY(box);
  QCOMPARE(box->isChecked(), tips.Value() == 1);
  const int before = tips.Value();
  box->click();
  QCOMPARE(tips.Value(), 1 - before);
  QCOMPARE(box->isChecked(), tips.Value() == 1);
  tips.SetValue(before);
  Binder::SyncAll();
  QCOMPARE(box->isChecked(), before == 1);
  view->close();
  QVERIFY(!desk.app->Desk().Find("FrmOptions"));
}

void DeskUi::TypedKeysPassTheFilterOfTheBox() {
  RunningDesk desk;
  base::TextBox& box = desk.app->Desk().Main()->TxtBall01;
  auto* const field = desk.Find<QLineEdit>("TxtBall01");
  QVERIFY(field);
  desk.Find<QAbstractButton>("cmdAdd")->click();
  Binder::SyncAll();
  box.SetText("");
  Binder::SyncAll();
  QTest::keyClicks(field, QStringLiteral("x4"));
  QCOMPARE(box.Text(), "4");
  QCOMPARE(field->text(), QStringLiteral("4"));
  QTest::keyClick(field, Qt::Key_Backspace);
  QCOMPARE(box.Text(), "");
}

void DeskUi::TypingOverASelectionReplacesIt() {
  RunningDesk desk;
  base::TextBox& box = desk.app->Desk().Main()->TxtBall01;
  auto* const field = desk.Find<QLineEdit>("TxtBall01");
  desk.Find<QAbstractButton>("cmdAdd")->click();
  box.SetText("35");
  Binder::SyncAll();
  field->setFocus();
  field->selectAll();
  QTest::keyClicks(field, QStringLiteral("x"));
  QCOMPARE(box.Text(), "35");
  QTest::keyClicks(field, QStringLiteral("4"));
  QCOMPARE(box.Text(), "4");
  QCOMPARE(field->text(), QStringLiteral("4"));
}

void DeskUi::ClosingTheFrameEndsTheDesk() {
  RunningDesk desk;
  QVERIFY(!desk.app->Desk().Ended());
  desk.Frame().close();
  QVERIFY(desk.app->Desk().Ended());
  QCoreApplication::processEvents();
}

// The close arrives in a yield of the scan, which then has no window left to work on.
void DeskUi::ClosingTheFrameInsideAScanEndsTheDesk() {
  RunningDesk desk;
  FrameView& frame = desk.Frame();
  auto* const scan = desk.Find<QAbstractButton>("CmdScan");
  QVERIFY(scan);
  QTest::qWait(10);  // so that the next yield looks at the window system
  QTimer::singleShot(0, &frame, [&frame] { frame.close(); });
  scan->click();
  QVERIFY(desk.app->Desk().Ended());
  QCoreApplication::processEvents();
}

}  // namespace ui

QTEST_MAIN(ui::DeskUi)
#include "desk_ui_test.moc"
