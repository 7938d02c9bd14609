#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace wheels {

inline constexpr int kNumberBoxes = 20;
inline constexpr int kMostCheckNumbers = 20;
inline constexpr int kHitColumns = 6;

// What the wheel window keeps between its events; a window that is opened starts from a fresh one.
struct WheelState {
  // The wheel chosen in List2 sets the pool, a generated one all of these.
  std::uint8_t wheel_pool = 0;
  std::uint8_t wheel_pick = 0;
  std::uint8_t wheel_match = 0;
  std::int16_t wheel_combos = 0;
  std::uint8_t wheel_tickets = 0;
  std::string wheel_name;
  std::string wheel_ini_path;

  // One third of the numbers in the temperature table, and two.
  std::int16_t cold_count = 0;
  std::int16_t warm_top = 0;

  std::array<std::string, 53> user_numbers{};  // by place, place 1 at 0
  std::int16_t wizard_step = 0;

  // The hit check; element 0 of the numbers holds place 1.
  std::array<std::int16_t, kMostCheckNumbers> check_numbers{};
  std::array<std::int16_t, kMostCheckNumbers> line_numbers{};
  std::array<std::int16_t, kHitColumns> column_hits{};
  std::array<std::string, kHitColumns> column_hit_text{};
  std::string win_numbers;
  std::string hit_position;
  std::string hit_numbers;
  std::int16_t total_hits = 0;
};

}  // namespace wheels
