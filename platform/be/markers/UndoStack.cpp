#include <be/markers/UndoStack.h>

#include <be/markers/UndoStackImpl.h>

#include <utility>

namespace BE {

UndoStack::UndoStack() : mImpl(std::make_unique<UndoStackImpl>()) {}

UndoStack::~UndoStack() = default;

void UndoStack::Push(std::unique_ptr<ICompoundAction> action) {
  if (!action || action->GetChangeCount() == 0) return;
  mImpl->mDone.push_back(std::move(action));
  mImpl->mUndone.clear();
}

bool UndoStack::Undo() {
  if (mImpl->mDone.empty()) return false;
  auto action = std::move(mImpl->mDone.back());
  mImpl->mDone.pop_back();
  action->Undo();
  mImpl->mUndone.push_back(std::move(action));
  return true;
}

bool UndoStack::Redo() {
  if (mImpl->mUndone.empty()) return false;
  auto action = std::move(mImpl->mUndone.back());
  mImpl->mUndone.pop_back();
  action->Redo();
  mImpl->mDone.push_back(std::move(action));
  return true;
}

std::size_t UndoStack::GetUndoCount() const noexcept { return mImpl->mDone.size(); }

std::size_t UndoStack::GetRedoCount() const noexcept { return mImpl->mUndone.size(); }

std::string UndoStack::GetUndoName() const { return mImpl->mDone.empty() ? std::string() : mImpl->mDone.back()->GetName(); }

void UndoStack::Clear() noexcept {
  mImpl->mDone.clear();
  mImpl->mUndone.clear();
}

} // namespace BE
