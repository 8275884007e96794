#pragma once

// The messages of the status-bar functions, one class per function, as the
// host's status line hears them on kStation_StatusBar.

#include <zel/commands/CommandTypes.h>

#include <krocore/messaging/Message.h>
#include <krocore/utility/ImmutableString.h>

#include <utility>

namespace ZEL {

/// "zel.statusbar", where the status-bar functions broadcast.
inline const krocore::utility::ImmutableString kStation_StatusBar{"zel.statusbar"};

/// Show this text on the status line.
class StatusBarSetTextMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(StatusBarSetTextMessage, "zel.StatusBarSetTextMessage")
  explicit StatusBarSetTextMessage(UTF8String text) : mText(std::move(text)) {}
  const UTF8String& GetText() const noexcept { return mText; }

private:
  UTF8String mText;
};

/// Take this text off the status line, if it is still the one shown, so
/// that a late clear does not wipe a newer text.
class StatusBarClearTextMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(StatusBarClearTextMessage, "zel.StatusBarClearTextMessage")
  explicit StatusBarClearTextMessage(UTF8String text) : mText(std::move(text)) {}
  const UTF8String& GetText() const noexcept { return mText; }

private:
  UTF8String mText;
};

/// Show a progress bar with a label, at a percentage from 0 to 100.
class StatusBarSetProgressMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(StatusBarSetProgressMessage, "zel.StatusBarSetProgressMessage")
  StatusBarSetProgressMessage(UTF8String label, unsigned int percent) : mLabel(std::move(label)), mPercent(percent) {}
  const UTF8String& GetLabel() const noexcept { return mLabel; }
  unsigned int GetPercent() const noexcept { return mPercent; }

private:
  UTF8String mLabel;
  unsigned int mPercent;
};

/// Take the progress bar away.
class StatusBarClearProgressMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(StatusBarClearProgressMessage, "zel.StatusBarClearProgressMessage")
};

/// A document closed: what the status line showed for it no longer applies.
class StatusBarDocumentClosedMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(StatusBarDocumentClosedMessage, "zel.StatusBarDocumentClosedMessage")
};

} // namespace ZEL
