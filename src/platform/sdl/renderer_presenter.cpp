#include <algorithm>
#include <array>
#include <string_view>

#include "platform/scaling.h"
#include "platform/sdl/presenter.h"

namespace coilrun {
namespace {

constexpr Uint32 kRendererFlags = SDL_RENDERER_ACCELERATED | SDL_RENDERER_PRESENTVSYNC;
constexpr int kPitch = kScreenWidth * static_cast<int>(sizeof(std::uint32_t));

class RendererPresenter : public Presenter {
 public:
  RendererPresenter(SdlPointer<SDL_Renderer> renderer, SdlPointer<SDL_Texture> texture)
      : renderer_(std::move(renderer)), texture_(std::move(texture)) {
    SDL_RendererInfo info{};
    SDL_GetRendererInfo(renderer_.get(), &info);
    waiting_ = waits_ = (info.flags & SDL_RENDERER_PRESENTVSYNC) != 0;
  }

  void Show(ScreenPixels picture, bool wait) override {
    SetWaiting(wait);
    SDL_UpdateTexture(texture_.get(), nullptr, picture.data(), kPitch);
    int width = 0;
    int height = 0;
    SDL_GetRendererOutputSize(renderer_.get(), &width, &height);
    const Area area = PictureArea(std::max(1, width), std::max(1, height));
    const bool whole = area.width % kScreenWidth == 0;
    SDL_SetTextureScaleMode(texture_.get(), whole ? SDL_ScaleModeNearest : SDL_ScaleModeLinear);
    const SDL_Rect target{area.x, area.y, area.width, area.height};
    SDL_RenderClear(renderer_.get());
    SDL_RenderCopy(renderer_.get(), texture_.get(), nullptr, &target);
    SDL_RenderPresent(renderer_.get());
  }

  bool Waits() const override { return waits_; }
  void Forget() override {}

 private:
  void SetWaiting(bool wait) {
    if (!waits_ || wait == waiting_) return;
    SDL_RenderSetVSync(renderer_.get(), wait ? 1 : 0);
    waiting_ = wait;
  }

  SdlPointer<SDL_Renderer> renderer_;
  SdlPointer<SDL_Texture> texture_;
  bool waits_ = false;
  bool waiting_ = false;
};

/// Recognises, by name, software renderers that pass themselves off as graphics cards.
bool IsSoftwareName(std::string_view name) {
  constexpr std::array<std::string_view, 5> kNames = {"llvmpipe", "softpipe", "swrast", "SWR",
                                                      "Software"};
  return std::any_of(kNames.begin(), kNames.end(), [&](std::string_view part) {
    return name.find(part) != std::string_view::npos;
  });
}

/// What draws for the current context, according to OpenGL; empty when it cannot be asked.
std::string_view OpenGlRendererName() {
  constexpr unsigned kGlRenderer = 0x1F01;
  using GetString = const char* (*)(unsigned name);
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): SDL gives functions as void*.
  const auto getString = reinterpret_cast<GetString>(SDL_GL_GetProcAddress("glGetString"));
  const char* const name = getString == nullptr ? nullptr : getString(kGlRenderer);
  return name == nullptr ? std::string_view() : std::string_view(name);
}

}  // namespace

bool HasHardwareRenderer() {
  const SdlPointer<SDL_Window> window(
      SDL_CreateWindow("", 0, 0, 64, 64, SDL_WINDOW_HIDDEN | SDL_WINDOW_OPENGL));
  if (!window) return false;
  const SdlPointer<SDL_Renderer> renderer(SDL_CreateRenderer(window.get(), -1, kRendererFlags));
  SDL_RendererInfo info{};
  if (!renderer || SDL_GetRendererInfo(renderer.get(), &info) != 0) return false;
  if ((info.flags & SDL_RENDERER_ACCELERATED) == 0) return false;
  const bool isOpenGl = std::string_view(info.name).starts_with("opengl");
  return !isOpenGl || !IsSoftwareName(OpenGlRendererName());
}

std::unique_ptr<Presenter> MakeRendererPresenter(SDL_Window& window) {
  SdlPointer<SDL_Renderer> renderer(SDL_CreateRenderer(&window, -1, kRendererFlags));
  if (!renderer) return nullptr;
  SdlPointer<SDL_Texture> texture(SDL_CreateTexture(renderer.get(), SDL_PIXELFORMAT_RGB888,
                                                    SDL_TEXTUREACCESS_STREAMING, kScreenWidth,
                                                    kScreenHeight));
  if (!texture) return nullptr;
  return std::make_unique<RendererPresenter>(std::move(renderer), std::move(texture));
}

}  // namespace coilrun
