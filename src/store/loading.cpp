#include "store/loading.h"

#include "base/language/dates.h"
#include "base/language/text.h"
#include "store/headings.h"
#include "store/setting_names.h"

namespace store {
namespace {

// A database of fewer lines than this is read again at every activation.
constexpr int kFilledFrom = 30;

std::string DataBasesFolder(const Session& session) {
  return session.program_folder + "\\DataBases\\";
}

// The fifth of December 2005 was a Monday; read month first the text is a Thursday in May.
bool ReadsDayFirst(base::DateOrder order) {
  return base::DateText("05/12/2005", "dddd", order) == "Monday";
}

}  // namespace

base::ListView::Cells TableRow(const DrawRecord& record) {
  base::ListView::Cells cells;
  cells.reserve(9);
  for (int k = 0; k < kBalls; ++k) cells.push_back(PadBall(record.Ball(k)));
  cells.push_back(record.date);
  cells.push_back(record.day);
  return cells;
}

void DoTextBoxExpandshion(MainWindow& window) {
  const int overhang = window.InnerPict.Width() - window.OuterPict.Width();
  window.HBar.SetVisible(overhang > 0);
  window.HBar.SetRange(0, overhang > 0 ? -overhang : 0);
}

void Loading::GetDataBaseName() {
  base::Settings& settings = place_.World().settings;
  std::string name = settings.Get(kDeskApplication, kDataSection, kDataBaseNameKey);
  if (name.empty()) {
    name = kDefaultDataBase;
    try {
      settings.Save(kDeskApplication, kDataSection, kDataBaseNameKey, name);
    } catch (const base::Error&) {
      // A store that keeps nothing is no reason to open nothing: the database is chosen by region.
    }
  }
  place_.session.data_base_name = name;
  if (place_.window.Visible()) FillHeadings(settings, name, place_.window);
  const std::string title = std::string(kWindowTitle) + name;
  place_.window.SetCaption(title);
  neighbours_.ShowStatus(title);
}

void Loading::ChooseDatabase() {
  Session& session = place_.session;
  GetDataBaseName();
  session.data_base_name = DataBaseNameSetting(place_.World().settings);
  if (!session.data_base_name.empty()) return;
  session.data_base_name =
      ReadsDayFirst(place_.World().region.Dates()) ? kDefaultDataBase : kDefaultUsDataBase;
}

void Loading::LoadFirstDatabase() {
  Trapped(place_.reporter, "LoadFirstDatabase", [&] {
    Session& session = place_.session;
    base::Ports world = place_.World();
    ChooseDatabase();
    neighbours_.SetHelpFile(session.program_folder + "\\QND.HLP");

    const std::string path = DataBasesFolder(session) + session.data_base_name;
    if (!world.files.FileExists(path)) {
      place_.Ask({.text = "Database could not be found\r\n"
                          "Please load a database from the database window"});
    }
    session.data_base_path = path;
    place_.window.SetCaption(std::string(kWindowTitle) + DataBaseNameSetting(world.settings));
    session.file.Close();
    session.file.Open(path);
    session.file_len = session.file.Length();
    FillHeadings(world.settings, DataBaseNameSetting(world.settings), place_.window);
  });
}

void Loading::Form_Activate() {
  Trapped(place_.reporter, "Form_Activate", [&] {
    Session& session = place_.session;
    MainWindow& window = place_.window;
    place_.Yield();
    neighbours_.DoBarColors();
    neighbours_.DoMenus();

    session.data_base_changed = false;
    session.current_draw_number = 1;
    session.filter_count = 1;
    window.txtRecNum.SetText("1");
    neighbours_.MarkMainWindow(true);
    if (window.ProgressBar1(1).Value() >= 1 || window.Check1.Value() == 0) return;

    session.draw_count = 0;
    session.file_pos = 1;
    DoTextBoxExpandshion(window);
    if (window.List7.ListCount() < kFilledFrom) FillBuffers();

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

void Loading::FillBuffers() {
  Session& session = place_.session;
  MainWindow& window = place_.window;
  session.buffers_complete = false;
  window.ListView1.Clear();
  window.List7.Clear();
  WalkFile(session, [&] {
    window.List7.AddItem(DrawLine(session.current_draw));
    window.ListView1.AddRow(TableRow(session.current_draw));
  });
  session.buffers_complete = true;
  window.ListView1.Select(1);
  browsing_.FillFromListView();
}

void Loading::StartBrowsing() {
  Session& session = place_.session;
  MainWindow& window = place_.window;
  window.tbar3.SetEnabled(false);
  window.cmdSave.SetEnabled(false);
  window.cmdClear.SetEnabled(false);
  window.cmdPrev.SetEnabled(true);
  window.cmdNext.SetEnabled(true);
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

}  // namespace store
