#include "store/session.h"

#include "base/language/error.h"
#include "base/language/numbers.h"

namespace store {

std::int32_t Session::PositionOf(double draw_number) const {
  const std::int32_t index = base::ToInt32(draw_number);
  if (index < 0 || index > UpperBound()) throw base::Error(base::kSubscript);
  return draw_pos[static_cast<std::size_t>(index)];
}

void Session::ReadDraw(double draw_number) {
  file_pos = PositionOf(draw_number);
  file.Read(file_pos, current_draw);
}

void IndexNextRecord(Session& session, std::int32_t& position) {
  const std::int32_t next = session.file.Read(position, session.current_draw);
  session.draw_count = base::AddInt16(session.draw_count, 1);
  const auto count = static_cast<std::size_t>(session.draw_count);
  session.draw_pos.resize(count + 1);
  session.draw_pos[count] = position;
  session.file_pos = next;
  position = next;
}

void WalkFile(Session& session) {
  WalkFile(session, [] {});
}

// A save that was cut short has left a record torn: it is made whole first, so that it does not
// swallow the new one.
void CompleteLastRecord(Session& session) {
  if (session.draw_pos.size() < 2) return;
  const std::string missing = session.file.MissingBytes(session.draw_pos.back());
  if (missing.empty()) return;
  session.file.AppendBytes(missing);
  session.file_len = session.file.Length();
}

// A single byte behind the last record is too little to be one; the new record goes on with it.
bool OneByteIsLeftOver(Session& session) {
  DrawRecord last;
  return session.draw_pos.size() >= 2 &&
         session.file.Read(session.draw_pos.back(), last) == session.file_len;
}

void AppendCurrentDraw(Session& session) {
  const std::int16_t count = base::ToInt16(static_cast<double>(session.draw_pos.size()));
  CompleteLastRecord(session);
  if (OneByteIsLeftOver(session)) {
    session.file_pos = session.file_len;
    session.file.AppendBytes(EncodeRecord(session.current_draw).substr(1));
  } else {
    session.file_pos = session.file_len + 1;
    session.file.Write(session.file_pos, session.current_draw);
  }
  session.draw_pos.push_back(session.file_pos);
  session.draw_count = count;
  session.current_draw_number = static_cast<float>(session.draw_count) + 1;
  session.file_len = session.file.Length();
}

}  // namespace store
