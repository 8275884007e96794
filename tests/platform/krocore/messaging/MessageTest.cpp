#include "MessagingTestSupport.h"

using krocore::messaging::Message;
using krocore::utility::ImmutableString;
using messaging_test::ValueChangedMessage;

namespace {

// One message class compiled into two libraries with hidden symbols is two
// classes with two sets of statics; these two stand in for them.
namespace first_library {
class SharedMessage : public Message {
  KROCORE_MESSAGE_CLASS(SharedMessage, "test.SharedMessage")
};
} // namespace first_library
namespace second_library {
class SharedMessage : public Message {
  KROCORE_MESSAGE_CLASS(SharedMessage, "test.SharedMessage")
};
} // namespace second_library

} // namespace

TEST(Message, TypeIDIsTheInternedTextSoCopiesInTwoLibrariesAgree) {
  EXPECT_EQ(ValueChangedMessage::TypeID(), ImmutableString("test.ValueChangedMessage"));
  EXPECT_EQ(first_library::SharedMessage::TypeID(), second_library::SharedMessage::TypeID());
  const first_library::SharedMessage fromFirst;
  EXPECT_TRUE(static_cast<const Message&>(fromFirst).Is<second_library::SharedMessage>());
}
