#include <kroui/utility/CursorCanvas.h>

#include <kroui/drawbot/RasterSurface.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <vector>

namespace kroui::utility {
namespace {

using drawbot::ColorRGBA;
using PointF = CursorCanvas::PointF;

constexpr ColorRGBA kBlack{0.f, 0.f, 0.f, 1.f};
constexpr ColorRGBA kWhite{1.f, 1.f, 1.f, 1.f};
constexpr std::uint32_t kBlackPixel = 0xFF000000u;
constexpr std::uint32_t kWhitePixel = 0xFFFFFFFFu;
// Enough sides that a circle of a cursor's size inks the same pixels as a true one.
constexpr int kCircleSides = 96;
// Shapes are drawn this many times larger and each pixel is inked when the
// middle sample of its square is: odd, so that one sample sits on the pixel's
// centre. Sampling the centre, rather than weighing how much of the pixel a
// shape covers, keeps one-pixel curves unbroken, as a line-drawing algorithm would.
constexpr int kSamples = 9;

PointF Add(PointF a, PointF b) { return {a.x + b.x, a.y + b.y}; }
PointF Scaled(PointF a, float factor) { return {a.x * factor, a.y * factor}; }

PointF Normalized(PointF direction) {
  const float length = std::hypot(direction.x, direction.y);
  return length > 0.f ? Scaled(direction, 1.f / length) : PointF{1.f, 0.f};
}

PointF OnCircle(PointF centre, float radius, float degrees) {
  const float radians = degrees * std::numbers::pi_v<float> / 180.f;
  return {centre.x + radius * std::cos(radians), centre.y + radius * std::sin(radians)};
}

/// The four corners of the band `halfWidth` either side of the segment from `a` to `b`.
std::array<PointF, 4> Band(PointF a, PointF b, float halfWidth) {
  const PointF along = Scaled(a == b ? PointF{1.f, 0.f} : Normalized({b.x - a.x, b.y - a.y}), halfWidth);
  const PointF across{-along.y, along.x};
  return {Add(a, across), Add(b, across), PointF{b.x - across.x, b.y - across.y},
          PointF{a.x - across.x, a.y - across.y}};
}

bool IsInkedPixel(std::uint32_t pixel) { return (pixel >> 24) >= 0x80u; }

// Premultiplied: white ink's red is as high as its alpha, black ink's is zero.
bool IsWhitePixel(std::uint32_t pixel) { return ((pixel >> 16) & 0xFFu) * 2u >= (pixel >> 24); }

/// Which pixels one surface inks (and with white), sampled at their centres.
class Layer {
public:
  static constexpr int kSize = CursorCanvas::kSize;

  bool IsInked(int x, int y) const {
    return x >= 0 && y >= 0 && x < kSize && y < kSize && mInked[Index(x, y)];
  }
  bool IsWhite(int x, int y) const { return mWhite[Index(x, y)]; }
  /// Whether a side of an inked pixel touches one that is not.
  bool IsEdge(int x, int y) const {
    return !IsInked(x - 1, y) || !IsInked(x + 1, y) || !IsInked(x, y - 1) || !IsInked(x, y + 1);
  }
  /// Whether an inked pixel is among the eight around this one.
  bool IsNear(int x, int y) const {
    for (int dy = -1; dy <= 1; ++dy)
      for (int dx = -1; dx <= 1; ++dx)
        if (IsInked(x + dx, y + dy)) return true;
    return false;
  }

  static Layer Sample(const drawbot::Image& image) {
    Layer layer;
    for (int y = 0; y < kSize; ++y) {
      for (int x = 0; x < kSize; ++x) {
        const std::uint32_t pixel = image.PixelAt(x * kSamples + kSamples / 2, y * kSamples + kSamples / 2);
        layer.mInked[Index(x, y)] = IsInkedPixel(pixel);
        layer.mWhite[Index(x, y)] = IsWhitePixel(pixel);
      }
    }
    return layer;
  }

private:
  static std::size_t Index(int x, int y) {
    return static_cast<std::size_t>(y) * kSize + static_cast<std::size_t>(x);
  }

