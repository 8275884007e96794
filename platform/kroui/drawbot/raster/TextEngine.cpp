#include <kroui/drawbot/raster/TextEngineImpl.h>

#include <kroui/drawbot/DrawGeometryImpl.h>
#include <kroui/drawbot/FontTable.h>
#include <kroui/drawbot/raster/GlyphRunCacheImpl.h>
#include <kroui/drawbot/raster/GlyphRunImpl.h>

#include <krocore/debug/Assert.h>

#include <fontconfig/fontconfig.h>
#include <pango/pangocairo.h>
#include <pango/pangofc-fontmap.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <mutex>
#include <string>
#include <vector>

#ifndef KROUI_FONT_DIRECTORY
#define KROUI_FONT_DIRECTORY "/usr/share/fonts/truetype/dejavu"
#endif

namespace kroui::drawbot::raster {
namespace {

constexpr const char* kFontDirectory = KROUI_FONT_DIRECTORY;
constexpr double kResolution = 96.0;
// Several screens of rulers, labels and timecodes, at a few kilobytes a run.
constexpr std::size_t kCacheCapacity = 2048;

/// The font files of our directory, in a fixed order.
std::vector<std::filesystem::path> FontFiles() {
  std::vector<std::filesystem::path> files;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(kFontDirectory, error)) {
    if (entry.path().extension() == ".ttf") files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

/// A configuration that knows only our fonts: none of the host's fonts,
/// aliases or rendering rules can reach the pixels. Files are added one by
/// one because scanning a directory would try to write a cache for it.
FcConfig* CreatePrivateFontConfig() {
  FcConfig* config = FcConfigCreate();
  FcConfigSetRescanInterval(config, 0);
  for (const std::filesystem::path& file : FontFiles()) {
    FcConfigAppFontAddFile(config, reinterpret_cast<const FcChar8*>(file.c_str()));
  }
  const FcFontSet* fonts = FcConfigGetFonts(config, FcSetApplication);
  KROCORE_ASSERT(fonts && fonts->nfont > 0,
                 "The drawbot's fonts were not found in " KROUI_FONT_DIRECTORY "; text will show as boxes");
  return config;
}

PangoFontMap* CreateFontMap(FcConfig* config) {
  PangoFontMap* fontMap = pango_cairo_font_map_new_for_font_type(CAIRO_FONT_TYPE_FT);
  if (!fontMap) fontMap = pango_cairo_font_map_new();
  if (PANGO_IS_FC_FONT_MAP(fontMap)) pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(fontMap), config);
  pango_cairo_font_map_set_resolution(PANGO_CAIRO_FONT_MAP(fontMap), kResolution);
  return fontMap;
}

/// Greyscale antialiasing (no colour fringes that depend on a screen),
/// slight hinting, advances on whole pixels.
void SetFixedRendering(PangoContext* context) {
  cairo_font_options_t* options = cairo_font_options_create();
  cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
  cairo_font_options_set_subpixel_order(options, CAIRO_SUBPIXEL_ORDER_DEFAULT);
  cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_SLIGHT);
  cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_ON);
  pango_cairo_context_set_font_options(context, options);
  cairo_font_options_destroy(options);
  pango_cairo_context_set_resolution(context, kResolution);
  pango_context_set_round_glyph_positions(context, TRUE);
  // The process locale would otherwise choose language-specific glyphs.
  pango_context_set_language(context, pango_language_from_string("en"));
}

PangoFontDescription* DescribeRow(const FontSpec& spec) {
  PangoFontDescription* description = pango_font_description_new();
  pango_font_description_set_family(description, std::string(spec.family).c_str());
  pango_font_description_set_weight(description, static_cast<PangoWeight>(spec.weight));
  return description;
}

/// Invalid UTF-8 and NUL bytes become U+FFFD, as Pango asks.
std::string MakeValidText(std::string_view text) {
  std::string withoutNul;
  withoutNul.reserve(text.size());
  for (const char c : text)
    withoutNul += c == '\0' ? std::string_view("\xEF\xBF\xBD") : std::string_view(&c, 1);
  gchar* valid = g_utf8_make_valid(withoutNul.data(), static_cast<gssize>(withoutNul.size()));
  std::string result(valid);
  g_free(valid);
  return result;
}

