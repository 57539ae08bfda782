#pragma once

#include <string_view>

#include "kit/png_picture.h"
#include "render/picture.h"

namespace coilrun {

/// True for names that end in ".png", in any letter case.
bool IsPngName(std::string_view name);

/// The colour key that the game gives the picture with this name (slashes), told by its folder.
KeyMode KeyOf(std::string_view name);

/// The game's form of a picture: the bytes of an uncompressed 24-bit BMP file. What is less than
/// half opaque gets the colour of the key; what is more keeps its own, moved off the key by one
/// shade where it would vanish. A picture without opacity is taken as it is.
Bytes GameBmp(const PngPicture& picture, KeyMode key);

/// True when the picture has pixels that `GameBmp` gives the colour of the key.
bool HasTransparentPixels(const PngPicture& picture);

}  // namespace coilrun
