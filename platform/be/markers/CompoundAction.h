#pragma once

#include <be/Export.h>
#include <be/markers/ICompoundAction.h>

#include <memory>
#include <string>

namespace BE {

class CompoundActionImpl;

/// The model's compound action: the recorded changes in order.
class BE_API CompoundAction final : public ICompoundAction {
public:
  explicit CompoundAction(std::string name);
  ~CompoundAction() override;

  const std::string& GetName() const noexcept override;
  void Record(std::function<void()> undo, std::function<void()> redo) override;
  std::size_t GetChangeCount() const noexcept override;
  void Undo() override;
  void Redo() override;

private:
  std::unique_ptr<CompoundActionImpl> mImpl;
};

} // namespace BE
