#include "ui/theme/style_sheet.h"

#include <QMap>

#include "ui/theme/theme.h"

namespace ui {
namespace {

constexpr const char* kGrounds = R"(
QMainWindow, QDialog, QWidget[ground="true"] { background: @window; }
QFrame[card="true"] { background: @card; border: 1px solid @line; border-radius: @radius; }
QFrame[field="true"] { background: @track; border: 1px solid @line; border-radius: 6px; }
QFrame[hairline="true"] { background: @line; border: none; }
QFrame[side="true"] { background: @side; border: none; border-right: 1px solid @line; }
QMenuBar { background: @side; color: @text; border-bottom: 1px solid @line; padding: 2px 6px; }
QMenuBar::item { background: transparent; padding: 5px 9px; border-radius: 6px; }
QMenuBar::item:selected { background: @selection; }
QMenu { background: @card; color: @text; border: 1px solid @line; padding: 5px; }
QMenu::item { padding: 6px 26px 6px 28px; border-radius: 5px; }
QMenu::item:selected { background: @selection; }
QMenu::item:disabled { color: @faint; }
QMenu::separator { height: 1px; background: @line; margin: 5px 8px; }
QMenu::indicator { width: 14px; height: 14px; left: 7px; }
QMenu::indicator:checked { image: url(:/icons/tick-@mode.svg); }
QMenu::indicator:exclusive:checked { image: url(:/icons/dot-@mode.svg); }
QStatusBar { background: @side; color: @dim; border-top: 1px solid @line; }
QStatusBar::item { border: none; }
QToolTip { background: @card; color: @text; border: 1px solid @line; padding: 4px 6px; }
QLabel { background: transparent; color: @text; }
QLabel:disabled { color: @faint; }
QLabel[dim="true"] { color: @dim; }
QLabel[heading="true"] { font-size: @px14; font-weight: 600; }
QLabel[title="true"] { font-size: @px20; font-weight: 600; }
QLabel[caption="true"] { color: @dim; font-size: @px11; font-weight: 600; }
)";

constexpr const char* kButtons = R"(
QPushButton { background: @card; color: @text; border: 1px solid @line; border-radius: 7px;
  padding: 7px 14px; }
QPushButton:hover { background: @track; }
QPushButton:pressed { background: @selection; }
QPushButton:focus { border-color: @accent; }
QPushButton:default { border-color: @accent; }
QPushButton:disabled { color: @faint; background: @card; }
QPushButton[accent="true"] { background: @accent; color: @onaccent; border-color: @accent;
  font-weight: 600; }
QPushButton[accent="true"]:hover { background: @accenthover; }
QPushButton[accent="true"]:pressed { background: @accentpressed; }
QPushButton[accent="true"]:focus { border: 2px solid @text; padding: 6px 13px; }
QPushButton[accent="true"]:disabled { background: @track; color: @faint; border-color: @line; }
QPushButton[flat="true"] { background: transparent; border-color: transparent; }
QPushButton[flat="true"]:hover { background: @selection; }
QPushButton[flat="true"]:focus { border-color: @accent; }
QPushButton[link="true"] { padding: 6px 12px; }
QPushButton[link="true"][lit="true"] { background: @lit; border-color: @bonus; color: @text;
  font-weight: 600; }
QPushButton[joined="true"] { border-radius: 0px; padding: 7px 8px; }
QPushButton[tab="true"] { background: transparent; border: none; border-radius: 0px;
  border-bottom: 2px solid transparent; padding: 9px 12px; color: @dim; }
QPushButton[tab="true"]:hover { color: @text; }
QPushButton[tab="true"]:checked { color: @accent; border-bottom-color: @accent; font-weight: 600; }
QPushButton[tab="true"]:focus { color: @text; border-bottom-color: @text; }
QPushButton[tab="true"]:disabled { color: @faint; }
QCheckBox, QRadioButton { background: transparent; color: @text; spacing: 8px; padding: 2px; }
QCheckBox:disabled, QRadioButton:disabled { color: @faint; }
QCheckBox::indicator, QRadioButton::indicator { width: 16px; height: 16px;
  border: 1px solid @dim; background: @card; }
QCheckBox::indicator { border-radius: 4px; }
QRadioButton::indicator { border-radius: 9px; }
QCheckBox::indicator:hover, QRadioButton::indicator:hover,
QCheckBox::indicator:focus, QRadioButton::indicator:focus { border-color: @accent; }
QCheckBox:focus, QRadioButton:focus { color: @accent; }
QCheckBox::indicator:checked { background: @accent; border-color: @accent;
  image: url(:/icons/check-@mode.svg); }
QRadioButton::indicator:checked { background: @accent; border-color: @accent;
  image: url(:/icons/point-@mode.svg); }
QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { border-color: @line;
  background: @track; }
)";

constexpr const char* kFields = R"(
QLineEdit, QComboBox { background: @track; color: @text; border: 1px solid @line;
  border-radius: 7px; padding: 6px 9px; selection-background-color: @accent;
  selection-color: @onaccent; }
