#pragma once

#include <zel/Export.h>
#include <zel/commands/CommandTypes.h>

#include <functional>

namespace ZEL {

class Command;

/// Something that can answer for commands: their status, and carrying them
/// out. Every answer defaults to "not mine", so that the question goes on
/// up the chain of commanders.
class ZEL_API CommandHandler {
public:
  /// Sees every status question before any commander does, so that the
  /// application can grey out commands everywhere at once.
  using CommandFilter = std::function<bool(int commandID, bool& enabled, bool& checked, MenuMark& mark,
                                           UTF8String& menuText, const CommanderWeakPtr& origin)>;

  virtual ~CommandHandler();

  /// True when this handler answered for the command.
  virtual bool FindCommandStatus(int commandID, bool& enabled, bool& checked, MenuMark& mark, UTF8String& menuText);
  /// The application-wide say on a command; by default the global filter's.
  virtual bool UpdateCommandForDisableMenuAppStatus(int commandID, bool& enabled, bool& checked, MenuMark& mark,
                                                    UTF8String& menuText, const CommanderWeakPtr& origin);
  /// True when the command was carried out.
  virtual bool ObeyCommand(const Command& command);

  static void SetGlobalCommandFilter(CommandFilter filter);
  static CommandFilter GetGlobalCommandFilter();

protected:
  CommandHandler() = default;
  CommandHandler(const CommandHandler&) = default;
  CommandHandler& operator=(const CommandHandler&) = default;
};

} // namespace ZEL
