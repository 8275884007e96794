#include <zel/commands/Command.h>

namespace ZEL {

using krocore::utility::ImmutableString;

Command::Command(std::int32_t id) : Command(id, CommandPhase::None, kPathViaCommand) {}

Command::Command(std::int32_t id, const ImmutableString& uiPath) : Command(id, CommandPhase::None, uiPath) {}

Command::Command(std::int32_t id, CommandPhase phase) : Command(id, phase, kPathViaCommand) {}

Command::Command(std::int32_t id, CommandPhase phase, TimeStamp timeStamp)
    : mID(id), mPhase(phase), mTimeStamp(timeStamp), mUIPath(kPathViaCommand) {}

Command::Command(std::int32_t id, CommandPhase phase, const ImmutableString& uiPath)
    : mID(id), mPhase(phase), mTimeStamp(std::chrono::steady_clock::now()), mUIPath(uiPath) {}

} // namespace ZEL
