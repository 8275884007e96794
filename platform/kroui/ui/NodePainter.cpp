#include <kroui/ui/NodePainterImpl.h>

#include <kroui/drawbot/Drawbot.h>
#include <kroui/drawbot/RasterSurface.h>
#include <kroui/ui/UI_NodeExtras.h>

namespace kroui::ui {
namespace {

drawbot::RectF ToRectF(const Rect& r) {
  return {static_cast<float>(r.left), static_cast<float>(r.top), static_cast<float>(r.Width()),
          static_cast<float>(r.Height())};
}

} // namespace

void NodePainter::PaintNode(UI_Node& node, drawbot::Drawbot& drawbot, const Rect& clip, bool atOrigin) {
  if (!node.IsShown() && !atOrigin) return;
  const Rect& bounds = node.GetBounds();
  const bool clips = node.GetClipToSelf();
  if (clips && !bounds.Intersects(clip)) return;
  Rect localClip = clip.Offset(-bounds.left, -bounds.top);
  if (clips) localClip = localClip.Intersection(node.GetLocalBounds());
  drawbot.Save();
  if (!atOrigin) drawbot.Translate(static_cast<float>(bounds.left), static_cast<float>(bounds.top));
  if (clips) drawbot.ClipRect(ToRectF(node.GetLocalBounds()));
  if (node.IsDoubleBuffered() && !node.GetLocalBounds().IsEmpty()) {
    PaintBuffered(node, drawbot);
  } else {
    PaintContents(node, drawbot, localClip);
  }
  drawbot.Restore();
}

void NodePainter::PaintContents(UI_Node& node, drawbot::Drawbot& drawbot, const Rect& localClip) {
  if (const drawbot::ColorRGBAOptional background = node.GetBackgroundColorSelf()) {
    drawbot.FillRect(ToRectF(node.GetLocalBounds()), *background);
  }
  node.PaintSelf(drawbot);
  // By index, holding each child: a paint hook that changes the tree must not pull it from under us.
  for (std::size_t i = 0; i < node.GetChildNodes().size(); ++i) {
    const UI_NodePtr child = node.GetChildNodes()[i];
    PaintNode(*child, drawbot, localClip);
  }
  node.AddendumPaintSelf(drawbot);
}

void NodePainter::PaintBuffered(UI_Node& node, drawbot::Drawbot& drawbot) {
  const Extent extent = node.GetBounds().Extent();
  UI_NodeExtras& extras = node.Extras();
  const bool fits = extras.offscreen && extras.offscreen->GetWidth() == extent.width &&
                    extras.offscreen->GetHeight() == extent.height;
  if (!fits) extras.offscreen = std::make_shared<drawbot::RasterSurface>(extent.width, extent.height);
  drawbot::RasterSurface& offscreen = *extras.offscreen;
  offscreen.Clear(drawbot::ColorRGBA{0.f, 0.f, 0.f, 0.f});
  // The buffer holds the whole node, so that copying it under any clip is right.
  PaintContents(node, offscreen.BeginDrawing(), node.GetLocalBounds());
  offscreen.EndDrawing();
  drawbot.DrawPixels(offscreen.Snapshot(), drawbot::PointF{0.f, 0.f});
}

} // namespace kroui::ui
