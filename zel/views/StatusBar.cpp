#include <zel/views/StatusBar.h>

#include <krocore/messaging/Station.h>
#include <krocore/threads/MainThread.h>

#include <memory>

namespace ZEL::StatusBar {
namespace {

// Listeners live on the UI thread: from there the message goes out at once,
// from anywhere else it waits in the main-thread queue.
template <typename M>
void Broadcast(M message) {
  if (krocore::threads::CurrentThreadIsMainThread()) {
    krocore::messaging::BroadcastMessageOnMainThread(kStation_StatusBar, message);
  } else {
    krocore::messaging::AsyncBroadcastMessagePtr(kStation_StatusBar, std::make_shared<M>(std::move(message)));
  }
}

} // namespace

void SetText(const UTF8String& text) { Broadcast(StatusBarSetTextMessage(text)); }

void ClearText(const UTF8String& text) { Broadcast(StatusBarClearTextMessage(text)); }

void SetProgress(const UTF8String& label, unsigned int percent) {
  Broadcast(StatusBarSetProgressMessage(label, percent));
}

void ClearProgress() { Broadcast(StatusBarClearProgressMessage()); }

void DocumentClosed() { Broadcast(StatusBarDocumentClosedMessage()); }

} // namespace ZEL::StatusBar
