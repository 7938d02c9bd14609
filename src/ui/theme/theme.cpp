#include "ui/theme/theme.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QStyleFactory>
#include <QSvgRenderer>
#include <QToolTip>
#include <algorithm>
#include <array>
#include <cmath>

#include "ui/theme/palette.h"
#include "ui/theme/style_sheet.h"

namespace ui {
namespace {

constexpr const char* kApplication = "Quorbit Number Desk";
constexpr const char* kSection = "Settings";
constexpr const char* kThemeKey = "Theme";
constexpr const char* kTextSizeKey = "TextSize";
constexpr int kHalfLight = 128;

constexpr std::array kModeNames = {"System", "Light", "Dark"};
constexpr std::array kTextSizeNames = {"Small", "Normal", "Large", "Largest"};
constexpr std::array kTextSizeFactors = {0.9, 1.0, 1.2, 1.4};

template <typename Names>
int PlaceOf(const Names& names, const std::string& text, int otherwise) {
  const auto found = std::find(names.begin(), names.end(), text);
  return found == names.end() ? otherwise : static_cast<int>(found - names.begin());
}

// Draws an icon at whatever size and scale it is asked for, in one colour.
class TintedEngine : public QIconEngine {
 public:
  TintedEngine(QString path, QColor colour) : path_(std::move(path)), colour_(colour) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    const qreal scale = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, Draw(rect.size() * scale, mode));
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    return Draw(size, mode);
  }
  QIconEngine* clone() const override { return new TintedEngine(*this); }

 private:
  QPixmap Draw(const QSize& size, QIcon::Mode mode) const {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(path_).render(&painter, QRectF(QPointF(0, 0), QSizeF(size)));
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    QColor colour = colour_;
    if (mode == QIcon::Disabled) colour.setAlphaF(0.5F);
    painter.fillRect(picture.rect(), colour);
    return picture;
  }

  QString path_;
  QColor colour_;
};

const QStringList& TextFamilies() {
  static const QStringList families = {QStringLiteral("Inter"),      QStringLiteral("Noto Sans"),
                                       QStringLiteral("Cantarell"),  QStringLiteral("Ubuntu"),
                                       QStringLiteral("Segoe UI"),   QStringLiteral("Roboto"),
                                       QStringLiteral("DejaVu Sans")};
  return families;
}

// Faces whose digits all have the same width.
const QStringList& FigureFamilies() {
  static const QStringList families = {
      QStringLiteral("Noto Sans"), QStringLiteral("Roboto"), QStringLiteral("Segoe UI"),
      QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")};
  return families;
}

const QStringList& MonoFamilies() {
  static const QStringList families = {
      QStringLiteral("DejaVu Sans Mono"), QStringLiteral("Noto Sans Mono"),
      QStringLiteral("Liberation Mono"), QStringLiteral("Consolas"), QStringLiteral("monospace")};
  return families;
}

bool PlatformIsDark() {
  return QGuiApplication::palette().window().color().lightness() < kHalfLight;
}

}  // namespace

Theme& Theme::Current() {
  static Theme* const theme = new Theme;  // lives as long as the widgets do
  return *theme;
}

Theme::Theme() : system_dark_(PlatformIsDark()) {
  QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
  qApp->installEventFilter(this);
  Apply();
}

void Theme::Attach(base::Settings* settings) {
  settings_ = settings;
  if (!settings_) return;
  mode_ = static_cast<Mode>(PlaceOf(kModeNames, settings_->Get(kApplication, kSection, kThemeKey),
                                    static_cast<int>(mode_)));
  text_size_ = static_cast<TextSize>(PlaceOf(kTextSizeNames,
                                             settings_->Get(kApplication, kSection, kTextSizeKey),
                                             static_cast<int>(text_size_)));
  Apply();
}

void Theme::SetMode(Mode mode) {
  if (mode == mode_) return;
  mode_ = mode;
  Apply();
  Keep(kThemeKey, kModeNames[static_cast<std::size_t>(mode)]);
}

void Theme::SetTextSize(TextSize size) {
  if (size == text_size_) return;
  text_size_ = size;
  Apply();
  Keep(kTextSizeKey, kTextSizeNames[static_cast<std::size_t>(size)]);
}

void Theme::Keep(const char* key, const char* text) {
  if (settings_) settings_->Save(kApplication, kSection, key, text);
}

bool Theme::WantsDark() const {
  return mode_ == Mode::kDark || (mode_ == Mode::kSystem && system_dark_);
}

void Theme::Apply() {
  applying_ = true;
  dark_ = WantsDark();
  QApplication::setPalette(MakePalette(dark_));
  QApplication::setFont(Text());
  QToolTip::setFont(Text());
  qApp->setStyleSheet(MakeStyleSheet(*this));
  applying_ = false;
  emit changed();
}

// The platform tells of another palette or theme by an event. Our own palette stands over the
// platform's, which is looked up behind a default one.
bool Theme::eventFilter(QObject* watched, QEvent* event) {
  const bool palette = event->type() == QEvent::ApplicationPaletteChange && watched == qApp;
  if ((palette || event->type() == QEvent::ThemeChange) && !applying_) {
    applying_ = true;
    QApplication::setPalette(QPalette());
    applying_ = false;
    const bool was_dark = system_dark_;
    system_dark_ = PlatformIsDark();
    if (mode_ == Mode::kSystem && was_dark != system_dark_) {
      QMetaObject::invokeMethod(
          this, [this] { Apply(); }, Qt::QueuedConnection);
    } else {
      applying_ = true;
      QApplication::setPalette(MakePalette(dark_));
      applying_ = false;
    }
  }
  return QObject::eventFilter(watched, event);
}

QColor Theme::Colour(Role role) const { return RoleColour(role, dark_); }

int Theme::Space(Spacing spacing) const { return static_cast<int>(spacing); }

double Theme::Factor() const { return kTextSizeFactors[static_cast<std::size_t>(text_size_)]; }

int Theme::Scaled(int length) const { return static_cast<int>(std::lround(length * Factor())); }

QFont Theme::Font(const QStringList& families, double pixels, int weight) const {
  QFont font;
  font.setFamilies(families);
  font.setPixelSize(static_cast<int>(std::lround(pixels * Factor())));
  font.setWeight(static_cast<QFont::Weight>(weight));
  return font;
}

QFont Theme::Text() const { return Font(TextFamilies(), 13, QFont::Normal); }
QFont Theme::Heading() const { return Font(TextFamilies(), 14, QFont::DemiBold); }
QFont Theme::Title() const { return Font(TextFamilies(), 20, QFont::DemiBold); }
QFont Theme::CaptionFont() const { return Font(TextFamilies(), 11, QFont::DemiBold); }
QFont Theme::Figures() const { return Font(FigureFamilies(), 12, QFont::Normal); }
QFont Theme::BallFont() const { return Font(TextFamilies(), 17, QFont::Bold); }

QFont Theme::Mono() const {
  QFont font = Font(MonoFamilies(), 12, QFont::Normal);
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  return font;
}

QIcon Theme::Icon(const QString& name, Role role) const {
  return QIcon(new TintedEngine(QStringLiteral(":/icons/%1.svg").arg(name), Colour(role)));
}

}  // namespace ui