QLineEdit:focus, QComboBox:focus { border-color: @accent; }
QLineEdit:disabled, QComboBox:disabled { color: @faint; }
QLineEdit[readOnly="true"] { background: @track; }
QLineEdit[narrow="true"] { padding: 5px 2px; }
QComboBox::drop-down { border: none; width: 26px; }
QComboBox::down-arrow { image: url(:/icons/chevron-@mode.svg); width: 14px; height: 14px; }
QComboBox QAbstractItemView { background: @card; color: @text; border: 1px solid @line;
  padding: 4px; outline: none; }
QPlainTextEdit, QTextBrowser { background: @track; color: @text; border: 1px solid @line;
  border-radius: 7px; padding: 4px; selection-background-color: @accent;
  selection-color: @onaccent; }
QPlainTextEdit:focus, QTextBrowser:focus { border-color: @accent; }
QListView, QTableView, QTreeView { background: @card; color: @text; border: 1px solid transparent; outline: none;
  gridline-color: @line; selection-background-color: @selection; selection-color: @text; }
QTreeView::item, QListView::item { padding: 4px 4px; border-radius: 5px; }
QListView::item:selected, QTreeView::item:selected, QTableView::item:selected {
  background: @selection; color: @text; }
QTextBrowser[page="true"] { background: transparent; border: 1px solid transparent; }
QTextBrowser[page="true"]:focus { border-color: @line; }
QListView:focus, QTreeView:focus { border: 1px solid @accent; border-radius: 7px; }
QTableView:focus { border: 1px solid @accent; }
QHeaderView { background: @card; border: none; }
QHeaderView::section { background: @card; color: @dim; border: none; padding: 4px 6px;
  border-bottom: 1px solid @line; font-size: @px11; font-weight: 600; }
QHeaderView[narrow="true"]::section { padding: 4px 1px; }
QTableCornerButton::section { background: @card; border: none; }
QTabBar { background: transparent; }
QSlider { background: transparent; min-height: 20px; }
QSlider::groove:horizontal { height: 4px; background: @handle; border-radius: 2px; }
QSlider::handle:horizontal { width: 14px; margin: -5px 0px; border-radius: 7px;
  background: @accent; }
QSlider::handle:horizontal:hover { background: @accenthover; }
QSlider:focus { border: 1px solid @accent; border-radius: 7px; }
QSplitter::handle { background: transparent; }
QScrollArea { background: transparent; border: none; }
QAbstractScrollArea::corner { background: transparent; border: none; }
QScrollBar { background: transparent; border: none; margin: 2px; }
QScrollBar:vertical { width: 12px; }
QScrollBar:horizontal { height: 12px; }
QScrollBar::handle { background: @handle; border-radius: 4px; }
QScrollBar::handle:vertical { min-height: 30px; }
QScrollBar::handle:horizontal { min-width: 30px; }
QScrollBar::handle:hover { background: @dim; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)";

QColor Between(const QColor& one, const QColor& other, double part) {
  const auto mix = [part](double a, double b) { return static_cast<float>(a + (b - a) * part); };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

}  // namespace

QString MakeStyleSheet(const Theme& theme) {
  const auto colour = [&theme](Role role) { return theme.Colour(role); };
  const auto pixels = [&theme](int length) {
    return QString::number(theme.Scaled(length)) + QStringLiteral("px");
  };
  // Longer names first, so that none is taken for the beginning of another.
  const std::pair<const char*, QString> values[] = {
      {"@accentpressed", Between(colour(Role::kAccent), colour(Role::kText), 0.25).name()},
      {"@accenthover", Between(colour(Role::kAccent), colour(Role::kText), 0.12).name()},
      {"@selection", colour(Role::kSelection).name()},
      {"@onaccent", colour(Role::kOnAccent).name()},
      {"@accent", colour(Role::kAccent).name()},
      {"@window", colour(Role::kWindow).name()},
      {"@handle", Between(colour(Role::kLine), colour(Role::kDim), 0.45).name()},
      {"@radius", QString::number(theme.Space(Spacing::kRadius)) + QStringLiteral("px")},
      {"@faint", Between(colour(Role::kDim), colour(Role::kCard), 0.35).name()},
      {"@track", colour(Role::kTrack).name()},
      {"@card", colour(Role::kCard).name()},
      {"@side", colour(Role::kSide).name()},
      {"@text", colour(Role::kText).name()},
      {"@line", colour(Role::kLine).name()},
      {"@lit", colour(Role::kShown).name()},
      {"@bonus", colour(Role::kBonus).name()},
      {"@mode", theme.Dark() ? QStringLiteral("dark") : QStringLiteral("light")},
      {"@px11", pixels(11)},
      {"@px14", pixels(14)},
      {"@px20", pixels(20)},
      {"@dim", colour(Role::kDim).name()},
  };
  QString sheet = QLatin1String(kGrounds) + QLatin1String(kButtons) + QLatin1String(kFields);
  for (const auto& [name, value] : values) sheet.replace(QLatin1String(name), value);
  return sheet;
}

}  // namespace ui
