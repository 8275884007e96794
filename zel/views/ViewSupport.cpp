#include <zel/views/ViewSupport.h>

#include <zel/views/ViewBase.h>

#include <krocore/debug/Assert.h>
#include <kroui/ui/UI_Container.h>

#include <string>

namespace ZEL::detail {

void ReportNotInitialized(std::string_view name, const std::source_location& where) {
  krocore::debug::ReportAssertion(std::string(name) + " has not been initialized", where.file_name(),
                                  static_cast<int>(where.line()), where.function_name());
}

krocore::IntrusivePtr<kroui::ui::UI_Container> ContainerOfParent(const std::weak_ptr<ViewBase>& parent,
                                                                  std::string_view who,
                                                                  const std::source_location& where) {
  const std::shared_ptr<ViewBase> parentView = parent.lock();
  const auto parentNode = parentView ? parentView->GetKRONode() : nullptr;
  auto* container = dynamic_cast<kroui::ui::UI_Container*>(parentNode.Get());
  if (!container) {
    krocore::debug::ReportAssertion(std::string(who) + ": the parent view has no node that can hold views",
                                    where.file_name(), static_cast<int>(where.line()), where.function_name());
  }
  return krocore::IntrusivePtr<kroui::ui::UI_Container>(container);
}

} // namespace ZEL::detail
