#pragma once

#include "../views/ViewTestSupport.h"

#include <zel/timecontrols/ZoomMessages.h>

#include <krocore/messaging/Listener.h>

#include <string>
#include <utility>
#include <vector>

namespace ZELTest {

/// Hears a zoom control's station: "changing 3/8", "changed 3/8",
/// "audio changed 0.00-0.70", each with its cookie checked against `cookie`.
class ZoomListener : public krocore::messaging::Listener {
public:
  explicit ZoomListener(unsigned int expectedCookie) : mCookie(expectedCookie) {}

  void ListenToMessage(const krocore::messaging::Message& message) override {
    if (const auto* m = message.As<ZEL::ZoomPositionChangingMessage>()) Hear("changing", m->GetValue(), m->GetCookie());
    if (const auto* m = message.As<ZEL::ZoomPositionChangedMessage>()) Hear("changed", m->GetValue(), m->GetCookie());
    if (const auto* m = message.As<ZEL::AudioZoomChangingMessage>()) Hear("audio changing", m->GetValue(), m->GetCookie());
    if (const auto* m = message.As<ZEL::AudioZoomChangedMessage>()) Hear("audio changed", m->GetValue(), m->GetCookie());
  }
  std::vector<std::string> Take() { return std::exchange(mHeard, {}); }

private:
  void Hear(const char* what, const ZEL::ZoomPosition& position, unsigned int cookie) {
    Add(std::string(what) + " " + std::to_string(position.position) + "/" + std::to_string(position.maximum), cookie);
  }
  void Hear(const char* what, const ZEL::AudioZoomRange& range, unsigned int cookie) {
    char text[32];
    std::snprintf(text, sizeof text, " %.2f-%.2f", range.minimum, range.maximum);
    Add(what + std::string(text), cookie);
  }
  void Add(std::string entry, unsigned int cookie) {
    mHeard.push_back(std::move(entry) + (cookie == mCookie ? "" : " (wrong cookie)"));
  }

  unsigned int mCookie;
  std::vector<std::string> mHeard;
};

/// The view fixture with the pointer moves and presses the zoom tests script.
class ZoomFixture : public ViewFixture<> {
protected:
  void Press() {
    Headless().PressButton();
    Pump();
  }
  void Release() {
    Headless().ReleaseButton();
    Pump();
  }
  /// A click at `x`,`y`, apart in time from the last, so that clicks never pair into double clicks.
  void ClickAt(int x, int y) {
    kroui::ui::EventLoop::Instance().RunFor(kroui::backend::HeadlessBackend::kMultiClickTimeMs + 1);
    MoveTo(x, y);
    Press();
    Release();
  }
};

} // namespace ZELTest
