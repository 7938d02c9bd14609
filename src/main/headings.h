#pragma once

#include <string>
#include <string_view>

#include "base/ports/settings.h"
#include "main/main_window.h"

namespace main_window {

// The open database's file name as the settings have it; empty before the first start.
std::string DataBaseNameSetting(base::Settings& settings);

// Makes `file_name` the open database of the next start, and gives it the headings B1..B6, BB if it
// has none yet.
void EnsureHeadings(base::Settings& settings, std::string_view file_name);

// Puts the database's headings over the seven balls. Without a first heading all seven are the
// defaults.
void FillHeadings(base::Settings& settings, std::string_view file_name, MainWindow& window);

}  // namespace main_window
