#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>

#include <krocore/utility/ImmutableString.h>

#include <chrono>
#include <cstdint>

namespace ZEL {

/// One request to carry out a command: its ID, the phase of the key that
/// sent it, when it was made, and by which route the user reached it.
class ZEL_API Command {
public:
  using TimeStamp = std::chrono::steady_clock::time_point;

  static inline const krocore::utility::ImmutableString kPathViaCommand{"via:command"};

  explicit Command(std::int32_t id);
  Command(std::int32_t id, const krocore::utility::ImmutableString& uiPath);
  Command(std::int32_t id, CommandPhase phase);
  Command(std::int32_t id, CommandPhase phase, TimeStamp timeStamp);
  Command(std::int32_t id, CommandPhase phase, const krocore::utility::ImmutableString& uiPath);

  std::int32_t GetID() const noexcept { return mID; }
  CommandPhase GetPhase() const noexcept { return mPhase; }
  TimeStamp GetTimeStamp() const noexcept { return mTimeStamp; }
  const krocore::utility::ImmutableString& GetUIPathToAccess() const noexcept { return mUIPath; }

private:
  std::int32_t mID;
  CommandPhase mPhase;
  TimeStamp mTimeStamp;
  krocore::utility::ImmutableString mUIPath;
};

} // namespace ZEL
