#include <zel/commands/Command.h>
#include <zel/commands/SyntheticCommand.h>

#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

using ZEL::CommandInfo;
using ZEL::SyntheticCommand;

namespace {

CommandInfo Described(const std::string& name) {
  return CommandInfo(name, 0, ZEL::CommandKind::Action, name, name, {}, false);
}

class SyntheticCommandTest : public testing::Test {
protected:
  void SetUp() override { SyntheticCommand::Initialize(); }
  void TearDown() override { SyntheticCommand::Terminate(); }
};

TEST_F(SyntheticCommandTest, IDsCountDownAndANameKeepsItsID) {
  EXPECT_FALSE(SyntheticCommand::IsSynthetic(32767)) << "nothing handed out yet";
  EXPECT_EQ(SyntheticCommand::MakeID(Described("plugin.export")), 32767);
  EXPECT_TRUE(SyntheticCommand::IsSynthetic(32767));
  EXPECT_FALSE(SyntheticCommand::IsSynthetic(32766));
  EXPECT_EQ(SyntheticCommand::MakeID(Described("plugin.import")), 32766);
  EXPECT_EQ(SyntheticCommand::MakeID(Described("plugin.export")), 32767);
  EXPECT_TRUE(SyntheticCommand::IsSynthetic(ZEL::Command(32766)));
  EXPECT_FALSE(SyntheticCommand::IsSynthetic(100)) << "declared IDs are never synthetic";
  EXPECT_FALSE(SyntheticCommand::IsSynthetic(32768));
}

TEST_F(SyntheticCommandTest, DescriptionsAreKeptUntilUnregistered) {
  const int id = SyntheticCommand::MakeID(Described("script.run"));
  ASSERT_TRUE(SyntheticCommand::GetCommandInfo(id));
  EXPECT_EQ(SyntheticCommand::GetCommandInfo(id)->GetCommandName(), "script.run");
  EXPECT_TRUE(SyntheticCommand::UnregisterCommand(id));
  EXPECT_FALSE(SyntheticCommand::GetCommandInfo(id));
  EXPECT_FALSE(SyntheticCommand::UnregisterCommand(id));
  EXPECT_EQ(SyntheticCommand::MakeID(Described("script.run")), id - 1) << "IDs are never reused";
}

TEST(SyntheticCommand, UseBeforeInitializeIsReported) {
  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_EQ(SyntheticCommand::MakeID(Described("early")), 0);
  EXPECT_TRUE(recorder.Contains("SyntheticCommand has not been initialized"));
}

} // namespace
