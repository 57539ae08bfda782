#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace coilrun {

enum class PackCommand { kCreate, kList, kExtract, kTest };

/// What the command line asks for. `folder` is empty for commands that take none.
struct PackOptions {
  PackCommand command = PackCommand::kList;
  std::string archive;
  std::string folder;
  std::string password;
  bool json = false;
  bool model = false;  ///< check for everything that a model pack needs
};

inline constexpr std::string_view kPackUsage =
    "usage: coilpack create [-p PASSWORD] ARCHIVE FOLDER\n"
    "       coilpack list [-p PASSWORD] ARCHIVE\n"
    "       coilpack extract [-p PASSWORD] ARCHIVE FOLDER\n"
    "       coilpack test [-p PASSWORD] [--json] [--model] ARCHIVE\n";

/// Nothing when the command line is not one of the usage lines.
std::optional<PackOptions> ParsePackOptions(int count, const char* const* arguments);

}  // namespace coilrun
