#include "sessions/draws.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace sessions {
namespace {

constexpr std::size_t kBalls = 7;
constexpr std::size_t kMainBalls = 6;
constexpr std::size_t kDate = 7;
constexpr std::size_t kDay = 8;
constexpr std::size_t kTexts = 9;
constexpr std::size_t kNumber = 2;  // bytes of a number
constexpr std::size_t kDateLength = 8;

bool IsBall(const std::string& text) {
  return text.size() == 2 && std::isdigit(static_cast<unsigned char>(text[0])) != 0 &&
         std::isdigit(static_cast<unsigned char>(text[1])) != 0;
}

bool IsDate(const std::string& text) {
  return text.size() == kDateLength && text[2] == '/' && text[5] == '/' &&
         text.find(' ') == std::string::npos;
}

bool IsCommon(const Fields& fields) {
  return std::all_of(fields.begin(), fields.begin() + kBalls, IsBall) && IsDate(fields[kDate]) &&
         fields[kDay].size() == 2 && fields[kDay].find(' ') == std::string::npos;
}

bool IsBlank(const Fields& fields) {
  return fields[kDate].empty() && std::all_of(fields.begin(), fields.begin() + kBalls,
                                              [](const auto& ball) { return ball == "00"; });
}

std::string Joined(const Fields& fields) {
  std::string text;
  for (const std::string& field : fields) text += (text.empty() ? "" : " ") + field;
  return text;
}

// One record, its texts in the order of the file: six balls, day, extra ball, date.
class RecordReader {
 public:
  RecordReader(std::string_view bytes, std::size_t offset) : bytes_(bytes), offset_(offset) {
    Take(kNumber);
    for (std::string& text : texts_) text = Take(Number());
  }
  std::size_t End() const { return offset_; }
  bool IsWhole() const { return is_whole_; }
  Draw Read() const {
    Fields fields{texts_[0], texts_[1], texts_[2], texts_[3], texts_[4],
                  texts_[5], texts_[7], texts_[8], texts_[6]};
    const Fields as_it_stands = fields;
    for (std::size_t k = 0; k < kBalls; ++k) {
      if (fields[k].empty()) fields[k] = "00";
    }
    if (IsBlank(fields)) return kBlank;
    return is_whole_ && IsCommon(as_it_stands) ? Joined(as_it_stands) : kOdd;
  }

 private:
  std::size_t Number() {
    const std::string word = Take(kNumber);
    if (word.size() < kNumber) return 0;
    return static_cast<unsigned char>(word[0]) +
           256 * static_cast<std::size_t>(static_cast<unsigned char>(word[1]));
  }
  std::string Take(std::size_t count) {
    std::string taken(bytes_.substr(std::min(offset_, bytes_.size()), count));
    if (taken.size() < count) is_whole_ = false;
    offset_ += taken.size();
    return taken;
  }

  std::string_view bytes_;
  std::size_t offset_;
  bool is_whole_ = true;
  std::array<std::string, kTexts> texts_;
};

void AppendText(std::string& bytes, const std::string& text) {
  bytes.push_back(static_cast<char>(text.size()));
  bytes.push_back('\0');
  bytes += text;
}

// Takes away one waiting row after the other where the draws show that it was or was not stored.
class Road {
 public:
  Road(const Draws& before, const Draws& after, const WaitingRows& rows)
      : before_(before), after_(after), rows_(rows), used_(rows.size()) {}

  bool Leads(std::size_t from, std::size_t to) {
    if (from == before_.size()) return to == after_.size() && NothingIsLeft();
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      if (!used_[row] && Same(rows_[row].was, before_[from]) && LeadsBy(row, from, to)) return true;
    }
    return to < after_.size() && Same(before_[from], after_[to]) && Leads(from + 1, to + 1);
  }

 private:
  bool LeadsBy(std::size_t row, std::size_t from, std::size_t to) {
    const std::optional<Draw>& now = rows_[row].now;
    if (now && (to == after_.size() || !Same(*now, after_[to]))) return false;
    used_[row] = true;
    if (Leads(from + 1, now ? to + 1 : to)) return true;
    used_[row] = false;
    return false;
  }
  bool NothingIsLeft() const {
    for (std::size_t row = 0; row < rows_.size(); ++row) {
      if (!used_[row] && !rows_[row].may_be_forgotten && !rows_[row].ChangesNothing()) return false;
    }
    return true;
  }