float FromPango(int units) { return static_cast<float>(units) / PANGO_SCALE; }

} // namespace

struct TextEngine::State {
  FcConfig* config = CreatePrivateFontConfig();
  PangoFontMap* fontMap = CreateFontMap(config);
  PangoContext* context = pango_font_map_create_context(fontMap);
  std::vector<PangoFontDescription*> descriptions;
  mutable std::mutex mutex;
  GlyphRunCache cache{kCacheCapacity};
  std::uint64_t hits = 0;
  std::uint64_t misses = 0;

  State() {
    SetFixedRendering(context);
    for (const FontSpec& spec : GetFontTable()) descriptions.push_back(DescribeRow(spec));
  }

  ~State() {
    cache.Clear();
    for (PangoFontDescription* description : descriptions) pango_font_description_free(description);
    g_object_unref(context);
    // Detached from our configuration, the font map releases the set of our
    // fonts it keeps; finalizing it alone leaves that set behind.
    if (PANGO_IS_FC_FONT_MAP(fontMap)) pango_fc_font_map_set_config(PANGO_FC_FONT_MAP(fontMap), nullptr);
    g_object_unref(fontMap);
    FcConfigDestroy(config);
    // Pango's font map loads fontconfig's default configuration in a thread of
    // its own, though ours never asks it anything. The process is ending and
    // our fonts are gone: let fontconfig release it. FcInit first, so that a
    // load still under way has finished.
    FcInit();
    FcFini();
  }

  PangoLayout* Layout(std::string_view text, std::size_t fontRow, std::int32_t size64) const;
  std::shared_ptr<const GlyphRun> Build(std::string_view text, std::size_t fontRow,
                                        std::int32_t size64) const;
};

PangoLayout* TextEngine::State::Layout(std::string_view text, std::size_t fontRow,
                                       std::int32_t size64) const {
  PangoLayout* layout = pango_layout_new(context);
  // One line: a newline shows as a glyph rather than starting another.
  pango_layout_set_single_paragraph_mode(layout, TRUE);
  PangoFontDescription* description = pango_font_description_copy_static(descriptions[fontRow]);
  pango_font_description_set_absolute_size(description, size64 * (PANGO_SCALE / 64.0));
  pango_layout_set_font_description(layout, description);
  pango_font_description_free(description);
  if (g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr)) {
    pango_layout_set_text(layout, text.data(), static_cast<int>(text.size()));
  } else {
    const std::string valid = MakeValidText(text);
    pango_layout_set_text(layout, valid.data(), static_cast<int>(valid.size()));
  }
  return layout;
}

std::shared_ptr<const GlyphRun> TextEngine::State::Build(std::string_view text, std::size_t fontRow,
                                                         std::int32_t size64) const {
  PangoLayout* layout = Layout(text, fontRow, size64);
  PangoLayoutLine* line = pango_layout_get_line_readonly(layout, 0);
  PangoRectangle ink, logical;
  pango_layout_line_get_extents(line, &ink, &logical);

  auto run = std::make_shared<GlyphRun>();
  // Glyphs are placed so that the logical box starts at the origin.
  run->layoutOffsetX = -FromPango(logical.x);
  run->extents.metrics = {FromPango(logical.width), -FromPango(logical.y),
                          FromPango(logical.height + logical.y)};
  run->extents.ink = {FromPango(ink.x - logical.x), FromPango(ink.y), FromPango(ink.width),
                      FromPango(ink.height)};

  bool needsPango = false;
  int x = -logical.x;
  for (GSList* item = line->runs; item; item = item->next) {
    const auto* glyphItem = static_cast<const PangoGlyphItem*>(item->data);
    cairo_scaled_font_t* font =
        pango_cairo_font_get_scaled_font(PANGO_CAIRO_FONT(glyphItem->item->analysis.font));
    needsPango = needsPango || !font;
    GlyphSegment segment;
    if (font) segment.font = cairo_scaled_font_reference(font);
    for (int i = 0; i < glyphItem->glyphs->num_glyphs; ++i) {
      const PangoGlyphInfo& info = glyphItem->glyphs->glyphs[i];
      if (info.glyph & PANGO_GLYPH_UNKNOWN_FLAG) {
        needsPango = true;
      } else if (info.glyph != PANGO_GLYPH_EMPTY) {
        segment.glyphs.push_back({info.glyph, static_cast<double>(FromPango(x + info.geometry.x_offset)),
                                  static_cast<double>(FromPango(info.geometry.y_offset))});
      }
      x += info.geometry.width;
    }
    if (segment.font) run->segments.push_back(std::move(segment));
  }
  if (needsPango) {
    run->layout = layout;
  } else {
    g_object_unref(layout);
  }
  return run;
}

