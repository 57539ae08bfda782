#include "platform/sdl/sdl_text.h"

#include <array>
#include <cstring>
#include <map>
#include <set>
#include <tuple>

#include <SDL.h>
#include <SDL_ttf.h>

#include "ports/windows_1252.h"

namespace coilrun {
namespace {

/// A face in both weights; the last one stands in for every name not listed.
struct Face {
  std::string_view name;
  const char* regular;
  const char* bold;
};

constexpr auto kFaces = std::to_array<Face>({
    {"Balloon", "ComicNeue-Bold", "ComicNeue-Bold"},
    {"Courier New", "LiberationMono-Regular", "LiberationMono-Bold"},
    {"Arial", "LiberationSans-Regular", "LiberationSans-Bold"},
});
constexpr const Face& kSansFace = kFaces[2];

const Face& FaceOf(std::string_view name) {
  for (const Face& face : kFaces)
    if (face.name == name) return face;
  return kSansFace;
}

/// A size in points as pixels at 96 dots per inch, rounded.
int PixelSize(int points) {
  return (points * 96 + 36) / 72;
}

struct FontCloser {
  void operator()(TTF_Font* font) const { TTF_CloseFont(font); }
};
struct SurfaceFreer {
  void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using Font = std::unique_ptr<TTF_Font, FontCloser>;
using Surface = std::unique_ptr<SDL_Surface, SurfaceFreer>;

/// The opacity of a rendered surface (0xAARRGGBB).
TextMask MaskOf(const SDL_Surface& surface) {
  TextMask mask{surface.w, surface.h, {}};
  mask.coverage.reserve(static_cast<std::size_t>(surface.w) * static_cast<std::size_t>(surface.h));
  const auto* const bytes = static_cast<const std::uint8_t*>(surface.pixels);
  std::vector<std::uint32_t> row(static_cast<std::size_t>(surface.w));
  for (int y = 0; y < surface.h; ++y) {
    const auto start = static_cast<std::size_t>(y) * static_cast<std::size_t>(surface.pitch);
    std::memcpy(row.data(), bytes + start, row.size() * sizeof(std::uint32_t));
    for (const std::uint32_t pixel : row)
      mask.coverage.push_back(static_cast<std::uint8_t>(pixel >> 24U));
  }
  return mask;
}

}  // namespace

class SdlText::Fonts {
 public:
  Fonts(std::filesystem::path folder, Report report)
      : folder_(std::move(folder)), report_(std::move(report)), ready_(TTF_Init() == 0) {
    if (!ready_) report_(std::string("No texts in system fonts: ") + TTF_GetError());
  }
  ~Fonts() {
    fonts_.clear();
    if (ready_) TTF_Quit();
  }
  Fonts(const Fonts&) = delete;
  Fonts& operator=(const Fonts&) = delete;

  int Measure(const FontStyle& style, std::string_view text) {
    TTF_Font* const font = FontOf(style);
    int width = 0;
    if (font == nullptr || TTF_SizeUTF8(font, ToUtf8(text).c_str(), &width, nullptr) != 0) return 0;
    return width;
  }

  const TextMask& Render(const FontStyle& style, std::string_view text) {
    const Key key{style.face, style.size, style.bold, std::string(text)};
    const auto known = rendered_.find(key);
    if (known != rendered_.end()) return known->second;
    if (rendered_.size() >= kMostRendered) rendered_.clear();
    return rendered_.emplace(key, RenderNew(style, text)).first->second;
  }

 private:
  using Key = std::tuple<std::string, int, bool, std::string>;
  static constexpr std::size_t kMostRendered = 256;

  TextMask RenderNew(const FontStyle& style, std::string_view text) {
    TTF_Font* const font = FontOf(style);
    if (font == nullptr || text.empty()) return {};
    const Surface surface(TTF_RenderUTF8_Blended(font, ToUtf8(text).c_str(), {255, 255, 255, 255}));
    return surface ? MaskOf(*surface) : TextMask{};
  }

  TTF_Font* FontOf(const FontStyle& style) {
    const Face& face = FaceOf(style.face);
    const char* const wanted = style.bold ? face.bold : face.regular;
    TTF_Font* const font = Open(wanted, style.size);
    if (font != nullptr || face.name == kSansFace.name) return font;
    return Open(style.bold ? kSansFace.bold : kSansFace.regular, style.size);
  }

  /// The open font, which the first call opens; nothing when there is none, which is looked for
  /// only once.
  TTF_Font* Open(const std::string& name, int points) {
    if (!ready_ || points <= 0) return nullptr;
    const auto [entry, isNew] = fonts_.try_emplace({name, points});
    Font& font = entry->second;
    for (const char* const ending : {".ttf", ".otf"}) {
      if (isNew && !font)
        font.reset(TTF_OpenFont((folder_ / (name + ending)).c_str(), PixelSize(points)));
    }
    if (!font && missing_.insert(name).second)
      report_("The font " + (folder_ / name).string() + " cannot be opened");
    return font.get();
  }

  std::filesystem::path folder_;
  Report report_;
  bool ready_;
  std::map<std::pair<std::string, int>, Font> fonts_;
  std::set<std::string> missing_;
  std::map<Key, TextMask> rendered_;
};

SdlText::SdlText(std::filesystem::path fontFolder, Report report)
    : fonts_(std::make_unique<Fonts>(std::move(fontFolder), std::move(report))) {}

SdlText::~SdlText() = default;

int SdlText::Measure(const FontStyle& style, std::string_view text) {
  return fonts_->Measure(style, text);
}

const TextMask& SdlText::Render(const FontStyle& style, std::string_view text) {
  return fonts_->Render(style, text);
}

}  // namespace coilrun
