#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>
#include <zel/views/ViewBase.h>

#include <memory>

namespace ZEL {

class ControlViewImpl;

/// The base of every control (buttons, fields, sliders, time controls,
/// scroll bars). A control's behaviour lives in its node, a ControlViewImpl
/// that the concrete control makes in its own Create and reaches through
/// GetControlViewImpl:
///
///   ScrollBar --owns--> ScrollBarImpl : ControlViewImpl : kroui::ui::UI_Container
///
/// Until then GetControlViewImpl answers null, and every operation here does
/// nothing and answers its default, without a report. A control fires one
/// command (SetCommandID), whose name and shortcut its tooltip can show.
class ZEL_API ControlView : public ViewBase {
public:
  explicit ControlView(const krocore::FlexWeakPtr<Commander>& superCommander);
  ~ControlView() override;

  void SetBounds(const Rect& bounds) override;
  Rect GetBounds() const override;
  std::shared_ptr<ViewBase> GetParent() override;
  krocore::IntrusivePtr<kroui::ui::UI_Node> GetKRONode() override;

protected:
  virtual ControlViewImpl* GetControlViewImpl() const = 0;

public:
  virtual bool IsCreated() const;
  virtual void Enable(bool enable);
  virtual void Disable();
  virtual bool IsEnabled() const;
  virtual Point Position() const;
  virtual Extent Size() const;
  virtual void Invalidate();
  /// Marks part of the control, in its coordinates, for the next paint.
  virtual void InvalidateRect(const Rect& rect);
  virtual void Redraw();
  /// Paints through an offscreen buffer; with `redrawNow`, repaints at once.
  virtual void EnableDoubleBuffering(bool enable, bool redrawNow);
  virtual bool SetFocus();
  virtual void KillFocus();
  /// Shown after 200 ms with a skin of generation 7 or later, 400 ms before.
  virtual void SetToolTipText(const UTF8String& text);
  /// The tooltip is the name of the control's command.
  virtual void SetToolTipTextUsingCommandID();
  /// `text` followed by the shortcut now bound to the control's command, as
  /// the shortcut manager presents it ("Razor (C)"); `text` alone without one.
  virtual void SetToolTipTextWithShortcut(const UTF8String& text);
  virtual void SetCommandID(const int& commandID);
  /// 0 when none was set.
  virtual int GetCommandID() const;

protected:
  /// Puts the control's node into the parent view's container, replacing
  /// the node it had there; concrete controls call it from their Create.
  /// False (nothing changed) when the parent has no node that holds views or
  /// the control is not held by a std::shared_ptr.
  bool AttachImpl(ControlViewImpl& impl, const std::weak_ptr<ViewBase>& parent, const Rect& bounds);
};

} // namespace ZEL
