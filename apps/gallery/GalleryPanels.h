#pragma once
// The gallery's panels: each shows one family of what the framework offers,
// drawn only through ZEL::DC, in colours asked of the colour registry.

#include <zel/views/SubView.h>

#include <kromediaui/zoombar/UI_ZoomBar.h>

#include <memory>
#include <string>
#include <vector>

namespace ZEL {
class ControlView;
} // namespace ZEL

namespace Gallery {

/// A panel with a caption bar; subclasses paint the content below it.
class Panel : public ZEL::SubView {
public:
  Panel(std::string caption, const ZEL::CommanderWeakPtr& superCommander);

protected:
  static constexpr int kCaptionHeight = 24;
  void PaintSelf(ZEL::DC& dc) override;
  virtual void PaintContent(ZEL::DC& dc, const Rect& area) = 0;

private:
  std::string mCaption;
};

/// One time in every display the media time library knows.
class TimecodePanel final : public Panel {
public:
  using Panel::Panel;

private:
  void PaintContent(ZEL::DC& dc, const Rect& area) override;
};

/// The registry's colours that a panel is built from.
class SwatchPanel final : public Panel {
public:
  using Panel::Panel;

private:
  void PaintContent(ZEL::DC& dc, const Rect& area) override;
};

/// A sample of the framework's cursors, with their hot spots marked.
class CursorPanel final : public Panel {
public:
  using Panel::Panel;

private:
  void PaintContent(ZEL::DC& dc, const Rect& area) override;
};

/// Shortcuts of the application context, as menus show them.
class ShortcutPanel final : public Panel {
public:
  using Panel::Panel;

private:
  void PaintContent(ZEL::DC& dc, const Rect& area) override;
};

/// The zoom pieces: a zoom bar as a timeline shows it, one minimised to a
/// strip, the zoom buttons, the zoom slider and the audio amplitude bar.
class ZoomPanel final : public Panel {
public:
  using Panel::Panel;
  ~ZoomPanel() override;

  /// Places the pieces; after Create.
  void AddPieces();

private:
  void PaintContent(ZEL::DC& dc, const Rect& area) override;
  krocore::IntrusivePtr<kromediaui::UI_ZoomBar> AddBar(const Rect& bounds, double start, double end);

  std::vector<krocore::IntrusivePtr<kromediaui::UI_ZoomBar>> mBars;
  std::vector<std::shared_ptr<ZEL::ControlView>> mControls;
};

} // namespace Gallery
