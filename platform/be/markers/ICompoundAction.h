#pragma once

#include <be/Export.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

namespace BE {

/// One step of the user, made of any number of changes, undone and redone as
/// a whole. The model records each change it makes into the action it is
/// given, as a pair of functions: how to take it back and how to do it again.
///
///   change 1, change 2, change 3 --Undo--> undo 3, undo 2, undo 1
///                                --Redo--> redo 1, redo 2, redo 3
class BE_API ICompoundAction {
public:
  virtual ~ICompoundAction();

  /// The step's name as the user sees it in the undo history.
  virtual const std::string& GetName() const noexcept = 0;
  /// Records a change that has just been made.
  virtual void Record(std::function<void()> undo, std::function<void()> redo) = 0;
  virtual std::size_t GetChangeCount() const noexcept = 0;
  /// Takes every change back, the last first.
  virtual void Undo() = 0;
  /// Makes every change again, the first first.
  virtual void Redo() = 0;
};

} // namespace BE
