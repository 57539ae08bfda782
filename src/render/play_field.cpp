#include "render/play_field.h"

#include <algorithm>
#include <array>

#include "model/shown_model.h"
#include "model/snakes_in_play.h"

namespace coilrun {
namespace {

constexpr Rect kCellPart{0, 0, kCell, kCell};

/// By wall kind; straight walls show the picture that is named after the other direction.
constexpr std::array<Standard, 8> kWallPictures = {
    Standard::kBrik,   Standard::kBrikH,  Standard::kBrikV,  Standard::kBrikVL,
    Standard::kBrikVR, Standard::kBrikHT, Standard::kBrikHB, Standard::kBrik};

}  // namespace

PlayField::PlayField(const State& state, Canvas& canvas, const StandardPictures& standard,
                     const ModelPictures& models, ItemPictures& items)
    : state_(state), canvas_(canvas), standard_(standard), models_(models), items_(items) {}

void PlayField::DrawBackground() {
  canvas_.DrawWhole(standard_(Standard::kBackground));
}

void PlayField::DrawStartMarkers() {
  for (int s = 1; s <= SnakesInPlay(state_); ++s) {
    const SnakeRec& snake = state_.Snakes(s);
    if (snake.Dir != Dir::kNone && !state_.shell.WaitingForStart) continue;
    DrawPiece(ModelPiece::kStart, snake.Model, snake.StartX, snake.StartY);
  }
}

void PlayField::DrawItems(ItemKind kind, bool forceFlat) {
  const ItemList& items = state_.Items(kind);
  const bool animated = state_.settings.AnimatedItems && !forceFlat;
  ItemPicture& shown = animated ? items_.Frame(kind, state_.timers.AnimFrame) : items_.Flat(kind);
  const Picture* picture = nullptr;
  const auto* const end = items.slots.begin() + items.Live();
  for (const auto* item = items.slots.begin(); item != end; ++item) {
    if (!item->Present) continue;
    if (picture == nullptr) picture = &items_.Fetch(shown.picture);
    canvas_.Back().Blit(*picture, shown.part, item->X, item->Y, true);
  }
}

void PlayField::DrawAllItems(bool tntFirst) {
  for (const ItemKind kind :
       {ItemKind::kYellow, ItemKind::kRed, ItemKind::kBlue, ItemKind::kBlack}) {
    DrawItems(kind);
  }
  DrawItems(tntFirst ? ItemKind::kTnt : ItemKind::kPower);
  DrawItems(tntFirst ? ItemKind::kPower : ItemKind::kTnt);
}

void PlayField::DrawWalls() {
  const int walls = std::min<int>(state_.numWalls, kMaxWalls);
  for (int w = 1; w <= walls; ++w) {
    const WallRec& wall = state_.Walls(w);
    if (!wall.Present || wall.Kind == WallKind::kNone) continue;
    const Standard picture = kWallPictures[static_cast<std::size_t>(wall.Kind)];
    canvas_.Back().Blit(standard_(picture), wall.X, wall.Y);
  }
}

void PlayField::DrawUserItems() {
  const int userItems = std::min<int>(state_.numUserItems, kMaxUserItems);
  for (int u = 1; u <= userItems; ++u) {
    const UserItemRec& item = state_.UserItems(u);
    if (!item.Present) continue;
    NamedPicture* const picture = items_.UserItem(item, state_.timers.AnimFrame);
    if (picture == nullptr) continue;
    canvas_.Back().Blit(items_.Fetch(*picture), kCellPart, item.X, item.Y, true);
  }
}

void PlayField::DrawSnake(int snake) {
  const SnakeRec& drawn = state_.Snakes(snake);
  DrawSnakeHead(drawn);
  const BodyPictures pictures = PicturesOf(drawn);
  for (int seg = std::min<int>(drawn.Length - 1, drawn.Seg.kLast); seg >= 1; --seg) {
    DrawSnakeSeg(drawn.Seg(seg), pictures);
  }
  DrawSnakeTail(drawn);
}

void PlayField::DrawSnakeHead(const SnakeRec& snake) {
  DrawPiece(HeadPiece(snake.Dir), snake.Model, snake.X, snake.Y);
}

void PlayField::DrawSnakeSeg(const SegRec& cell, const BodyPictures& pictures) {
  const Picture* const picture = pictures[static_cast<std::size_t>(cell.Dir)];
  if (picture != nullptr) canvas_.Back().Blit(*picture, cell.X, cell.Y);
}

void PlayField::DrawSnakeTail(const SnakeRec& snake) {
  DrawPiece(TailPiece(snake.Tail.Dir, PackOf(snake)), snake.Model, snake.Tail.X, snake.Tail.Y);
}

void PlayField::DrawSnakes(const Table<bool, kMaxSnakes>& shown) {
  for (int s = 1; s <= SnakesInPlay(state_); ++s) {
    if (shown(s)) DrawSnake(s);
  }
}

PlayField::BodyPictures PlayField::PicturesOf(const SnakeRec& snake) const {
  BodyPictures pictures{};
  for (int dir = 0; dir < kDirs; ++dir) {
    const SnakePiece piece = BodyPiece(static_cast<Dir>(dir), PackOf(snake));
    if (piece) pictures[static_cast<std::size_t>(dir)] = &models_(snake.Model, *piece);
  }
  return pictures;
}

void PlayField::DrawPiece(SnakePiece piece, int model, int x, int y) {
  if (piece) canvas_.Back().Blit(models_(model, *piece), x, y);
}

const ModelPack& PlayField::PackOf(const SnakeRec& snake) const {
  const int model = std::clamp(ShownModel(state_, snake.Model), 0, state_.ModelPacks.kLast);
  return state_.ModelPacks(model);
}

}  // namespace coilrun
