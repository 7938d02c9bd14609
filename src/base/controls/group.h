#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "base/controls/control.h"
#include "base/language/error.h"

namespace base {

// A group of controls that share one name and are told apart by their index. Members may have gaps.
template <typename T>
class Group {
 public:
  // Members first..last. What follows the index in a member's constructor is handed on to each.
  template <typename... More>
  Group(Form& form, std::string name, int first, int last, More... more)
      : create_([&form, name = std::move(name), more...](int index) {
          return std::make_unique<T>(form, name, index, more...);
        }) {
    for (int index = first; index <= last; ++index) Load(index);
  }

  // The member, or error 340 when the group has none of this index.
  T& operator()(int index) const {
    if (!Has(index)) {
      throw Error(kNoSuchMember,
                  "Control array element '" + std::to_string(index) + "' doesn't exist");
    }
    return *members_[static_cast<std::size_t>(index)];
  }
  bool Has(int index) const {
    return index >= 0 && index < static_cast<int>(members_.size()) &&
           members_[static_cast<std::size_t>(index)] != nullptr;
  }
  // Creates a member; one that exists stays.
  T& Load(int index) {
    const auto place = static_cast<std::size_t>(index);
    if (members_.size() <= place) members_.resize(place + 1);
    if (!members_[place]) members_[place] = create_(index);
    return *members_[place];
  }
  int First() const {
    int index = 0;
    while (index < static_cast<int>(members_.size()) && !Has(index)) ++index;
    return index;
  }
  int Last() const { return static_cast<int>(members_.size()) - 1; }
  int Count() const {
    int count = 0;
    for (const auto& member : members_) count += member != nullptr;
    return count;
  }
  // Calls f(member) for each in the order of the indexes.
  template <typename F>
  void Each(F f) const {
    for (const auto& member : members_) {
      if (member) f(*member);
    }
  }

 private:
  std::function<std::unique_ptr<T>(int)> create_;
  std::vector<std::unique_ptr<T>> members_;
};

}  // namespace base
