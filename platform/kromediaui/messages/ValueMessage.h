#pragma once

#include <krocore/messaging/Message.h>

namespace kromediaui {

/// A message that carries one value and the cookie of the control that sent
/// it, so that a listener of several controls can tell them apart. Each
/// message is an instance named by a tag, whose kTypeID is the identifier the
/// listeners compare:
///
///   struct HotTimecodeValueChangedTag { static constexpr const char* kTypeID = "..."; };
///   using HotTimecodeValueChangedMessage = ValueMessage<HotTimecodeValueChangedTag, TickTime>;
///
///   if (const auto* m = message.As<HotTimecodeValueChangedMessage>()) Seek(m->GetValue());
template <typename Tag, typename Value>
class ValueMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(ValueMessage, Tag::kTypeID)
  explicit ValueMessage(const Value& value, unsigned int cookie = 0) : mValue(value), mCookie(cookie) {}

  const Value& GetValue() const noexcept { return mValue; }
  unsigned int GetCookie() const noexcept { return mCookie; }

private:
  Value mValue;
  unsigned int mCookie;
};

} // namespace kromediaui
