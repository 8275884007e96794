#pragma once

// Private: the node of an AudioZoomBarControl.

#include <zel/timecontrols/ZoomMessages.h>
#include <zel/views/ControlViewImpl.h>

#include <kromediaui/zoombar/UI_ZoomBar.h>

#include <krocore/messaging/Listener.h>
#include <krocore/messaging/Station.h>

#include <string_view>

namespace ZEL {

/// Holds a vertical kromediaui::UI_ZoomBar over its whole area, keeps its
/// window inside the zoom limits, broadcasts the user's changes and repaints
/// the bar in the new colours after a theme change.
///
///   AudioZoomBarControlImpl --owns--> UI_ZoomBar (fractions from the top: 1 - amplitude)
class AudioZoomBarControlImpl final : public ControlViewImpl, private krocore::messaging::Listener {
public:
  explicit AudioZoomBarControlImpl(unsigned int cookie);

  /// Named in the reports of an AudioZoomBarControl without its node.
  static constexpr std::string_view kReportedName = "AudioZoomBarControl";

  AudioZoomRange GetWindow() const;
  /// Puts one end of the window at `value`, the other staying, within the limits.
  void SetWindowEnd(bool isMinimum, float value);
  float GetZoomInValue() const noexcept { return mZoomIn; }
  void SetZoomInValue(float value);
  float GetZoomOutValue() const noexcept { return mZoomOut; }
  void SetZoomOutValue(float value);
  bool IsZooming() const { return mBar->IsDragging(); }
  const krocore::utility::ImmutableString& GetStationID() const noexcept { return mStation.GetID(); }
  /// Gives the bar the whole area (a container places a new child without laying it out).
  void FitBar();

protected:
  ~AudioZoomBarControlImpl() override;

  void SetBoundsSelf(const kroui::ui::Rect& bounds) override;

private:
  void ListenToMessage(const krocore::messaging::Message& message) override;
  /// `proposed` with its span inside the zoom limits, the edge that did not move from `before` kept.
  kromediaui::ZoomBarRange Limited(const kromediaui::ZoomBarRange& before,
                                   const kromediaui::ZoomBarRange& proposed) const;
  void ApplyLimits();
  void Broadcast(bool isFinal) const;

  krocore::messaging::Station mStation;
  unsigned int mCookie;
  float mZoomIn;
  float mZoomOut;
  krocore::IntrusivePtr<kromediaui::UI_ZoomBar> mBar;
};

} // namespace ZEL
