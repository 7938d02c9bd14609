#include "sessions/outsider.h"

#include <numeric>

namespace sessions {
namespace {

constexpr int kLeastOfARecord = 30;  // so much of a cut one can be known again

std::string Joined(const Draws& draws) {
  std::string bytes;
  for (const Draw& draw : draws) bytes += Encode(draw);
  return bytes;
}

std::string WithoutLast(const std::string& bytes) {
  const std::vector<std::size_t> lengths = RecordLengths(bytes);
  return bytes.substr(0, bytes.size() - lengths.back());
}

std::string WithLastCut(World& world, const std::string& bytes) {
  const auto length = static_cast<int>(RecordLengths(bytes).back());
  if (length <= kLeastOfARecord) return bytes;
  return bytes.substr(0, bytes.size() - static_cast<std::size_t>(
                                            world.chance.Between(1, length - kLeastOfARecord)));
}

// Some draw becomes another one of the same length.
std::string WithOneChanged(World& world, const std::string& bytes) {
  const std::vector<std::size_t> lengths = RecordLengths(bytes);
  const auto n =
      static_cast<std::size_t>(world.chance.Between(0, static_cast<int>(lengths.size()) - 1));
  const std::size_t offset = std::accumulate(
      lengths.begin(), lengths.begin() + static_cast<std::ptrdiff_t>(n), std::size_t{0});
  const std::string other = Encode(world.NewDraw());
  if (lengths[n] != other.size()) return bytes;
  return bytes.substr(0, offset) + other + bytes.substr(offset + other.size());
}

std::string Told(World& world, const std::string& database, const std::string& what) {
  world.report.Count("changes from outside");
  return "# another program " + what + " " + database;
}

}  // namespace

std::string AppendFromOutside(World& world, const std::string& database) {
  const std::optional<std::string> bytes = world.folder.OnDisk(database);
  if (!bytes || !Read(*bytes).is_whole) return {};
  world.folder.Write(database, *bytes + Encode(world.NewDraw()));
  return Told(world, database, "appends to");
}

std::string ActFromOutside(World& world, const std::string& database) {
  Folder& folder = world.folder;
  const std::optional<std::string> bytes = folder.OnDisk(database);
  if (!bytes) {
    folder.Write(database, NewDatabase(world, world.chance.Between(0, 3)));
    return Told(world, database, "makes");
  }
  switch (world.chance.Between(0, 9)) {
    case 0:
      if (bytes->empty()) return {};
      folder.Write(database, WithoutLast(*bytes));
      return Told(world, database, "cuts a draw off");
    case 1:
      if (bytes->empty()) return {};
      folder.Write(database, WithLastCut(world, *bytes));
      return Told(world, database, "cuts into the last draw of");
    case 2:
      if (bytes->empty()) return {};
      folder.Write(database, WithOneChanged(world, *bytes));
      return Told(world, database, "rewrites a draw of");
    case 3:
      folder.PutInPlace(database, *bytes + Joined({world.NewDraw()}));
      return Told(world, database, "replaces, with one draw more,");
    case 4:
      folder.Remove(database);
      return Told(world, database, "deletes");
    case 5:
      folder.Move(database,
                  "DataBases/Moved " + std::to_string(world.chance.Between(1, 1000000)) + ".dat");
      return Told(world, database, "moves");
    case 6:
      folder.Touch(database);
      return Told(world, database, "touches");
    case 7:
      folder.PutInPlace(database, *bytes);
      return Told(world, database, "replaces, with the same bytes,");
    default:
      return AppendFromOutside(world, database);
  }
}

}  // namespace sessions
