#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "presets/PresetFailure.h"
#include "requests/DrawingWish.h"

namespace linewright {

// A preset is a file of TOML that says how barcodes are drawn. Its keys are the command's options:
//
//     x-dimension = "0.33mm"          # or magnification = 80, in per cent of the type's usual one
//     height = "15mm"
//     quiet-zone = "10x"
//     bar-width-reduction = "10%"
//     dpi = 600
//     fit = true
//     text = false
//     bearer = true
//     margin-marks = true
//
// What is not there is as each type has it. Names and texts are UTF-8.

/** No preset is longer, in bytes. */
inline constexpr std::size_t kLongestPreset = 65536;

/** Throws PresetFailure, which names file, line and key. */
DrawingWish ReadPreset(const std::string& file);
/** The same of a file's content; `file` is what failures call it. */
DrawingWish PresetOf(std::string_view content, const std::string& file);

/** The content of a file that says so; lengths in millimetres or in X-dimensions. */
std::string PresetText(const DrawingWish& wish);
/** Writes it, whole or not at all. Throws PresetFailure. */
void WritePreset(const std::string& file, const DrawingWish& wish);

/** What a preset says, but for what is wished for besides. */
DrawingWish Combined(const DrawingWish& preset, const DrawingWish& wish);

}  // namespace linewright
