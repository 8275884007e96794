#include <krocore/console/ConsoleCommands.h>
#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

#include <stdexcept>

using krocore::console::ConsoleCommands;

namespace {

class ConsoleCommandsTest : public testing::Test {
protected:
  void TearDown() override {
    for (const auto& [name, help] : ConsoleCommands::Instance().List()) ConsoleCommands::Instance().Unregister(name);
  }
  ConsoleCommands& mCommands = ConsoleCommands::Instance();
};

TEST_F(ConsoleCommandsTest, RunsACommandWithItsQuotedArguments) {
  ConsoleCommands::Arguments seen;
  ASSERT_TRUE(mCommands.Register("zel.colors", "Lists colours", [&](const auto& arguments) {
    seen = arguments;
    return std::string("done");
  }));
  auto result = mCommands.Execute("  zel.colors dump \"my file.txt\"  \"\" x\"y z\"");
  ASSERT_TRUE(result) << result.Error();
  EXPECT_EQ(result.Value(), "done");
  EXPECT_EQ(seen, (ConsoleCommands::Arguments{"dump", "my file.txt", "", "xy z"}));
}

TEST_F(ConsoleCommandsTest, FailuresAreMessagesAndTheRegistryStaysUsable) {
  mCommands.Register("boom", "", [](const auto&) -> std::string { throw std::runtime_error("no theme"); });
  mCommands.Register("ok", "", [](const auto&) { return std::string("fine"); });
  EXPECT_EQ(mCommands.Execute("boom").Error(), "The command failed: no theme");
  EXPECT_EQ(mCommands.Execute("nope").Error(), "Unknown command \"nope\"");
  EXPECT_EQ(mCommands.Execute("   ").Error(), "No command was given");
  EXPECT_EQ(mCommands.Execute("ok \"open").Error(), "A quote is not closed");
  EXPECT_EQ(mCommands.Execute("ok").Value(), "fine");
}

TEST_F(ConsoleCommandsTest, SecondRegistrationOfANameIsRefused) {
  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_TRUE(mCommands.Register("once", "first", [](const auto&) { return std::string("1"); }));
  EXPECT_FALSE(mCommands.Register("once", "second", [](const auto&) { return std::string("2"); }));
  EXPECT_TRUE(recorder.Contains("Console command \"once\" is already registered"));
  EXPECT_EQ(mCommands.Execute("once").Value(), "1");
  ASSERT_EQ(mCommands.List().size(), 1u);
  EXPECT_EQ(mCommands.List()[0].second, "first");
}

TEST_F(ConsoleCommandsTest, ACommandMayUnregisterItself) {
  mCommands.Register("self", "", [this](const auto&) {
    mCommands.Unregister("self");
    return std::string("gone");
  });
  EXPECT_EQ(mCommands.Execute("self").Value(), "gone");
  EXPECT_FALSE(mCommands.IsRegistered("self"));
}

} // namespace
