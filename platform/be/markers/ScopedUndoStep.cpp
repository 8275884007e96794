#include <be/markers/ScopedUndoStep.h>

#include <be/markers/CompoundAction.h>
#include <be/markers/UndoStack.h>

#include <utility>

namespace BE {

ScopedUndoStep::ScopedUndoStep(std::shared_ptr<UndoStack> stack, std::string name, ICompoundAction* outer)
    : mStack(std::move(stack)), mOuter(outer) {
  if (!mOuter) mOwn = std::make_unique<CompoundAction>(std::move(name));
}

ScopedUndoStep::~ScopedUndoStep() {
  if (mOwn && mStack) mStack->Push(std::move(mOwn));
}

} // namespace BE
