#include "render/renderer.h"

#include <array>
#include <string_view>
#include <utility>

#include "model/feed.h"

namespace coilrun {
namespace {

/// The animated kinds other than yellow in loading order, as the debug line names them.
struct LevelKind {
  ItemKind kind;
  bool LevelState::*used;
  std::string_view name;
  std::string_view end;
};
constexpr std::array<LevelKind, 5> kLevelKinds = {
    {{ItemKind::kBlack, &LevelState::UsesBlack, " Black(", "); "},
     {ItemKind::kBlue, &LevelState::UsesBlue, " Blue(", "); "},
     {ItemKind::kRed, &LevelState::UsesRed, " Red(", "); "},
     {ItemKind::kTnt, &LevelState::UsesTNT, " TNT(", ")"},
     {ItemKind::kPower, &LevelState::UsesPower, " POWER(", ")"}}};

constexpr std::array<std::string_view, 5> kFlatItems = {
    "banana.bmp", "black_banana.bmp", "blue_banana.bmp", "red_banana.bmp", "TNT.bmp"};

}  // namespace

Renderer::Renderer(State& state, RendererPorts ports)
    : state_(state),
      pump_(ports.pump),
      canvas_(state.output),
      panel_(state, canvas_, ports.textFace, ports.pump, ports.files),
      loader_(state, ports.files, ports.messageBox, panel_, std::move(ports.giveUp)),
      standard_(state, ports.files, loader_),
      models_(state, loader_),
      store_(state, loader_),
      items_(store_),
      text_(state, canvas_, ports.textFace),
      field_(state, canvas_, standard_, models_, items_),
      overlays_(state, canvas_, standard_, items_, text_, ports.version),
      menus_(state, canvas_, standard_, models_, items_, text_, ports.version),
      levelPicture_(loader_, standard_, models_, items_) {}

void Renderer::DrawFrame(const Table<bool, kMaxSnakes>& shown) {
  field_.DrawBackground();
  field_.DrawStartMarkers();
  field_.DrawAllItems();
  field_.DrawWalls();
  field_.DrawUserItems();
  field_.DrawSnakes(shown);
  overlays_.DrawMessageFeed();
  overlays_.DrawStatusLine();
  text_.DrawSnakeNames(state_.shell.ShowNames);
  if (state_.shell.ShowMatchStats) overlays_.DrawMatchStats();
  overlays_.DrawItemPanel();
  overlays_.DrawCenterLines();
  overlays_.DrawWaitOverlay();
}

void Renderer::LoadStandardPictures() {
  state_.feed.introVisible = true;
  panel_.SetCaption("Loading GFx...");
  state_.feed.LoadedCount = 0;
  standard_.LoadAll();
  text_.CutGlyphs(standard_);
}

void Renderer::PrepareLvlGfx() {
  state_.feed.introVisible = true;
  panel_.SetCaption("Buffering...");
  if (state_.settings.AnimatedItems) {
    for (int frame = 1; frame <= kAnimationFrames; ++frame) PrepareFrame(frame);
  }
  panel_.SetCaption("PrepareLvlGfx: Loading 2D Items...");
  for (const std::string_view name : kFlatItems) {
    NamedPicture picture{std::string{name}, KeyMode::kBlack};
    store_.Fetch(picture);
  }
  state_.feed.introVisible = false;
}

void Renderer::PrepareFrame(int frame) {
  std::string loaded = "PrepareLvlGfx: Loading Texture ";
  items_.Fetch(items_.Frame(ItemKind::kYellow, frame).picture);
  for (const LevelKind& level : kLevelKinds) {
    if (!(state_.level.*level.used)) continue;
    items_.Fetch(items_.Frame(level.kind, frame).picture);
    loaded += std::string{level.name} + std::to_string(frame) + std::string{level.end};
  }
  panel_.SetProgress(frame * 100.0 / kAnimationFrames);
  DebugPrint(state_, loaded);
  pump_.Yield();
}

}  // namespace coilrun
