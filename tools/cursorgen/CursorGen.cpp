// zel_cursorgen: draws the framework's cursor images, so that every one puts
// its hot spot exactly where its name says and all of them share one look.
//
//   zel_cursorgen write <folder>     every cursor of ZEL::Cursor's table as <folder>/<name>.png
//                                    (and stale Cur_*.png files there removed)
//   zel_cursorgen check <folder>     the images in <folder> must be what it draws now
//   zel_cursorgen sheet <file.png> [text]
//                                    a contact sheet of the framework's and the platform's cursors
//                                    (those whose label holds `text`)
//
// Every drawing is checked before anything is written: its hot spot pixel is
// opaque black, and no two cursors look the same.
#include "CursorArt.h"

#include <zel/appearance/Cursor.h>

#include <kroui/drawbot/FontTable.h>
#include <kroui/drawbot/RasterSurface.h>
#include <kroui/utility/OS_ResourceManager.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <system_error>
#include <vector>

namespace {

using kroui::drawbot::Image;
using kroui::ui::Point;
namespace fs = std::filesystem;

struct Drawn {
  std::string name;
  std::string label;
  Image image;
  Point hotSpot;
};

std::string Narrow(std::u16string_view text) { return std::string(text.begin(), text.end()); }

bool IsBlack(std::uint32_t pixel) { return pixel == 0xFF000000u; }

bool SamePixels(const Image& a, const Image& b) {
  if (a.GetWidth() != b.GetWidth() || a.GetHeight() != b.GetHeight()) return false;
  return std::equal(a.Pixels(), a.Pixels() + static_cast<std::size_t>(a.GetWidth()) * a.GetHeight(),
                    b.Pixels());
}

/// Draws one cursor of the table; nothing, with the problem printed, when its picture is wrong.
std::optional<Drawn> Draw(const ZEL::Cursor::SharedCursor& cursor) {
  const std::string name = Narrow(cursor.resourceName);
  const cursorgen::CursorArt* art = cursorgen::FindCursorArt(cursor.resourceName);
  const auto hotSpot = kroui::utility::ResourceManager::ParseHotSpot(cursor.resourceName);
  if (!art || !hotSpot) {
    std::fprintf(stderr, "%s: %s\n", name.c_str(),
                 art ? "the name holds no hot spot" : "no picture is drawn for it");
    return std::nullopt;
  }
  cursorgen::Canvas canvas;
  art->draw(canvas, {static_cast<float>(hotSpot->x), static_cast<float>(hotSpot->y)});
  Image image = canvas.Finish();
  if (!IsBlack(image.PixelAt(hotSpot->x, hotSpot->y))) {
    std::fprintf(stderr, "%s: the hot spot (%d, %d) is not inked\n", name.c_str(), hotSpot->x, hotSpot->y);
    return std::nullopt;
  }
  return Drawn{name, std::to_string(cursor.id) + " " + name.substr(4), std::move(image), *hotSpot};
}

/// Whether any two cursors look the same (each such pair printed).
bool HasLookalikes(const std::vector<Drawn>& drawn) {
  bool found = false;
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    for (std::size_t j = i + 1; j < drawn.size(); ++j) {
      if (!SamePixels(drawn[i].image, drawn[j].image)) continue;
      std::fprintf(stderr, "%s and %s look the same\n", drawn[i].name.c_str(), drawn[j].name.c_str());
      found = true;
    }
  }
  return found;
}

/// Draws every cursor of the table; false, with the problems printed, when any picture is wrong.
bool DrawAll(std::vector<Drawn>& drawn) {
  bool isSound = true;
  for (const ZEL::Cursor::SharedCursor& cursor : ZEL::Cursor::GetSharedCursors()) {
    if (auto one = Draw(cursor))
      drawn.push_back(std::move(*one));
    else
      isSound = false;
  }
  return !HasLookalikes(drawn) && isSound;
}

std::set<fs::path> CursorFilesIn(const fs::path& folder) {
  std::set<fs::path> files;
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(folder, error)) {
    const std::string file = entry.path().filename().string();
    if (file.starts_with("Cur_") && entry.path().extension() == ".png") files.insert(entry.path());
  }
  return files;
}

int Write(const std::vector<Drawn>& drawn, const fs::path& folder) {
  fs::create_directories(folder);
  std::set<fs::path> stale = CursorFilesIn(folder);
  for (const Drawn& cursor : drawn) {
    const fs::path file = folder / (cursor.name + ".png");
    stale.erase(file);
    if (const auto written = kroui::drawbot::WritePNG(cursor.image, file); !written) {
      std::fprintf(stderr, "%s\n", written.Error().c_str());
      return 1;
    }
  }
  for (const fs::path& file : stale) fs::remove(file);
  std::printf("Wrote %zu cursors into %s\n", drawn.size(), folder.string().c_str());
  return 0;
}

int Check(const std::vector<Drawn>& drawn, const fs::path& folder) {
  int problems = 0;
  std::set<fs::path> unexpected = CursorFilesIn(folder);
  for (const Drawn& cursor : drawn) {
    const fs::path file = folder / (cursor.name + ".png");
    unexpected.erase(file);
    const auto committed = kroui::drawbot::ReadPNG(file);
    if (committed && SamePixels(committed.Value(), cursor.image)) continue;
    std::fprintf(stderr, "%s: %s\n", file.string().c_str(),
                 committed ? "differs from what the generator draws" : committed.Error().c_str());
    ++problems;
  }
  for (const fs::path& file : unexpected) {
    std::fprintf(stderr, "%s: no cursor of the table has this name\n", file.string().c_str());
    ++problems;
  }
  if (problems) {
    std::fprintf(stderr, "%d problems; run zel_cursorgen write %s\n", problems, folder.string().c_str());
    return 1;
  }
  std::printf("All %zu cursors in %s are as drawn\n", drawn.size(), folder.string().c_str());
  return 0;
}

