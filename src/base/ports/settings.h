#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/language/error.h"

namespace base {

// The per-user store of preferences: texts under application, section and key. All three names are
// matched without regard to case. Nothing is ever deleted.
class Settings {
 public:
  virtual ~Settings() = default;
  // The stored text, or nothing when the key was never written. The quiet default knows no key.
  virtual std::optional<std::string> Find(std::string_view /*application*/,
                                          std::string_view /*section*/, std::string_view /*key*/) {
    return std::nullopt;
  }
  // Stores a text. Throws Error when the store cannot be kept; the old store is then whole.
  virtual void Save(std::string_view /*application*/, std::string_view /*section*/,
                    std::string_view /*key*/, std::string_view /*text*/) {}

  // Why the store could not be read; it is then empty, and Save throws this. Nothing where it
  // could.
  virtual std::optional<Error> Failure() const { return std::nullopt; }

  std::string Get(std::string_view application, std::string_view section, std::string_view key,
                  std::string_view default_text = "") {
    std::optional<std::string> text = Find(application, section, key);
    return text ? *text : std::string(default_text);
  }
};

}  // namespace base
