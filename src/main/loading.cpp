#include "main/loading.h"

#include <algorithm>

#include "base/language/dates.h"
#include "base/language/text.h"
#include "main/draw_lists.h"
#include "main/draw_on_show.h"
#include "main/headings.h"
#include "store/setting_names.h"

namespace main_window {
namespace {

// A database of fewer lines than this is read again at every activation.
constexpr int kFilledFrom = 30;

std::string DataBasesFolder(const store::Session& session) {
  return session.program_folder + "\\DataBases\\";
}

// The fifth of December 2005 was a Monday; read month first the text is a Thursday in May.
bool ReadsDayFirst(base::DateOrder order) {
  return base::DateText("05/12/2005", "dddd", order) == "Monday";
}

}  // namespace

bool IsDatabaseName(std::string_view name) {
  return !name.empty() && name != "." && name != ".." &&
         std::none_of(name.begin(), name.end(),
                      [](char c) { return c == '\\' || c == '/' || (c >= 0 && c < ' '); });
}

void DoTextBoxExpandshion(MainWindow& window) {
  const int overhang = window.InnerPict.Width() - window.OuterPict.Width();
  window.HBar.SetVisible(overhang > 0);
  window.HBar.SetRange(0, overhang > 0 ? -overhang : 0);
}

void Loading::GetDataBaseName() {
  base::Settings& settings = place_.World().settings;
  std::string name =
      settings.Get(store::kDeskApplication, store::kDataSection, store::kDataBaseNameKey);
  if (name.empty()) {
    name = store::kDefaultDataBase;
    try {
      settings.Save(store::kDeskApplication, store::kDataSection, store::kDataBaseNameKey, name);
    } catch (const base::Error&) {
      // A store that keeps nothing is no reason to open nothing: the database is chosen by region.
    }
  }
  place_.session.data_base_name = name;
  if (place_.window.Visible()) FillHeadings(settings, name, place_.window);
  const std::string title = std::string(store::kWindowTitle) + name;
  place_.window.SetCaption(title);
  neighbours_.ShowStatus(title);
}

void Loading::ChooseDatabase() {
  store::Session& session = place_.session;
  GetDataBaseName();
  session.data_base_name = DataBaseNameSetting(place_.World().settings);
  if (!session.data_base_name.empty()) return;
  session.data_base_name = ReadsDayFirst(place_.World().region.Dates()) ? store::kDefaultDataBase
                                                                        : store::kDefaultUsDataBase;
}

void Loading::LoadFirstDatabase() {
  base::Trapped(place_.reporter, "LoadFirstDatabase", [&] {
    store::Session& session = place_.session;
    base::Ports world = place_.World();
    ChooseDatabase();
    neighbours_.SetHelpFile(session.program_folder + "\\QND.HLP");

    const std::string path = DataBasesFolder(session) + session.data_base_name;
    const bool is_name = IsDatabaseName(session.data_base_name);
    if (!is_name || !world.files.FileExists(path)) {
      place_.Ask({.text = "Database could not be found\r\n"
                          "Please load a database from the database window"});
    }
    session.data_base_path = path;
    place_.window.SetCaption(std::string(store::kWindowTitle) +
                             DataBaseNameSetting(world.settings));
    if (is_name) {
      session.database.Open(path);
    } else {
      session.database.Close();
    }
    FillHeadings(world.settings, DataBaseNameSetting(world.settings), place_.window);
  });
}

void Loading::Form_Activate() {
  if (place_.desktop.IsHeld(place_.window)) return;
  const base::Desktop::Hold hold(place_.desktop, place_.window);
  // What comes in the yield must not find the flags of an earlier window.
  ForgetChanges();
  base::Trapped(place_.reporter, "Form_Activate", [&] {
    store::Session& session = place_.session;
    MainWindow& window = place_.window;
    place_.Yield();
    neighbours_.DoBarColors();
    neighbours_.DoMenus();

    ForgetChanges();
    session.current_draw_number = 1;
    session.filter_count = 1;
    window.txtRecNum.SetText("1");
    neighbours_.MarkMainWindow(true);
    if (window.ProgressBar1(1).Value() >= 1 || window.Check1.Value() == 0) {
      EnableChanges(session, window);  // a scan that came before the first load keeps it off
      return;
    }

    session.draw_count = 0;
    session.file_pos = 1;
    DoTextBoxExpandshion(window);
    if (window.List7.ListCount() < kFilledFrom && !HoldsWhatIsNowhereElse()) FillBuffers();

    place_.Yield();
    if (window.ListView1.RowCount() == 0) {
      place_.desktop.Unload(window);
      return;
    }
    window.ListView1.Select(1);
    window.ListView1.EnsureVisible(1);
    StartBrowsing();
  });
}

void Loading::ForgetChanges() {
  store::Session& session = place_.session;
  session.data_base_changed = session.keeps_pending && !session.database.pending.empty();
}

// The rows of a file that the person left alone, and on a screen what waits for the file.
bool Loading::HoldsWhatIsNowhereElse() const {
  const store::Session& session = place_.session;
  return session.database.IsComplete() &&
         (session.database.keeps_own_rows || session.data_base_changed);
}

void Loading::FillBuffers() {
  store::Session& session = place_.session;
  MainWindow& window = place_.window;
  store::OpenDatabase& database = session.database;
  const bool was_complete = database.IsComplete();
  const std::string before = was_complete ? database.Bytes() : std::string();
  database.pending.clear();
  database.log.ForgetPending();
  window.ListView1.Clear();
  window.List7.Clear();
  try {
    store::WalkFile(session, [&] {
      window.List7.AddItem(store::DrawLine(session.current_draw), session.current_place);
      window.ListView1.AddRow(TableRow(session.current_draw), session.current_place);
    });
  } catch (const base::Error&) {
    database.log.Clear();  // the next load may read another file
    CloseRowEditor(session, window);
    SetDrawOnShow(session, window, 0);
    throw;
  }
  if (!was_complete || database.Bytes() != before) {
    database.log.Clear();
    CloseRowEditor(session, window);
  }
  window.ListView1.Select(1);
  browsing_.FillFromListView();
}

void Loading::StartBrowsing() {
  store::Session& session = place_.session;
  MainWindow& window = place_.window;
  window.tbar3.SetEnabled(false);
  window.cmdSave.SetEnabled(false);
  window.cmdClear.SetEnabled(false);
  window.cmdPrev.SetEnabled(true);
  window.cmdNext.SetEnabled(true);
  EnableChanges(session, window);
  if (session.current_draw.b[0].empty()) return;

  browsing_.GotoDataBasePosition1MainWindow();
  place_.Yield();
  place_.Yield();
  window.txtDate.SetText(std::string(window.txtDate.Text()));
  place_.Yield();
  browsing_.GotoDataBasePosition1MainWindow();
  window.txtDate.SetTag(session.current_draw.date);

  const std::string name = DataBaseNameSetting(place_.World().settings);
  (base::Left(name, 2) == "UK" ? window.Option5 : window.Option3).SetValue(true);
  session.data_base_name = base::UpToFirst(name, '.');
}

}  // namespace main_window
