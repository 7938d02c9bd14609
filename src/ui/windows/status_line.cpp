#include "ui/windows/status_line.h"

#include <QLabel>
#include <QLocale>

#include "ui/theme/theme.h"

namespace ui {
namespace {

constexpr std::size_t kDateCell = 7;

}  // namespace

StatusLine::StatusLine(shell::Desk& desk, shell::FrmMain& frame, Binder& binder, QWidget* parent)
    : QStatusBar(parent), desk_(desk) {
  setSizeGripEnabled(false);
  setContentsMargins(Theme::Current().Space(Spacing::kSmall), 2,
                     Theme::Current().Space(Spacing::kInside), 2);
  database_ = AddText("lblStatus", "Open database");
  draws_ = AddText("StatusDraws", "Number of draws");
  dates_ = AddText("StatusDates", "Dates of the draws");
  day_ = AddText("StatusDay", "Days that are scanned");
  addWidget(database_);
  addWidget(draws_);
  addWidget(dates_, 1);
  addPermanentWidget(day_);
  binder.Watch(frame.lblStatus, [this, &frame] {
    database_->setToolTip(Shown(frame.lblStatus.Caption()));
    Refresh();
  });
}

QLabel* StatusLine::AddText(const char* name, const char* meaning) {
  auto* const label = new QLabel(this);
  label->setObjectName(QLatin1String(name));
  label->setAccessibleName(QLatin1String(meaning));
  label->setToolTip(QLatin1String(meaning));
  label->setProperty("dim", true);
  label->setTextFormat(Qt::PlainText);
  label->setMargin(Theme::Current().Space(Spacing::kTiny));
  return label;
}

void StatusLine::Refresh() {
  const store::MainWindow* const main = desk_.Main();
  const bool open = main && main->Loaded();
  const store::Session& session = desk_.Session();
  const QLocale numbers(QLocale::English);
  const std::string& path = session.data_base_path;
  const std::string file = path.substr(path.find_last_of("\\/") + 1);
  database_->setText(open ? Shown(file.empty() ? session.data_base_name : file) : QString());
  draws_->setText(open
                      ? QStringLiteral("%1 draws").arg(numbers.toString(main->ListView1.RowCount()))
                      : QString());
  dates_->setText(open ? Dates() : QString());
  day_->setText(open ? Shown(main->Combo7.Text()) : QString());
}

// Of the first and the last row of the table, which holds the draws from the oldest on.
QString StatusLine::Dates() const {
  const auto& rows = desk_.Main()->ListView1.Rows();
  if (rows.empty() || rows.front().size() <= kDateCell || rows.back().size() <= kDateCell) {
    return {};
  }
  return QStringLiteral("%1 \u2013 %2")
      .arg(Shown(rows.front()[kDateCell]), Shown(rows.back()[kDateCell]));
}

}  // namespace ui
