#include <zel/views/OverlayViewImpl.h>

#include <kroui/base/OS_Event.h>
#include <kroui/drawbot/Drawbot.h>
#include <kroui/drawbot/Image.h>
#include <kroui/ui/UI_Window.h>

#include <cmath>
#include <cstdint>

namespace ZEL {
namespace {

std::uint32_t Channel(float value) { return static_cast<std::uint32_t>(std::lround(value * 255.f)) & 0xFF; }

// Pixels painted exactly in the key colour (opaque) become transparent.
void KeyOut(kroui::drawbot::Image& pixels, const kroui::drawbot::ColorRGBA& key) {
  const std::uint32_t keyed = 0xFF000000u | Channel(key.red) << 16 | Channel(key.green) << 8 | Channel(key.blue);
  std::uint32_t* pixel = pixels.MutablePixels();
  const std::size_t count = static_cast<std::size_t>(pixels.GetWidth()) * pixels.GetHeight();
  for (std::size_t i = 0; i < count; ++i) {
    if (pixel[i] == keyed) pixel[i] = 0;
  }
}

} // namespace

// The node.

OverlayNode::~OverlayNode() = default;

void OverlayNode::SetColorKey(const kroui::drawbot::ColorRGBA& key) {
  mColorKey = key;
  Invalidate();
}

void OverlayNode::PaintSelf(kroui::drawbot::Drawbot& drawbot) {
  const std::shared_ptr<OverlayView> view = mView.lock();
  if (!view) return;
  if (!mColorKey) {
    DC dc(drawbot);
    view->PaintSelf(dc);
    return;
  }
  // Keying needs the overlay's own pixels, apart from what lies under them.
  const kroui::ui::Extent extent = GetBounds().Extent();
  DC offscreen = DC::MakeOffscreen(extent.width, extent.height);
  view->PaintSelf(offscreen);
  kroui::drawbot::Image pixels = offscreen.GetPixels();
  KeyOut(pixels, *mColorKey);
  drawbot.DrawPixels(pixels, {0.f, 0.f});
}

// The layer.

OverlayViewImpl::OverlayViewImpl(std::weak_ptr<OverlayView> view, std::weak_ptr<ViewBase> parent,
                                 const ViewBase::Rect& bounds, kroui::ui::UI_Window& owner)
    : mParent(std::move(parent)), mBounds(bounds), mOwner(owner.GetNativeWindow()) {
  kroui::backend::WindowDescription description;
  description.bounds = ScreenRect(bounds);
  description.style = kroui::backend::WindowStyle(kroui::backend::kWindowStyle_Popup) |
                      kroui::backend::kWindowStyle_Layered | kroui::backend::kWindowStyle_NoActivate;
  description.owner = mOwner;
  mLayer = std::make_unique<kroui::ui::UI_Window>(description);
  mLayer->SetBackgroundColor({0.f, 0.f, 0.f, 0.f});
  mLayer->SetEventHook([this](const kroui::ui::OS_Event& event) { return PassThrough(event); });
  mNode = krocore::MakeIntrusive<OverlayNode>(std::move(view));
  mNode->SetLayoutBinding({true, true, true, true, false, false}); // fills the layer as it resizes
  mLayer->GetRoot().InsertChild(mNode, mLayer->GetRoot().GetLocalBounds());
  mLayer->Show(false);
}

OverlayViewImpl::~OverlayViewImpl() {
  mNode->RemoveFromParent();
  mLayer.reset();
}

ViewBase::Rect OverlayViewImpl::ScreenRect(const ViewBase::Rect& bounds) const {
  const std::shared_ptr<ViewBase> parent = mParent.lock();
  const auto parentNode = parent ? parent->GetKRONode() : nullptr;
  const ViewBase::Point origin = parentNode ? parentNode->LocalToScreen(bounds.Origin()) : bounds.Origin();
  return ViewBase::Rect::FromOriginAndExtent(origin, bounds.Extent());
}

void OverlayViewImpl::SetBounds(const ViewBase::Rect& bounds) {
  mBounds = bounds;
  mLayer->SetBounds(ScreenRect(bounds));
}

bool OverlayViewImpl::PassThrough(const kroui::ui::OS_Event& event) const {
  if (!event.IsPointer() && !event.IsDrag()) return false;
  // Looked up each time: the window may have gone before the overlay.
  kroui::ui::UI_Window* owner = kroui::ui::UI_Window::FromNativeWindow(mOwner);
  if (!owner) return true;
  kroui::ui::OS_Event below = event;
  below.window = mOwner;
  below.position = owner->ScreenToWindow(event.screenPosition);
  owner->DispatchEvent(below);
  return true;
}

} // namespace ZEL
