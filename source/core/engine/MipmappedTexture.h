#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>
#include <string>

namespace skyvane {

/// A PNG file in the format A8R8G8B8; null when it can't be read, is of another kind whatever its name says, or claims
/// to be larger than any of ours.
EngineRef<irr::video::IImage> readArgbImage(irr::video::IVideoDriver* driver, const std::string& path);

/// The driver's texture of a picture file, with its smaller copies made here; null when the file can't be read.
///
/// The engine would leave the copies to the driver, and a software renderer then compiles programs for each size of
/// picture: that was half of the program's start. Colours are averaged weighted by their alpha, so that no edge turns
/// dark or light. The texture is known to the driver by its path and asked for only once.
irr::video::ITexture* loadMipmappedTexture(irr::video::IVideoDriver* driver, const std::string& path);

/// The same for a picture of the format A8R8G8B8 that is at hand; null when the driver refuses it.
irr::video::ITexture* addMipmappedTexture(irr::video::IVideoDriver* driver, const std::string& name,
                                          irr::video::IImage& image);

} // namespace skyvane
