#pragma once

// Private: what the view handles share.

#include <zel/Export.h>
#include <zel/Forward.h>
#include <zel/commands/KeySpec.h>

#include <krocore/pointers/IntrusivePtr.h>
#include <kroui/Forward.h>
#include <kroui/base/ModifierKeys.h>
#include <kroui/skins/SkinManager.h>
#include <kroui/ui/UI_Container.h>

#include <memory>
#include <string_view>
#include <type_traits>
#include <version>

#if defined(__cpp_lib_source_location)
#include <source_location>
#endif

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

/// The operation a report is made against: the caller of the helpers below,
/// taken as their default argument. std::source_location where the standard
/// library has it; clang before 15 over libstdc++ lacks it, and there the
/// compiler's builtins name the function without its class.
struct CallSite {
  const char* file;
  int line;
  const char* function;
};

#if defined(__cpp_lib_source_location)
#define ZEL_CALL_SITE_PARAMETER const std::source_location& where = std::source_location::current()
#define ZEL_CALL_SITE                                                                                        \
  ::ZEL::detail::CallSite { where.file_name(), static_cast<int>(where.line()), where.function_name() }
#else
#define ZEL_CALL_SITE_PARAMETER                                                                              \
  const char *whereFile = __builtin_FILE(), int whereLine = __builtin_LINE(),                                \
             const char *whereFunction = __builtin_FUNCTION()
#define ZEL_CALL_SITE                                                                                        \
  ::ZEL::detail::CallSite { whereFile, whereLine, whereFunction }
#endif

/// Reports "<name> has not been initialized" against the operation at `site`.
ZEL_API void ReportNotInitialized(std::string_view name, const CallSite& site);

/// Opens every operation of a view handle (the rule is written in ViewBase.h):
///
///   if (!detail::HasNode(mImpl)) return {};
///
/// False, reported against the calling operation under the node class's
/// kReportedName, when the handle has no node yet.
template <typename NodePointer>
bool HasNode(const NodePointer& node, ZEL_CALL_SITE_PARAMETER) {
  if (node) [[likely]]
    return true;
  ReportNotInitialized(std::remove_cvref_t<decltype(*node)>::kReportedName, ZEL_CALL_SITE);
  return false;
}

/// The container node a view placed in `parent` goes into; null, reported
/// as `who`'s against `site`, when the parent is gone or its node cannot hold views.
ZEL_API krocore::IntrusivePtr<kroui::ui::UI_Container>
FindContainerOfParent(const std::weak_ptr<ViewBase>& parent, std::string_view who, const CallSite& site);

/// FindContainerOfParent, reported against the calling operation.
inline krocore::IntrusivePtr<kroui::ui::UI_Container>
ContainerOfParent(const std::weak_ptr<ViewBase>& parent, std::string_view who, ZEL_CALL_SITE_PARAMETER) {
  return FindContainerOfParent(parent, who, ZEL_CALL_SITE);
}

} // namespace ZEL::detail
