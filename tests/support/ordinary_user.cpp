#include "support/ordinary_user.h"

#include <grp.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <system_error>

namespace test {
namespace {

constexpr uid_t kNobody = 65534;

void Own(const std::filesystem::path& path) {
  if (lchown(path.c_str(), kNobody, kNobody) != 0) {
    throw std::system_error(errno, std::generic_category(), path);
  }
}

void GiveUpRoot() {
  if (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0) {
    throw std::system_error(errno, std::generic_category(), "giving up root");
  }
}

// The copy leaves without destructors and checks at exit: these are the original's.
[[noreturn]] void WorkAsNobody(const std::function<void()>& work) {
  try {
    GiveUpRoot();
    work();
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
  }
  std::fflush(nullptr);
  _exit(testing::Test::HasFailure() ? 1 : 0);
}

}  // namespace

void AsOrdinaryUser(const std::string& folder, const std::function<void()>& work) {
  if (geteuid() != 0) return work();
  Own(folder);
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) Own(entry);
  std::fflush(nullptr);
  const pid_t child = fork();
  if (child == 0) WorkAsNobody(work);
  int status = -1;
  while (child > 0 && waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  EXPECT_EQ(status, 0) << "as an ordinary user";
}

}  // namespace test
