#include <kroui/ui/UI_Animator.h>

#include <kroui/ui/EventLoop.h>

#include <algorithm>

namespace kroui::ui {
namespace {

constexpr std::uint64_t kFrameTimer = 0;

float Lerp(float from, float to, float t) { return from + (to - from) * t; }

} // namespace

UI_Animator::~UI_Animator() { EventLoop::Instance().GetTimers().CancelOwner(this); }

void UI_Animator::Animate(unsigned id, float from, float to, int durationMs, ApplyFunction apply, Easing easing,
                          DoneFunction done) {
  Stop(id);
  if (durationMs <= 0) {
    if (apply) apply(to);
    if (done) done(true);
    return;
  }
  const std::uint64_t sequence = mNextSequence++;
  mAnimations.push_back({id, sequence, from, to, EventLoop::Instance().Now(), durationMs, easing ? easing : &Linear,
                         std::move(apply), std::move(done)});
  // Applying may call back into the animator: look the animation up again afterwards.
  if (auto added = FindSequence(sequence); added != mAnimations.end() && added->apply) {
    const ApplyFunction first = added->apply;
    first(from);
  }
  UpdateTimer();
}

bool UI_Animator::Stop(unsigned id, bool jumpToEnd) {
  const auto found = std::find_if(mAnimations.begin(), mAnimations.end(),
                                  [id](const Animation& animation) { return animation.id == id; });
  if (found == mAnimations.end()) return false;
  if (jumpToEnd) {
    Finish(found, true, found->to);
  } else {
    Finish(found, false, 0.f);
  }
  UpdateTimer();
  return true;
}

void UI_Animator::StopAll() {
  while (!mAnimations.empty()) Stop(mAnimations.front().id);
}

bool UI_Animator::IsAnimating(unsigned id) const {
  return std::any_of(mAnimations.begin(), mAnimations.end(),
                     [id](const Animation& animation) { return animation.id == id; });
}

void UI_Animator::Step(std::int64_t now) {
  std::vector<std::uint64_t> running;
  for (const Animation& animation : mAnimations) running.push_back(animation.sequence);
  for (const std::uint64_t sequence : running) StepOne(sequence, now);
  UpdateTimer();
}

void UI_Animator::StepOne(std::uint64_t sequence, std::int64_t now) {
  const auto animation = FindSequence(sequence);
  if (animation == mAnimations.end()) return; // stopped by an earlier step's callback
  const float progress =
      std::clamp(static_cast<float>(now - animation->start) / static_cast<float>(animation->duration), 0.f, 1.f);
  if (progress >= 1.f) {
    Finish(animation, true, animation->to);
    return;
  }
  const ApplyFunction apply = animation->apply;
  const float value = Lerp(animation->from, animation->to, animation->easing(progress));
  if (apply) apply(value);
}

void UI_Animator::Finish(std::vector<Animation>::iterator animation, bool finished, float value) {
  const ApplyFunction apply = finished ? animation->apply : ApplyFunction();
  const DoneFunction done = std::move(animation->done);
  mAnimations.erase(animation);
  if (apply) apply(value);
  if (done) done(finished);
}

void UI_Animator::UpdateTimer() {
  utility::TimerQueue& timers = EventLoop::Instance().GetTimers();
  // Asks the queue rather than remembering: a reset of the event loop drops the timer.
  const bool wanted = !mAnimations.empty();
  const bool running = timers.Has(this, kFrameTimer);
  if (wanted && !running) {
    timers.Schedule(this, kFrameTimer, EventLoop::Instance().Now(), kFrameIntervalMs, true,
                    [this] { Step(EventLoop::Instance().Now()); });
  } else if (!wanted && running) {
    timers.Cancel(this, kFrameTimer);
  }
}

std::vector<UI_Animator::Animation>::iterator UI_Animator::FindSequence(std::uint64_t sequence) {
  return std::find_if(mAnimations.begin(), mAnimations.end(),
                      [sequence](const Animation& animation) { return animation.sequence == sequence; });
}

float UI_Animator::Linear(float progress) { return progress; }
float UI_Animator::EaseIn(float progress) { return progress * progress; }
float UI_Animator::EaseOut(float progress) { return 1.f - (1.f - progress) * (1.f - progress); }
float UI_Animator::EaseInOut(float progress) {
  return progress < 0.5f ? 2.f * progress * progress : 1.f - 2.f * (1.f - progress) * (1.f - progress);
}

} // namespace kroui::ui