  std::array<bool, kSize * kSize> mInked{};
  std::array<bool, kSize * kSize> mWhite{};
};

/// Ink first, then the hollow shapes under it, then the outline round both.
std::uint32_t FinishedPixel(const Layer& ink, const Layer& hollow, int x, int y) {
  if (ink.IsInked(x, y)) return ink.IsWhite(x, y) ? kWhitePixel : kBlackPixel;
  if (hollow.IsInked(x, y)) return hollow.IsEdge(x, y) ? kBlackPixel : kWhitePixel;
  return ink.IsNear(x, y) || hollow.IsNear(x, y) ? kWhitePixel : 0u;
}

// The hands, drawn around (x, y). Fingers stand a pixel apart: the outline parts them.
void DrawOpenHand(CursorCanvas& c, float x, float y) {
  c.FillRect({x - 4.f, y - 1.f, 9.f, 8.f});
  c.FillRect({x - 4.f, y - 8.f, 1.f, 7.f});
  c.FillRect({x - 1.f, y - 10.f, 1.f, 9.f});
  c.FillRect({x + 2.f, y - 9.f, 1.f, 8.f});
  c.FillRect({x + 5.f, y - 6.f, 0.f, 6.f});
  c.Line({x - 5.f, y + 4.f}, {x - 9.f, y - 1.f}, 3.f);
  c.FillRect({x - 3.f, y + 7.f, 7.f, 2.f});
}

/// Folded fingers: knuckles in a row over the palm, parted by white, and the thumb's crease.
void DrawFist(CursorCanvas& c, float x, float y) {
  c.FillRect({x - 5.f, y - 4.f, 10.f, 11.f});
  c.FillRect({x - 3.f, y + 7.f, 7.f, 2.f});
  for (float parting : {-3.f, 0.f, 3.f})
    c.Line({x + parting, y - 4.f}, {x + parting, y - 2.f}, 1.f, CursorCanvas::Ink::White);
  c.Line({x - 5.f, y + 1.f}, {x + 1.f, y + 1.f}, 1.f, CursorCanvas::Ink::White);
}

/// The finger's tip is (x, y); the palm hangs below it with the folded fingers to the right.
void DrawPointingHand(CursorCanvas& c, float x, float y) {
  c.FillRect({x - 1.f, y, 2.f, 9.f});
  c.FillRect({x - 1.f, y + 8.f, 10.f, 9.f});
  for (float parting : {4.f, 7.f})
    c.Line({x + parting, y + 8.f}, {x + parting, y + 10.f}, 1.f, CursorCanvas::Ink::White);
  c.Line({x - 2.f, y + 13.f}, {x - 5.f, y + 9.f}, 3.f);
  c.FillRect({x, y + 17.f, 6.f, 2.f});
}

} // namespace

struct CursorCanvas::State {
  static constexpr int kSide = kSize * kSamples;

  // Hollow shapes are drawn apart: their edge is found only when all are in.
  drawbot::RasterSurface ink{kSide, kSide};
  drawbot::RasterSurface hollow{kSide, kSide};
  drawbot::Drawbot* inkBot = nullptr;
  drawbot::Drawbot* hollowBot = nullptr;

  State() : inkBot(&Begin(ink)), hollowBot(&Begin(hollow)) {}

