#pragma once

#include <functional>
#include <string>

namespace test {

// Runs `work`, with its expectations, as a user to whom the modes of files mean something. That is
// this process as it is; if it is root's, a copy of it that gives root up. The folder, with all
// that is in it, is given to that user before, and the test fails if the copy's expectations do.
void AsOrdinaryUser(const std::string& folder, const std::function<void()>& work);

}  // namespace test
