#include <optional>
#include <string_view>
#include <tuple>

#include <gtest/gtest.h>

#include "platform/key_queue.h"
#include "platform/pad_codes.h"
#include "platform/stick.h"

namespace coilrun {
namespace {

constexpr int kCode = 203;

/// Plays a line of: d and u, the keyboard's key down and up; p and r, the same key on a controller;
/// L, everything let go; ., a poll. Returns what each poll saw: 1 down, 0 up.
std::string Play(std::string_view line) {
  KeyQueue queue;
  KeySnapshot keys{};
  std::string seen;
  for (const char step : line) {
    if (step == 'd') queue.Press(kCode, KeyHolder::kKeyboard);
    if (step == 'u') queue.Release(kCode, KeyHolder::kKeyboard);
    if (step == 'p') queue.Press(kCode, KeyHolder::kStick);
    if (step == 'r') queue.Release(kCode, KeyHolder::kStick);
    if (step == 'L') queue.ReleaseAll();
    if (step != '.') continue;
    queue.ReadKeys(keys);
    seen += keys[kCode] != 0 ? '1' : '0';
  }
  return seen;
}

TEST(KeyQueue, EachPollSeesOneChangeOfAKey) {
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"held", ".d...u..", "011100"},
      {"tapped between two polls", "du...", "100"},
      {"tapped twice between two polls", "dudu.....", "10100"},
      {"repeated by the keyboard", "dddd..u.", "110"},
      {"let go without being held", "u..d.", "001"},
      {"held by two devices", "d.p.u.r.", "1110"},
      {"let go by a loss of the focus", "d.L.u.d.", "1001"},
      {"pressed and lost at once", "dL..", "10"},
  };
  for (const auto& [what, line, seen] : cases) EXPECT_EQ(Play(line), seen) << what;
}

TEST(KeyQueue, HammeringDoesNotPileUpAndEndsInTheTrueState) {
  std::string hammered;
  for (int i = 0; i < 500; ++i) hammered += "du";
  const std::string polls(20, '.');
  EXPECT_EQ(Play(hammered + polls).substr(10), "0000000000");
  EXPECT_EQ(Play(hammered + "d" + polls).substr(11), "111111111");
}

TEST(KeyQueue, DifferentKeysChangeInOnePollAndStrangeCodesAreIgnored) {
  KeyQueue queue;
  KeySnapshot keys{};
  for (const int code : {-1, 0, 256, 1, 28, 255}) queue.Press(code, KeyHolder::kButtons);
  queue.ReadKeys(keys);
  for (int code = 0; code < 256; ++code)
    EXPECT_EQ(keys[static_cast<std::size_t>(code)] != 0, code == 1 || code == 28 || code == 255);
  queue.ReleaseAll(KeyHolder::kKeyboard);
  queue.ReadKeys(keys);
  EXPECT_NE(keys[28], 0);
}

TEST(Stick, LeansToOneDirectionAtATime) {
  using enum PadDirection;
  const std::tuple<int, int, std::optional<PadDirection>> steps[] = {
      {0, 0, std::nullopt},      {15'000, 0, std::nullopt},
      {17'000, 9'000, kRight},   {12'000, 0, kRight},  // let go only nearer to the middle
      {20'000, 22'000, kRight},                        // nearly diagonal: keeps its direction
      {20'000, 26'000, kDown},   {-32'768, -32'768, kUp},
      {-32'768, -20'000, kLeft}, {9'000, -9'000, std::nullopt},
  };
  Stick stick;
  for (const auto& [x, y, direction] : steps)
    EXPECT_EQ(stick.Lean(x, y), direction) << x << " " << y;
}

TEST(PadCodes, AreFourAControllerUpToTheFourth) {
  EXPECT_EQ(PadCode(0, PadDirection::kUp), 240);
  EXPECT_EQ(PadCode(1, PadDirection::kLeft), 246);
  EXPECT_EQ(PadCode(3, PadDirection::kRight), 255);
  EXPECT_EQ(PadCode(9, PadDirection::kRight), 255);
}

}  // namespace
}  // namespace coilrun
