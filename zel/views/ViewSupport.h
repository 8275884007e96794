#pragma once

// Private: what the view handles share.

#include <zel/commands/KeySpec.h>

#include <krocore/debug/Assert.h>
#include <kroui/base/ModifierKeys.h>
#include <kroui/skins/SkinManager.h>

namespace ZEL::detail {

/// Tooltips of skins from generation 7 on come sooner; the older skins keep
/// the longer delay their users know.
inline constexpr int kToolTipDelay_V7 = 200;
inline constexpr int kToolTipDelay_BeforeV7 = 400;

inline int ToolTipDelay() noexcept {
  return kroui::skins::IsRunningV7OrBeyond() ? kToolTipDelay_V7 : kToolTipDelay_BeforeV7;
}

inline KeyModifiers ToKeyModifiers(kroui::ui::ModifierKeys modifiers) { return KeyModifiers(modifiers.GetValue()); }

} // namespace ZEL::detail

/// Opens every SubView operation: without a node, report and return the
/// neutral value given (nothing for operations that return nothing). A
/// macro, so that the report names the operation that was called.
#define ZEL_SUBVIEW_REQUIRE_IMPL(...)                                                                       \
  if (!KROCORE_ASSERT(mImpl, "SubViewImpl has not been initialized")) return __VA_ARGS__
