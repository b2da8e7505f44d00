#pragma once

#include <string>

#include "data/index_words.h"

/// What all windows share. Set at start-up; to be used on the user-interface thread only. Includes
/// nothing but the types that it holds, since every window includes it.
namespace user {

/// Names kk.dat for every data control.
inline std::u16string ConnectionString;

/// The headword index, loaded some milliseconds after start-up; empty until then.
inline data::IndexWords IdxWords;

/// The program that opens pages, started with the page as its command line.
inline std::u16string BrowserPath;

/// Whether the multi-dictionary window is open.
inline bool MainOpen = false;

}  // namespace user
