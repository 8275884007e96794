#include <krocore/messaging/Message.h>

namespace krocore::messaging {

// Defined here so that the class's vtable and type_info live in krocore alone.
Message::~Message() = default;

} // namespace krocore::messaging
