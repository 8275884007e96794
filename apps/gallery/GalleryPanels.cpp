#include "GalleryPanels.h"

#include <zel/appearance/Cursor.h>
#include <zel/commands/ShortcutManager.h>
#include <zel/views/DC.h>
#include <zel/views/DCState.h>
#include <zel/timecontrols/AudioZoomBarControl.h>
#include <zel/timecontrols/ZoomBarTheme.h>
#include <zel/timecontrols/ZoomControl.h>
#include <zel/timecontrols/ZoomSlider.h>

#include <kromediatypes/TimeDisplay.h>
#include <kroui/drawbot/FontTable.h>
#include <kroui/ui/UI_Container.h>
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

// The zoom panel: labels in a column at the left, the pieces to their right.
namespace {

constexpr int kLabelWidth = 100;
constexpr int kZoomRow = 24;
// The audio bar stands at the right, its label to its left; the rows end before both.
constexpr int kAudioColumn = 110;

Rect ZoomRow(const Rect& area, int index) {
  const int top = area.top + 10 + index * kZoomRow;
  return {area.left + 10, top, area.right - kAudioColumn, top + kZoomRow};
}

int AudioBarLeft(const Rect& area) { return area.right - 20 - ZEL::AudioZoomBarControl::GetDefaultWidth(); }

} // namespace

ZoomPanel::~ZoomPanel() {
  for (const auto& bar : mBars) bar->RemoveFromParent();
}

krocore::IntrusivePtr<kromediaui::UI_ZoomBar> ZoomPanel::AddBar(const Rect& bounds, double start, double end) {
  auto bar = krocore::MakeIntrusive<kromediaui::UI_ZoomBar>();
  bar->SetColors(ZEL::GetZoomBarThemeColors());
  bar->SetValueRange(start, end);
  if (auto* container = dynamic_cast<kroui::ui::UI_Container*>(GetKRONode().Get())) container->InsertChild(bar, bounds);
  mBars.push_back(bar);
  return bar;
}

void ZoomPanel::AddPieces() {
  const Rect client = ClientRect();
  const Rect area{client.left, client.top + kCaptionHeight + 1, client.right, client.bottom};
  const int size = kromediaui::UI_ZoomBar::GetDefaultSize();
  const auto place = [&](int row, int left, int width, int height) {
    const Rect line = ZoomRow(area, row);
    const int top = (line.top + line.bottom - height) / 2;
    return Rect{line.left + kLabelWidth + left, top, line.left + kLabelWidth + left + width, top + height};
  };
  const Rect normal = place(0, 0, ZoomRow(area, 0).Width() - kLabelWidth, size);
  AddBar(normal, 0.3, 0.6);
  AddBar(place(1, 0, normal.Width(), size), 0.55, 0.6)->SetScroomBarToMinimizedMode();

  auto buttons = std::make_shared<ZEL::ZoomControl>(WeakAs<ZEL::ViewBase>());
  buttons->Create(WeakAs<ZEL::ViewBase>(), place(2, 0, 120, 20), 1, true);
  buttons->SetPosition(3, 8);
  auto slider = std::make_shared<ZEL::ZoomSlider>(WeakAs<ZEL::ViewBase>());
  slider->Create(WeakAs<ZEL::ViewBase>(), place(3, 0, 180, 20), 2);
  slider->SetPosition(5, 8);
  auto audio = std::make_shared<ZEL::AudioZoomBarControl>(WeakAs<ZEL::ViewBase>());
  const int audioLeft = AudioBarLeft(area);
  audio->Create(WeakAs<ZEL::ViewBase>(),
                {audioLeft, area.top + 10, audioLeft + ZEL::AudioZoomBarControl::GetDefaultWidth(), area.bottom - 10}, 3);
  audio->SetValueMax(0.6f);
  audio->SetValueMin(0.2f);
  mControls = {buttons, slider, audio};
}

void ZoomPanel::PaintContent(ZEL::DC& dc, const Rect& area) {
  static const std::array<const char*, 4> kLabels{"Zoom bar", "Minimised", "Zoom buttons", "Zoom slider"};
  dc.SetFont({kroui::drawbot::kFont_Default});
  dc.SetTextColor(kText);
  for (int i = 0; i < static_cast<int>(kLabels.size()); ++i) {
    const Rect row = ZoomRow(area, i);
    dc.DrawText(kLabels[static_cast<std::size_t>(i)], {row.left, row.top, row.left + kLabelWidth, row.bottom});
  }
  const Rect first = ZoomRow(area, 0);
  dc.DrawText("Audio", {first.right, first.top, AudioBarLeft(area) - 8, first.bottom}, HorizontalAlignment::Right);
}

} // namespace Gallery
