#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "ports/bytes.h"

namespace coilrun {

enum class Locked { kNothing, kContents, kHeadersToo };

/// One entry of an archive to be made. `packed` is set for compressed contents.
struct MadeEntry {
  std::string name{};
  std::string contents{};
  std::optional<Bytes> packed{};
  bool folder = false;
  bool solid = false;
  std::optional<std::uint64_t> claimedSize{};
  std::optional<std::string> linkTo{};
  bool blake = false;
};

/// An archive as its program would have written it: either generation, every kind of encryption.
struct MadeArchive {
  int generation = 5;
  Locked locked = Locked::kNothing;
  std::string password = "sn80463";
  int exponent = 3;
  bool checkValue = true;
  std::vector<MadeEntry> entries{};

  Bytes Write() const;
};

}  // namespace coilrun
