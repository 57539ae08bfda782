#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>

#include "media/effects.h"
#include "media/music.h"
#include "support/fake_files.h"

namespace coilrun {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// Identifies every effect by its file's first byte.
class LoudAudio final : public AudioOut {
 public:
  bool Open() override { return true; }
  std::optional<int> Load(std::span<const std::uint8_t> wave) override {
    if (wave.empty()) return std::nullopt;
    return wave[0];
  }
  void Release(int /*effect*/) override {}
  void Play(int effect) override { played += static_cast<char>(effect); }

  std::string played;
};

/// Music that lasts ten seconds; a file that begins with "x" cannot be decoded.
class LoudMusic final : public MusicOut {
 public:
  bool Load(std::span<const std::uint8_t> file) override {
    Note("load " + std::string(file.begin(), file.end()));
    return !file.empty() && file[0] != 'x';
  }
  void Play(double position) override {
    Note("play " + std::to_string(static_cast<int>(position)));
  }
  void Stop() override { Note("stop"); }
  double Duration() const override { return 10; }
  double Position() const override { return now; }
  void SetVolume(int hundredths) override { Note("volume " + std::to_string(hundredths)); }

  std::vector<std::string> calls;
  double now = 0;

 private:
  void Note(const std::string& call) { calls.push_back(call); }
};

TEST(Effects, AreSilencedForAllOrForTheComputersSnakes) {
  using Row = std::tuple<bool, bool, std::string>;
  for (const auto& [all, computers, played] :
       {Row{true, true, "aa"}, Row{true, false, "a"}, Row{false, true, ""}}) {
    State state;
    FakeFiles files;
    LoudAudio audio;
    files.Put(".\\snd\\a.wav", "a");
    state.settings.SndEnabled = all;
    state.settings.KiSndEnabled = computers;
    Effects effects(state, files, audio);
    for (const int snake : {1, 2}) effects.snPlaySound("\\Snd\\A.wav", snake);
    EXPECT_EQ(audio.played, played) << all << computers;
  }
}

struct Jukebox {
  Jukebox() {
    for (const char* const name : {"a", "b", "x"}) files.Put(Path(name), name);
  }
  static std::string Path(const std::string& name) { return ".\\music\\" + name + ".ogg"; }
  /// What happens in a frame of a level with this music.
  std::vector<std::string> Frame(const std::string& name) {
    state.level.MusicFile = name.empty() ? "" : Path(name);
    out.calls.clear();
    music.Check();
    return out.calls;
  }

  State state;
  FakeFiles files;
  LoudMusic out;
  Music music{state, files, out};
};

TEST(Music, FollowsTheLevelAndLoops) {
  Jukebox box;
  EXPECT_THAT(box.Frame("a"), ElementsAre("load a", "play 0", "volume -1225"));
  EXPECT_THAT(box.Frame("a"), IsEmpty());
  box.out.now = 10;
  EXPECT_THAT(box.Frame("a"), ElementsAre("play 0"));
  EXPECT_THAT(box.Frame("b"), ElementsAre("stop", "load b", "play 0", "volume -1225"));
  EXPECT_THAT(box.Frame(""), ElementsAre("stop"));
  EXPECT_THAT(box.Frame(""), IsEmpty());
  box.state.settings.MusicEnabled = false;
  EXPECT_THAT(box.Frame("a"), IsEmpty());
}

TEST(Music, ThatCannotBePlayedIsTriedOnceALevel) {
  Jukebox box;
  box.Frame("a");
  EXPECT_THAT(box.Frame("x"), ElementsAre("stop", "load x"));
  EXPECT_THAT(box.Frame("x"), IsEmpty());
  EXPECT_EQ(box.state.feed.Console(5), "snLoadMusic: unable to play .\\music\\x.ogg\r\n");
  EXPECT_EQ(box.state.feed.Console(4), "");
  box.state.music.refused.clear();
  EXPECT_THAT(box.Frame("x"), ElementsAre("load x")) << "the next level";
}

TEST(Music, VolumeFallsWithTheSquareOfWhatIsMissing) {
  for (const auto& [percent, hundredths] :
       {std::pair{100, 0}, {99, 0}, {98, -1}, {97, -2}, {80, -100}, {50, -625}, {0, -2500}}) {
    Jukebox box;
    box.state.settings.MusicVolume = percent;
    EXPECT_THAT(box.Frame("a").back(), "volume " + std::to_string(hundredths)) << percent;
    EXPECT_EQ(box.state.music.Volume, hundredths);
  }
}

}  // namespace
}  // namespace coilrun
