#pragma once

// Private: the walk that paints a node tree.

#include <kroui/ui/UI_Node.h>

namespace kroui::ui {

/// Paints nodes with translation and clipping:
///
///   for each node meeting the clip:  Save, Translate to its origin, clip to it,
///     background, PaintSelf, children (bottom first), AddendumPaintSelf, Restore
///
/// A double-buffered node is painted whole into its own surface, which is
/// then copied under the clip.
class NodePainter {
public:
  /// Paints `node`, given `clip` in its parent's coordinates (the window's, for a root).
  /// `atOrigin` places the node's top-left at the drawbot's origin instead of at its bounds.
  static void PaintNode(UI_Node& node, drawbot::Drawbot& drawbot, const Rect& clip, bool atOrigin = false);

private:
  static void PaintContents(UI_Node& node, drawbot::Drawbot& drawbot, const Rect& localClip);
  static void PaintBuffered(UI_Node& node, drawbot::Drawbot& drawbot);
};

} // namespace kroui::ui
