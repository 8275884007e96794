#pragma once

#include <zel/views/DC.h>

namespace ZEL {

/// Saves a DC's state where it is made and restores it where it goes, so
/// that a block of painting can clip, move and change the pen for itself.
class DCState {
public:
  explicit DCState(DC& dc) : mDC(dc), mDepth(dc.GetStateDepth()) { mDC.SaveState(); }
  ~DCState() {
    // Also restores what the block saved and did not restore itself.
    while (mDC.GetStateDepth() > mDepth && mDC.RestoreState()) {
    }
  }
  DCState(const DCState&) = delete;
  DCState& operator=(const DCState&) = delete;

private:
  DC& mDC;
  int mDepth;
};

} // namespace ZEL