/// The platform's own cursors too, for the sheet: they are drawn at run time by kroui.
void AddPlatformCursors(std::vector<Drawn>& drawn) {
  kroui::utility::OS_ResourceManager platform;
  for (std::int32_t id : platform.GetCursorIDs()) {
    const kroui::ui::CursorPtr cursor = platform.GetCursor(id);
    if (cursor)
      drawn.push_back({{}, "kroui " + std::to_string(id), cursor->GetImage(), cursor->GetHotSpot()});
  }
}

/// The image `factor` times larger, each pixel a square.
Image Magnified(const Image& image, int factor) {
  const int width = image.GetWidth() * factor, height = image.GetHeight() * factor;
  std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width) * height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x)
      pixels[static_cast<std::size_t>(y) * width + x] = image.PixelAt(x / factor, y / factor);
  return Image(width, height, std::move(pixels));
}

/// How large the sheet shows cursors: a few (a filtered sheet) large enough to judge single pixels.
struct Layout {
  int magnification = 3;
  std::size_t columns = 10;
  float imageSize = 96.f;
  float cellWidth = 160.f;
  float cellHeight = 122.f;

  static Layout For(std::size_t count) {
    Layout layout;
    if (count <= 12) layout = {8, 6, 256.f, 264.f, 282.f};
    layout.columns = std::min(layout.columns, count);
    return layout;
  }
};

/// Light and dark squares, so that both the black and the white of a cursor show.
void DrawCheckerboard(kroui::drawbot::Drawbot& bot, const Layout& layout, float left, float top) {
  using kroui::drawbot::ColorRGBA;
  const float square = 4.f * static_cast<float>(layout.magnification);
  for (float y = 0.f; y < layout.imageSize; y += square) {
    for (float x = 0.f; x < layout.imageSize; x += square) {
      const bool isDark = static_cast<int>((x + y) / square) % 2 == 1;
      bot.FillRect({left + x, top + y, square, square},
                   isDark ? ColorRGBA{.35f, .35f, .38f, 1.f} : ColorRGBA{.78f, .78f, .8f, 1.f});
    }
  }
}

/// A cell: the cursor magnified over the checkerboard, its hot spot boxed in red, its label below.
void DrawCell(kroui::drawbot::Drawbot& bot, const Layout& layout, const Drawn& cursor, float left,
              float top) {
  const float scale = static_cast<float>(layout.magnification);
  DrawCheckerboard(bot, layout, left, top);
  bot.DrawPixels(Magnified(cursor.image, layout.magnification), {left, top});
  const float hotX = left + static_cast<float>(cursor.hotSpot.x) * scale;
  const float hotY = top + static_cast<float>(cursor.hotSpot.y) * scale;
  bot.StrokeRect({hotX - 1.f, hotY - 1.f, scale + 1.f, scale + 1.f}, {1.f, 0.f, 0.f, 1.f});
  bot.DrawText(cursor.label, {kroui::drawbot::kFont_CleanTimecodeSmall}, {0.1f, 0.1f, 0.1f, 1.f},
               {left, top + layout.imageSize + 2.f, layout.cellWidth - 6.f, 16.f});
}

int DrawSheet(std::vector<Drawn> drawn, const fs::path& file, std::string_view filter) {
  std::erase_if(drawn,
                [filter](const Drawn& cursor) { return cursor.label.find(filter) == std::string::npos; });
  if (drawn.empty()) {
    std::fprintf(stderr, "No cursor's label holds %s\n", std::string(filter).c_str());
    return 1;
  }
  const Layout layout = Layout::For(drawn.size());
  const std::size_t rows = (drawn.size() + layout.columns - 1) / layout.columns;
  kroui::drawbot::RasterSurface surface(
      static_cast<int>(static_cast<float>(layout.columns) * layout.cellWidth) + 16,
      static_cast<int>(static_cast<float>(rows) * layout.cellHeight) + 16);
  surface.Clear({1.f, 1.f, 1.f, 1.f});
  kroui::drawbot::Drawbot& bot = surface.BeginDrawing();
  for (std::size_t i = 0; i < drawn.size(); ++i) {
    const float left = 8.f + static_cast<float>(i % layout.columns) * layout.cellWidth;
    DrawCell(bot, layout, drawn[i], left, 8.f + static_cast<float>(i / layout.columns) * layout.cellHeight);
  }
  surface.EndDrawing();
  if (const auto written = surface.WritePNG(file); !written) {
    std::fprintf(stderr, "%s\n", written.Error().c_str());
    return 1;
  }
  std::printf("Drew %zu cursors into %s\n", drawn.size(), file.string().c_str());
  return 0;
}

} // namespace

int main(int argc, char** argv) {
  const std::string command = argc >= 3 ? argv[1] : "";
  const bool isSheet = command == "sheet" && argc <= 4;
  if (!isSheet && ((command != "write" && command != "check") || argc != 3)) {
    std::fprintf(stderr,
                 "usage: zel_cursorgen write|check <folder>  or  zel_cursorgen sheet <file.png> [text]\n");
    return 2;
  }
  std::vector<Drawn> drawn;
  if (!DrawAll(drawn)) return 1;
  if (command == "write") return Write(drawn, argv[2]);
  if (command == "check") return Check(drawn, argv[2]);
  AddPlatformCursors(drawn);
  return DrawSheet(std::move(drawn), argv[2], argc == 4 ? argv[3] : "");
}
