#pragma once

#include <zel/Export.h>
#include <zel/commands/Commander.h>

#include <krocore/geom/Geometry.h>
#include <krocore/pointers/EnableSharedAs.h>
#include <krocore/pointers/IntrusivePtr.h>
#include <kroui/Forward.h>

#include <memory>

namespace ZEL {

/// What every visible element of the framework is: a handle over one node
/// of the platform UI tree, and a commander, so that the view tree is also
/// the command chain. Views are held by std::shared_ptr; a view refers to
/// its parent weakly and owns exactly one node:
///
///   handle (ViewBase) --owns--> node (kroui::ui::UI_Node)
///      ^                          |
///      +-------- weakly ----------+   the node calls the handle's hooks
///
/// A handle without its node (before Create, or after OverlayView::Destroy):
/// - every operation of a view handle (SubView, PlatformView, OverlayView) or
///   of a concrete control (ScrollBar, ...) reports "<node class> has not been
///   initialized" ("SubViewImpl", "PlatformViewImpl", "OverlayViewImpl", or
///   the control's own class name, "ScrollBar"), naming the operation called,
///   and answers neutrally: false, zero, empty, null; commands do nothing;
/// - nothing is kept for a later Create: the node starts from its defaults;
/// - ControlView's own operations answer their defaults without a report
///   (the concrete control reports for its operations);
/// - the questions whether there is a node (IsCreated, OverlayView's
///   GetLayerWindow), the destructor and the hooks never report.
/// Every handle opens its operations with `detail::HasNode(mImpl)`
/// (zel/views/ViewSupport.h), so the report and its wording are one.
///
/// The virtual operations below keep their order: overriders and the
/// slot table depend on it.
class ZEL_API ViewBase : public Commander, public krocore::utility::EnableSharedAs {
public:
  using Point = krocore::geom::PointT<int>;
  using Rect = krocore::geom::RectT<int>;
  using Extent = krocore::geom::ExtentT<int>;

  explicit ViewBase(const CommanderWeakPtr& superCommander);
  ~ViewBase() override;

  /// In the parent's coordinates.
  virtual void SetBounds(const Rect& bounds) = 0;
  virtual Rect GetBounds() const = 0;
  /// Asks the layout to run again; nothing by default.
  virtual void RequestReflow();
  /// The view's own area: 0,0 to its width and height by default.
  virtual Rect ClientRect() const;
  virtual void Show(bool show);
  virtual void Hide();
  virtual bool IsShown() const;
  virtual std::shared_ptr<ViewBase> GetParent() = 0;
  /// Before the focus moves to `view` by advancing; passed up to the parent
  /// by default, so that an enclosing view can bring it into sight.
  virtual void PrepareForKeyboardFocusFromAdvance(const std::weak_ptr<ViewBase>& view);
  /// The heights a stacked layout asks of its views; 0 by default.
  virtual int GetStackedDimensionHeight() const;
  virtual int GetStackedDimensionHeightMax() const;
  virtual int GetStackedDimensionHeightMin(int width) const;
  /// The view's node; null when it has none.
  virtual krocore::IntrusivePtr<kroui::ui::UI_Node> GetKRONode() = 0;

protected:
  ViewBase(const ViewBase&) = delete;
  ViewBase& operator=(const ViewBase&) = delete;
};

} // namespace ZEL
