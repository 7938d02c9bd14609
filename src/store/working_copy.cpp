#include "store/working_copy.h"

#include "base/language/error.h"
#include "base/language/numbers.h"
#include "store/headings.h"
#include "store/setting_names.h"

namespace store {
namespace {

// Records gathered for one write, with the positions that they will have.
struct Batch {
  std::string bytes;
  std::vector<std::int32_t> positions;
};

void Add(Batch& batch, std::int32_t length_before, const DrawRecord& record) {
  batch.positions.push_back(length_before + static_cast<std::int32_t>(batch.bytes.size()) + 1);
  batch.bytes += EncodeRecord(record);
}

// Brings the index to what appending the batch's records one by one leaves.
void IndexBatch(Session& session, const Batch& batch) {
  if (batch.positions.empty()) return;
  session.file_pos = batch.positions.back();
  session.draw_pos.insert(session.draw_pos.end(), batch.positions.begin(), batch.positions.end());
  session.draw_count = base::ToInt16(session.UpperBound());
  session.current_draw_number = static_cast<float>(session.draw_count) + 1;
}

}  // namespace

std::string WorkingCopy::DataBasePath() const {
  std::string name = DataBaseNameSetting(place_.World().settings);
  if (name.empty()) name = kDefaultDataBase;
  return place_.session.program_folder + "\\DataBases\\" + name;
}

void WorkingCopy::DoDataBase() {
  Session& session = place_.session;
  MainWindow& window = place_.window;
  base::FileSystem& files = place_.World().files;
  const std::string database = DataBasePath();
  try {
    session.file.Close();
    session.temp_path = session.program_folder + "\\Temp.dat";
    place_.Yield();
    session.file.Open(session.temp_path);
    session.file_len = session.file.Length();
    WalkFile(session);
    window.List7.SetEnabled(false);
    AppendLines();
    window.List7.SetEnabled(true);
    session.file.Close();
    place_.Yield();
    files.Replace(database, files.ReadAll(session.temp_path));
    files.Remove(session.temp_path);
  } catch (const base::Error& error) {
    window.List7.SetEnabled(true);
    DropTemp();
    place_.reporter.Report("DoDataBase", error);
  } catch (const base::WindowClosed&) {
    DropTemp();
    throw;
  }
  Trapped(place_.reporter, "DoDataBase", [&] {
    session.data_base_path = database;
    place_.Yield();
    Reopen();
    window.tbar3.SetEnabled(false);
    window.cmdSave.SetEnabled(false);
    window.cmdClear.SetEnabled(false);
    browsing_.EnableTheButtons(true);
    browsing_.cmdFirst_Click();
    if (!session.current_draw.b[0].empty()) browsing_.cmdLast_Click();
    session.temp_path.clear();
    session.data_base_name.clear();
  });
}

// What a broken rewrite gathered must not stand in front of the next one. The database is whole.
void WorkingCopy::DropTemp() {
  place_.session.file.Close();
  try {
    place_.World().files.Remove(place_.session.temp_path);
  } catch (const base::Error&) {
    // There was none yet.
  }
}

void WorkingCopy::AppendLines() {
  Session& session = place_.session;
  base::ListBox& lines = place_.window.List7;
  Batch batch;
  for (int row = 0; row < lines.ListCount(); ++row) {
    lines.SetListIndex(row);
    ParseDrawLine(lines.Text(), session.current_draw);
    session.current_draw.day = TwoLetterDay(session.current_draw.day);
    Add(batch, session.file_len, session.current_draw);
  }
  // In one step: part of a record, left by a kill, would stand in front of the next edit and make
  // every record behind it unreadable.
  base::FileSystem& files = place_.World().files;
  files.Replace(session.temp_path, files.ReadAll(session.temp_path) + batch.bytes);
  session.file.Open(session.temp_path);
  session.file_len = session.file.Length();
  IndexBatch(session, batch);
}

void WorkingCopy::Reopen() {
  Session& session = place_.session;
  session.file.Open(session.data_base_path);
  session.file_len = session.file.Length();
  place_.Yield();
  WalkFile(session);
}

void WorkingCopy::RewriteFromTable() {
  Session& session = place_.session;
  if (!session.data_base_changed || !session.buffers_complete) return;
  Trapped(place_.reporter, "Form_Unload", [&] { AppendRows(); });
}

// Copies a row by way of the boxes into current_draw. A row that the boxes cannot show, because a
// ball of it is no number, is taken as it stands.
void WorkingCopy::TakeRow(int row) {
  try {
    browsing_.ShowSelectedRow();
    entry_.SaveFields();
  } catch (const base::Error&) {
    const base::ListView::Cells& cells = place_.window.ListView1.Row(row);
    DrawRecord& draw = place_.session.current_draw;
    for (int k = 0; k < kBalls; ++k) draw.Ball(k) = PadBall(cells[static_cast<std::size_t>(k)]);
    draw.date = cells[kBalls];
    draw.day = TwoLetterDay(cells[kBalls + 1]);
  }
}

void WorkingCopy::AppendRows() {
  Session& session = place_.session;
  base::ListView& table = place_.window.ListView1;
  Batch batch;
  for (int row = 1; row <= table.RowCount(); ++row) {
    table.Select(row);
    TakeRow(row);
    Add(batch, 0, session.current_draw);
  }
  session.data_base_path =
      session.program_folder + "\\DataBases\\" + DataBaseNameSetting(place_.World().settings);
  place_.World().files.Replace(session.data_base_path, batch.bytes);
  session.file.Open(session.data_base_path);
  session.file_len = session.file.Length();
  session.draw_pos = {0};
  IndexBatch(session, batch);
}

}  // namespace store
