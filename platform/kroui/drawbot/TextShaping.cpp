#include <kroui/drawbot/TextShaping.h>

#include <kroui/drawbot/raster/TextEngineImpl.h>

namespace kroui::drawbot {

GlyphRunCacheStatistics GetGlyphRunCacheStatistics() {
  return raster::TextEngine::Instance().GetStatistics();
}

void ClearGlyphRunCache() { raster::TextEngine::Instance().ClearCache(); }

} // namespace kroui::drawbot
