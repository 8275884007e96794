#pragma once

#include <kroui/Export.h>
#include <kroui/base/DataObject.h>

#include <functional>
#include <memory>

namespace kroui::ui {

struct DataSourceImpl;

/// What a node offers when the user drags from it, and the drag itself, run
/// as a modal loop from where the pointer is:
///
///   DoDragDrop --> an invisible tracking window takes the pointer capture
///     pointer moves  --> DragEnter / DragOver / DragLeave to the node under it,
///                        in whichever of our windows is there; the cursor shows
///                        copy, move or refusal by the node's answer
///     button up      --> Drop on that node when it accepted; otherwise a leave
///     Escape, lost capture, Finish --> a leave; nothing is dropped
///   --> the finished hook hears the effect (kDropEffect_None: nothing dropped)
///
/// Timers, posted work and painting go on while the drag runs, so targets
/// can show where the data would land. UI thread only.
class KROUI_API DataSource {
public:
  using FinishedHook = std::function<void(int effect)>;

  DataSource();
  ~DataSource();
  DataSource(const DataSource&) = delete;
  DataSource& operator=(const DataSource&) = delete;

  /// The data a drag offers and the kDropEffect_ bits it allows.
  void SetData(DataObject data, int allowedEffects = kDropEffect_Copy | kDropEffect_Move);
  const DataObject& GetData() const noexcept;
  int GetAllowedEffects() const noexcept;
  void SetFinishedHook(FinishedHook hook);

  /// Runs the drag until it ends; returns the effect the target took. A drag
  /// with nothing to offer, or started while another runs, ends at once with
  /// kDropEffect_None.
  int DoDragDrop();
  bool IsDragging() const noexcept;
  /// Ends a drag in progress as cancelled and forgets the data.
  void Finish();

private:
  std::unique_ptr<DataSourceImpl> mImpl;
};

} // namespace kroui::ui
