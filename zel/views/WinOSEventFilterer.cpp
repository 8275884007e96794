#include <zel/views/WinOSEventFilterer.h>

#include <kroui/ui/EventLoop.h>

#include <krocore/debug/Assert.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <vector>

namespace ZEL {
namespace {

struct FilterEntry {
  WinOSEventFilterer::FilterFunction function; ///< null: unregistered during a walk, erased after it
  void* context;
};

// The list exists only while it holds entries. While a walk is in progress
// (walks nest when a filter runs a loop of its own) entries are never moved:
// an unregistered one is emptied in place and the list is tidied when the
// outermost walk ends, so that indices held by every walk stay valid.
struct FilterList {
  std::vector<FilterEntry> entries;
  int walkDepth = 0;
  bool hasEmptiedEntries = false;
};

std::unique_ptr<FilterList> sList;

// Erases emptied entries and frees the list, unplugging it from the event loop, once nothing walks it.
void TidyList() {
  if (sList->walkDepth > 0) return;
  if (sList->hasEmptiedEntries) {
    std::erase_if(sList->entries, [](const FilterEntry& entry) { return entry.function == nullptr; });
    sList->hasEmptiedEntries = false;
  }
  if (!sList->entries.empty()) return;
  sList.reset();
  kroui::ui::EventLoop::Instance().SetProcessMessageFilter(nullptr);
}

class Walk {
public:
  Walk() { ++sList->walkDepth; }
  ~Walk() {
    --sList->walkDepth;
    TidyList();
  }
  Walk(const Walk&) = delete;
  Walk& operator=(const Walk&) = delete;
};

} // namespace

void WinOSEventFilterer::RegisterFilter(FilterFunction function, void* context) {
  if (!KROCORE_ASSERT(function, "WinOSEventFilterer::RegisterFilter: no filter function")) return;
  std::unique_ptr<FilterList> made;
  FilterList& list = sList ? *sList : *(made = std::make_unique<FilterList>());
  if (list.entries.size() >= list.entries.max_size()) {
    throw std::length_error("WinOSEventFilterer::RegisterFilter: the filter list is full");
  }
  list.entries.push_back({function, context});
  if (!made) return;
  sList = std::move(made);
  kroui::ui::EventLoop::Instance().SetProcessMessageFilter(&WinOSEventFilterer::FilterEvent);
}

void WinOSEventFilterer::UnregisterFilter(FilterFunction function, void* context) {
  if (!sList || !function) return;
  std::vector<FilterEntry>& entries = sList->entries;
  const auto found = std::find_if(entries.begin(), entries.end(), [&](const FilterEntry& entry) {
    return entry.function == function && entry.context == context;
  });
  if (found == entries.end()) return;
  if (sList->walkDepth > 0) {
    found->function = nullptr;
    sList->hasEmptiedEntries = true;
  } else {
    entries.erase(found);
  }
  TidyList();
}

bool WinOSEventFilterer::FilterEvent(const MSG& message) {
  if (!sList) return false;
  const Walk walk;
  // Entries registered during the walk wait for the next message.
  const std::size_t count = sList->entries.size();
  for (std::size_t i = 0; i < count; ++i) {
    // A copy: a registration during the call may move the entries.
    const FilterEntry entry = sList->entries[i];
    if (entry.function && entry.function(message, entry.context)) return true;
  }
  return false;
}

} // namespace ZEL
