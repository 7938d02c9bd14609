#include "store/session.h"

#include <optional>

#include "base/language/numbers.h"

namespace store {

void Session::ReadDraw(double draw_number) {
  file_pos = database.PositionOf(draw_number);
  database.Read(file_pos, current_draw);
  current_place = database.PlaceOf(base::ToInt32(draw_number));
}

void IndexNextRecord(Session& session) {
  session.file_pos = session.database.Next(session.current_draw);
  session.current_place = session.database.PlaceOf(session.UpperBound());
  session.draw_count = base::ToInt16(session.UpperBound());
}

void WalkFile(Session& session) {
  WalkFile(session, [] {});
}

void GoToEnd(Session& session) {
  const OpenDatabase& database = session.database;
  session.ReadDraw(session.UpperBound());
  session.draw_count = base::ToInt16(session.UpperBound());
  session.file_pos = database.Length() + 1;
}

bool AppendCurrentDraw(Session& session) {
  const std::optional<std::int16_t> number = session.database.Append(session.current_draw);
  if (!number) return false;
  session.draw_count = *number;
  session.current_place = session.database.PlaceOf(session.draw_count);
  session.file_pos = session.database.Positions().back();
  session.current_draw_number = static_cast<float>(session.draw_count) + 1;
  return true;
}

}  // namespace store
