#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandHandler.h>

#include <cstdint>

namespace ZEL {

/// A link in the chain of command targets. Each commander holds a weak link
/// to its super-commander; one commander, the target (the focused view),
/// receives commands first, and questions and commands travel upward:
///
///   Application        <- on duty: ancestor of the target
///     Panel            <- on duty
///       Field (target) <- ObeyCommand asked here first, then Panel, then Application
///     Other panel      <- off duty
///
/// Moving the target tells the commanders that leave the chain (bottom-up)
/// and then those that join it (bottom-up); the common part hears nothing.
/// UI thread only.
class ZEL_API Commander : public CommandHandler {
public:
  explicit Commander(const CommanderWeakPtr& superCommander);
  /// The copy has the same super-commander but is not on duty by itself.
  Commander(const Commander& other);
  Commander& operator=(const Commander&) = delete;
  ~Commander() override;

  CommanderPtr GetSuperCommander() const;
  /// Re-parents; an on-duty commander first hands the target to its old super-commander.
  void SetSuperCommander(const CommanderWeakPtr& superCommander);

  static CommanderPtr GetTarget();
  bool IsTarget() const;
  /// The target or one of its super-commanders.
  bool IsOnDuty() const;

  /// Moves the target and tells the commanders that go off and on duty.
  static void SetTarget(const CommanderWeakPtr& target);
  /// SetTarget only when the target changes; always true.
  static bool SwitchTarget(const CommanderWeakPtr& target);
  /// SetTarget even to the current target.
  static void ForceTargetSwitch(const CommanderWeakPtr& target);

  /// Asks the global filter, then this commander and its super-commanders in
  /// turn, until one answers. False: no one knows the command (disabled).
  bool GetCommandStatus(const CommanderWeakPtr& origin, int commandID, bool& enabled, bool& checked, MenuMark& mark,
                        UTF8String& menuText);

  /// Offers the command to this commander and then up the chain until one
  /// obeys it; synchronous. True when someone handled it.
  bool PostCommand(const Command& command);
  bool PostCommand(int commandID);

protected:
  virtual void NowOnDuty();
  virtual void NowOffDuty();

private:
  static constexpr std::uint32_t kValidWord = 0x049495C9;
  static constexpr std::uint32_t kDestroyedWord = 0x3AD5A2DD;

  bool IsValid() const noexcept { return mValidity == kValidWord; }
  int PostCommandInner(const Command& command, bool& handled);
  static void MoveTarget(Commander* oldTarget, const CommanderPtr& newTarget, const CommanderWeakPtr& newLink);
  static void NotifyChain(Commander* from, const Commander* common, bool onDuty);

  CommanderWeakPtr mSuperCommander;
  std::uint32_t mValidity;
};

/// Posts a command to the current target. Unless forced, only when the
/// target's chain says the command is enabled.
ZEL_API bool PostCommand(int commandID, bool force);

} // namespace ZEL
