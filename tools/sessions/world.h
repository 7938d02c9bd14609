#pragma once

#include <filesystem>
#include <string>

#include "base/host/host_file_system.h"
#include "sessions/chance.h"
#include "sessions/draws.h"
#include "sessions/folder.h"
#include "sessions/report.h"
#include "support/test_desk.h"

namespace sessions {

// What the desks and the other programs of a run have in common.
struct World {
  World(const std::filesystem::path& root, std::uint64_t seed) : chance(seed), folder(root) {}

  Chance chance;
  Folder folder;
  base::HostFileSystem disk;
  test::MemorySettings settings;
  Report report;
  base::DateTime now{2005, 12, 5, 8, 0, 0};

  // A draw that there never was before.
  Draw NewDraw();
  std::string NewDate();
  std::string NewBall();
  // Some seconds later than at the last look.
  base::DateTime Later();

 private:
  int dates_ = 0;
};

// A database of this many draws.
std::string NewDatabase(World& world, int draws);

}  // namespace sessions
