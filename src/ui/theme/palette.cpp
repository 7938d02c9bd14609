#include "ui/theme/palette.h"

#include <array>

#include "ui/theme/theme.h"

namespace ui {
namespace {

struct RoleColours {
  QRgb light;
  QRgb dark;
};

// In the order of Role.
constexpr std::array<RoleColours, kRoles> kColours = {{
    {0xffeef1f5, 0xff15191f},  // window
    {0xffffffff, 0xff1e242c},  // card
    {0xfff7f9fb, 0xff1a2027},  // side
    {0xff1c2430, 0xffe8edf4},  // text
    {0xff56647a, 0xff9aa8b8},  // dim
    {0xffd9dfe7, 0xff313a46},  // line
    {0xfff1f4f8, 0xff262e38},  // track
    {0xff2457d6, 0xff729dff},  // accent
    {0xffffffff, 0xff0b1220},  // on accent
    {0xff2f6fdf, 0xff5c97ff},  // cold
    {0xff17834c, 0xff3cc486},  // warm
    {0xffd0362a, 0xffff6a5c},  // hot
    {0xffffffff, 0xff0b1220},  // on band
    {0xfffff3c9, 0xff4a431f},  // shown
    {0xffd99a00, 0xffd99a00},  // bonus
    {0xffdae4fa, 0xff27344d},  // selection
}};

}  // namespace

QColor RoleColour(Role role, bool dark) {
  const RoleColours& colours = kColours[static_cast<std::size_t>(role)];
  return QColor(dark ? colours.dark : colours.light);
}

QPalette MakePalette(bool dark) {
  const auto colour = [dark](Role role) { return RoleColour(role, dark); };
  QPalette palette;
  palette.setColor(QPalette::Window, colour(Role::kWindow));
  palette.setColor(QPalette::WindowText, colour(Role::kText));
  palette.setColor(QPalette::Base, colour(Role::kCard));
  palette.setColor(QPalette::AlternateBase, colour(Role::kTrack));
  palette.setColor(QPalette::Text, colour(Role::kText));
  palette.setColor(QPalette::Button, colour(Role::kCard));
  palette.setColor(QPalette::ButtonText, colour(Role::kText));
  palette.setColor(QPalette::BrightText, colour(Role::kHot));
  palette.setColor(QPalette::ToolTipBase, colour(Role::kCard));
  palette.setColor(QPalette::ToolTipText, colour(Role::kText));
  palette.setColor(QPalette::PlaceholderText, colour(Role::kDim));
  palette.setColor(QPalette::Highlight, colour(Role::kSelection));
  palette.setColor(QPalette::HighlightedText, colour(Role::kText));
  palette.setColor(QPalette::Link, colour(Role::kAccent));
  palette.setColor(QPalette::LinkVisited, colour(Role::kAccent));
  palette.setColor(QPalette::Light, colour(Role::kCard));
  palette.setColor(QPalette::Midlight, colour(Role::kTrack));
  palette.setColor(QPalette::Mid, colour(Role::kLine));
  palette.setColor(QPalette::Dark, colour(Role::kDim));
  palette.setColor(QPalette::Shadow, colour(Role::kLine));
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, colour(Role::kDim));
  }
  return palette;
}

}  // namespace ui
