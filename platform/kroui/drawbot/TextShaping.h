#pragma once

#include <kroui/Export.h>

#include <cstddef>
#include <cstdint>

namespace kroui::drawbot {

/// How the cache of shaped text has served so far. Every drawbot shares it:
/// a label shaped to be measured is not shaped again to be drawn.
struct GlyphRunCacheStatistics {
  std::uint64_t hits = 0;
  std::uint64_t misses = 0; ///< texts shaped
  std::size_t entries = 0;
  std::size_t capacity = 0;
};

KROUI_API GlyphRunCacheStatistics GetGlyphRunCacheStatistics();
/// Empties the cache and zeroes its counts.
KROUI_API void ClearGlyphRunCache();

} // namespace kroui::drawbot
