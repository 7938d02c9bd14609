#include "support/test_desk.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <fstream>
#include <sstream>

#include "base/language/error.h"
#include "base/language/text.h"

namespace test {

std::optional<std::string> MemorySettings::Find(std::string_view application,
                                                std::string_view section, std::string_view key) {
  const auto found = texts_.find(
      base::Lower(std::string(application) + "|" + std::string(section) + "|" + std::string(key)));
  if (found == texts_.end()) return std::nullopt;
  return found->second;
}

void MemorySettings::Save(std::string_view application, std::string_view section,
                          std::string_view key, std::string_view text) {
  if (broken) throw base::Error(base::kPermission);
  texts_[base::Lower(std::string(application) + "|" + std::string(section) + "|" +
                     std::string(key))] = text;
}

base::Answer LoggedBoxes::Ask(const base::MessageBox& box) {
  shown.push_back(box);
  if (on_ask) on_ask();
  if (answers.empty()) return base::DefaultAnswer(box.buttons);
  const base::Answer answer = answers.front();
  answers.pop_front();
  return answer;
}

std::optional<std::string> LoggedBoxes::Input(const base::InputBox& box) {
  asked.push_back(box);
  if (inputs.empty()) return box.default_text;
  std::optional<std::string> text = std::move(inputs.front());
  inputs.pop_front();
  return text;
}

base::DateTime FixedClock::Now() {
  if (looks.empty()) return now;
  const base::DateTime look = looks.front();
  looks.pop_front();
  return look;
}

void ScriptedPump::Pump() {
  ++yields;
  const auto [begin, end] = actions_.equal_range(yields);
  std::vector<std::function<void()>> now;
  for (auto it = begin; it != end; ++it) now.push_back(it->second);
  actions_.erase(begin, end);
  for (const auto& action : now) action();
}

void ScriptedPump::At(int n, std::function<void()> action) {
  actions_.emplace(yields + n, std::move(action));
}

std::vector<std::string> ScriptedPump::Unreached() const {
  std::vector<std::string> texts;
  for (const auto& [yield, action] : actions_) {
    texts.push_back("an action in yield " + std::to_string(yield));
  }
  return texts;
}

store::DrawRecord Draw(std::initializer_list<int> balls, std::string_view day,
                       std::string_view date) {
  store::DrawRecord record;
  int k = 0;
  for (const int ball : balls) record.Ball(k++) = store::PadBall(std::to_string(ball));
  for (; k < store::kBalls; ++k) record.Ball(k) = "00";
  record.day = day;
  record.date = date;
  return record;
}

std::vector<store::DrawRecord> SampleDraws(int n) {
  std::vector<store::DrawRecord> draws;
  for (int i = 0; i < n; ++i) {
    std::vector<int> balls;
    for (int k = 0; k < 7; ++k) balls.push_back((i * 3 + k * 7) % 49 + 1);
    std::sort(balls.begin(), balls.begin() + 6);
    char date[16];
    std::snprintf(date, sizeof date, "%02d/%02d/%02d", i % 28 + 1, i / 28 % 12 + 1, i / 336 % 100);
    draws.push_back(Draw({balls[0], balls[1], balls[2], balls[3], balls[4], balls[5], balls[6]},
                         i % 2 == 0 ? "Sa" : "We", date));
  }
  return draws;
}

std::string Encode(const std::vector<store::DrawRecord>& draws) {
  std::string bytes;
  for (const store::DrawRecord& draw : draws) bytes += store::EncodeRecord(draw);
  return bytes;
}

TestDesk::TestDesk(const std::vector<store::DrawRecord>& draws, std::string database_name)
    : database(std::move(database_name)) {
  std::string pattern = (std::filesystem::temp_directory_path() / "desk-XXXXXX").string();
  folder = mkdtemp(pattern.data());
  std::filesystem::create_directory(folder / "DataBases");
  WriteDatabase(Encode(draws));
  settings.Save("Velmonte", "Data", "DataBaseName", database);
}

TestDesk::~TestDesk() {
  desk_.reset();
  if (!may_leave_unused) TellUnused();
  std::error_code ignored;
  std::filesystem::remove_all(folder, ignored);
}

std::vector<std::string> TestDesk::Unused() const {
  std::vector<std::string> texts = pump.Unreached();
  for (const base::Answer answer : boxes.answers) {
    texts.push_back("the answer " + std::to_string(static_cast<int>(answer)));
  }
  for (const auto& input : boxes.inputs) {
    texts.push_back(input ? "the input \"" + *input + "\"" : "the input that cancels");
  }
  if (!clock.looks.empty()) {
    texts.push_back(std::to_string(clock.looks.size()) + " looks at the clock");
  }
  return texts;
}

void TestDesk::TellUnused() const {
  for (const std::string& what : Unused()) {
    ADD_FAILURE() << "never reached: " << what << "; there were " << pump.yields << " yields";
  }
}

void TestDesk::Start() {
  Restart();
  if (base::Form* splash = desk_->Find("frmSplash")) {
    User().Click(static_cast<shell::FrmSplash*>(splash)->CmdContinue);
  }
}

void TestDesk::Restart() {
  const base::Ports ports{.boxes = boxes,
                          .pump = pump,
                          .clock = clock,
                          .beeper = beeper,
                          .shell = shell_open,
                          .mail = mail,
                          .printer = printer,
                          .help = help,
                          .region = region,
                          .files = *files,
                          .settings = settings};
  desk_ = std::make_unique<shell::Desk>(ports, folder.string());
  desk_->Start();
}

std::string TestDesk::ReadFile(const std::string& name) const {
  std::ifstream file(folder / name, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  return bytes.str();
}

std::string TestDesk::DatabaseBytes() const { return ReadFile("DataBases/" + database); }

void TestDesk::WriteDatabase(std::string_view bytes) const {
  std::ofstream file(folder / "DataBases" / database, std::ios::binary);
  file << bytes;
}

std::vector<std::string> TestDesk::TakeBoxTexts() {
  std::vector<std::string> texts;
  for (const base::MessageBox& box : boxes.shown) texts.push_back(box.text);
  boxes.shown.clear();
  return texts;
}

}  // namespace test
