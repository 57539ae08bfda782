#include <cstdlib>
#include <new>

#include "rivals/rivals.h"
#include "support/arena.h"
#include "support/match.h"

namespace {

/// How many allocations this program has made so far.
std::size_t allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
  ++allocations;
  if (void* const memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  std::free(memory);
}

namespace coilrun {
namespace {

TEST(Drivers, AllocateNothingWhenTheyChoose) {
  for (const RivalKind kind : {RivalKind::kClassic, RivalKind::kClever, RivalKind::kMaster}) {
    for (const bool open : {false, true}) {
      const ArenaPlan plan{
          .openEdges = open, .segments = 8, .rivals = 15, .keys = "numTNT=9\r\nnumBlue=3\r\n"};
      Match match({.level = Arena(plan).Text()}, MakeDrivers({{kind}}));
      const Drivers drivers = MakeDrivers({{kind}});
      for (int second = 0; second < 10; ++second) {
        match.Play(1);
        const std::size_t before = allocations;
        for (int s = 2; s <= kMaxSnakes; ++s) drivers.Choose(match.state(), s);
        EXPECT_EQ(allocations, before) << RivalText({{kind}});
      }
    }
  }
}

}  // namespace
}  // namespace coilrun
