#include "sessions/world.h"

#include <algorithm>
#include <cstdio>
#include <numeric>

namespace sessions {
namespace {

constexpr int kHighestBall = 49;

std::string TwoDigits(int number) {
  char text[16];
  std::snprintf(text, sizeof text, "%02d", number);
  return text;
}

}  // namespace

std::string World::NewDate() {
  const int n = dates_++;
  return TwoDigits(n % 28 + 1) + "/" + TwoDigits(n / 28 % 12 + 1) + "/" + TwoDigits(n / 336 % 100);
}

std::string World::NewBall() { return TwoDigits(chance.Between(1, kHighestBall)); }

Draw World::NewDraw() {
  std::vector<int> balls(kHighestBall);
  std::iota(balls.begin(), balls.end(), 1);
  for (std::size_t k = 0; k < 7; ++k) {
    std::swap(
        balls[k],
        balls[static_cast<std::size_t>(chance.Between(static_cast<int>(k), kHighestBall - 1))]);
  }
  Fields fields;
  for (std::size_t k = 0; k < 7; ++k) fields[k] = TwoDigits(balls[k]);
  if (chance.Percent(10)) fields[5] = fields[6] = "00";
  fields[7] = NewDate();
  fields[8] = chance.OneOf<std::string>({"Sa", "We"});
  return SortedDrawOf(fields);
}

base::DateTime World::Later() {
  now.second += chance.Between(0, 1);
  if (now.second == 60) {
    now.second = 0;
    ++now.minute;
  }
  if (now.minute == 60) {
    now.minute = 0;
    ++now.hour;
  }
  return now;
}

std::string NewDatabase(World& world, int draws) {
  std::string bytes;
  for (int n = 0; n < draws; ++n) bytes += Encode(world.NewDraw());
  return bytes;
}

}  // namespace sessions
