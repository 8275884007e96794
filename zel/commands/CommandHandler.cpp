#include <zel/commands/CommandHandler.h>

namespace ZEL {
namespace {
// UI thread only, as all of the command chain.
CommandHandler::CommandFilter sGlobalCommandFilter;
} // namespace

CommandHandler::~CommandHandler() = default;

bool CommandHandler::FindCommandStatus(int, bool&, bool&, MenuMark&, UTF8String&) { return false; }

bool CommandHandler::UpdateCommandForDisableMenuAppStatus(int commandID, bool& enabled, bool& checked,
                                                          MenuMark& mark, UTF8String& menuText,
                                                          const CommanderWeakPtr& origin) {
  return sGlobalCommandFilter && sGlobalCommandFilter(commandID, enabled, checked, mark, menuText, origin);
}

bool CommandHandler::ObeyCommand(const Command&) { return false; }

void CommandHandler::SetGlobalCommandFilter(CommandFilter filter) { sGlobalCommandFilter = std::move(filter); }

CommandHandler::CommandFilter CommandHandler::GetGlobalCommandFilter() { return sGlobalCommandFilter; }

} // namespace ZEL
