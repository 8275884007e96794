#include <be/markers/CompoundAction.h>

#include <be/markers/CompoundActionImpl.h>

#include <utility>

namespace BE {

ICompoundAction::~ICompoundAction() = default;

CompoundAction::CompoundAction(std::string name) : mImpl(std::make_unique<CompoundActionImpl>()) {
  mImpl->mName = std::move(name);
}

CompoundAction::~CompoundAction() = default;

const std::string& CompoundAction::GetName() const noexcept { return mImpl->mName; }

void CompoundAction::Record(std::function<void()> undo, std::function<void()> redo) {
  mImpl->mChanges.push_back({std::move(undo), std::move(redo)});
}

std::size_t CompoundAction::GetChangeCount() const noexcept { return mImpl->mChanges.size(); }

void CompoundAction::Undo() {
  // Reverse iterators, not a reversed view: clang 14 cannot build libstdc++ 12's views.
  for (auto change = mImpl->mChanges.rbegin(); change != mImpl->mChanges.rend(); ++change) change->undo();
}

void CompoundAction::Redo() {
  for (auto& change : mImpl->mChanges) change.redo();
}

} // namespace BE
