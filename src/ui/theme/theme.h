#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QObject>
#include <QString>

#include "base/ports/settings.h"

class QPalette;

namespace ui {

// What a colour is for. Each role has a light and a dark value.
enum class Role {
  kWindow,     // the quiet ground
  kCard,       // what content stands on
  kSide,       // side bar, menu bar, status bar
  kText,       // running text
  kDim,        // text that steps back
  kLine,       // hairlines and borders
  kTrack,      // behind a bar, ground of a field
  kAccent,     // the next thing to do, links, the tab that is open
  kOnAccent,   // text on the accent
  kCold,       // the three bands of a ball
  kWarm,       //
  kHot,        //
  kOnBand,     // text and signs on a band
  kShown,      // the balls of the draw on show
  kBonus,      // the bonus ball's ring
  kSelection,  // ground of what is selected
};
inline constexpr int kRoles = 16;

// Distances in logical pixels.
enum class Spacing { kTiny = 4, kSmall = 8, kGap = 12, kInside = 14, kRadius = 10 };

enum class Mode { kSystem, kLight, kDark };
enum class TextSize { kSmall, kNormal, kLarge, kLargest };

// The colour of a role in the light or the dark palette.
QColor RoleColour(Role role, bool dark);

// Colours, sizes, fonts and icons of every view. Views ask it while they lay out and paint, and
// paint again on `changed`.
class Theme : public QObject {
  Q_OBJECT

 public:
  static Theme& Current();

  QColor Colour(Role role) const;
  int Space(Spacing spacing) const;
  // A length that is meant for the normal text size, at the text size chosen.
  int Scaled(int length) const;

  QFont Text() const;         // 13
  QFont Heading() const;      // 14 semibold
  QFont Title() const;        // 20 semibold: the name in the splash and about windows
  QFont CaptionFont() const;  // 11 semibold, used with the dim colour
  QFont Figures() const;      // 12 with digits of equal width
  QFont BallFont() const;     // 17 bold with digits of equal width
  QFont Mono() const;         // reports

  // The drawing `icons/<name>.svg` in the colour of a role, at the size asked for.
  QIcon Icon(const QString& name, Role role) const;

  bool Dark() const { return dark_; }
  Mode CurrentMode() const { return mode_; }
  TextSize CurrentTextSize() const { return text_size_; }
  void SetMode(Mode mode);
  void SetTextSize(TextSize size);

  // Reads mode and text size from the settings and keeps later choices there. The settings must
  // outlive the theme or the next Attach.
  void Attach(base::Settings* settings);

 signals:
  // Colours, fonts or sizes are others now; the application's palette and style sheet already are.
  void changed();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Theme();
  void Apply();
  void Keep(const char* key, const char* text);
  bool WantsDark() const;
  QFont Font(const QStringList& families, double pixels, int weight) const;
  double Factor() const;

  base::Settings* settings_ = nullptr;
  Mode mode_ = Mode::kSystem;
  TextSize text_size_ = TextSize::kNormal;
  bool dark_ = false;
  bool system_dark_ = false;
  bool applying_ = false;
};

}  // namespace ui
