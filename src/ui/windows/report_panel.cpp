#include "ui/windows/report_panel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/windows/painting.h"

namespace ui {
namespace {

constexpr int kBallSize = 24;
constexpr int kBallGap = 2;
constexpr int kReportLetters = 12;  // what a narrow chooser shows of a report's name
constexpr int kPrint = 0;
constexpr int kMakeWheel = 2;

QFont NumberFont() {
  QFont font = Theme::Current().Figures();
  font.setBold(true);
  return font;
}

bool IsBall(const QString& text) {
  return text.size() <= 2 &&
         std::all_of(text.begin(), text.end(), [](QChar letter) { return letter.isDigit(); });
}

}  // namespace

// --- A sentence of the ranking

RankingLine::RankingLine(Role band, QWidget* parent) : QWidget(parent), band_(band) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void RankingLine::SetSentence(const QString& sentence) {
  const qsizetype equals = sentence.indexOf(QLatin1Char('='));
  words_ = sentence.left(equals).simplified();
  balls_ = equals < 0 ? QStringList()
                      : sentence.mid(equals + 1).split(QLatin1Char(' '), Qt::SkipEmptyParts);
  if (!std::all_of(balls_.begin(), balls_.end(), IsBall)) {
    words_ = sentence.simplified();
    balls_.clear();
  }
  setAccessibleName(sentence.simplified());
  setVisible(!words_.isEmpty());
}

int RankingLine::WordsWidth() const {
  return QFontMetrics(Theme::Current().CaptionFont()).horizontalAdvance(words_) +
         Theme::Current().Space(Spacing::kSmall);
}

void RankingLine::SetBallsLeft(int left) {
  balls_left_ = left;
  TakeHeight();
  updateGeometry();
  update();
}

int RankingLine::BallsLeft() const { return std::max(WordsWidth(), balls_left_); }

int RankingLine::BallsWidth() const {
  return static_cast<int>(balls_.size()) * (Theme::Current().Scaled(kBallSize) + kBallGap);
}

QSize RankingLine::sizeHint() const { return {BallsLeft() + BallsWidth(), minimumHeight()}; }

QSize RankingLine::minimumSizeHint() const {
  return {std::max(WordsWidth(), BallsWidth()), Theme::Current().Scaled(kBallSize)};
}

bool RankingLine::FitsOneLine() const {
  return balls_.isEmpty() || width() >= BallsLeft() + BallsWidth();
}

// The words stand above the balls where one line is too narrow for both.
void RankingLine::TakeHeight() {
  const int ball = Theme::Current().Scaled(kBallSize);
  const int words = QFontMetrics(Theme::Current().CaptionFont()).height() + kBallGap;
  setFixedHeight(FitsOneLine() ? ball : ball + words);
}

void RankingLine::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  TakeHeight();
}

void RankingLine::paintEvent(QPaintEvent*) {
  const Theme& theme = Theme::Current();
  const int ball = theme.Scaled(kBallSize);
  const bool in_one_line = FitsOneLine();
  QPainter painter(this);
  painter.setFont(theme.CaptionFont());
  painter.setPen(theme.Colour(Role::kDim));
  painter.drawText(QRect(0, 0, width(), in_one_line ? height() : height() - ball),
                   Qt::AlignLeft | Qt::AlignVCenter, words_);
  painter.setFont(NumberFont());
  int left = in_one_line ? BallsLeft() : 0;
  for (const QString& number : balls_) {
    PaintBall(painter, QRectF(left, height() - ball, ball, ball), number, band_);
    left += ball + kBallGap;
  }
}

// --- The card

ReportPanel::ReportPanel(Binder& binder, main_window::MainWindow& window, QWidget* parent)
    : QFrame(parent),
      window_(window),
      ranking_{new RankingLine(Role::kHot, this), new RankingLine(Role::kCold, this)} {
  setProperty("card", true);
  const Theme& theme = Theme::Current();
  const int inside = theme.Space(Spacing::kInside);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(inside, theme.Space(Spacing::kGap), inside, inside);
  column->setSpacing(theme.Space(Spacing::kSmall));
  for (RankingLine* line : ranking_) column->addWidget(line);
  binder.Watch(window.TxtResultsBox2, [this] { TakeRanking(); });
  connect(&theme, &Theme::changed, &binder, [this, &binder] {
    if (binder.Form()) TakeRanking();
  });

  auto* const row = new QHBoxLayout;
  row->setSpacing(theme.Space(Spacing::kSmall));
  auto* const report = new QComboBox(this);
  report->setAccessibleName(tr("Report"));
  report->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  report->setMinimumContentsLength(kReportLetters);
  binder.Bind(report, window.Combo11);
  row->addWidget(report, 1);
  for (const int index : {kPrint, kMakeWheel}) {
    auto* const button = new QPushButton(this);
    binder.Bind(button, window.lblbuttons(index));
    row->addWidget(button);
  }
  column->addLayout(row);

  auto* const text = new QPlainTextEdit(this);
  text->setAccessibleName(tr("Report of the scan"));
  text->setLineWrapMode(QPlainTextEdit::NoWrap);
  text->setTabChangesFocus(true);
  text->setFont(theme.Mono());
  connect(&theme, &Theme::changed, text, [text] { text->setFont(Theme::Current().Mono()); });
  binder.Bind(text, window.TxtResultsBox);
  column->addWidget(text, 1);
}

void ReportPanel::TakeRanking() {
  const QStringList lines = Shown(window_.TxtResultsBox2.Caption()).split(QLatin1String("\r\n"));
  for (std::size_t line = 0; line < ranking_.size(); ++line) {
    const auto place = static_cast<qsizetype>(line);
    const bool there = window_.TxtResultsBox2.Visible() && place < lines.size();
    ranking_[line]->SetSentence(there ? lines[place] : QString());
  }
  const int left = std::max(ranking_[0]->WordsWidth(), ranking_[1]->WordsWidth());
  for (RankingLine* line : ranking_) line->SetBallsLeft(left);
}

}  // namespace ui
