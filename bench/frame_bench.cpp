#include <algorithm>
#include <cstring>
#include <numeric>

#include <benchmark/benchmark.h>

#include "crowd.h"
#include "pictures.h"
#include "render/snake_pieces.h"

namespace coilrun::bench {
namespace {

constexpr int kTextFont = 1;
constexpr int kLineLength = 50;

/// A renderer with all pictures loaded and a crowded field.
class Scene {
 public:
  explicit Scene(const Crowd& crowd) : text_(static_cast<std::size_t>(crowd.textLength), 'n') {
    PutPictures(stage_.files);
    State& state = stage_.state;
    state.output.enabled = false;
    state.ModelPacks(0) = {"tube.smp", "tube", "Tube", "", true, true, false};
    state.LastModel = 0;
    stage_.renderer.LoadStandardPictures();
    stage_.renderer.LoadModelPictures(0);
    Put(state, crowd);
    Draw();
    AddOpaquePixels();
  }

  void Draw() {
    PlayField& field = stage_.renderer.Field();
    field.DrawBackground();
    field.DrawAllItems();
    field.DrawWalls();
    for (int s = 1; s <= stage_.state.mode.NumSnakes; ++s) field.DrawSnake(s);
    const std::string_view text = text_;
    for (std::size_t at = 0; at < text.size(); at += kLineLength) {
      const int y = 40 + static_cast<int>(at);
      stage_.renderer.Text().DrawBmpText(text.substr(at, kLineLength), 18, y, kTextFont);
    }
  }

  std::span<Pixel, kScreenPixels> Target() { return stage_.renderer.Screen().Back().Pixels(); }
  /// How many pixels a frame writes besides the background.
  std::size_t OpaquePixels() const { return opaque_; }

 private:
  void Add(const Picture& picture, int times = 1) {
    const auto opaque = [&](Pixel pixel) { return !IsTransparent(picture.Key(), pixel); };
    opaque_ += static_cast<std::size_t>(std::ranges::count_if(picture.Pixels(), opaque) * times);
  }
  void AddOpaquePixels() {
    const State& state = stage_.state;
    Add({WallPicture(), KeyMode::kBlack}, state.numWalls);
    for (std::size_t kind = 0; kind < kItemKinds; ++kind) {
      const auto item = static_cast<ItemKind>(kind);
      const KeyMode key = item == ItemKind::kTnt ? KeyMode::kGrey128 : KeyMode::kGrey131;
      Add({ItemFrame(item), key}, state.Items(item).Live());
    }
    for (int s = 1; s <= state.mode.NumSnakes; ++s) AddSnake(state.Snakes(s));
    const Picture sheet(FontSheet(kTextFont), KeyMode::kBlack);
    for (const char c : text_) Add(sheet.Cut(GlyphRect(kTextFont, CellOf(c))));
  }
  void AddSnake(const SnakeRec& snake) {
    AddPiece(HeadPiece(snake.Dir));
    for (int i = 1; i < snake.Length; ++i) {
      AddPiece(BodyPiece(snake.Seg(i).Dir, stage_.state.ModelPacks(0)));
    }
    AddPiece(TailPiece(snake.Tail.Dir, stage_.state.ModelPacks(0)));
  }
  void AddPiece(std::optional<ModelPiece> piece) {
    if (piece) Add({ModelPicture(*piece), KeyMode::kBlack});
  }

  Stage stage_;
  std::string text_;
  std::size_t opaque_ = 0;
};

void Report(benchmark::State& run, const Scene& scene) {
  const std::size_t bytes = (kScreenPixels + scene.OpaquePixels()) * sizeof(Pixel);
  run.SetBytesProcessed(static_cast<std::int64_t>(bytes) * run.iterations());
}

void Frame(benchmark::State& run, const Crowd& crowd) {
  Scene scene(crowd);
  for (auto _ : run) {
    scene.Draw();
    benchmark::ClobberMemory();
  }
  Report(run, scene);
}

/// Copies the bytes that a frame writes, each once: the background and the opaque pixels, from
/// memory where they lie side by side. No way of drawing can be faster.
void Floor(benchmark::State& run, const Crowd& crowd) {
  Scene scene(crowd);
  const auto target = scene.Target();
  const std::vector<Pixel> background(kScreenPixels, 1);
  std::vector<Pixel> opaque(scene.OpaquePixels());
  std::iota(opaque.begin(), opaque.end(), 0U);
  for (auto _ : run) {
    std::memcpy(target.data(), background.data(), target.size_bytes());
    for (std::size_t at = 0; at < opaque.size(); at += target.size()) {
      const std::size_t count = std::min(target.size(), opaque.size() - at);
      std::memcpy(target.data(), opaque.data() + at, count * sizeof(Pixel));
    }
    benchmark::ClobberMemory();
  }
  Report(run, scene);
}

const auto* const kFrameTypical = benchmark::RegisterBenchmark("frame/typical", Frame, Typical());
const auto* const kFloorTypical = benchmark::RegisterBenchmark("floor/typical", Floor, Typical());
const auto* const kFrameWorst = benchmark::RegisterBenchmark("frame/worst", Frame, Worst());
const auto* const kFloorWorst = benchmark::RegisterBenchmark("floor/worst", Floor, Worst());

}  // namespace
}  // namespace coilrun::bench
