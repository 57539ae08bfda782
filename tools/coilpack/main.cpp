#include <iostream>

#include "commands.h"
#include "options.h"

namespace {

int Run(const coilrun::PackOptions& options) {
  switch (options.command) {
    case coilrun::PackCommand::kCreate:
      return coilrun::CreateArchive(options);
    case coilrun::PackCommand::kList:
      return coilrun::ListArchive(options);
    case coilrun::PackCommand::kExtract:
      return coilrun::ExtractArchive(options);
    case coilrun::PackCommand::kTest:
      return coilrun::TestArchive(options);
  }
  return 2;
}

}  // namespace

int main(int count, char** arguments) {
  const auto options = coilrun::ParsePackOptions(count, arguments);
  if (!options) {
    std::cerr << coilrun::kPackUsage;
    return 2;
  }
  return Run(*options);
}
