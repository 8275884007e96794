#include <zel/commands/KeySpec.h>

#include <krocore/string/UTFConversion.h>
#include <kroui/ksv/ActionInfo.h>
#include <kroui/utility/KeyState.h>

namespace ZEL {
namespace {

constexpr std::uint32_t kVirtualKeyShift = 0x10;
constexpr std::uint32_t kVirtualKeyControl = 0x11;
constexpr std::uint32_t kVirtualKeyAlt = 0x12;

} // namespace

KeyModifiers::KeyModifiers()
    : Flags(Flags::FromValue(kroui::utility::GetCurrentModKeys().GetValue() & kModifier_All)) {}

KeySpec::KeySpec(std::uint32_t key, const KeyModifiers& modifiers) noexcept
    : mKey(key), mModifiers(krocore::utility::Flags<std::uint8_t>::FromValue(modifiers.GetValue() & kModifier_All)) {}

KeySpec::KeySpec(std::uint32_t key, bool control, bool alt, bool shift) noexcept : mKey(key) {
  SetControl(control);
  SetAlt(alt);
  SetShift(shift);
}

KeySpec::KeySpec(std::uint32_t key, bool useLiveModifiers) : mKey(key) {
  if (!useLiveModifiers) return;
  // Each key asked on its own, in this order, as the OS's key state is read.
  SetControl(kroui::utility::IsKeyDown(kVirtualKeyControl));
  SetAlt(kroui::utility::IsKeyDown(kVirtualKeyAlt));
  SetShift(kroui::utility::IsKeyDown(kVirtualKeyShift));
}

UTF8String KeySpec::GetString() const {
  return krocore::string::UTF16to8(kroui::ksv::ActionInfo::GetShortcutString(mModifiers, mKey));
}

} // namespace ZEL
