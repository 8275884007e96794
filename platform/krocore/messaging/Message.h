#pragma once

#include <krocore/Export.h>
#include <krocore/utility/ImmutableString.h>

#include <memory>
#include <type_traits>

namespace krocore::messaging {

/// The base of every message broadcast on a station. A message class names
/// its type identifier with KROCORE_MESSAGE_CLASS; a listener compares the
/// identifier with the one it expects and ignores the others:
///
///   class ThemeChangedMessage : public krocore::messaging::Message {
///     KROCORE_MESSAGE_CLASS(ThemeChangedMessage, "zel.ThemeChangedMessage")
///   };
///
///   void ListenToMessage(const Message& message) override {
///     if (message.Is<ThemeChangedMessage>()) Repaint();
///   }
///
/// The identifier is an interned string rather than the address of a static
/// or a std::type_info: libraries hide their symbols, so each library that
/// includes a message class gets its own statics and its own type_info, but
/// all of them intern the same text to the same ImmutableString.
class KROCORE_API Message {
public:
  virtual ~Message();

  virtual utility::ImmutableString GetTypeID() const = 0;

  /// A copy of the message, for handing a message given by reference to a queue.
  virtual std::shared_ptr<const Message> Clone() const = 0;

  template <typename M>
  bool Is() const {
    static_assert(std::is_same_v<typename M::MessageClass, M>,
                  "The class does not declare its own type identifier with KROCORE_MESSAGE_CLASS");
    return GetTypeID() == M::TypeID();
  }

  /// The message as an M when its type identifier is M's, else null.
  template <typename M>
  const M* As() const {
    return Is<M>() ? static_cast<const M*>(this) : nullptr;
  }

protected:
  Message() = default;
  Message(const Message&) = default;
  Message& operator=(const Message&) = default;
};

namespace detail {

template <typename M>
std::shared_ptr<const Message> CloneMessage(const M& message) {
  static_assert(std::is_copy_constructible_v<M>,
                "A message class must be copyable so that a broadcast from another thread can be queued");
  return std::make_shared<M>(message);
}

} // namespace detail
} // namespace krocore::messaging

/// Declares a message class's type identifier (a dotted name, unique in the
/// process: "zel.ThemeChangedMessage"), its static TypeID() and the overrides
/// of Message. Leaves the class body in the public section.
#define KROCORE_MESSAGE_CLASS(ClassName, typeText)                                                         \
public:                                                                                                    \
  using MessageClass = ClassName;                                                                          \
  static ::krocore::utility::ImmutableString TypeID() {                                                    \
    static const ::krocore::utility::ImmutableString sTypeID(typeText);                                    \
    return sTypeID;                                                                                        \
  }                                                                                                        \
  ::krocore::utility::ImmutableString GetTypeID() const override { return TypeID(); }                      \
  std::shared_ptr<const ::krocore::messaging::Message> Clone() const override {                            \
    return ::krocore::messaging::detail::CloneMessage(*this);                                              \
  }
