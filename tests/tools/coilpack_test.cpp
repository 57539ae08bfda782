#include <algorithm>

#include <gmock/gmock.h>

#include "tool_run.h"

namespace coilrun {
namespace {

using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

const std::string kPack = COILRUN_BUILD_DIR "/tools/coilpack";

/// A workshop with a folder worth packing.
class CoilpackTest : public ::testing::Test {
 protected:
  CoilpackTest() {
    shop_.Put("in/gfx/menu/button.bmp", "a button");
    shop_.Put("in/gfx/pause.bmp", std::string(100'000, 'p'));
    shop_.Put("in/readme.txt", "");
    shop_.Put("in/\xC3\xBC/" + std::string(200, 'n'), "a long name");
    std::filesystem::create_directories(shop_ / "in/empty");
  }

  Workshop::Outcome Pack(const std::string& arguments) {
    return shop_.Run(kPack + " " + arguments);
  }
  int Code(const std::string& command) { return shop_.Run(command).code; }

  Workshop shop_;
};

TEST_F(CoilpackTest, PacksAndUnpacks) {
  for (const std::string password : {"", "-p p\xC3\xA4ss "}) {
    ASSERT_EQ(Pack("create " + password + "a.rar in").code, 0);
    EXPECT_EQ(Pack("extract " + password + "a.rar out").errors, "");
    EXPECT_EQ(Code("diff -r in out"), 0);
    EXPECT_EQ(Code("[ $(stat -c %Y in/readme.txt) = $(stat -c %Y out/readme.txt) ]"), 0);
    EXPECT_EQ(Pack("test " + password + "a.rar").code, 0);
    EXPECT_EQ(Code("rm -r out"), 0);
  }
}

TEST_F(CoilpackTest, IsReadByOtherPrograms) {
  ASSERT_EQ(Pack("create a.rar in").code, 0);
  EXPECT_EQ(Code("unar -q -D -o unar a.rar && diff -r in unar"), 0);
  EXPECT_EQ(Code("mkdir tar && bsdtar -xf a.rar -C tar && diff -r in tar"), 0);
  ASSERT_EQ(Pack("create -p sn80463 b.rar in").code, 0);
  EXPECT_EQ(Code("unar -q -D -p sn80463 -o unlocked b.rar && diff -r in unlocked"), 0);
  EXPECT_THAT(shop_.Run("lsar -t -p wrong b.rar").output, HasSubstr("5 passed, 3 failed"));
}

TEST_F(CoilpackTest, ListsSortedWithFolders) {
  ASSERT_EQ(Pack("create a.rar in").code, 0);
  EXPECT_THAT(Pack("list a.rar").output,
              MatchesRegex("[^\n]* empty/\n[^\n]* gfx/\n[^\n]* gfx/menu/\n"
                           "[^\n]* 8 [^\n]* gfx/menu/button.bmp\n"
                           "[^\n]* 100000 [^\n]* gfx/pause.bmp\n[^\n]* readme.txt\n"
                           "[^\n]* \xC3\xBC/\n[^\n]* \xC3\xBC/n*\n"));
}

TEST_F(CoilpackTest, TellsInJson) {
  shop_.Put("one/a.txt", "abc");
  ASSERT_EQ(Code("touch -d @1600000000 one/a.txt && mkdir one/b && touch -d @4000000000 one/b"), 0);
  ASSERT_EQ(Pack("create -p secret a.rar one").code, 0);
  EXPECT_EQ(Pack("test -p secret --json a.rar").output,
            R"({"name":"a.txt","dir":false,"size":3,"mtime":1600000000,"result":"ok",)"
            R"("sha256":"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"})"
            "\n{\"name\":\"b\",\"dir\":true,\"size\":0,\"mtime\":4000000000,\"result\":\"ok\"}\n"
            "{\"end\":\"end\"}\n");
  const auto wrong = Pack("test --json -p other a.rar");
  EXPECT_EQ(wrong.code, 1);
  EXPECT_THAT(wrong.output, HasSubstr(R"("result":"wrong password"})"));
  EXPECT_THAT(wrong.errors, HasSubstr("a.txt: wrong password"));
}

TEST_F(CoilpackTest, NamesWhatIsWrong) {
  ASSERT_EQ(Pack("create whole.rar in").code, 0);
  std::string archive = shop_.Contents("whole.rar");
  shop_.Put("cut.rar", archive.substr(0, 50'000));
  shop_.Put("bad.rar", archive.replace(archive.find("a button"), 8, "a bitten"));
  shop_.Put("text.rar", "text");
  const std::pair<std::string, std::string> cases[] = {
      {"test cut.rar", "gfx/pause.bmp: cut off\ncut.rar: the archive is cut"},
      {"list cut.rar", "cut.rar: the archive is cut off"},
      {"test bad.rar", "gfx/menu/button.bmp: its contents are damaged\n"},
      {"extract bad.rar out", "gfx/menu/button.bmp: its contents are"},
      {"test text.rar", "text.rar: not a RAR archive"},
      {"test --json missing.rar", "missing.rar: cannot be read"},
      {"create a.rar missing", "missing: No such file"},
      {"create nowhere/a.rar in", "nowhere/a.rar: cannot be written"},
      {"extract whole.rar whole.rar", "whole.rar: cannot be made or opened"},
  };
  for (const auto& [arguments, errors] : cases) {
    const auto outcome = Pack(arguments);
    EXPECT_EQ(outcome.code, 1) << arguments;
    EXPECT_THAT(outcome.errors, StartsWith(errors)) << arguments;
  }
  EXPECT_EQ(shop_.Contents("out/gfx/menu/button.bmp"), "(none)");
  EXPECT_EQ(shop_.Contents("out/readme.txt"), "") << "the rest is unpacked";
  EXPECT_EQ(Pack("test --json missing.rar").output, "{\"end\":\"cannot be read\"}\n");
}

TEST_F(CoilpackTest, RefusesWrongUse) {
  for (const std::string arguments :
       {"", "pack a.rar in", "create a.rar", "create a.rar in more", "list", "list a.rar more",
        "test a.rar -p", "list --json a.rar", "extract a.rar", "test --jason"}) {
    const auto outcome = Pack(arguments);
    EXPECT_EQ(outcome.code, 2) << arguments;
    EXPECT_THAT(outcome.errors, StartsWith("usage: coilpack create")) << arguments;
    EXPECT_EQ(outcome.output, "") << arguments;
  }
}

TEST_F(CoilpackTest, FollowsNoLinkOutOfTheFolder) {
  ASSERT_EQ(Pack("create a.rar in").code, 0);
  shop_.Put("outside/pause.bmp", "precious");
  ASSERT_EQ(Code("mkdir -p out/gfx && ln -s ../../outside out/gfx/menu && "
                 "ln -s ../../outside/pause.bmp out/gfx/pause.bmp"),
            0);
  const auto outcome = Pack("extract a.rar out");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.errors, HasSubstr("gfx/menu/button.bmp: "));
  EXPECT_EQ(shop_.Contents("outside/button.bmp"), "(none)");
  EXPECT_EQ(shop_.Contents("outside/pause.bmp"), "precious");
  EXPECT_EQ(shop_.Contents("out/gfx/pause.bmp"), shop_.Contents("in/gfx/pause.bmp"));
}

TEST_F(CoilpackTest, PacksNoLinksAndNotItself) {
  ASSERT_EQ(Pack("create in/self.rar in").code, 0);
  ASSERT_EQ(Pack("create in/self.rar in").code, 0);
  EXPECT_THAT(Pack("list in/self.rar").output, ::testing::Not(HasSubstr("self.rar")));
  ASSERT_EQ(Code("ln -s /etc/passwd in/link"), 0);
  const auto outcome = Pack("create a.rar in");
  EXPECT_EQ(outcome.code, 1);
  EXPECT_THAT(outcome.errors, HasSubstr("in/link: is a link"));
  EXPECT_EQ(shop_.Contents("a.rar"), "(none)");
}

/// What the build packed for the game is whole, and lies under the names the game looks for.
TEST_F(CoilpackTest, PackedTheGame) {
  const std::filesystem::path game = COILRUN_BUILD_DIR "/game";
  const auto list = Pack("list '" + (game / "gfx.snr").string() + "'");
  EXPECT_EQ(list.code, 0) << list.errors;
  for (const char* const name : {" gfx/banana.bmp\n", " gfx/tnt_animated/45.bmp\n"})
    EXPECT_THAT(list.output, HasSubstr(name));
  EXPECT_EQ(Pack("test -p sn80463 '" + (game / "gfx.snr").string() + "'").errors, "");

  for (const auto& pack : std::filesystem::directory_iterator(game / "models")) {
    const auto outcome = Pack("test '" + pack.path().string() + "'");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_THAT(outcome.output, HasSubstr(pack.path().stem().string() + "/model.ini: ok\n"));
  }
}

}  // namespace
}  // namespace coilrun
