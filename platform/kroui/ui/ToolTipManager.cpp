#include <kroui/ui/ToolTipManager.h>

#include <kroui/backend/Backend.h>
#include <kroui/drawbot/Drawbot.h>
#include <kroui/drawbot/RasterSurface.h>
#include <kroui/ui/UI_Window.h>

#include <algorithm>
#include <cmath>

namespace kroui::ui {
namespace {

constexpr int kPadding = 4;
const drawbot::ColorRGBA kToolTipBackground{1.f, 1.f, 0.88f, 1.f};
const drawbot::ColorRGBA kToolTipBorder{0.4f, 0.4f, 0.4f, 1.f};
const drawbot::ColorRGBA kToolTipTextColor{0.f, 0.f, 0.f, 1.f};

drawbot::FontKey ToolTipFont() { return {krocore::utility::ImmutableString("fonts.kroui.ToolTip")}; }

// The node that paints a tooltip: a border and the text, in the padding.
class ToolTipNode final : public UI_Node {
public:
  explicit ToolTipNode(std::string text) : mText(std::move(text)) {}

protected:
  void PaintSelf(drawbot::Drawbot& drawbot) override {
    const Rect bounds = GetLocalBounds();
    const drawbot::RectF box{0.f, 0.f, static_cast<float>(bounds.Width()), static_cast<float>(bounds.Height())};
    drawbot.FillRect(box, kToolTipBackground);
    drawbot.StrokeRect(box, kToolTipBorder);
    const drawbot::RectF textBox{kPadding, 0.f, box.width - 2 * kPadding, box.height};
    drawbot.DrawText(mText, ToolTipFont(), kToolTipTextColor, textBox);
  }

private:
  std::string mText;
};

Extent MeasureToolTip(const std::string& text) {
  drawbot::RasterSurface scratch(1, 1);
  const drawbot::TextMetrics metrics = scratch.BeginDrawing().MeasureText(text, ToolTipFont());
  scratch.EndDrawing();
  return {static_cast<int>(std::ceil(metrics.width)) + 2 * kPadding,
          static_cast<int>(std::ceil(metrics.Height())) + 2 * kPadding};
}

// Keeps the tooltip on the monitor that holds the point (the first one when none does).
Point PlaceOnMonitor(Point at, Extent extent) {
  const std::vector<backend::MonitorInfo> monitors = backend::GetBackend().GetMonitors();
  if (monitors.empty()) return at;
  const auto holder = std::find_if(monitors.begin(), monitors.end(),
                                   [at](const backend::MonitorInfo& monitor) { return monitor.bounds.Contains(at); });
  const Rect area = (holder != monitors.end() ? *holder : monitors.front()).workArea;
  return {std::clamp(at.x, area.left, std::max(area.left, area.right - extent.width)),
          std::clamp(at.y, area.top, std::max(area.top, area.bottom - extent.height))};
}

} // namespace

ToolTipManager& ToolTipManager::Instance() {
  static ToolTipManager sManager;
  return sManager;
}

ToolTipManager::ToolTipManager() = default;
ToolTipManager::~ToolTipManager() = default;

void ToolTipManager::SetInitialDelay(int delayMs) { mInitialDelay = std::max(0, delayMs); }

void ToolTipManager::Show(const std::string& text, Point screenPoint, const UI_Window* owner) {
  Hide();
  const Extent extent = MeasureToolTip(text);
  backend::WindowDescription description;
  description.bounds = Rect::FromOriginAndExtent(PlaceOnMonitor(screenPoint, extent), extent);
  description.style = backend::kWindowStyle_Popup | backend::kWindowStyle_Tool | backend::kWindowStyle_Topmost |
                      backend::kWindowStyle_NoActivate;
  auto window = std::make_unique<UI_Window>(description);
  if (!window->IsCreated()) return;
  window->GetRoot().InsertChild(krocore::MakeIntrusive<ToolTipNode>(text), window->GetRoot().GetLocalBounds());
  window->Show(false);
  mWindow = std::move(window);
  mText = text;
  mOwner = owner;
}

void ToolTipManager::Hide() {
  // Reset the fields first: destroying the window must not find a tooltip to hide.
  std::unique_ptr<UI_Window> window = std::move(mWindow);
  mText.clear();
  mOwner = nullptr;
  window.reset();
}

bool ToolTipManager::IsShown() const noexcept { return mWindow != nullptr; }

void ToolTipManager::Reset() {
  Hide();
  mInitialDelay = kDefaultInitialDelay;
}

} // namespace kroui::ui
