#pragma once

#include <krocore/messaging/Message.h>

#include <algorithm>
#include <cstddef>

namespace kromediaui {

/// A type identifier written where a message type is named: the text of a
/// string literal kept in a template argument.
template <std::size_t N>
struct MessageTypeName {
  // Implicit, so that a literal names the type: ValueMessage<"kromediaui.X", T>.
  constexpr MessageTypeName(const char (&name)[N]) noexcept { std::copy_n(name, N, text); }
  char text[N];
};

/// A message that carries one value and the cookie of the control that sent
/// it, so that a listener of several controls can tell them apart. Each
/// message type is an instance named by its type identifier, which is what
/// listeners compare:
///
///   using HotTimecodeValueChangedMessage =
///       ValueMessage<"kromediaui.HotTimecodeValueChangedMessage", TickTime>;
///
///   if (const auto* m = message.As<HotTimecodeValueChangedMessage>()) Seek(m->GetValue());
template <MessageTypeName kTypeName, typename Value>
class ValueMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(ValueMessage, kTypeName.text)
  explicit ValueMessage(const Value& value, unsigned int cookie = 0) : mValue(value), mCookie(cookie) {}

  const Value& GetValue() const noexcept { return mValue; }
  unsigned int GetCookie() const noexcept { return mCookie; }

private:
  Value mValue;
  unsigned int mCookie;
};

} // namespace kromediaui
