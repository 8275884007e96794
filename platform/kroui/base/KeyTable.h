#pragma once

#include <kroui/Export.h>
#include <kroui/base/KeyboardCode.h>
#include <kroui/base/ModifierKeys.h>

#include <cstdint>
#include <span>
#include <string_view>

namespace kroui::ui {

/// What a key is, beyond its number. The modifier keys' traits use the bits of
/// the modifier they set, so `traits & kModKey_All` is that modifier.
inline constexpr std::uint8_t kKeyTrait_Printable = 0x01;
inline constexpr std::uint8_t kKeyTrait_Shift = kModKey_Shift;
inline constexpr std::uint8_t kKeyTrait_Control = kModKey_Control;
inline constexpr std::uint8_t kKeyTrait_Extended = 0x08;
inline constexpr std::uint8_t kKeyTrait_Alt = kModKey_Alt;

// Every named key, once: ROW(identifier, virtual key, traits, display name).
// The constants kKey_<identifier>, the key table and the names shown in
// shortcut texts are all expanded from this list, so they cannot drift apart.
// A key of the extended set is listed as its dedicated key sends it (the
// arrows with the extended bit); its keypad twin with Num Lock off is the same
// virtual key without the bit and is found by the same row. Display names are
// those of the PC convention; punctuation keys show their US-layout character.
#define KROUI_ENUMERATE_KEYS(ROW)                                          \
  ROW(Break, 0x03, kKeyTrait_Extended, u"Break")                           \
  ROW(Backspace, 0x08, 0, u"Backspace")                                    \
  ROW(Tab, 0x09, 0, u"Tab")                                                \
  ROW(Clear, 0x0C, 0, u"Clear")                                            \
  ROW(Enter, 0x0D, 0, u"Enter")                                            \
  ROW(NumEnter, 0x0D, kKeyTrait_Extended, u"Num Enter")                    \
  ROW(Shift, 0x10, kKeyTrait_Shift, u"Shift")                              \
  ROW(Control, 0x11, kKeyTrait_Control, u"Ctrl")                           \
  ROW(Alt, 0x12, kKeyTrait_Alt, u"Alt")                                    \
  ROW(Pause, 0x13, 0, u"Pause")                                            \
  ROW(CapsLock, 0x14, 0, u"Caps Lock")                                     \
  ROW(Escape, 0x1B, 0, u"Esc")                                             \
  ROW(Space, 0x20, kKeyTrait_Printable, u"Space")                          \
  ROW(PageUp, 0x21, kKeyTrait_Extended, u"Page Up")                        \
  ROW(PageDown, 0x22, kKeyTrait_Extended, u"Page Down")                    \
  ROW(End, 0x23, kKeyTrait_Extended, u"End")                               \
  ROW(Home, 0x24, kKeyTrait_Extended, u"Home")                             \
  ROW(Left, 0x25, kKeyTrait_Extended, u"Left")                             \
  ROW(Up, 0x26, kKeyTrait_Extended, u"Up")                                 \
  ROW(Right, 0x27, kKeyTrait_Extended, u"Right")                           \
  ROW(Down, 0x28, kKeyTrait_Extended, u"Down")                             \
  ROW(PrintScreen, 0x2C, kKeyTrait_Extended, u"Print Screen")              \
  ROW(Insert, 0x2D, kKeyTrait_Extended, u"Insert")                         \
  ROW(Delete, 0x2E, kKeyTrait_Extended, u"Delete")                         \
  ROW(Help, 0x2F, 0, u"Help")                                              \
  ROW(0, 0x30, kKeyTrait_Printable, u"0")                                  \
  ROW(1, 0x31, kKeyTrait_Printable, u"1")                                  \
  ROW(2, 0x32, kKeyTrait_Printable, u"2")                                  \
  ROW(3, 0x33, kKeyTrait_Printable, u"3")                                  \
  ROW(4, 0x34, kKeyTrait_Printable, u"4")                                  \
  ROW(5, 0x35, kKeyTrait_Printable, u"5")                                  \
  ROW(6, 0x36, kKeyTrait_Printable, u"6")                                  \
  ROW(7, 0x37, kKeyTrait_Printable, u"7")                                  \
  ROW(8, 0x38, kKeyTrait_Printable, u"8")                                  \
  ROW(9, 0x39, kKeyTrait_Printable, u"9")                                  \
  ROW(A, 0x41, kKeyTrait_Printable, u"A")                                  \
  ROW(B, 0x42, kKeyTrait_Printable, u"B")                                  \
  ROW(C, 0x43, kKeyTrait_Printable, u"C")                                  \
  ROW(D, 0x44, kKeyTrait_Printable, u"D")                                  \
  ROW(E, 0x45, kKeyTrait_Printable, u"E")                                  \
  ROW(F, 0x46, kKeyTrait_Printable, u"F")                                  \
  ROW(G, 0x47, kKeyTrait_Printable, u"G")                                  \
  ROW(H, 0x48, kKeyTrait_Printable, u"H")                                  \
  ROW(I, 0x49, kKeyTrait_Printable, u"I")                                  \
  ROW(J, 0x4A, kKeyTrait_Printable, u"J")                                  \
  ROW(K, 0x4B, kKeyTrait_Printable, u"K")                                  \
  ROW(L, 0x4C, kKeyTrait_Printable, u"L")                                  \
  ROW(M, 0x4D, kKeyTrait_Printable, u"M")                                  \
  ROW(N, 0x4E, kKeyTrait_Printable, u"N")                                  \
  ROW(O, 0x4F, kKeyTrait_Printable, u"O")                                  \
  ROW(P, 0x50, kKeyTrait_Printable, u"P")                                  \
  ROW(Q, 0x51, kKeyTrait_Printable, u"Q")                                  \
  ROW(R, 0x52, kKeyTrait_Printable, u"R")                                  \
  ROW(S, 0x53, kKeyTrait_Printable, u"S")                                  \
  ROW(T, 0x54, kKeyTrait_Printable, u"T")                                  \
  ROW(U, 0x55, kKeyTrait_Printable, u"U")                                  \
  ROW(V, 0x56, kKeyTrait_Printable, u"V")                                  \
  ROW(W, 0x57, kKeyTrait_Printable, u"W")                                  \
  ROW(X, 0x58, kKeyTrait_Printable, u"X")                                  \
  ROW(Y, 0x59, kKeyTrait_Printable, u"Y")                                  \
  ROW(Z, 0x5A, kKeyTrait_Printable, u"Z")                                  \
  ROW(LeftWin, 0x5B, kKeyTrait_Extended, u"Left Win")                      \
  ROW(RightWin, 0x5C, kKeyTrait_Extended, u"Right Win")                    \
  ROW(Menu, 0x5D, kKeyTrait_Extended, u"Menu")                             \
  ROW(Sleep, 0x5F, 0, u"Sleep")                                            \
  ROW(Num0, 0x60, kKeyTrait_Printable, u"Num 0")                           \
  ROW(Num1, 0x61, kKeyTrait_Printable, u"Num 1")                           \
  ROW(Num2, 0x62, kKeyTrait_Printable, u"Num 2")                           \
  ROW(Num3, 0x63, kKeyTrait_Printable, u"Num 3")                           \
  ROW(Num4, 0x64, kKeyTrait_Printable, u"Num 4")                           \
  ROW(Num5, 0x65, kKeyTrait_Printable, u"Num 5")                           \
  ROW(Num6, 0x66, kKeyTrait_Printable, u"Num 6")                           \
  ROW(Num7, 0x67, kKeyTrait_Printable, u"Num 7")                           \
  ROW(Num8, 0x68, kKeyTrait_Printable, u"Num 8")                           \
  ROW(Num9, 0x69, kKeyTrait_Printable, u"Num 9")                           \
  ROW(NumMultiply, 0x6A, kKeyTrait_Printable, u"Num *")                    \
  ROW(NumAdd, 0x6B, kKeyTrait_Printable, u"Num +")                         \
  ROW(NumSeparator, 0x6C, kKeyTrait_Printable, u"Num Separator")           \
  ROW(NumSubtract, 0x6D, kKeyTrait_Printable, u"Num -")                    \
  ROW(NumDecimal, 0x6E, kKeyTrait_Printable, u"Num .")                     \
  ROW(NumDivide, 0x6F, kKeyTrait_Printable | kKeyTrait_Extended, u"Num /") \
  ROW(F1, 0x70, 0, u"F1")                                                  \
  ROW(F2, 0x71, 0, u"F2")                                                  \
  ROW(F3, 0x72, 0, u"F3")                                                  \
  ROW(F4, 0x73, 0, u"F4")                                                  \
  ROW(F5, 0x74, 0, u"F5")                                                  \
  ROW(F6, 0x75, 0, u"F6")                                                  \
  ROW(F7, 0x76, 0, u"F7")                                                  \
  ROW(F8, 0x77, 0, u"F8")                                                  \
  ROW(F9, 0x78, 0, u"F9")                                                  \
  ROW(F10, 0x79, 0, u"F10")                                                \
  ROW(F11, 0x7A, 0, u"F11")                                                \
  ROW(F12, 0x7B, 0, u"F12")                                                \
  ROW(F13, 0x7C, 0, u"F13")                                                \
  ROW(F14, 0x7D, 0, u"F14")                                                \
  ROW(F15, 0x7E, 0, u"F15")                                                \
  ROW(F16, 0x7F, 0, u"F16")                                                \
  ROW(F17, 0x80, 0, u"F17")                                                \
  ROW(F18, 0x81, 0, u"F18")                                                \
  ROW(F19, 0x82, 0, u"F19")                                                \
  ROW(F20, 0x83, 0, u"F20")                                                \
  ROW(F21, 0x84, 0, u"F21")                                                \
  ROW(F22, 0x85, 0, u"F22")                                                \
  ROW(F23, 0x86, 0, u"F23")                                                \
  ROW(F24, 0x87, 0, u"F24")                                                \
  ROW(NumLock, 0x90, kKeyTrait_Extended, u"Num Lock")                      \
  ROW(ScrollLock, 0x91, 0, u"Scroll Lock")                                 \
  ROW(LeftShift, 0xA0, kKeyTrait_Shift, u"Left Shift")                     \
  ROW(RightShift, 0xA1, kKeyTrait_Shift, u"Right Shift")                   \
  ROW(LeftControl, 0xA2, kKeyTrait_Control, u"Left Ctrl")                  \
  ROW(RightControl, 0xA3, kKeyTrait_Control, u"Right Ctrl")                \
  ROW(LeftAlt, 0xA4, kKeyTrait_Alt, u"Left Alt")                           \
  ROW(RightAlt, 0xA5, kKeyTrait_Alt, u"Right Alt")                         \
  ROW(VolumeMute, 0xAD, kKeyTrait_Extended, u"Volume Mute")                \
  ROW(VolumeDown, 0xAE, kKeyTrait_Extended, u"Volume Down")                \
  ROW(VolumeUp, 0xAF, kKeyTrait_Extended, u"Volume Up")                    \
  ROW(MediaNextTrack, 0xB0, kKeyTrait_Extended, u"Next Track")             \
  ROW(MediaPreviousTrack, 0xB1, kKeyTrait_Extended, u"Previous Track")     \
  ROW(MediaStop, 0xB2, kKeyTrait_Extended, u"Stop Media")                  \
  ROW(MediaPlayPause, 0xB3, kKeyTrait_Extended, u"Play/Pause")             \
  ROW(Semicolon, 0xBA, kKeyTrait_Printable, u";")                          \
  ROW(Equals, 0xBB, kKeyTrait_Printable, u"=")                             \
  ROW(Comma, 0xBC, kKeyTrait_Printable, u",")                              \
  ROW(Minus, 0xBD, kKeyTrait_Printable, u"-")                              \
  ROW(Period, 0xBE, kKeyTrait_Printable, u".")                             \
  ROW(Slash, 0xBF, kKeyTrait_Printable, u"/")                              \
  ROW(Backquote, 0xC0, kKeyTrait_Printable, u"`")                          \
  ROW(LeftBracket, 0xDB, kKeyTrait_Printable, u"[")                        \
  ROW(Backslash, 0xDC, kKeyTrait_Printable, u"\\")                         \
  ROW(RightBracket, 0xDD, kKeyTrait_Printable, u"]")                       \
  ROW(Quote, 0xDE, kKeyTrait_Printable, u"'")

#define KROUI_DECLARE_KEY_CONSTANT(identifier, virtualKey, traits, displayName) \
  inline constexpr KeyboardCode kKey_##identifier =                             \
      KeyboardCode::Compose(virtualKey, ((traits) & kKeyTrait_Extended) != 0);
KROUI_ENUMERATE_KEYS(KROUI_DECLARE_KEY_CONSTANT)
#undef KROUI_DECLARE_KEY_CONSTANT

/// One row of the key list.
struct KeyInfo {
  KeyboardCode code;
  std::string_view identifier; // "PageDown", as in kKey_PageDown
  std::u16string_view displayName;
  std::uint8_t traits = 0;

  constexpr bool IsPrintable() const noexcept { return (traits & kKeyTrait_Printable) != 0; }
  /// The modifier this key itself sets (Shift for either Shift key); none for other keys.
  constexpr ModifierKeys GetModifier() const noexcept { return static_cast<std::uint8_t>(traits & kModKey_All); }
};

/// Every named key, in the order of the list above.
KROUI_API std::span<const KeyInfo> GetKeyTable() noexcept;

/// The row of a code: the row of the same virtual key and extended bit when
/// there is one (Num Enter), else the row of the virtual key (a keypad arrow
/// finds Left). Null for a code no row names. Reserved bits are ignored.
KROUI_API const KeyInfo* FindKey(KeyboardCode code) noexcept;

} // namespace kroui::ui
