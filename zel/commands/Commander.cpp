#include <zel/commands/Commander.h>

#include <zel/commands/Command.h>

#include <krocore/config/TopLevel.h>
#include <krocore/detail/TaskStatistic.h>
#include <kroscripting/events/QueueEvent.h>
#include <kroscripting/events/ScriptConstants.h>

#include <algorithm>
#include <vector>

namespace ZEL {
namespace {

// The target as a weak link, and its address: while the target is being
// destroyed its link no longer locks, yet it must still be known as the target.
CommanderWeakPtr sTarget;
const Commander* sTargetIdentity = nullptr;

// Scripts compare an event's phase with the constants the scripting layer publishes.
static_assert(kroscripting::events::FindScriptConstant("COMMAND_PHASE_NONE") ==
              std::int64_t{static_cast<int>(CommandPhase::None)});
static_assert(kroscripting::events::FindScriptConstant("COMMAND_PHASE_ENGAGED") ==
              std::int64_t{static_cast<int>(CommandPhase::Engaged)});
static_assert(kroscripting::events::FindScriptConstant("COMMAND_PHASE_DISENGAGED") ==
              std::int64_t{static_cast<int>(CommandPhase::Disengaged)});

const krocore::utility::ImmutableString kCommandEventName{"ZELCommandEvent"};
const krocore::utility::ImmutableString kCommandIDKey{"commandID"};
const krocore::utility::ImmutableString kPhaseKey{"phase"};
const krocore::utility::ImmutableString kUIPathKey{"uiPath"};

const Commander* FindCommonCommander(const Commander* oldTarget, const CommanderPtr& newTarget) {
  if (!oldTarget || !newTarget) return nullptr;
  if (oldTarget == newTarget.get()) return oldTarget;
  std::vector<const Commander*> oldChain;
  for (CommanderPtr c = oldTarget->GetSuperCommander(); c; c = c->GetSuperCommander()) oldChain.push_back(c.get());
  oldChain.push_back(oldTarget);
  std::sort(oldChain.begin(), oldChain.end());
  for (CommanderPtr c = newTarget; c; c = c->GetSuperCommander())
    if (std::binary_search(oldChain.begin(), oldChain.end(), c.get())) return c.get();
  return nullptr;
}

} // namespace

Commander::Commander(const CommanderWeakPtr& superCommander)
    : mSuperCommander(superCommander), mValidity(kValidWord) {}

Commander::Commander(const Commander& other)
    : CommandHandler(other), mSuperCommander(other.mSuperCommander), mValidity(kValidWord) {}

Commander::~Commander() {
  // An ancestor of the target cannot be met here: the links to it stopped
  // locking when its last owner let go, so the chain below simply ends.
  if (sTargetIdentity == this) MoveTarget(this, mSuperCommander.lock(), mSuperCommander);
  mValidity = kDestroyedWord;
}

CommanderPtr Commander::GetSuperCommander() const { return mSuperCommander.lock(); }

void Commander::SetSuperCommander(const CommanderWeakPtr& superCommander) {
  CommanderPtr oldSuper = mSuperCommander.lock();
  if (oldSuper == superCommander.lock()) return;
  if (IsOnDuty()) SetTarget(oldSuper);
  mSuperCommander = superCommander;
}

CommanderPtr Commander::GetTarget() { return sTarget.lock(); }

bool Commander::IsTarget() const { return sTargetIdentity == this; }

bool Commander::IsOnDuty() const {
  if (sTargetIdentity == this) return true;
  for (CommanderPtr c = GetTarget(); c; c = c->GetSuperCommander())
    if (c.get() == this) return true;
  return false;
}

void Commander::SetTarget(const CommanderWeakPtr& target) {
  MoveTarget(GetTarget().get(), target.lock(), target);
}

bool Commander::SwitchTarget(const CommanderWeakPtr& target) {
  if (target.lock() != GetTarget()) SetTarget(target);
  return true;
}

void Commander::ForceTargetSwitch(const CommanderWeakPtr& target) { SetTarget(target); }

void Commander::MoveTarget(Commander* oldTarget, const CommanderPtr& newTarget, const CommanderWeakPtr& newLink) {
  const CommanderPtr keepOldAlive = GetTarget(); // notifications may drop the last owner
  const Commander* common = FindCommonCommander(oldTarget, newTarget);
  NotifyChain(oldTarget, common, false);
  sTarget = newLink;
  sTargetIdentity = newTarget.get();
  NotifyChain(newTarget.get(), common, true);
}

void Commander::NotifyChain(Commander* from, const Commander* common, bool onDuty) {
  CommanderPtr keepAlive;
  for (Commander* c = from; c != common && c->IsValid();) {
    if (onDuty) c->NowOnDuty();
    else c->NowOffDuty();
    keepAlive = c->GetSuperCommander();
    if (!keepAlive) {
      // Running out of links before the common commander means a link
      // that was required has gone.
      if (common) krocore::config::DoThrowNullPtrException("ZEL::Commander");
      return;
    }
    c = keepAlive.get();
  }
}

bool Commander::GetCommandStatus(const CommanderWeakPtr& origin, int commandID, bool& enabled, bool& checked,
                                 MenuMark& mark, UTF8String& menuText) {
  enabled = false;
  checked = false;
  if (UpdateCommandForDisableMenuAppStatus(commandID, enabled, checked, mark, menuText, origin)) return true;
  if (FindCommandStatus(commandID, enabled, checked, mark, menuText)) return true;
  for (CommanderPtr c = GetSuperCommander(); c; c = c->GetSuperCommander())
    if (c->FindCommandStatus(commandID, enabled, checked, mark, menuText)) return true;
  return false;
}

bool Commander::PostCommand(const Command& command) {
  krocore::detail::TaskStatistic(true, false);
  bool handled = false;
  krocore::config::ExecuteTopLevelFunction([&] { PostCommandInner(command, handled); });
  return handled;
}

bool Commander::PostCommand(int commandID) { return PostCommand(Command(commandID)); }

int Commander::PostCommandInner(const Command& command, bool& handled) {
  kroscripting::events::QueueEvent(kCommandEventName,
                                   {{kCommandIDKey, std::int64_t{command.GetID()}},
                                    {kPhaseKey, std::int64_t{static_cast<std::int32_t>(command.GetPhase())}},
                                    {kUIPathKey, command.GetUIPathToAccess().ToString()}});
  handled = ObeyCommand(command);
  for (CommanderPtr c = handled ? nullptr : GetSuperCommander(); c && !handled; c = c->GetSuperCommander())
    handled = c->ObeyCommand(command);
  return 0;
}

void Commander::NowOnDuty() {}

void Commander::NowOffDuty() {}

bool PostCommand(int commandID, bool force) {
  CommanderPtr target = Commander::GetTarget();
  if (!target) return false;
  if (!force) {
    bool enabled = false, checked = false;
    MenuMark mark = MenuMark::None;
    UTF8String text;
    if (!target->GetCommandStatus(target, commandID, enabled, checked, mark, text) || !enabled) return false;
  }
  return target->PostCommand(Command(commandID));
}

} // namespace ZEL
