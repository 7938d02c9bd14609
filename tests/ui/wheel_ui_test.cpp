#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QTableView>

#include "running_desk.h"
#include "ui/bind/binder.h"
#include "ui/theme/theme.h"
#include "wheels/wheel_wizard.h"

namespace ui {
namespace {

// A desk after a scan, the wheel window in front.
struct WheelDesk : RunningDesk {
  explicit WheelDesk(const QString& settings = {}) : RunningDesk(settings) {
    base::User& user = app->Desk().User();
    user.Click(app->Desk().Main()->CmdScan);
    Frame().resize(1200, 770);
    Settle();
    Find<QPushButton>("lblbuttons(2)")->click();
    Settle();
  }
  wheels::WheelWizard& Window() { return *app->Desk().Wheels(); }
  QLineEdit* Box(int index) {
    return Find<QLineEdit>(qPrintable(QStringLiteral("TXTActiveNumbers(%1)").arg(index)));
  }
  static void Settle() {
    Binder::SyncAll();
    QCoreApplication::processEvents();
  }
};

}  // namespace

class WheelUi : public QObject {
  Q_OBJECT

 private slots:
  void OpensFromMakeWheel();
  void EveryWidgetThatTakesTheFocusHasAName();
  void NoButtonCaptionIsCut();
  void NoButtonCaptionIsCutWithLargestText();
  void TwoDigitsFillABoxAndMoveOn();
  void ASlipNumberGoesIntoTheBoxThatWasDoubleClicked();
  void ANumberCanBeDroppedOnABox();
  void GenerateShowsTheLines();
  void TwentyBoxesFitTheWindow();
};

void WheelUi::OpensFromMakeWheel() {
  WheelDesk desk;
  QVERIFY(desk.Window().Visible());
  QCOMPARE(desk.Find<QListView>("List1")->model()->rowCount(), 10);
  QCOMPARE(desk.Find<QListView>("List2")->model()->rowCount(), desk.Window().List2.ListCount());
  QCOMPARE(desk.Find<QListView>("List2")->currentIndex().row(), 0);
  QVERIFY(desk.Box(6)->isVisible());
  QVERIFY(!desk.Box(7)->isVisible());
  QCOMPARE(desk.Box(0)->text(), QStringLiteral("38"));
  QCOMPARE(desk.Box(0)->accessibleDescription(), QStringLiteral("hot"));
  QVERIFY(desk.Find<QAbstractButton>("Label5")->isEnabled());
}

void WheelUi::EveryWidgetThatTakesTheFocusHasAName() {
  WheelDesk desk;
  CheckNames(desk);
}

void WheelUi::NoButtonCaptionIsCut() {
  WheelDesk desk;
  CheckCaptions(desk);
}

void WheelUi::NoButtonCaptionIsCutWithLargestText() {
  WheelDesk desk(QStringLiteral("Quorbit Number Desk|Settings|TextSize=Largest\n"));
  CheckCaptions(desk);
  Theme::Current().SetTextSize(TextSize::kNormal);
}

void WheelUi::TwoDigitsFillABoxAndMoveOn() {
  WheelDesk desk;
  desk.app->Desk().User().Pick(desk.Window().List1, 9);
  WheelDesk::Settle();
  QLineEdit* const box = desk.Box(0);
  box->setFocus();
  QTest::keyClicks(box, QStringLiteral("1"));
  QCOMPARE(box->text(), QStringLiteral("01"));
  QTest::keyClicks(box, QStringLiteral("x2"));
  QCOMPARE(box->text(), QStringLiteral("12"));
  QVERIFY(desk.Box(1)->hasFocus());
  QTest::keyClicks(desk.Box(1), QStringLiteral("7"));
  QTest::keyClick(desk.Box(1), Qt::Key_Backspace);
  QCOMPARE(desk.Box(1)->text(), QString());
}

void WheelUi::ASlipNumberGoesIntoTheBoxThatWasDoubleClicked() {
  WheelDesk desk;
  auto* const slip = desk.Find<QWidget>("PicNumbers");
  QVERIFY(!slip->isVisible());
  QTest::mouseDClick(desk.Box(2), Qt::LeftButton);
  WheelDesk::Settle();
  QVERIFY(slip->isVisible());
  desk.Find<QAbstractButton>("Label2(48)")->click();
  WheelDesk::Settle();
  QCOMPARE(desk.Box(2)->text(), QStringLiteral("49"));
  slip->findChild<QAbstractButton*>(QStringLiteral("Label8"))->click();
  WheelDesk::Settle();
  QVERIFY(!slip->isVisible());
}

void WheelUi::ANumberCanBeDroppedOnABox() {
  WheelDesk desk;
  desk.Find<QAbstractButton>("cmdwizar(1)")->click();
  auto* const table = desk.Find<QTableView>("ListMain");
  QVERIFY(table->isVisible());
  const QModelIndexList row = {table->model()->index(0, 0), table->model()->index(0, 1),
                               table->model()->index(0, 2)};
  const std::unique_ptr<QMimeData> dragged(table->model()->mimeData(row));
  QCOMPARE(dragged->text(), QStringLiteral("236 13 Cold"));
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, dragged.get(), Qt::LeftButton,
                        Qt::NoModifier);
  QCoreApplication::sendEvent(desk.Box(0), &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, dragged.get(), Qt::LeftButton, Qt::NoModifier);
  QCoreApplication::sendEvent(desk.Box(0), &drop);
  WheelDesk::Settle();
  QCOMPARE(desk.Box(0)->text(), QStringLiteral("13"));
}

void WheelUi::GenerateShowsTheLines() {
  WheelDesk desk;
  auto* const table = desk.Find<QTableView>("LstWheel");
  QCOMPARE(table->model()->rowCount(), 0);
  desk.Find<QAbstractButton>("cmdwizard(1)")->click();
  WheelDesk::Settle();
  QCOMPARE(table->model()->rowCount(), 4);
  QVERIFY(!table->isColumnHidden(5));
  QVERIFY(table->isColumnHidden(6));
}

void WheelUi::TwentyBoxesFitTheWindow() {
  WheelDesk desk;
  desk.app->Desk().User().Pick(desk.Window().List2, desk.Window().List2.ListCount() - 1);
  WheelDesk::Settle();
  const QWidget& last = *desk.Box(19);
  QVERIFY(last.isVisible());
  QVERIFY(last.visibleRegion().boundingRect() == last.rect());
}

}  // namespace ui

QTEST_MAIN(ui::WheelUi)
#include "wheel_ui_test.moc"
