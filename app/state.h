#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "data/index_words.h"
#include "forms/placement.h"

/// What all windows share. Set at start-up; to be used on the user-interface thread only. Includes
/// nothing but the types that it holds, since every window includes it.
namespace user {

/// Names kk.dat for every data control.
inline std::u16string ConnectionString;

/// The headword index, loaded some milliseconds after start-up; empty until then.
inline data::IndexWords IdxWords;

/// The program that opens pages, started with the page as its command line.
inline std::u16string BrowserPath;

/// Colours of a headword and of its meanings wherever both are shown, as COLORREF (0x00BBGGRR):
/// pure red and pure blue.
inline constexpr std::uint32_t kHeadwordColor = 0x000000FF;
inline constexpr std::uint32_t kMeaningColor = 0x00FF0000;

/// Whether the multi-dictionary window is open.
inline bool MainOpen = false;

/// Where the quick lookup window was when it was closed last; none before. Not kept between runs.
inline std::optional<forms::PixelBox> QuickLookupPlace;

}  // namespace user
