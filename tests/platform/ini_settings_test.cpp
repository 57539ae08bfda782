#include "platform/ini_settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/support.h"

namespace coilrun {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;

class IniSettingsTest : public testing::Test {
 protected:
  IniSettings Open() {
    return {file_, folders_.Program() / "defaults.ini",
            [this](const std::string& line) { reports_.push_back(line); }};
  }

  TestFolders folders_;
  std::filesystem::path file_ = folders_.User() / "coilrun" / "coilrun.ini";
  std::vector<std::string> reports_;
};

TEST_F(IniSettingsTest, EveryTextComesBackAsItWasSet) {
  const std::vector<std::string> texts = {"",    " ",    " a",          "a ",  "\"a\"",
                                          "\"",  "\"\"", "a=b",         ";a",  "# a;b",
                                          "[a]", "<<<",  "K\xE4se\x80", "\\n", "'a'"};
  {
    IniSettings settings = Open();
    for (std::size_t i = 0; i < texts.size(); ++i)
      settings.Set("Texts", "Key" + std::to_string(i), texts[i]);
    settings.Set("Texts", "Controls", "a\nb\tc");
    EXPECT_TRUE(settings.Save());
  }
  const IniSettings settings = Open();
  for (std::size_t i = 0; i < texts.size(); ++i)
    EXPECT_THAT(settings.Get("texts", "key" + std::to_string(i)), Optional(texts[i]));
  EXPECT_THAT(settings.Get("Texts", "Controls"), Optional(std::string("a b c")));
  EXPECT_THAT(reports_, IsEmpty());
}

TEST_F(IniSettingsTest, ShippedDefaultsLieUnderThePlayersOwn) {
  Put(folders_.Program() / "defaults.ini", "[Tweak]\nMinSpeed = 150\nMaxSpeed = 30\n");
  Put(file_, "[tweak]\nmaxspeed=44\n");
  IniSettings settings = Open();
  EXPECT_THAT(settings.Get("Tweak", "MinSpeed"), Optional(std::string("150")));
  EXPECT_THAT(settings.Get("Tweak", "MaxSpeed"), Optional(std::string("44")));
  EXPECT_EQ(settings.Get("Tweak", "Speed"), std::nullopt);
  EXPECT_TRUE(settings.Save());
  EXPECT_THAT(Contents(file_), testing::Not(HasSubstr("150")));
}

TEST_F(IniSettingsTest, WhatTheGameDoesNotKnowSurvivesASave) {
  Put(file_,
      "\xEF\xBB\xBF; mine\r\n\r\n[Other]\r\nColour=gr\xC3\xBCn\r\n; hint\r\n[Options]\r\nX=1\r\n");
  IniSettings settings = Open();
  settings.Set("Options", "Show FPS", "True");
  EXPECT_TRUE(settings.Save());
  for (const char* const part : {"; mine", "[Other]", "Colour = gr\xC3\xBCn", "; hint", "X = 1"})
    EXPECT_THAT(Contents(file_), HasSubstr(part));
  EXPECT_THAT(reports_, IsEmpty());
}

TEST_F(IniSettingsTest, ALinkedFileStaysALink) {
  Put(folders_.Outside() / "dotfiles.ini", "[Options]\n");
  std::filesystem::create_directories(file_.parent_path());
  std::filesystem::create_symlink(folders_.Outside() / "dotfiles.ini", file_);
  IniSettings settings = Open();
  settings.Set("Options", "X", "1");
  EXPECT_TRUE(settings.Save());
  EXPECT_THAT(Contents(folders_.Outside() / "dotfiles.ini"), HasSubstr("X = 1"));
  EXPECT_TRUE(std::filesystem::is_symlink(file_));
}

TEST_F(IniSettingsTest, ADamagedFileIsSetAsideAndToldOnce) {
  const std::string damaged[] = {
      std::string("[Options]\nPlayer Name=A\0B\n", 26),
      "[Options]\nPlayer Name=\xE4\n",
      "[Options]\nPlayer Name=\xED\xA0\x80\n",
      "[Options]\nPlayer Name=\xC3",
      "[Options\nPlayer Name=A\n",
      "[Options]\nPlayer Na",
      "some prose",
      std::string((1U << 20U) + 1, '\n'),
  };
  Put(folders_.Program() / "defaults.ini", "[Options]\nPlayer Name=Default\n");
  int number = 0;
  for (const std::string& contents : damaged) {
    SCOPED_TRACE(++number);
    Put(file_, contents);
    reports_.clear();
    IniSettings settings = Open();
    const std::string aside =
        file_.string() + (number == 1 ? ".damaged" : ".damaged." + std::to_string(number));
    EXPECT_EQ(Contents(aside), contents);
    EXPECT_FALSE(std::filesystem::exists(file_));
    EXPECT_THAT(settings.Get("Options", "Player Name"), Optional(std::string("Default")));
    EXPECT_TRUE(settings.Save());
    EXPECT_THAT(reports_, ElementsAre(HasSubstr(aside)));
  }
}

TEST_F(IniSettingsTest, AFileThatCannotBeReadIsNotOverwritten) {
  std::filesystem::create_directories(file_ / "a folder in its place");
  IniSettings settings = Open();
  EXPECT_TRUE(settings.Save());
  EXPECT_TRUE(std::filesystem::is_directory(file_.string() + ".damaged"));
  EXPECT_THAT(reports_, ElementsAre(HasSubstr("cannot be read")));
}

TEST_F(IniSettingsTest, AStoreThatCannotBeWrittenIsToldOnceAndStaysWhole) {
  Put(file_, "[Options]\nX = 1\n");
  const ReadOnlyFolder folder(file_.parent_path());
  IniSettings settings = Open();
  settings.Set("Options", "X", "2");
  EXPECT_FALSE(settings.Save());
  EXPECT_FALSE(settings.Save());
  EXPECT_THAT(reports_, ElementsAre(HasSubstr(file_.string())));
  EXPECT_EQ(Contents(file_), "[Options]\nX = 1\n");
}

TEST_F(IniSettingsTest, ADamagedFileThatCannotBeSetAsideIsLeftAlone) {
  Put(file_, "prose");
  const ReadOnlyFolder folder(file_.parent_path());
  IniSettings settings = Open();
  EXPECT_FALSE(settings.Save());
  EXPECT_EQ(Contents(file_), "prose");
  EXPECT_THAT(reports_, testing::SizeIs(1));
}

}  // namespace
}  // namespace coilrun
