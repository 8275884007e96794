#include <zel/views/ViewBase.h>
#include <zel/views/ViewSupport.h>

#include <krocore/debug/Assert.h>
#include <kroui/ui/UI_Container.h>

#include <string>

namespace ZEL::detail {

void ReportNotInitialized(std::string_view name, const CallSite& site) {
  krocore::debug::ReportAssertion(std::string(name) + " has not been initialized", site.file, site.line,
                                  site.function);
}

krocore::IntrusivePtr<kroui::ui::UI_Container>
FindContainerOfParent(const std::weak_ptr<ViewBase>& parent, std::string_view who, const CallSite& site) {
  const std::shared_ptr<ViewBase> parentView = parent.lock();
  const auto parentNode = parentView ? parentView->GetKRONode() : nullptr;
  auto* container = dynamic_cast<kroui::ui::UI_Container*>(parentNode.Get());
  if (!container) {
    krocore::debug::ReportAssertion(std::string(who) + ": the parent view has no node that can hold views",
                                    site.file, site.line, site.function);
  }
  return krocore::IntrusivePtr<kroui::ui::UI_Container>(container);
}

} // namespace ZEL::detail
