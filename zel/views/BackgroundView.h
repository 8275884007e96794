#pragma once

#include <zel/Export.h>
#include <zel/views/SubView.h>

#include <kls/ParamColor.h>
#include <krocore/utility/ImmutableString.h>

#include <memory>

namespace ZEL {

struct BackgroundViewColor;

/// A view that fills itself with one colour: a fixed one, which stays as
/// it is, or a colour ID of the colour registry, which follows the theme:
/// after each theme change ("zel.theme") the view repaints in the colour the
/// ID has now. Setting one kind of colour drops the other. The colour may
/// be set before the view is created; it shows from the first paint.
class ZEL_API BackgroundView : public SubView {
public:
  using Color = KLS::ParamColor<unsigned char>;
  using ColorID = krocore::utility::ImmutableString;

  explicit BackgroundView(const krocore::FlexWeakPtr<Commander>& superCommander);
  ~BackgroundView() override;

  void SetBackgroundColor(const Color& color);
  /// False when no fixed colour is set.
  bool GetBackgroundColor(Color& color) const;
  void SetBackgroundColorID(const ColorID& colorID);
  /// False when no colour ID is set.
  bool GetBackgroundColorID(ColorID& colorID) const;

protected:
  // The fill hook of SubView stays reachable beside the getter above.
  using SubView::GetBackgroundColor;
  void PaintSelf(DC& dc) override;

private:
  void Repaint();

  std::unique_ptr<BackgroundViewColor> mColor;
};

} // namespace ZEL
