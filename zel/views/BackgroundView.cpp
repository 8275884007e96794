#include <zel/views/BackgroundView.h>

#include <zel/appearance/ThemeChangedMessage.h>

#include <krocore/messaging/Listener.h>
#include <krocore/messaging/Message.h>

#include <optional>

namespace ZEL {

/// The colour in force, and the ear on the theme station while it is an ID.
struct BackgroundViewColor final : krocore::messaging::Listener {
  explicit BackgroundViewColor(BackgroundView& owner) : view(owner) {}

  void ListenToMessage(const krocore::messaging::Message& message) override {
    if (message.Is<ThemeChangedMessage>()) view.Repaint();
  }

  BackgroundView& view; // owns this, so outlives it
  std::optional<BackgroundView::Color> fixed;
  std::optional<BackgroundView::ColorID> id;
};

namespace {

kroui::drawbot::ColorRGBA ToRGBA(const BackgroundView::Color& c) {
  return {c.red / 255.f, c.green / 255.f, c.blue / 255.f, 1.f};
}

} // namespace

BackgroundView::BackgroundView(const krocore::FlexWeakPtr<Commander>& superCommander)
    : SubView(superCommander), mColor(std::make_unique<BackgroundViewColor>(*this)) {}

BackgroundView::~BackgroundView() = default;

void BackgroundView::SetBackgroundColor(const Color& color) {
  mColor->fixed = color;
  mColor->id.reset();
  // A fixed colour does not care about themes.
  mColor->UnsubscribeFrom(kStation_ThemeChanged);
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
  mColor->SubscribeTo(kStation_ThemeChanged);
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
