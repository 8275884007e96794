#pragma once

#include <krocore/pointers/FlexPtr.h>

#include <cstdint>
#include <string>

namespace ZEL {

/// Text shown to the user, always UTF-8.
using UTF8String = std::string;

/// How a command reached its target: as a plain call (None), or from a key
/// that went down (Engaged) or came up again (Disengaged). The scripting
/// layer publishes the same values.
enum class CommandPhase : std::int32_t { None = 1, Engaged = 2, Disengaged = 3 };

/// The mark a menu item shows beside its text.
enum class MenuMark : std::int32_t { None = 0, CheckMark = 1, RadioBullet = 2 };

/// The standard editing commands, answered by every text control.
inline constexpr int kCommand_Clear = 57632;
inline constexpr int kCommand_Copy = 57634;
inline constexpr int kCommand_Cut = 57635;
inline constexpr int kCommand_Paste = 57637;
inline constexpr int kCommand_SelectAll = 57642;
inline constexpr int kCommand_Undo = 57643;
inline constexpr int kCommand_Redo = 57644;

/// The standard file and application commands. The shortcut manager's
/// pre-dispatch map holds them, so that they work wherever the focus is.
inline constexpr int kCommand_New = 57600;
inline constexpr int kCommand_Open = 57601;
inline constexpr int kCommand_RecentFile1 = 57616; ///< the first of the recently used files
inline constexpr int kCommand_Exit = 57665;

/// The host's commands that the pre-dispatch map holds as well: two single
/// commands and a block of ten.
inline constexpr int kCommand_HostPreDispatchA = 11200;
inline constexpr int kCommand_HostPreDispatchB = 11905;
inline constexpr int kCommand_HostPreDispatchRangeFirst = 11920;
inline constexpr int kCommand_HostPreDispatchRangeLast = 11929;

class Commander;
using CommanderPtr = krocore::FlexPtr<Commander>;
using CommanderWeakPtr = krocore::FlexWeakPtr<Commander>;

} // namespace ZEL
