#pragma once

#include <string_view>

#include "kit/png_picture.h"
#include "render/picture.h"

namespace coilrun {

/// True for names that end in ".png", in any letter case.
bool IsPngName(std::string_view name);

/// The colour key that the game gives the picture with this name (with slashes), by its folder.
KeyMode KeyOf(std::string_view name);

/// A picture in the game's format: the bytes of an uncompressed 24-bit BMP file. Pixels that are
/// less than half opaque get the colour of the key; others keep their own, moved off the key by one
/// shade where they would vanish. A picture without opacity is taken as it is.
Bytes GameBmp(const PngPicture& picture, KeyMode key);

/// True when the picture has pixels that `GameBmp` gives the colour of the key.
bool HasTransparentPixels(const PngPicture& picture);

}  // namespace coilrun
