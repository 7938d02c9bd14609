#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "base/controls/control.h"
#include "store/draw_record.h"
#include "store/open_database.h"

namespace store {

inline constexpr std::size_t kBallCountPlaces = 1501;
inline constexpr std::size_t kPositionPlaces = 101;
inline constexpr std::size_t kMatchPlaces = 11;

// The colours of the graph's bands and of the ground behind the bars.
struct BarColours {
  base::Colour cold = 0;
  base::Colour warm = 0;
  base::Colour hot = 0;
  base::Colour back = 0;
  base::Colour fifth = 0;
};

// Everything that the windows and procedures of one desk share.
struct Session {
  explicit Session(base::FileSystem& files) : database(files) {}

  // The open database.
  std::string program_folder;
  OpenDatabase database;    // file number 1
  DrawRecord current_draw;  // the one buffer of every read and write of the file
  int current_place = 0;    // of current_draw in the file, as it was read; 0 for none
  std::int16_t draw_count = 0;
  std::int32_t file_pos = 0;
  std::string data_base_name;
  std::string data_base_path;
  std::string temp_path;
  bool data_base_changed = false;
  // On a screen an activation forgets nothing that waits in the table.
  bool keeps_pending = false;

  // The draw on show: its place among the draws of the file, 0 for none; the other numbers count in
  // ways of their own.
  int shown_place = 0;
  int editor_place = 0;  // of the draw that the row editor was opened on
  float current_draw_number = 0;
  std::array<std::uint8_t, kBalls> current_balls{};
  std::string shown_day;
  std::string shown_date;
  std::int16_t selected_list_row = 0;
  std::string day_text;

  // The counts of the scan.
  std::vector<float> ball_count = std::vector<float>(kBallCountPlaces);
  float filter_count = 0;
  float scan_tally = 0;
  std::array<std::array<float, kPositionPlaces>, kBalls> position_hits{};
  std::array<std::array<std::uint8_t, kPositionPlaces>, kBalls> position_marks{};
  std::string report_buffer;
  // The line of the last winner scan: its six numbers, and behind a gap the extra one.
  std::array<std::uint8_t, kMatchPlaces> match_numbers{};
  BarColours bar_colours;
  // Set by the user's first choice of a style. Until then a screen tells the bands by its own
  // colours, although the first style paints them alike.
  bool graph_style_chosen = false;

  // Preferences, read at the start.
  std::string version_section;
  std::string date_format_text;
  bool tips_on = false;
  bool prompt_on_range_change = false;
  bool mnu_hgight_on = false;
  bool mnu_blue_on = false;
  bool mnu_rwc_on = false;
  bool mnu_hc_on = false;

  // Which windows are open.
  bool main_window_loaded = false;
  bool wheel_window_loaded = false;

  std::int16_t loop_i = 0;
  std::int16_t loop_j = 0;

  // The highest draw number that the index knows.
  int UpperBound() const { return database.UpperBound(); }
  // Reads the draw of this number into current_draw and moves file_pos to it.
  void ReadDraw(double draw_number);
};

// Walks the whole file from its first byte: fills the index, draw_count and file_pos, and calls
// `visit` for each record in current_draw. An empty file is one blank record. Error 6 at the
// 32,768th record. After an error the index holds the records that were reached.
template <typename Visit>
void WalkFile(Session& session, Visit visit);
void WalkFile(Session& session);

// Appends current_draw, and brings the index, file_pos, draw_count and current_draw_number up to
// date; false, and nothing done, where the database is not there any more.
bool AppendCurrentDraw(Session& session);

// Brings file_pos, draw_count and current_draw to what a walk to the end of the file leaves.
void GoToEnd(Session& session);

// --- implementation

void IndexNextRecord(Session& session);

template <typename Visit>
void WalkFile(Session& session, Visit visit) {
  session.draw_count = 0;
  session.file_pos = 1;
  session.database.BeginWalk();
  do {
    IndexNextRecord(session);
    visit();
  } while (session.file_pos < session.database.Length());
  session.database.EndWalk();
}

}  // namespace store
