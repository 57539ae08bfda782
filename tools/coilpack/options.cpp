#include "options.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace coilrun {
namespace {

struct CommandForm {
  std::string_view word;
  PackCommand command;
  bool takesFolder;
};

constexpr std::array<CommandForm, 4> kForms = {{{"create", PackCommand::kCreate, true},
                                                {"list", PackCommand::kList, false},
                                                {"extract", PackCommand::kExtract, true},
                                                {"test", PackCommand::kTest, false}}};

}  // namespace

std::optional<PackOptions> ParsePackOptions(int count, const char* const* arguments) {
  const std::vector<std::string_view> words(arguments + 1, arguments + std::max(count, 1));
  if (words.empty()) return std::nullopt;
  const auto* const form = std::find_if(kForms.begin(), kForms.end(), [&words](const auto& each) {
    return each.word == words.front();
  });
  if (form == kForms.end()) return std::nullopt;

  PackOptions options;
  options.command = form->command;
  std::vector<std::string_view> names;
  for (std::size_t i = 1; i < words.size(); ++i) {
    if (words[i] == "-p") {
      if (++i == words.size()) return std::nullopt;
      options.password = words[i];
    } else if (words[i] == "--json" && form->command == PackCommand::kTest) {
      options.json = true;
    } else if (words[i] == "--model" && form->command == PackCommand::kTest) {
      options.model = true;
    } else if (words[i].starts_with('-') || words[i].empty()) {
      return std::nullopt;
    } else {
      names.push_back(words[i]);
    }
  }
  if (names.size() != (form->takesFolder ? 2U : 1U)) return std::nullopt;
  options.archive = names.front();
  if (form->takesFolder) options.folder = names.back();
  return options;
}

}  // namespace coilrun
