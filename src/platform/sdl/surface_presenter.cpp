#include <algorithm>
#include <vector>

#include "platform/scaling.h"
#include "platform/sdl/presenter.h"

namespace coilrun {
namespace {

constexpr int kPixelSize = static_cast<int>(sizeof(std::uint32_t));

class SurfacePresenter : public Presenter {
 public:
  explicit SurfacePresenter(SDL_Window& window) : window_(window), shown_(kScreenPixels) {}

  void Show(ScreenPixels picture, bool /*wait*/) override {
    SDL_Surface* const surface = SDL_GetWindowSurface(&window_);
    if (surface == nullptr || surface->w <= 0 || surface->h <= 0) return;
    const Area area = PictureArea(surface->w, surface->h);
    const bool anew = forgotten_ || surface != surface_ || area != area_;
    const RowRange changed =
        anew ? RowRange{0, kScreenHeight} : ChangedRows(ScreenPixels(shown_), picture);
    if (changed.first == changed.end) return;
    if (anew) SDL_FillRect(surface, nullptr, 0);
    const RowRange rows = CanvasRows(changed, area);
    Draw(picture, rows, area, *surface);
    std::copy(picture.begin(), picture.end(), shown_.begin());
    surface_ = surface;
    area_ = area;
    forgotten_ = false;
    const SDL_Rect band{area.x, area.y + rows.first, area.width, rows.end - rows.first};
    if (anew) {
      SDL_UpdateWindowSurface(&window_);
    } else {
      SDL_UpdateWindowSurfaceRects(&window_, &band, 1);
    }
  }

  bool Waits() const override { return false; }
  void Forget() override { forgotten_ = true; }

 private:
  void Draw(ScreenPixels picture, const RowRange& rows, const Area& area, SDL_Surface& surface) {
    if (surface.format->format == SDL_PIXELFORMAT_RGB888) {
      const int stride = surface.pitch / kPixelSize;
      const auto size = static_cast<std::size_t>(stride) * static_cast<std::size_t>(surface.h);
      scaler_.Draw(picture, rows, area,
                   {{static_cast<std::uint32_t*>(surface.pixels), size}, stride});
    } else {
      DrawConverted(picture, rows, area, surface);
    }
  }

  /// For windows whose pixels are not 0x00RRGGBB.
  void DrawConverted(ScreenPixels picture, const RowRange& rows, const Area& area,
                     SDL_Surface& surface) {
    const Area local{0, 0, area.width, area.height};
    converted_.resize(static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height));
    scaler_.Draw(picture, rows, local, {converted_, area.width});
    const auto skipped =
        static_cast<std::size_t>(rows.first) * static_cast<std::size_t>(area.width);
    const std::ptrdiff_t start = std::ptrdiff_t{area.y + rows.first} * surface.pitch +
                                 std::ptrdiff_t{area.x} * surface.format->BytesPerPixel;
    auto* const target = static_cast<std::uint8_t*>(surface.pixels) + start;
    SDL_ConvertPixels(area.width, rows.end - rows.first, SDL_PIXELFORMAT_RGB888,
                      converted_.data() + skipped, area.width * kPixelSize, surface.format->format,
                      target, surface.pitch);
  }

  SDL_Window& window_;
  Scaler scaler_;
  std::vector<std::uint32_t> shown_;
  std::vector<std::uint32_t> converted_;
  const SDL_Surface* surface_ = nullptr;
  Area area_;
  bool forgotten_ = true;
};

}  // namespace

std::unique_ptr<Presenter> MakeSurfacePresenter(SDL_Window& window) {
  return std::make_unique<SurfacePresenter>(window);
}

}  // namespace coilrun
