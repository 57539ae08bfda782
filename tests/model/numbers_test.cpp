#include "model/numbers.h"

#include <gtest/gtest.h>

namespace coilrun {
namespace {

TEST(LeadingNumber, ReadsWhatStandsAtTheStart) {
  struct NumberCase {
    const char* text;
    double number;
  };
  const NumberCase cases[] = {
      {"", 0},         {"12", 12}, {"1 2", 12}, {" \t90", 90}, {"12abc", 12}, {"abc", 0},
      {"-3.5x", -3.5}, {"+4", 4},  {"+-4", 0},  {".5", 0.5},   {"1e3", 1000}, {"inf", 0},
      {"nan", 0},      {"1,5", 1}, {"0x10", 0}, {"-", 0},      {"1e", 1},     {"- 7", -7},
  };
  for (const NumberCase& given : cases)
    EXPECT_EQ(LeadingNumber(given.text), given.number) << given.text;
  EXPECT_EQ(LeadingNumber("1,5", true), 1.5);
}

TEST(ToInt16, RoundsHalvesToEvenAndRefusesWhatDoesNotFit) {
  EXPECT_EQ(ToInt16(2.5), 2);
  EXPECT_EQ(ToInt16(3.5), 4);
  EXPECT_EQ(ToInt16(-0.5), 0);
  EXPECT_EQ(ToInt16(32767.4), 32767);
  EXPECT_EQ(ToInt16(40000), std::nullopt);
  EXPECT_EQ(ToInt16(-32769), std::nullopt);
  EXPECT_EQ(ToInt32(2147483647.0), 2147483647);
  EXPECT_EQ(ToInt32(LeadingNumber("1e400")), std::nullopt);
}

TEST(ToBoolean, TakesWordsAndNumbers) {
  const std::pair<const char*, std::optional<bool>> cases[] = {
      {"TRUE", true},          {"false", false},      {"0", false},      {"-1", true},
      {"maybe", std::nullopt}, {"1st", std::nullopt}, {"", std::nullopt}};
  for (const auto& [text, value] : cases) EXPECT_EQ(ToBoolean(text), value) << text;
}

TEST(NumberText, IsPlainDecimal) {
  EXPECT_EQ(NumberText(10000), "10000");
  EXPECT_EQ(NumberText(-40), "-40");
  EXPECT_EQ(NumberText(0.5), "0.5");
}

}  // namespace
}  // namespace coilrun
