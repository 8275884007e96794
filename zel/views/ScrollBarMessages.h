#pragma once

// What a scroll bar broadcasts on its station (ScrollBar::GetStationID).

#include <krocore/messaging/Message.h>

namespace ZEL {

/// The thumb is being dragged: the position it gives now.
class ScrollBarPositionChangingMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(ScrollBarPositionChangingMessage, "zel.ScrollBarPositionChangingMessage")
  ScrollBarPositionChangingMessage(unsigned int cookie, int position) : mCookie(cookie), mPosition(position) {}
  unsigned int GetCookie() const noexcept { return mCookie; }
  int GetPosition() const noexcept { return mPosition; }

private:
  unsigned int mCookie;
  int mPosition;
};

/// The position changed and the change is complete: an arrow, a page, the
/// wheel, a key, the end of a thumb drag, or SetScrollBarPosition with notify.
class ScrollBarPositionChangedMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(ScrollBarPositionChangedMessage, "zel.ScrollBarPositionChangedMessage")
  ScrollBarPositionChangedMessage(unsigned int cookie, int position) : mCookie(cookie), mPosition(position) {}
  unsigned int GetCookie() const noexcept { return mCookie; }
  int GetPosition() const noexcept { return mPosition; }

private:
  unsigned int mCookie;
  int mPosition;
};

} // namespace ZEL
