#pragma once

#include <be/Export.h>
#include <be/markers/ICompoundAction.h>

#include <memory>
#include <string>

namespace BE {

class UndoStack;

/// Gives an operation the compound action to record into: the caller's own,
/// when it passes one (the operation is then part of the caller's step), or a
/// new one that becomes one step on `stack` when the scope ends.
///
///   ScopedUndoStep step(markers.GetUndoStack(), "Add Marker", callerAction);
///   markers.AddMarker(fields, validator, &step.Action());
class BE_API ScopedUndoStep {
public:
  ScopedUndoStep(std::shared_ptr<UndoStack> stack, std::string name, ICompoundAction* outer = nullptr);
  ~ScopedUndoStep();
  ScopedUndoStep(const ScopedUndoStep&) = delete;
  ScopedUndoStep& operator=(const ScopedUndoStep&) = delete;

  ICompoundAction& Action() noexcept { return mOuter ? *mOuter : *mOwn; }

private:
  std::shared_ptr<UndoStack> mStack;
  std::unique_ptr<ICompoundAction> mOwn;
  ICompoundAction* mOuter;
};

} // namespace BE
