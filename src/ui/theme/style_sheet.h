#pragma once

#include <QString>

namespace ui {

class Theme;

// The style sheet of the whole program, made from the roles and sizes of the theme. Views choose
// among its forms by properties set to true before the widget is shown:
//
//   QFrame       "card"      a rounded ground for content
//                "field"     a quiet rounded ground for a value or a small group
//                "hairline"  a line of one pixel
//   QLabel       "dim"       text that steps back      "heading"  of a card
//                "caption"   small dim semibold text   "title"    the name of the program
//   QPushButton  "accent"    the next thing to do      "flat"     no ground until hovered
//                "tab"       a checkable tab           "joined"   one of a row without gaps
//   QLineEdit    "narrow"    a field of a few digits in a row of fields
//   QHeaderView  "narrow"    the headings of narrow columns
QString MakeStyleSheet(const Theme& theme);

}  // namespace ui