  static drawbot::Drawbot& Begin(drawbot::RasterSurface& surface) {
    drawbot::Drawbot& bot = surface.BeginDrawing();
    bot.Scale(kSamples, kSamples);
    // Whole coordinates name pixel centres.
    bot.Translate(0.5f, 0.5f);
    return bot;
  }
};

CursorCanvas::CursorCanvas() : mState(std::make_unique<State>()) {}

CursorCanvas::~CursorCanvas() = default;

void CursorCanvas::FillPolygon(std::span<const PointF> polygon, Ink ink) {
  if (ink == Ink::Hollow) return mState->hollowBot->FillPolygon(polygon, kBlack);
  mState->inkBot->FillPolygon(polygon, ink == Ink::White ? kWhite : kBlack);
}

void CursorCanvas::Line(PointF from, PointF to, float width, Ink ink) {
  // Square ends: the band goes on half the width past each end.
  const PointF along =
      Scaled(from == to ? PointF{1.f, 0.f} : Normalized({to.x - from.x, to.y - from.y}), width / 2.f);
  FillPolygon(Band({from.x - along.x, from.y - along.y}, Add(to, along), width / 2.f), ink);
}

void CursorCanvas::Polyline(std::span<const PointF> points, float width, Ink ink) {
  for (std::size_t i = 1; i < points.size(); ++i) {
    FillPolygon(Band(points[i - 1], points[i], width / 2.f), ink);
    if (i + 1 < points.size()) Disc(points[i], width / 2.f, ink);
  }
}

void CursorCanvas::FillRect(const RectF& rect, Ink ink) {
  const float left = rect.x - 0.5f, top = rect.y - 0.5f;
  const float right = rect.x + rect.width + 0.5f, bottom = rect.y + rect.height + 0.5f;
  const std::array<PointF, 4> corners{PointF{left, top}, PointF{right, top}, PointF{right, bottom},
                                      PointF{left, bottom}};
  FillPolygon(corners, ink);
}

void CursorCanvas::StrokeRect(const RectF& rect, float width, Ink ink) {
  const PointF topLeft{rect.x, rect.y}, topRight{rect.x + rect.width, rect.y};
  const PointF bottomLeft{rect.x, rect.y + rect.height},
      bottomRight{rect.x + rect.width, rect.y + rect.height};
  Line(topLeft, topRight, width, ink);
  Line(topRight, bottomRight, width, ink);
  Line(bottomRight, bottomLeft, width, ink);
  Line(bottomLeft, topLeft, width, ink);
}

void CursorCanvas::Disc(PointF centre, float radius, Ink ink) {
  std::vector<PointF> polygon;
  for (int i = 0; i < kCircleSides; ++i)
    polygon.push_back(OnCircle(centre, radius, 360.f * i / kCircleSides));
  FillPolygon(polygon, ink);
}

void CursorCanvas::Ring(PointF centre, float radius, float width, Ink ink) {
  Arc(centre, radius, 0.f, 360.f, width, ink);
}

void CursorCanvas::Arc(PointF centre, float radius, float fromDegrees, float toDegrees, float width,
                       Ink ink) {
  const float inner = radius - width / 2.f, outer = radius + width / 2.f;
  const int steps =
      std::max(1, static_cast<int>(std::ceil(std::abs(toDegrees - fromDegrees) * kCircleSides / 360.f)));
  for (int i = 0; i < steps; ++i) {
    // Each piece overlaps the next a little, so that no seam is left uninked.
    const float a = fromDegrees + (toDegrees - fromDegrees) * i / steps;
    const float b = fromDegrees + (toDegrees - fromDegrees) * (i + 1.02f) / steps;
    const std::array<PointF, 4> piece{OnCircle(centre, inner, a), OnCircle(centre, outer, a),
                                      OnCircle(centre, outer, b), OnCircle(centre, inner, b)};
    FillPolygon(piece, ink);
  }
}

void CursorCanvas::Arrowhead(PointF tip, PointF direction, float length, Ink ink) {
  const PointF along = Normalized(direction);
  // The point goes to the far edge of the tip pixel, so that the tip pixel is inked.
  const PointF point = Add(tip, Scaled(along, 0.5f / std::max(std::abs(along.x), std::abs(along.y))));
  const PointF base = Add(point, Scaled(along, -length));
  const PointF across = Scaled(PointF{-along.y, along.x}, length);
  const std::array<PointF, 3> head{point, Add(base, across), PointF{base.x - across.x, base.y - across.y}};
  FillPolygon(head, ink);
}

void CursorCanvas::Arrow(PointF from, PointF to, float width, float headLength, bool isDouble, Ink ink) {
  const PointF along = Normalized({to.x - from.x, to.y - from.y});
  const PointF shaftEnd = Add(to, Scaled(along, -headLength / 2.f));
  const PointF shaftStart = isDouble ? Add(from, Scaled(along, headLength / 2.f)) : from;
  Line(shaftStart, shaftEnd, width, ink);
  Arrowhead(to, along, headLength, ink);
  if (isDouble) Arrowhead(from, Scaled(along, -1.f), headLength, ink);
}

void CursorCanvas::ArcArrow(PointF centre, float radius, float fromDegrees, float toDegrees, float width,
                            float headLength, bool isDouble, Ink ink) {
  const float sign = toDegrees >= fromDegrees ? 1.f : -1.f;
  // Leave room for the heads, which point along the circle at each end.
  const float headDegrees = headLength * 0.3f / radius * 180.f / std::numbers::pi_v<float>;
  Arc(centre, radius, isDouble ? fromDegrees + sign * headDegrees : fromDegrees,
      toDegrees - sign * headDegrees, width, ink);
  const auto head = [&](float degrees, float towards) {
    const PointF tip = OnCircle(centre, radius, degrees);
    const float radians = degrees * std::numbers::pi_v<float> / 180.f;
    Arrowhead(tip, Scaled(PointF{-std::sin(radians), std::cos(radians)}, towards), headLength, ink);
  };
  head(toDegrees, sign);
  if (isDouble) head(fromDegrees, -sign);
}

void CursorCanvas::Pointer(PointF tip, float height, Ink ink) {
  // Drawn 17 pixels tall, from half a pixel above the tip pixel's top-left corner.
  static constexpr std::array<PointF, 7> kShape{PointF{0.f, 0.f},    PointF{0.f, 16.5f}, PointF{4.f, 12.5f},
                                                PointF{7.f, 19.f},   PointF{9.5f, 18.f}, PointF{6.5f, 11.5f},
                                                PointF{11.5f, 11.5f}};
  const float scale = height / 17.f;
  const PointF origin{tip.x - 0.5f, tip.y - 1.f};
  std::array<PointF, kShape.size()> shape{};
  for (std::size_t i = 0; i < kShape.size(); ++i) shape[i] = Add(origin, Scaled(kShape[i], scale));
  FillPolygon(shape, ink);
}

void CursorCanvas::Plus(PointF centre, float arm) {
  Line({centre.x - arm, centre.y}, {centre.x + arm, centre.y}, 3.f);
  Line({centre.x, centre.y - arm}, {centre.x, centre.y + arm}, 3.f);
}

void CursorCanvas::Minus(PointF centre, float arm) {
  Line({centre.x - arm, centre.y}, {centre.x + arm, centre.y}, 3.f);
}

void CursorCanvas::NoSign(PointF centre, float radius) {
  Ring(centre, radius, 2.f);
  const float reach = radius * 0.7071f;
  Line({centre.x - reach, centre.y - reach}, {centre.x + reach, centre.y + reach}, 2.f);
}

void CursorCanvas::DrawHand(Hand hand, PointF at) {
  switch (hand) {
  case Hand::Open: return DrawOpenHand(*this, at.x, at.y);
  case Hand::Fist: return DrawFist(*this, at.x, at.y);
  case Hand::Pointing: return DrawPointingHand(*this, at.x, at.y);
  }
}

drawbot::Image CursorCanvas::Finish() {
  mState->ink.EndDrawing();
  mState->hollow.EndDrawing();
  const Layer ink = Layer::Sample(mState->ink.Snapshot()), hollow = Layer::Sample(mState->hollow.Snapshot());
  std::vector<std::uint32_t> pixels;
  pixels.reserve(static_cast<std::size_t>(kSize) * kSize);
  for (int y = 0; y < kSize; ++y)
    for (int x = 0; x < kSize; ++x) pixels.push_back(FinishedPixel(ink, hollow, x, y));
  // Ready for another drawing, from a clean slate.
  mState = std::make_unique<State>();
  return drawbot::Image(kSize, kSize, std::move(pixels));
}

} // namespace kroui::utility
