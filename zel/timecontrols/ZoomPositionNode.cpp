#include <zel/timecontrols/ZoomPositionNode.h>

#include <zel/timecontrols/ZoomMessages.h>

namespace ZEL {

ZoomPositionNode::ZoomPositionNode(unsigned int cookie) : mCookie(cookie) {}

ZoomPositionNode::~ZoomPositionNode() = default;

void ZoomPositionNode::SetPosition(const ZoomPosition& position) { MoveTo(position); }

bool ZoomPositionNode::MoveTo(const ZoomPosition& position) {
  if (position == mPosition) return false;
  mPosition = position;
  Invalidate();
  return true;
}

void ZoomPositionNode::BroadcastChanging() const {
  mStation.Broadcast(ZoomPositionChangingMessage(mPosition, mCookie));
}

void ZoomPositionNode::BroadcastChanged() const { mStation.Broadcast(ZoomPositionChangedMessage(mPosition, mCookie)); }

} // namespace ZEL
