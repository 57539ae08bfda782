#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

/// Stands in for the fuzzer where there is none: runs a target on every file of a corpus once.
int main(int count, char** arguments) {
  if (count != 2) return 2;
  int inputs = 0;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
    std::cout << entry.path() << std::endl;
    std::ifstream file(entry.path(), std::ios::binary);
    const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++inputs;
  }
  return inputs == 0 ? 1 : 0;
}
