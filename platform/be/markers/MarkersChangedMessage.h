#pragma once

#include <krocore/messaging/Message.h>

namespace BE {

/// Broadcast on a marker collection's station after any of its markers was
/// added, removed or changed, also by undo and redo.
class MarkersChangedMessage : public krocore::messaging::Message {
  KROCORE_MESSAGE_CLASS(MarkersChangedMessage, "be.MarkersChangedMessage")
};

} // namespace BE
