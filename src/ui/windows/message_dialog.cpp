#include "ui/windows/message_dialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <vector>

#include "ui/bind/binder.h"
#include "ui/theme/theme.h"

namespace ui {
namespace {

using base::Answer;
using base::BoxButtons;
using base::BoxIcon;

constexpr int kIconSize = 36;
constexpr int kWidestText = 460;
constexpr int kFieldWidth = 340;
constexpr int kButtonWidth = 84;

QString Lines(const std::string& text) {
  return Shown(text).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

std::vector<Answer> Answers(BoxButtons buttons) {
  switch (buttons) {
    case BoxButtons::kOkCancel:
      return {Answer::kOk, Answer::kCancel};
    case BoxButtons::kYesNo:
      return {Answer::kYes, Answer::kNo};
    case BoxButtons::kYesNoCancel:
      return {Answer::kYes, Answer::kNo, Answer::kCancel};
    case BoxButtons::kRetryCancel:
      return {Answer::kRetry, Answer::kCancel};
    case BoxButtons::kOk:
      break;
  }
  return {Answer::kOk};
}

const char* Caption(Answer answer) {
  switch (answer) {
    case Answer::kCancel:
      return "Cancel";
    case Answer::kYes:
      return "&Yes";
    case Answer::kNo:
      return "&No";
    case Answer::kRetry:
      return "&Retry";
    case Answer::kOk:
      break;
  }
  return "OK";
}

struct Sign {
  const char* text;
  const char* meaning;
  Role ground;
};

Sign SignOf(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::kQuestion:
      return {"?", "Question", Role::kAccent};
    case BoxIcon::kExclamation:
      return {"!", "Warning", Role::kBonus};
    case BoxIcon::kCritical:
      return {"\u00d7", "Error", Role::kHot};
    case BoxIcon::kInformation:
    case BoxIcon::kNone:
      break;
  }
  return {"i", "Information", Role::kCold};
}

// A sign in a disc: its shape tells as much as its colour.
class SignLabel : public QLabel {
 public:
  SignLabel(BoxIcon icon, QWidget* parent) : QLabel(parent), sign_(SignOf(icon)) {
    const int size = Theme::Current().Scaled(kIconSize);
    setFixedSize(size, size);
    setAccessibleName(QLatin1String(sign_.meaning));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    const Theme& theme = Theme::Current();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor ground = theme.Colour(sign_.ground);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ground);
    painter.drawEllipse(rect());
    // On the bonus yellow dark text is the readable one in both palettes.
    const bool yellow = sign_.ground == Role::kBonus;
    painter.setPen(yellow ? RoleColour(Role::kOnBand, true) : theme.Colour(Role::kOnBand));
    QFont font = theme.BallFont();
    font.setPixelSize(height() * 3 / 5);
    painter.setFont(font);
    painter.drawText(rect(), Qt::AlignCenter, QString::fromUtf8(sign_.text));
  }

 private:
  Sign sign_;
};

QVBoxLayout* MakeColumn(QDialog* dialog) {
  const Theme& theme = Theme::Current();
  const int margin = theme.Space(Spacing::kInside) + theme.Space(Spacing::kTiny);
  auto* const column = new QVBoxLayout(dialog);
  column->setSizeConstraint(QLayout::SetFixedSize);
  column->setContentsMargins(margin, margin, margin, theme.Space(Spacing::kInside));
  column->setSpacing(margin);
  return column;
}

QHBoxLayout* MakeButtonRow(QVBoxLayout* column) {
  auto* const row = new QHBoxLayout;
  row->setSpacing(Theme::Current().Space(Spacing::kSmall));
  row->addStretch();
  column->addLayout(row);
  return row;
}

QPushButton* MakeButton(const char* caption, bool first, QWidget* parent) {
  auto* const button = new QPushButton(QLatin1String(caption), parent);
  button->setMinimumWidth(Theme::Current().Scaled(kButtonWidth));
  button->setProperty("accent", first);
  button->setDefault(first);
  return button;
}

// As wide as its longest line, up to a width at which long texts wrap.
QLabel* MakeText(const std::string& text, QWidget* parent) {
  auto* const label = new QLabel(Lines(text), parent);
  label->setTextFormat(Qt::PlainText);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  label->ensurePolished();
  const int widest = Theme::Current().Scaled(kWidestText);
  if (label->sizeHint().width() > widest) {
    label->setWordWrap(true);
    label->setFixedWidth(widest);
  }
  return label;
}

}  // namespace

MessageDialog::MessageDialog(const base::MessageBox& box, QWidget* parent)
    : QDialog(parent), answer_(Answers(box.buttons).back()) {
  if (box.buttons == BoxButtons::kYesNo) answer_ = Answer::kNo;
  setObjectName(QStringLiteral("MessageBox"));
  setWindowTitle(Shown(box.title));
  setAccessibleName(Shown(box.title));
  setAccessibleDescription(Lines(box.text));
  QVBoxLayout* const column = MakeColumn(this);
  auto* const row = new QHBoxLayout;
  row->setSpacing(Theme::Current().Space(Spacing::kInside));
  if (box.icon != BoxIcon::kNone) {
    row->addWidget(new SignLabel(box.icon, this), 0, Qt::AlignTop);
  }
  row->addWidget(MakeText(box.text, this), 1, Qt::AlignVCenter);
  column->addLayout(row);
  AddButtons(MakeButtonRow(column), box.buttons);
}

void MessageDialog::AddButtons(QBoxLayout* row, BoxButtons buttons) {
  bool first = true;
  for (const Answer answer : Answers(buttons)) {
    QPushButton* const button = MakeButton(Caption(answer), first, this);
    row->addWidget(button);
    if (first) button->setFocus();
    first = false;
    connect(button, &QPushButton::clicked, this, [this, answer] {
      answer_ = answer;
      accept();
    });
  }
}

base::Answer MessageDialog::Ask() {
  exec();
  return answer_;
}

InputDialog::InputDialog(const base::InputBox& box, QWidget* parent)
    : QDialog(parent), field_(new QLineEdit(Shown(box.default_text), this)) {
  setObjectName(QStringLiteral("InputBox"));
  setWindowTitle(Shown(box.title));
  setAccessibleName(Shown(box.title));
  QVBoxLayout* const column = MakeColumn(this);
  QLabel* const prompt = MakeText(box.prompt, this);
  prompt->setBuddy(field_);
  field_->setAccessibleName(Lines(box.prompt));
  field_->setMinimumWidth(Theme::Current().Scaled(kFieldWidth));
  field_->selectAll();
  column->addWidget(prompt);
  column->addWidget(field_);
  QHBoxLayout* const row = MakeButtonRow(column);
  QPushButton* const ok = MakeButton(Caption(Answer::kOk), true, this);
  QPushButton* const cancel = MakeButton(Caption(Answer::kCancel), false, this);
  row->addWidget(ok);
  row->addWidget(cancel);
  connect(ok, &QPushButton::clicked, this, &QDialog::accept);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
  field_->setFocus();
}

std::optional<std::string> InputDialog::Ask() {
  if (exec() != Accepted) return std::nullopt;
  return Typed(field_->text());
}

}  // namespace ui
