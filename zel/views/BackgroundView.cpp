#include <zel/views/BackgroundView.h>

#include <optional>

namespace ZEL {

/// The colour in force. A colour ID needs no ear on the theme: a theme change
/// repaints every window (ColorManager), and the ID is looked up at each paint.
struct BackgroundViewColor {
  std::optional<BackgroundView::Color> fixed;
  std::optional<BackgroundView::ColorID> id;
};

namespace {

kroui::drawbot::ColorRGBA ToRGBA(const BackgroundView::Color& c) {
  return {c.red / 255.f, c.green / 255.f, c.blue / 255.f, 1.f};
}

} // namespace

BackgroundView::BackgroundView(const krocore::FlexWeakPtr<Commander>& superCommander)
    : SubView(superCommander), mColor(std::make_unique<BackgroundViewColor>()) {}

BackgroundView::~BackgroundView() = default;

void BackgroundView::SetBackgroundColor(const Color& color) {
  mColor->fixed = color;
  mColor->id.reset();
  Repaint();
}

bool BackgroundView::GetBackgroundColor(Color& color) const {
  if (!mColor->fixed) return false;
  color = *mColor->fixed;
  return true;
}

void BackgroundView::SetBackgroundColorID(const ColorID& colorID) {
  mColor->id = colorID;
  mColor->fixed.reset();
  Repaint();
}

bool BackgroundView::GetBackgroundColorID(ColorID& colorID) const {
  if (!mColor->id) return false;
  colorID = *mColor->id;
  return true;
}

void BackgroundView::PaintSelf(DC& dc) {
  if (mColor->id) {
    dc.FillRect(ClientRect(), *mColor->id);
  } else if (mColor->fixed) {
    dc.FillRect(ClientRect(), ToRGBA(*mColor->fixed));
  }
}

void BackgroundView::Repaint() {
  // The colour may be set before the view has a node; the first paint will show it.
  if (IsCreated()) Invalidate();
}

} // namespace ZEL
