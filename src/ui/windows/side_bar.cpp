#include "ui/windows/side_bar.h"

#include <QPainter>
#include <QVBoxLayout>

#include "ui/theme/theme.h"

namespace ui {
namespace {

// The ground that the desk gives to the tool of a window that is in use.
constexpr base::Colour kMarkedTool = 0xE0E0E0;
constexpr int kIconSize = 22;
constexpr int kToolWidth = 84;
constexpr int kToolHeight = 60;
constexpr int kCorner = 8;
constexpr double kDisabledOpacity = 0.72;
constexpr int kWordFlags =
    Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap | Qt::TextHideMnemonic;
const char* const kLater = "Not in this version";
const char* const kByMakeWheel = "Make Wheel opens the wheels again";

}  // namespace

ToolLabel::ToolLabel(QString icon, QWidget* parent) : QPushButton(parent), icon_(std::move(icon)) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  connect(&Theme::Current(), &Theme::changed, this, [this] {
    updateGeometry();
    update();
  });
}

void ToolLabel::SetMarked(bool marked) {
  if (marked_ == marked) return;
  marked_ = marked;
  update();
}

// The word wraps when it is wider than the tool.
QRect ToolLabel::WordRect(const QFont& font, int width) const {
  return QFontMetrics(font).boundingRect(QRect(0, 0, width, height() * 2), kWordFlags, text());
}

QFont ToolLabel::WordFont() const {
  QFont font = Theme::Current().CaptionFont();
  if (!marked_) font.setWeight(QFont::Normal);
  return font;
}

QSize ToolLabel::sizeHint() const {
  const Theme& theme = Theme::Current();
  const int width = theme.Scaled(kToolWidth);
  const QFont font = theme.CaptionFont();
  const int more = WordRect(font, width).height() - QFontMetrics(font).height();
  return {width, theme.Scaled(kToolHeight) + std::max(0, more)};
}

void ToolLabel::paintEvent(QPaintEvent*) {
  const Theme& theme = Theme::Current();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF ground = QRectF(rect()).adjusted(1, 1, -1, -1);
  if (isEnabled() && (marked_ || underMouse() || isDown())) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.Colour(marked_ || isDown() ? Role::kSelection : Role::kTrack));
    painter.drawRoundedRect(ground, kCorner, kCorner);
  }
  if (hasFocus()) {
    painter.setPen(QPen(theme.Colour(Role::kAccent), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(ground, kCorner, kCorner);
  }
  const Role role = marked_ && isEnabled() ? Role::kAccent : Role::kDim;
  const int icon = theme.Scaled(kIconSize);
  const int gap = theme.Space(Spacing::kTiny);
  const QFont font = WordFont();
  const int words = WordRect(font, width()).height();
  const int top = (height() - icon - words - gap) / 2;
  // What cannot be used now steps further back, yet stays readable.
  if (!isEnabled()) painter.setOpacity(kDisabledOpacity);
  theme.Icon(icon_, role).paint(&painter, QRect((width() - icon) / 2, top, icon, icon));
  painter.setFont(font);
  painter.setPen(theme.Colour(role));
  painter.drawText(QRect(0, top + icon + gap, width(), words), kWordFlags, text());
}

SideBar::SideBar(shell::FrmMain& frame, Binder& binder, QWidget* parent) : QFrame(parent) {
  setProperty("side", true);
  setAccessibleName(QStringLiteral("Tools"));
  const Theme& theme = Theme::Current();
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(theme.Space(Spacing::kSmall), theme.Space(Spacing::kRadius),
                             theme.Space(Spacing::kSmall), theme.Space(Spacing::kSmall));
  column->setSpacing(theme.Space(Spacing::kTiny));

  ToolLabel* const main = AddTool("main");
  binder.Bind(main, frame.Command17);
  binder.Watch(frame.Command17,
               [main, &frame] { main->SetMarked(frame.Command17.BackColor() == kMarkedTool); });
  const struct {
    base::Label* label;
    const char* icon;
    const char* why_disabled;
  } tools[] = {{&frame.Label1, "statistics", kLater},
               {&frame.Label2, "sorted", kLater},
               {&frame.Label3, "reports", kLater},
               {&frame.Label4, "database", kLater},
               {&frame.Label5, "wheels", kByMakeWheel}};
  for (const auto& [label, icon, why_disabled] : tools) {
    ToolLabel* const tool = AddTool(icon);
    binder.Bind(tool, *label);
    binder.Watch(*label, [tool, control = label, why = why_disabled] {
      tool->SetMarked(control->BackColor() == kMarkedTool);
      tool->setToolTip(control->Enabled() ? QString() : QLatin1String(why));
    });
  }
  column->addStretch();
}

ToolLabel* SideBar::AddTool(const char* icon) {
  auto* const tool = new ToolLabel(QLatin1String(icon), this);
  layout()->addWidget(tool);
  return tool;
}

}  // namespace ui
