#include <be/markers/UndoStack.h>

#include <be/markers/UndoStackImpl.h>

#include <utility>

namespace BE {
namespace {

using Steps = std::vector<std::unique_ptr<ICompoundAction>>;

// Takes the top step of `from`, undoes or redoes it, and puts it on `to`.
bool MoveTop(Steps& from, Steps& to, void (ICompoundAction::*apply)()) {
  if (from.empty()) return false;
  auto action = std::move(from.back());
  from.pop_back();
  ((*action).*apply)();
  to.push_back(std::move(action));
  return true;
}

} // namespace

UndoStack::UndoStack() : mImpl(std::make_unique<UndoStackImpl>()) {}

UndoStack::~UndoStack() = default;

void UndoStack::Push(std::unique_ptr<ICompoundAction> action) {
  if (!action || action->GetChangeCount() == 0) return;
  mImpl->mDone.push_back(std::move(action));
  mImpl->mUndone.clear();
}

bool UndoStack::Undo() { return MoveTop(mImpl->mDone, mImpl->mUndone, &ICompoundAction::Undo); }

bool UndoStack::Redo() { return MoveTop(mImpl->mUndone, mImpl->mDone, &ICompoundAction::Redo); }

std::size_t UndoStack::GetUndoCount() const noexcept { return mImpl->mDone.size(); }

std::size_t UndoStack::GetRedoCount() const noexcept { return mImpl->mUndone.size(); }

std::string UndoStack::GetUndoName() const { return mImpl->mDone.empty() ? std::string() : mImpl->mDone.back()->GetName(); }

void UndoStack::Clear() noexcept {
  mImpl->mDone.clear();
  mImpl->mUndone.clear();
}

} // namespace BE
