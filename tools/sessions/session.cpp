#include "sessions/session.h"

#include <memory>

#include "sessions/outsider.h"
#include "sessions/player.h"

namespace sessions {
namespace {

class Session {
 public:
  Session(const std::filesystem::path& folder, std::uint64_t seed, bool is_talking)
      : world_(folder, seed),
        one_(world_, "", [this] { Elsewhere(); }),
        other_(world_, "the other desk: ", [] {}) {
    world_.report.is_talking = is_talking;
    PutDatabase("UK-National-Lottery.dat", world_.chance.OneOf<int>({0, 1, 2, 5, 29, 30, 31, 45}));
    PutDatabase("Other.dat", 7);
    PutDatabase("US-Small.dat", 31);
    Set("Data", "DataBaseName", "UK-National-Lottery.dat");
    Set("390", "SplashScreen", "1");
    Set("390", "Tips", "False");
  }

  void Play() {
    one_.Start();
    const int acts = world_.chance.Between(3, 25);
    for (int act = 0; act < acts && IsWell(); ++act) one_.Act();
    for (Player* player : {&one_, &other_}) {
      if (IsWell() && player->IsRunning()) player->Stop();
    }
    if (!IsWell()) return;
    one_.Start();
    if (IsWell()) one_.Stop();
  }
  const Report& Played() const { return world_.report; }

 private:
  bool IsWell() const { return world_.report.Complaints().empty(); }
  void Set(const char* section, const char* key, const std::string& text) {
    world_.settings.Save("Velmonte", section, key, text);
  }
  void PutDatabase(const std::string& name, int draws) {
    world_.folder.Write("DataBases/" + name, NewDatabase(world_, draws));
  }
  // What happens beside the first desk, also in its yields and while its boxes stand open.
  void Elsewhere() {
    if (world_.chance.Percent(40)) {
      other_.Act();
    } else if (world_.chance.Percent(15)) {
      LeaveTemp();
    } else {
      Tell(ActFromOutside(world_, world_.chance.Percent(90) && !one_.Database().empty()
                                      ? one_.Database()
                                      : "DataBases/Other.dat"));
    }
  }
  void LeaveTemp() {
    if (world_.folder.OnDisk("Temp.dat")) return;
    world_.folder.Write("Temp.dat", NewDatabase(world_, 3));
    Tell("# there is a Temp.dat");
  }
  void Tell(const std::string& what) {
    if (!what.empty()) world_.report.Inside(what);
  }

  World world_;
  Player one_;
  Player other_;
};

}  // namespace

Report PlaySession(const std::filesystem::path& folder, std::uint64_t seed, bool is_talking) {
  Session session(folder, seed, is_talking);
  session.Play();
  return session.Played();
}

}  // namespace sessions
