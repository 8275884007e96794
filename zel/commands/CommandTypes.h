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

class Commander;
using CommanderPtr = krocore::FlexPtr<Commander>;
using CommanderWeakPtr = krocore::FlexWeakPtr<Commander>;

} // namespace ZEL
