#include <zel/views/DC.h>

#include <zel/appearance/ColorManager.h>

#include <kroui/drawbot/Drawbot.h>
#include <kroui/drawbot/FontTable.h>
#include <kroui/drawbot/Image.h>
#include <kroui/drawbot/RasterSurface.h>

#include <cmath>
#include <vector>

namespace ZEL {

using kroui::drawbot::PointF;
using kroui::drawbot::RectF;

namespace {

struct Pen {
  kroui::drawbot::FontKey font{krocore::utility::ImmutableString(kroui::drawbot::kFont_Default)};
  kroui::drawbot::ColorRGBA textColor{0.f, 0.f, 0.f, 1.f};
  float lineWidth = 1.f;
};

PointF ToPointF(DC::Point p) { return {static_cast<float>(p.x), static_cast<float>(p.y)}; }

RectF ToRectF(const DC::Rect& r) {
  return {static_cast<float>(r.left), static_cast<float>(r.top), static_cast<float>(r.Width()),
          static_cast<float>(r.Height())};
}

std::vector<PointF> ToPointsF(std::span<const DC::Point> points) {
  std::vector<PointF> converted;
  converted.reserve(points.size());
  for (const DC::Point& p : points) converted.push_back(ToPointF(p));
  return converted;
}

DC::ColorRGBA Lookup(const DC::ColorKey& key) { return ColorManager::GetColorRGBA(key); }

} // namespace

struct DCImpl {
  kroui::drawbot::Drawbot* drawbot = nullptr;
  /// Set for an offscreen DC, whose drawing pass stays open while it lives.
  std::unique_ptr<kroui::drawbot::RasterSurface> surface;
  Pen pen;
  std::vector<Pen> saved;
};

DC::DC() noexcept = default;

DC::DC(kroui::drawbot::Drawbot& drawbot) : mImpl(std::make_unique<DCImpl>()) { mImpl->drawbot = &drawbot; }

DC::DC(std::unique_ptr<DCImpl> impl) noexcept : mImpl(std::move(impl)) {}

DC DC::MakeOffscreen(int width, int height) {
  auto impl = std::make_unique<DCImpl>();
  impl->surface = std::make_unique<kroui::drawbot::RasterSurface>(width, height);
  impl->drawbot = &impl->surface->BeginDrawing();
  return DC(std::move(impl));
}

DC::DC(DC&& other) noexcept = default;

DC& DC::operator=(DC&& other) noexcept {
  if (this != &other) {
    RestoreAll();
    mImpl = std::move(other.mImpl);
  }
  return *this;
}

DC::~DC() { RestoreAll(); }

void DC::RestoreAll() {
  if (!mImpl) return;
  while (RestoreState()) {
  }
  if (mImpl->surface) mImpl->surface->EndDrawing();
}

bool DC::IsValid() const noexcept { return mImpl != nullptr; }

kroui::drawbot::Drawbot* DC::GetDrawbot() const noexcept { return mImpl ? mImpl->drawbot : nullptr; }

// States.

void DC::SaveState() {
  if (!mImpl) return;
  mImpl->drawbot->Save();
  mImpl->saved.push_back(mImpl->pen);
}

bool DC::RestoreState() {
  if (!mImpl || mImpl->saved.empty()) return false;
  mImpl->drawbot->Restore();
  mImpl->pen = std::move(mImpl->saved.back());
  mImpl->saved.pop_back();
  return true;
}

int DC::GetStateDepth() const noexcept { return mImpl ? static_cast<int>(mImpl->saved.size()) : 0; }

// Transform and clip.

void DC::Translate(int dx, int dy) {
  if (mImpl) mImpl->drawbot->Translate(static_cast<float>(dx), static_cast<float>(dy));
}

void DC::ClipRect(const Rect& rect) {
  if (mImpl) mImpl->drawbot->ClipRect(ToRectF(rect));
}

void DC::SetClipPolygon(std::span<const Point> polygon) {
  if (!mImpl) return;
  const std::vector<PointF> points = ToPointsF(polygon);
  mImpl->drawbot->ClipPolygon(points);
}

DC::Rect DC::GetClipBox() const {
  if (!mImpl) return {};
  const RectF clip = mImpl->drawbot->GetClipBounds();
  // Whole pixels that the clip touches.
  const int left = static_cast<int>(std::floor(clip.x));
  const int top = static_cast<int>(std::floor(clip.y));
  return {left, top, static_cast<int>(std::ceil(clip.x + clip.width)),
          static_cast<int>(std::ceil(clip.y + clip.height))};
}

// The pen.

void DC::SetLineWidth(float width) {
  if (mImpl) mImpl->pen.lineWidth = width;
}

float DC::GetLineWidth() const noexcept { return mImpl ? mImpl->pen.lineWidth : 1.f; }

void DC::SetFont(const kroui::drawbot::FontKey& font) {
  if (mImpl) mImpl->pen.font = font;
}

const kroui::drawbot::FontKey& DC::GetFont() const noexcept {
  static const Pen kDefaultPen;
  return mImpl ? mImpl->pen.font : kDefaultPen.font;
}

void DC::SetTextColor(const ColorRGBA& color) {
  if (mImpl) mImpl->pen.textColor = color;
}

void DC::SetTextColor(const ColorKey& key) {
  if (mImpl) mImpl->pen.textColor = Lookup(key);
}

DC::ColorRGBA DC::GetTextColor() const noexcept { return mImpl ? mImpl->pen.textColor : Pen().textColor; }

// Lines and shapes.

void DC::DrawLine(Point from, Point to, const ColorRGBA& color) {
  if (mImpl) mImpl->drawbot->DrawLine(ToPointF(from), ToPointF(to), color, mImpl->pen.lineWidth);
}

void DC::DrawLine(Point from, Point to, const ColorKey& key) {
  if (mImpl) DrawLine(from, to, Lookup(key));
}

void DC::DrawPolyline(std::span<const Point> points, const ColorRGBA& color) {
  if (!mImpl) return;
  const std::vector<PointF> converted = ToPointsF(points);
  mImpl->drawbot->DrawPolyline(converted, color, mImpl->pen.lineWidth);
}

void DC::FrameRect(const Rect& rect, const ColorRGBA& color) {
  if (mImpl) mImpl->drawbot->StrokeRect(ToRectF(rect), color, mImpl->pen.lineWidth);
}

void DC::FrameRect(const Rect& rect, const ColorKey& key) {
  if (mImpl) FrameRect(rect, Lookup(key));
}

void DC::FillRect(const Rect& rect, const ColorRGBA& color) {
  if (mImpl) mImpl->drawbot->FillRect(ToRectF(rect), color);
}

void DC::FillRect(const Rect& rect, const ColorKey& key) {
  if (mImpl) FillRect(rect, Lookup(key));
}

void DC::FillPolygon(std::span<const Point> polygon, const ColorRGBA& color) {
  if (!mImpl) return;
  const std::vector<PointF> points = ToPointsF(polygon);
  mImpl->drawbot->FillPolygon(points, color);
}

void DC::FillPolygon(std::span<const Point> polygon, const ColorKey& key) {
  if (mImpl) FillPolygon(polygon, Lookup(key));
}

// Pixels.

bool DC::IsImageValid(const kroui::drawbot::Image& image) noexcept { return image.IsValid(); }

void DC::DrawImage(const kroui::drawbot::Image& image, Point origin, float opacity) {
  DrawImage(image, Rect::FromOriginAndExtent(origin, {image.GetWidth(), image.GetHeight()}), opacity);
}

void DC::DrawImage(const kroui::drawbot::Image& image, const Rect& destination, float opacity) {
  if (mImpl && IsImageValid(image)) mImpl->drawbot->DrawImage(image, ToRectF(destination), opacity);
}

void DC::DrawPixels(const kroui::drawbot::Image& pixels, Point origin) {
  if (mImpl && IsImageValid(pixels)) mImpl->drawbot->DrawPixels(pixels, ToPointF(origin));
}

// Text.

void DC::DrawText(std::string_view text, const Rect& box, kroui::drawbot::HorizontalAlignment horizontal,
                  kroui::drawbot::VerticalAlignment vertical) {
  if (!mImpl || text.empty()) return;
  mImpl->drawbot->DrawText(text, mImpl->pen.font, mImpl->pen.textColor, ToRectF(box), horizontal, vertical);
}

kroui::drawbot::TextMetrics DC::MeasureText(std::string_view text) {
  return mImpl ? mImpl->drawbot->MeasureText(text, mImpl->pen.font) : kroui::drawbot::TextMetrics{};
}

DC::Extent DC::GetTextExtent(std::string_view text) {
  const kroui::drawbot::TextMetrics metrics = MeasureText(text);
  return {static_cast<int>(std::ceil(metrics.width)), static_cast<int>(std::ceil(metrics.Height()))};
}

// Pixels of its own.

kroui::drawbot::Image DC::GetPixels() const {
  return mImpl && mImpl->surface ? mImpl->surface->Snapshot() : kroui::drawbot::Image();
}

void DC::Clear(const ColorRGBA& color) {
  if (!mImpl || !mImpl->surface) return;
  RestoreAll();
  mImpl->surface->Clear(color);
  mImpl->drawbot = &mImpl->surface->BeginDrawing();
  mImpl->pen = Pen();
}

} // namespace ZEL
