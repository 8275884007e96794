#include "GalleryPanels.h"

#include <zel/appearance/Cursor.h>
#include <zel/commands/ShortcutManager.h>
#include <zel/views/DC.h>
#include <zel/views/DCState.h>

#include <kromediatypes/TimeDisplay.h>
#include <kroui/drawbot/FontTable.h>
#include <kroui/utility/ResourceManager.h>

#include <array>
#include <utility>

namespace Gallery {
namespace {

using kroui::drawbot::HorizontalAlignment;
using Rect = ZEL::SubView::Rect;

const ZEL::DC::ColorKey kPanelColor{"colors.kls.kro.ListBox.Background"};
const ZEL::DC::ColorKey kCaptionColor{"colors.kls.TabDock.Active"};
const ZEL::DC::ColorKey kCaptionText{"colors.kls.TabDock.Text.Active"};
const ZEL::DC::ColorKey kText{"colors.kls.text"};
const ZEL::DC::ColorKey kTimecodeText{"colors.kls.LightTimecodeText"};
const ZEL::DC::ColorKey kDivider{"colors.kls.TabDock.Divider"};
const ZEL::DC::ColorKey kFocus{"colors.kls.focus"};

Rect Row(const Rect& area, int index, int height) {
  const int top = area.top + 8 + index * height;
  return {area.left + 10, top, area.right - 10, top + height};
}

} // namespace

Panel::Panel(std::string caption, const ZEL::CommanderWeakPtr& superCommander)
    : SubView(superCommander), mCaption(std::move(caption)) {}

void Panel::PaintSelf(ZEL::DC& dc) {
  const Rect client = ClientRect();
  dc.FillRect(client, kPanelColor);
  dc.FillRect({client.left, client.top, client.right, client.top + kCaptionHeight}, kCaptionColor);
  dc.DrawLine({client.left, client.top + kCaptionHeight}, {client.right - 1, client.top + kCaptionHeight}, kDivider);
  dc.SetTextColor(kCaptionText);
  dc.SetFont({kroui::drawbot::kFont_Default});
  dc.DrawText(mCaption, {client.left + 10, client.top, client.right - 10, client.top + kCaptionHeight});
  ZEL::DCState state(dc);
  const Rect content{client.left, client.top + kCaptionHeight + 1, client.right, client.bottom};
  dc.ClipRect(content);
  PaintContent(dc, content);
}

void TimecodePanel::PaintContent(ZEL::DC& dc, const Rect& area) {
  using namespace kromediatypes;
  // One hour, two minutes, three seconds and a few frames: enough to show every field.
  const TickTime time = TickTime::FromSeconds(3723) + TickTime::FromFrames(12, kFrameRate25);
  const std::array<std::pair<const char*, TimeDisplay>, 6> displays{{
      {"29.97 drop-frame", TimeDisplay::DropFrameTimecode(kFrameRate2997)},
      {"25 fps", TimeDisplay::Timecode(kFrameRate25)},
      {"Feet+frames 35 mm", TimeDisplay::FeetAndFrames35mm(kFrameRate24)},
      {"Frames at 25", TimeDisplay::Frames(kFrameRate25)},
      {"Samples at 48 kHz", TimeDisplay::AudioSamples(kSampleRate48000)},
      {"Milliseconds", TimeDisplay::Milliseconds()},
  }};
  for (int i = 0; i < static_cast<int>(displays.size()); ++i) {
    const Rect row = Row(area, i, 30);
    dc.SetFont({kroui::drawbot::kFont_Default});
    dc.SetTextColor(kText);
    dc.DrawText(displays[i].first, row);
    dc.SetFont({kroui::drawbot::kFont_CleanTimecodeLarge});
    dc.SetTextColor(kTimecodeText);
    dc.DrawText(displays[i].second.Format(time).View(), row, HorizontalAlignment::Right);
  }
}

void SwatchPanel::PaintContent(ZEL::DC& dc, const Rect& area) {
  static const std::array<const char*, 10> kKeys{
      "colors.kls.base",      "colors.kls.text",        "colors.kls.focus",           "colors.kls.highlight",
      "colors.kls.PaneFocusColor", "colors.kls.TabDock.Well", "colors.kls.TabDock.Active", "colors.kls.darker.gray",
      "colors.kls.LightTimecodeText", "colors.kls.MarqueeBorder"};
  dc.SetFont({kroui::drawbot::kFont_Default});
  dc.SetTextColor(kText);
  for (int i = 0; i < static_cast<int>(kKeys.size()); ++i) {
    const Rect row = Row(area, i, 22);
    const ZEL::DC::ColorKey key(kKeys[static_cast<std::size_t>(i)]);
    dc.FillRect({row.left, row.top + 3, row.left + 32, row.bottom - 3}, key);
    dc.FrameRect({row.left, row.top + 3, row.left + 32, row.bottom - 3}, kDivider);
    dc.DrawText(key.View(), {row.left + 42, row.top, row.right, row.bottom});
  }
}

void CursorPanel::PaintContent(ZEL::DC& dc, const Rect& area) {
  static const std::array<int, 12> kCursors{ZEL::Cursor::kAreaSample, ZEL::Cursor::kRazor,    ZEL::Cursor::kRoll,
                                            ZEL::Cursor::kRippleHead, ZEL::Cursor::kSlip,     ZEL::Cursor::kSlide,
                                            ZEL::Cursor::kHand,       ZEL::Cursor::kZoomIn,   ZEL::Cursor::kPen,
                                            ZEL::Cursor::kEyedropper, ZEL::Cursor::kTextEdit, ZEL::Cursor::kMove};
  auto& resources = kroui::utility::GetResourceManager();
  for (int i = 0; i < static_cast<int>(kCursors.size()); ++i) {
    const int x = area.left + 14 + (i % 6) * 56, y = area.top + 14 + (i / 6) * 56;
    dc.FillRect({x - 4, y - 4, x + 36, y + 36}, "colors.kls.lighter.gray");
    const auto cursor = resources.GetCursor(kCursors[static_cast<std::size_t>(i)]);
    if (!cursor || !ZEL::DC::IsImageValid(cursor->GetImage())) continue;
    dc.DrawImage(cursor->GetImage(), ZEL::DC::Point{x, y});
    const auto hot = cursor->GetHotSpot();
    dc.FrameRect({x + hot.x - 2, y + hot.y - 2, x + hot.x + 3, y + hot.y + 3}, kFocus);
  }
}

void ShortcutPanel::PaintContent(ZEL::DC& dc, const Rect& area) {
  auto* manager = ZEL::ShortcutManager::Instance();
  if (!manager) return;
  auto& context = manager->GetGlobalContext();
  dc.SetFont({kroui::drawbot::kFont_Default});
  dc.SetTextColor(kText);
  int index = 0;
  for (const auto& [name, info] : context.GetCommandNameMap()) {
    const Rect row = Row(area, index++, 22);
    dc.DrawText(info.GetUIString(), row);
    dc.DrawText(info.GetMenuShortcut().GetString(), row, HorizontalAlignment::Right);
  }
}

} // namespace Gallery
