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
  notices_ = AddText("StatusNotices", "What was changed");
  // Links can be reached and followed by keys; a long text is cut and does not widen the window.
  notices_->setTextFormat(Qt::RichText);
  notices_->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
  notices_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  notices_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  connect(notices_, &QLabel::linkActivated, this, &StatusLine::Follow);
  day_ = AddText("StatusDay", "Days that are scanned");
  addWidget(database_);
  addWidget(draws_);
  addWidget(dates_);
  addWidget(notices_, 1);
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
  const main_window::MainWindow* const main = desk_.Main();
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
  ShowNotices(open);
  day_->setText(open ? Shown(main->Combo7.Text()) : QString());
}

void StatusLine::ShowNotices(bool open) {
  QStringList texts;
  QStringList plain;
  for (const shell::Notice& notice : open ? desk_.Notices() : std::vector<shell::Notice>()) {
    const QString text = Shown(notice.text);
    const QString link = Shown(notice.link);
    plain += link.isEmpty() ? text : text + QLatin1Char(' ') + link;
    texts += link.isEmpty() ? text.toHtmlEscaped()
                            : QStringLiteral("%1 <a href=\"%2\">%3</a>")
                                  .arg(text.toHtmlEscaped())
                                  .arg(static_cast<int>(notice.act))
                                  .arg(link.toHtmlEscaped());
  }
  notices_->setText(texts.join(QStringLiteral(" &nbsp;\u00B7&nbsp; ")));
  notices_->setToolTip(plain.join(QLatin1Char('\n')));
  notices_->setAccessibleName(plain.isEmpty() ? QStringLiteral("Nothing was changed")
                                              : plain.join(QStringLiteral(", ")));
  const bool has_link = !plain.isEmpty() && notices_->text().contains(QLatin1String("<a "));
  notices_->setFocusPolicy(has_link ? Qt::StrongFocus : Qt::NoFocus);
}

void StatusLine::Follow(const QString& link) {
  switch (static_cast<shell::Notice::Act>(link.toInt())) {
    case shell::Notice::Act::kStorePending:
      desk_.StorePending();
      break;
    case shell::Notice::Act::kUndo:
      desk_.Undo();
      break;
    case shell::Notice::Act::kNone:
      break;
  }
  Refresh();
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
