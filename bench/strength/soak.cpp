#include "support/soak.h"

#include <cstdio>
#include <cstdlib>

/// Plays matches of 16 snakes to their ends: as many as it is told, or 100.
int main(int argc, char** argv) {
  const int matches = argc > 1 ? std::atoi(argv[1]) : 100;
  int faults = 0;
  for (int match = 1; match <= matches; ++match) {
    const std::string fault = coilrun::SoakFault(static_cast<std::uint64_t>(match));
    if (fault.empty()) continue;
    std::printf("match %d: %s\n", match, fault.c_str());
    ++faults;
  }
  std::printf("%d matches, %d with faults\n", matches, faults);
  return faults == 0 ? 0 : 1;
}
