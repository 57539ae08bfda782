#include <algorithm>

#include <gmock/gmock.h>

#include "png_file.h"
#include "tool_run.h"

namespace coilrun {
namespace {

using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

const std::string kPack = COILRUN_BUILD_DIR "/tools/coilpack";

/// A workshop with a folder to pack.
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

TEST_F(CoilpackTest, GivesNothingWhereTheSystemCannotDecrypt) {
  shop_.Put("none.cnf",
            "openssl_conf = all\n[all]\nproviders = list\n[list]\nnull = empty\n"
            "[empty]\nactivate = 1\n");
  const std::string pack = "OPENSSL_CONF=none.cnf " + kPack;
  const std::string fails = "the encryption library of this system fails\n";
  const auto created = shop_.Run(pack + " create -p sn80463 locked.rar in");
  EXPECT_EQ(created.code, 1);
  EXPECT_EQ(created.errors, "locked.rar: " + fails);
  EXPECT_EQ(shop_.Contents("locked.rar"), "(none)");

  for (const std::string kind : {"old", "new"}) {
    const std::string archives = COILRUN_SOURCE_DIR "/fuzz/corpus/rar/" + kind;
    const auto test = shop_.Run(pack + " test -p sn80463 '" + archives + "_contents.rar'");
    EXPECT_EQ(test.code, 1);
    EXPECT_EQ(test.output, "gfx: ok\n");
    EXPECT_EQ(test.errors, "gfx/stored: " + fails + "packed: " + fails);
    const auto list = shop_.Run(pack + " list -p sn80463 '" + archives + "_headers.rar'");
    EXPECT_EQ(list.code, 1);
    EXPECT_THAT(list.errors, HasSubstr(fails));
  }
}

TEST_F(CoilpackTest, RefusesWrongUse) {
  for (const std::string arguments :
       {"", "pack a.rar in", "create a.rar", "create a.rar in more", "list", "list a.rar more",
        "test a.rar -p", "list --json a.rar", "list --model a.rar", "extract a.rar",
        "test --jason"}) {
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

/// The pictures of a model pack, as a modder paints them.
void PutModel(const Workshop& shop, const std::string& folder) {
  for (const std::string way : {"forw", "back", "left", "right"}) {
    for (const std::string part : {"head_", "Snake_", "tail_"})
      shop.Put(folder + part + way + ".png", PlainPng(20, 20, "\x10\xF0\x10"));
  }
  for (const std::string name : {"Snake_b_l", "Snake_b_r", "Snake_f_l", "Snake_f_r", "start"})
    shop.Put(folder + name + ".PNG", PlainPng(20, 20, "\x10\xF0\x10"));
}

TEST_F(CoilpackTest, MakesBitmapsForTheGame) {
  using namespace std::string_literals;
  const std::string clear = "\xFF\xFF\xFF\x00"s;
  shop_.Put("own/crate.png", PlainPng(2, 1, clear));
  shop_.Put("own/tnt_animated/1.png", PlainPng(2, 1, clear));
  shop_.Put("own/flame/1.png", PlainPng(2, 1, clear));
  shop_.Put("own/flame/2.png", PlainPng(2, 1, clear));
  const auto outcome = Pack("create own.SNR own");
  EXPECT_EQ(outcome.code, 0);
  EXPECT_THAT(outcome.errors, MatchesRegex("flame: transparent pixels[^\n]*\n"));
  ASSERT_EQ(Pack("extract own.SNR out").code, 0);
  EXPECT_EQ(shop_.Run("cd out && find . -type f | sort").output,
            "./crate.bmp\n./flame/1.bmp\n./flame/2.bmp\n./tnt_animated/1.bmp\n");
  const auto pixels = [this](const std::string& name) { return shop_.Contents(name).substr(54); };
  EXPECT_EQ(pixels("out/crate.bmp"), "\0\0\0\0\0\0\0\0"s);
  EXPECT_EQ(pixels("out/tnt_animated/1.bmp"), "\x80\x80\x80\x80\x80\x80\0\0"s);

  ASSERT_EQ(Pack("create own.rar own").code, 0);
  EXPECT_THAT(Pack("list own.rar").output, HasSubstr(" crate.png\n")) << "no archive of the game";
  shop_.Put("own/crate.bmp", "a bitmap");
  EXPECT_EQ(Pack("create own.snr own").errors, "crate.bmp: is there as PNG and as BMP\n");
  shop_.Put("own/crate.png", "no picture");
  EXPECT_THAT(Pack("create own.snr own").errors, StartsWith("crate.png: "));
  EXPECT_EQ(shop_.Contents("own.snr"), "(none)");
}

TEST_F(CoilpackTest, NamesWhatAModelPackLacks) {
  PutModel(shop_, "pack/grass/");
  shop_.Put("pack/grass/model.ini", "NAME=Grass\nEDGES=1\n");
  ASSERT_EQ(Pack("create grass.smp pack").errors, "");
  EXPECT_EQ(Pack("test --model grass.smp").errors, "");
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {"rm grass/Snake_b_l.PNG", "grass.smp", "grass/Snake_b_l.bmp is missing\n"},
      {"echo EDGES=0 >> grass/model.ini", "grass.smp", ""},
      {"echo EDGES_INVERS=1 >> grass/model.ini", "grass.smp", ""},
      {"echo EDGES=1 >> grass/model.ini", "grass.smp",
       "grass/Snake_b_l.bmp is missing\ngrass.smp: grass/Snake_b_r_i.bmp is missing\n"},
      {"echo EDGES=0 >> grass/model.ini; echo TAIL_EDGES=1 >> grass/model.ini", "grass.smp",
       "grass/Tail_b_r.bmp is missing\n"},
      {"rm grass/model.ini", "grass.smp", "grass/Snake_b_l.bmp is missing\n"},
      {"printf 'EDGES=0' > grass/model.ini; cp ../other.png grass/start.PNG", "grass.smp",
       "grass/start.bmp has 16 x 20 pixels instead of 20 x 20\n"},
      {"rm grass/start.PNG; echo text > grass/start.bmp", "grass.smp",
       "grass/start.bmp is not a bitmap that the game reads\n"},
      {"true", "grass.rar", "the game looks for packs whose names end in \".smp\"\n"},
      {"true", "lawn.smp", "holds no folder \"lawn\"\n"},
  };
  shop_.Put("other.png", PlainPng(16, 20, "\x10\xF0\x10"));
  for (const auto& [change, archive, fault] : cases) {
    const std::string command = "cd pack; " + change;
    ASSERT_EQ(Code(command), 0);
    ASSERT_EQ(Pack("create " + archive + " pack").code, 0);
    const auto outcome = Pack("test --model " + archive);
    EXPECT_EQ(outcome.code, fault.empty() ? 0 : 1) << change;
    EXPECT_THAT(outcome.errors, StartsWith(fault.empty() ? "" : archive + ": " + fault)) << change;
    EXPECT_EQ(outcome.errors.empty(), fault.empty()) << outcome.errors;
  }
  ASSERT_EQ(Code("mv pack/grass/head_forw.png pack/grass/head_forw.bmp; mkdir png && "
                 "cp -r pack/grass png/ && mv png/grass/head_back.png png/grass/head_back.bmp"),
            0);
  ASSERT_EQ(Pack("create png.rar png").code, 0);
  ASSERT_EQ(Code("mv png.rar grass.smp"), 0);
  EXPECT_THAT(
      Pack("test --model grass.smp").errors,
      HasSubstr("grass/head_left.bmp is missing; the game reads no PNG, but \"coilpack create"));
}

/// What the build packed for the game is intact, and has the names that the game looks for.
TEST_F(CoilpackTest, PackedTheGame) {
  const std::filesystem::path game = COILRUN_BUILD_DIR "/game";
  const auto list = Pack("list '" + (game / "gfx.snr").string() + "'");
  EXPECT_EQ(list.code, 0) << list.errors;
  for (const char* const name : {" gfx/banana.bmp\n", " gfx/tnt_animated/45.bmp\n"})
    EXPECT_THAT(list.output, HasSubstr(name));
  EXPECT_EQ(Pack("test -p sn80463 '" + (game / "gfx.snr").string() + "'").errors, "");

  for (const auto& pack : std::filesystem::directory_iterator(game / "models")) {
    const auto outcome = Pack("test --model '" + pack.path().string() + "'");
    EXPECT_EQ(outcome.errors, "");
    EXPECT_THAT(outcome.output, HasSubstr(pack.path().stem().string() + "/model.ini: ok\n"));
  }
}

}  // namespace
}  // namespace coilrun
