#pragma once

#include <be/Export.h>
#include <be/markers/ICompoundAction.h>

#include <cstddef>
#include <memory>
#include <string>

namespace BE {

class UndoStackImpl;

/// The undo history of a document: the steps done, and the steps undone that
/// can still be redone. A new step drops the steps that could be redone.
/// Main thread only, like every change of the model.
class BE_API UndoStack {
public:
  UndoStack();
  ~UndoStack();
  UndoStack(const UndoStack&) = delete;
  UndoStack& operator=(const UndoStack&) = delete;

  /// Adds a step that has been done; an action with no change is dropped.
  void Push(std::unique_ptr<ICompoundAction> action);
  /// False when there is nothing to undo.
  bool Undo();
  /// False when there is nothing to redo.
  bool Redo();

  std::size_t GetUndoCount() const noexcept;
  std::size_t GetRedoCount() const noexcept;
  /// The name of the step Undo would take back; empty when there is none.
  std::string GetUndoName() const;
  void Clear() noexcept;

private:
  std::unique_ptr<UndoStackImpl> mImpl;
};

} // namespace BE
