#include "script/script.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <gmock/gmock.h>

namespace coilrun {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

/// "MICROSECONDS verb code name=value" for every step, then for every answer.
std::string Listing(const Script& script) {
  static const std::vector<std::string> kWords = {"down",  "up",   "pointer", "lost",  "gained",
                                                  "state", "shot", "set",     "close", "end"};
  std::string list;
  for (const ScriptStep& step : script.steps) {
    list += std::to_string(step.at) + ' ' + kWords.at(static_cast<std::size_t>(step.verb));
    if (step.code != 0) list += ' ' + std::to_string(step.code);
    if (!step.name.empty()) list += ' ' + step.name;
    if (step.verb == Verb::kPointer) {
      list += ' ' + std::to_string(static_cast<int>(step.pointer.act)) + ' ' +
              std::to_string(step.pointer.x) + ',' + std::to_string(step.pointer.y);
    }
    if (step.verb == Verb::kSet) list += '=' + step.value;
    list += '\n';
  }
  for (const ScriptAnswer& answer : script.answers) {
    list += std::to_string(answer.at) + (answer.yes ? " yes\n" : " no\n");
  }
  return list;
}

TEST(ParseScript, TakesEveryCommandApart) {
  const std::pair<std::string, std::string> cases[] = {
      {"", ""},
      {"# nothing\n\n   \r\n\t# more\r\n", ""},
      {"0 down 1\r\n5 up 255\r\n", "0 down 1\n5000 up 255\n"},
      {"  7\tstate # now\n7 close\n7 end", "7000 state\n7000 close\n7000 end\n"},
      {"1 focus lost\n2 focus  gained ", "1000 lost\n2000 gained\n"},
      {"1 answer yes\n1 answer no\n", "1000 yes\n1000 no\n"},
      {"1 point 639 479\n1 point  0\t7 # here\n", "1000 pointer 0 639,479\n1000 pointer 0 0,7\n"},
      {"1 click left\n1 click right \n2 wheel up\n2 wheel down",
       "1000 pointer 1 0,0\n1000 pointer 2 0,0\n2000 pointer 3 0,0\n2000 pointer 4 0,0\n"},
      {"3 shot a b.png   # kept\n", "3000 shot a b.png\n"},
      {"1 tap 28\n31 state\n31 tap 28\n",
       "1000 down 28\n31000 state\n31000 down 28\n31000 up 28\n61000 up 28\n"},
      {"0 type a1 \n",
       "0 down 30\n30000 up 30\n60000 down 2\n90000 up 2\n120000 down 57\n150000 up 57\n"},
      {"0 type qpzm0l\n",
       "0 down 16\n30000 up 16\n60000 down 25\n90000 up 25\n120000 down 44\n150000 up 44\n"
       "180000 down 50\n210000 up 50\n240000 down 11\n270000 up 11\n300000 down 38\n330000 up "
       "38\n"},
      {"1 set GodMode true\n1 set  Snakes.1.Name  two words \n1 set StatusText\n1 set lvlName # x",
       "1000 set GodMode=true\n1000 set Snakes.1.Name= two words \n1000 set StatusText=\n"
       "1000 set lvlName=\n"},
      {"\uFEFF1 end", "1000 end\n"},
  };
  for (const auto& [text, listing] : cases) {
    const ScriptOrError parsed = ParseScript(text, "s");
    ASSERT_TRUE(parsed.script) << text << parsed.error;
    EXPECT_EQ(Listing(*parsed.script), listing) << text;
  }
}

TEST(ParseScript, LastsUntilTheLastKeyOrAnswer) {
  EXPECT_EQ(ParseScript("", "s").script->lastAt, 0);
  EXPECT_EQ(ParseScript("5 state\n9 answer no\n", "s").script->lastAt, 9000);
  EXPECT_EQ(ParseScript("5 tap 1\n", "s").script->lastAt, 35000);
}

TEST(ParseScript, SaysWhereAndWhatIsWrong) {
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"2: the time is before", {"5 state\n4 state\n"}},
      {"3: \"state\" is not a time", {"\n\nstate\n"}},
      {"1: \"-1\" is not a time", {"-1 state"}},
      {"1: \"1.5\" is not a time", {"1.5 state"}},
      {"1: \"99999999999999999999\" is not a time", {"99999999999999999999 end"}},
      {"1: \"1000000000001\" is not a time", {"1000000000001 end"}},
      {"1: there is no command \"\"", {"1"}},
      {"1: there is no command \"STATE\"", {"1 STATE"}},
      {"1: there is no command \"jump?[2J\"", {"1 jump\x1b[2J"}},
      {"1: a scan code", {"1 down 0", "1 up 256", "1 tap", "1 tap 28 29", "1 down 0x1c"}},
      {"1: a text to type", {"1 type"}},
      {"1: only lower-case", {"1 type God", "1 type a\tb"}},
      {"1: an answer", {"1 answer maybe"}},
      {"1: the focus", {"1 focus"}},
      {"1: a place is two numbers",
       {"1 point", "1 point 5", "1 point 640 0", "1 point 0 480", "1 point -1 0", "1 point 1 2 3"}},
      {"1: a click", {"1 click", "1 click middle"}},
      {"1: the wheel", {"1 wheel left"}},
      {"1: nothing may follow", {"1 state now", "1 end 0"}},
      {"1: the file", {"1 shot # no file"}},
      {"1: the name", {"1 set"}},
      {"1: the text to type is too long", {"1 type " + std::string(10'001, 'a')}},
      {" the script is larger", {std::string(4 * 1024 * 1024 + 1, '\n')}},
  };
  for (const auto& [error, texts] : cases)
    for (const std::string& text : texts) {
      const ScriptOrError parsed = ParseScript(text, "play.txt");
      EXPECT_FALSE(parsed.script) << text.substr(0, 40);
      EXPECT_THAT(parsed.error, StartsWith("play.txt:" + error)) << text.substr(0, 40);
      EXPECT_EQ(parsed.error.find('\n'), std::string::npos);
    }
}

TEST(ParseScript, BoundsTheNumberOfSteps) {
  std::string text;
  for (int i = 0; i < 26; ++i) text += "0 type " + std::string(10'000, 'a') + '\n';
  EXPECT_THAT(ParseScript(text, "s").error, StartsWith("s:26: the script has more than"));
}

TEST(LoadScript, ReportsAFileThatCannotBeRead) {
  for (const char* const file : {"/no/such/script", "/"}) {
    const ScriptOrError loaded = LoadScript(file);
    EXPECT_FALSE(loaded.script);
    EXPECT_THAT(loaded.error, HasSubstr("cannot be read"));
  }
}

}  // namespace
}  // namespace coilrun
