#pragma once

#include <kroui/Export.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

namespace kroui::ui {

/// Animates float properties on the event loop clock: each animation moves a
/// value from `from` to `to` over a duration, through an easing curve, and
/// hands every step to an apply function (which sets a bound, an opacity,
/// and invalidates). One frame timer drives all of an animator's animations,
/// and stops when none is left. Animations are named by an identifier; a new
/// one under a running identifier replaces it. UI thread only.
///
///   animator.Animate(kOpacity, 0.f, 1.f, 200, [node](float v) { node->SetOpacity(v); });
class KROUI_API UI_Animator {
public:
  using Easing = float (*)(float progress);
  using ApplyFunction = std::function<void(float value)>;
  /// Called once at the end: true when the animation reached its end value, false when stopped or replaced.
  using DoneFunction = std::function<void(bool finished)>;

  static constexpr int kFrameIntervalMs = 16;

  UI_Animator() = default;
  ~UI_Animator();
  UI_Animator(const UI_Animator&) = delete;
  UI_Animator& operator=(const UI_Animator&) = delete;

  /// Applies `from` at once, then steps every frame; a duration of 0 or less applies `to` at once and ends.
  void Animate(unsigned id, float from, float to, int durationMs, ApplyFunction apply, Easing easing = &Linear,
               DoneFunction done = {});
  /// Ends an animation where it is (or, with `jumpToEnd`, at its end value); false when none runs under `id`.
  bool Stop(unsigned id, bool jumpToEnd = false);
  void StopAll();
  bool IsAnimating(unsigned id) const;
  std::size_t GetAnimationCount() const noexcept { return mAnimations.size(); }

  static float Linear(float progress);
  static float EaseIn(float progress);
  static float EaseOut(float progress);
  static float EaseInOut(float progress);

private:
  struct Animation {
    unsigned id;
    std::uint64_t sequence;
    float from;
    float to;
    std::int64_t start;
    int duration;
    Easing easing;
    ApplyFunction apply;
    DoneFunction done;
  };

  void Step(std::int64_t now);
  void StepOne(std::uint64_t sequence, std::int64_t now);
  void Finish(std::vector<Animation>::iterator animation, bool finished, float value);
  void UpdateTimer();
  std::vector<Animation>::iterator FindSequence(std::uint64_t sequence);

  std::vector<Animation> mAnimations;
  std::uint64_t mNextSequence = 1;
};

} // namespace kroui::ui
