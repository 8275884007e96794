#pragma once

// Private: what the view handles share.

#include <zel/Export.h>
#include <zel/Forward.h>
#include <zel/commands/KeySpec.h>

#include <krocore/pointers/IntrusivePtr.h>
#include <kroui/Forward.h>
#include <kroui/base/ModifierKeys.h>
#include <kroui/skins/SkinManager.h>

#include <memory>
#include <source_location>
#include <string_view>
#include <type_traits>

namespace ZEL::detail {

/// Tooltips of skins from generation 7 on come sooner; the older skins keep
/// the longer delay their users know.
inline constexpr int kToolTipDelay_V7 = 200;
inline constexpr int kToolTipDelay_BeforeV7 = 400;

inline int ToolTipDelay() noexcept {
  return kroui::skins::IsRunningV7OrBeyond() ? kToolTipDelay_V7 : kToolTipDelay_BeforeV7;
}

inline KeyModifiers ToKeyModifiers(kroui::ui::ModifierKeys modifiers) {
  return KeyModifiers(modifiers.GetValue());
}

/// Reports "<name> has not been initialized" against the operation at `where`.
ZEL_API void ReportNotInitialized(std::string_view name, const std::source_location& where);

/// Opens every operation of a view handle (the rule is written in ViewBase.h):
///
///   if (!detail::HasNode(mImpl)) return {};
///
/// False, reported against the calling operation under the node class's
/// kReportedName, when the handle has no node yet.
template <typename NodePointer>
bool HasNode(const NodePointer& node, const std::source_location& where = std::source_location::current()) {
  if (node) [[likely]]
    return true;
  ReportNotInitialized(std::remove_cvref_t<decltype(*node)>::kReportedName, where);
  return false;
}

/// The container node a view placed in `parent` goes into; null, reported
/// as `who`'s, when the parent is gone or its node cannot hold views.
krocore::IntrusivePtr<kroui::ui::UI_Container>
ContainerOfParent(const std::weak_ptr<ViewBase>& parent, std::string_view who,
                  const std::source_location& where = std::source_location::current());

} // namespace ZEL::detail
