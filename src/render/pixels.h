#pragma once

#include <cstdint>

namespace coilrun {

/// A pixel of the screen: 0x00RRGGBB.
using Pixel = std::uint32_t;

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  constexpr Pixel ToPixel() const {
    return static_cast<Pixel>(red) << 16 | static_cast<Pixel>(green) << 8 | blue;
  }
};

/// Pixels from `left`, `top` up to, but not including, `right`, `bottom`.
struct Rect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  constexpr int Width() const { return right - left; }
  constexpr int Height() const { return bottom - top; }
  constexpr bool Holds(const Rect& inner) const {
    return left <= inner.left && top <= inner.top && inner.right <= right &&
           inner.bottom <= bottom && inner.left < inner.right && inner.top < inner.bottom;
  }

  bool operator==(const Rect&) const = default;
};

}  // namespace coilrun