  const Draws& before_;
  const Draws& after_;
  const WaitingRows& rows_;
  std::vector<bool> used_;
};

}  // namespace

Draw DrawOf(const Fields& fields) {
  Fields plain = fields;
  for (std::size_t k = 0; k < kBalls; ++k) {
    plain[k].insert(0, plain[k].size() < 2 ? 2 - plain[k].size() : 0, '0');
  }
  plain[kDay] = plain[kDay].substr(0, 2);
  if (IsBlank(plain)) return kBlank;
  return IsCommon(plain) ? Joined(plain) : kOdd;
}

Draw SortedDrawOf(Fields fields) {
  for (std::size_t k = 0; k < kBalls; ++k) {
    fields[k].insert(0, fields[k].size() < 2 ? 2 - fields[k].size() : 0, '0');
  }
  const auto end = std::stable_partition(fields.begin(), fields.begin() + kMainBalls,
                                         [](const std::string& ball) { return ball != "00"; });
  std::sort(fields.begin(), end);
  return DrawOf(fields);
}

Fields FieldsOf(const Draw& draw) {
  Fields fields;
  std::istringstream words(draw);
  for (std::string& field : fields) words >> field;
  return fields;
}

std::string DateOf(const Draw& draw) { return FieldsOf(draw)[kDate]; }

Draw DrawOfLine(const std::string& line) {
  std::istringstream words(line);
  std::vector<std::string> parts;
  for (std::string word; words >> word;) parts.push_back(word);
  constexpr std::size_t kParts = 10;  // with the number that nobody uses
  if (parts.size() == kParts) {
    return DrawOf(
        {parts[0], parts[1], parts[2], parts[3], parts[4], parts[5], parts[6], parts[7], parts[9]});
  }
  const bool blank =
      parts.size() == kBalls + 1 &&
      std::all_of(parts.begin(), parts.end() - 1, [](const auto& part) { return part == "00"; });
  return blank ? kBlank : kOdd;
}

std::string Encode(const Draw& draw) {
  const Fields fields = FieldsOf(draw);
  std::string bytes(kNumber, '\0');
  for (std::size_t k = 0; k < kMainBalls; ++k) AppendText(bytes, fields[k]);
  AppendText(bytes, fields[kDay]);
  AppendText(bytes, fields[kMainBalls]);
  AppendText(bytes, fields[kDate]);
  return bytes;
}

Reading Read(std::string_view bytes) {
  Reading reading;
  for (std::size_t offset = 0; offset < bytes.size();) {
    const RecordReader record(bytes, offset);
    reading.draws.push_back(record.Read());
    reading.is_whole = record.IsWhole();
    offset = record.End();
  }
  return reading;
}

std::vector<std::size_t> RecordLengths(std::string_view bytes) {
  std::vector<std::size_t> lengths;
  for (std::size_t offset = 0; offset < bytes.size();) {
    const std::size_t end = RecordReader(bytes, offset).End();
    lengths.push_back(end - offset);
    offset = end;
  }
  return lengths;
}

bool Same(const Draw& a, const Draw& b) { return a == b || a == kOdd || b == kOdd; }

bool Same(const Draws& a, const Draws& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const Draw& one, const Draw& other) { return Same(one, other); });
}

bool Contains(const Draws& draws, const Draw& draw) {
  return std::find(draws.begin(), draws.end(), draw) != draws.end();
}

std::string Difference(const Draws& expected, const Draws& seen) {
  const auto [here, there] =
      std::mismatch(expected.begin(), expected.end(), seen.begin(), seen.end());
  return ", of " + std::to_string(expected.size()) + " there are " + std::to_string(seen.size()) +
         ", from number " + std::to_string(here - expected.begin() + 1) + ": " +
         (here == expected.end() ? "none" : *here) + " / " +
         (there == seen.end() ? "none" : *there);
}

bool Becomes(const Draws& before, const Draws& after, const WaitingRows& rows) {
  return Road(before, after, rows).Leads(0, 0);
}

}  // namespace sessions