TextEngine& TextEngine::Instance() {
  // Destroyed at exit, so that every font, layout and run of ours is released.
  static TextEngine sEngine;
  return sEngine;
}

TextEngine::TextEngine() : mState(std::make_unique<State>()) {}
TextEngine::~TextEngine() = default;

std::shared_ptr<const GlyphRun> TextEngine::Shape(std::string_view text, std::size_t fontRow,
                                                  float pixelScale) {
  if (fontRow >= mState->descriptions.size()) fontRow = 0;
  const float pixelSize = GetFontTable()[fontRow].pixelSize * std::abs(pixelScale);
  // From 1/64 pixel (a collapsed transform) to the largest size FreeType renders sensibly.
  const auto size64 =
      static_cast<std::int32_t>(std::lround(std::clamp(pixelSize, 1.f / 64.f, 16384.f) * 64.f));
  const auto row = static_cast<std::uint32_t>(fontRow);

  const std::lock_guard lock(mState->mutex);
  if (auto found = mState->cache.Find(text, row, size64)) {
    ++mState->hits;
    return found;
  }
  ++mState->misses;
  auto run = mState->Build(text, fontRow, size64);
  mState->cache.Insert(text, row, size64, run);
  return run;
}

TextExtents TextEngine::Measure(std::string_view text, std::size_t fontRow, float pixelScale) {
  return Shape(text, fontRow, pixelScale)->extents;
}

GlyphRunCacheStatistics TextEngine::GetStatistics() const {
  const std::lock_guard lock(mState->mutex);
  return {mState->hits, mState->misses, mState->cache.GetSize(), mState->cache.GetCapacity()};
}

void TextEngine::ClearCache() {
  const std::lock_guard lock(mState->mutex);
  mState->cache.Clear();
  mState->hits = 0;
  mState->misses = 0;
}

PointF PlaceText(const TextMetrics& metrics, const RectF& box, HorizontalAlignment horizontal,
                 VerticalAlignment vertical) noexcept {
  float x = box.x;
  if (horizontal == HorizontalAlignment::Center) x += (box.width - metrics.width) / 2.f;
  if (horizontal == HorizontalAlignment::Right) x += box.width - metrics.width;
  float y = box.y + metrics.ascent;
  if (vertical == VerticalAlignment::Center) y += (box.height - metrics.Height()) / 2.f;
  if (vertical == VerticalAlignment::Baseline) y = box.y + box.height;
  if (vertical == VerticalAlignment::Bottom) y = box.y + box.height - metrics.descent;
  return {std::floor(x + 0.5f), std::floor(y + 0.5f)};
}

RectF TextClipArea(const TextMetrics& metrics, const RectF& box, VerticalAlignment vertical) noexcept {
  if (vertical != VerticalAlignment::Baseline) return box;
  return {box.x, box.y, box.width, box.height + metrics.descent};
}

RectF TextCoverage(const TextExtents& extents, PointF origin) noexcept {
  const TextMetrics& m = extents.metrics;
  const RectF logical{origin.x, origin.y - m.ascent, m.width, m.Height()};
  const RectF ink{origin.x + extents.ink.x, origin.y + extents.ink.y, extents.ink.width, extents.ink.height};
  return Union(logical, ink);
}

} // namespace kroui::drawbot::raster
