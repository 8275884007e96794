#pragma once

// Private: what a ModalEventLoopDriver holds.

namespace ZEL {

class ModalControlInterface;

struct ModalEventLoopDriverImpl {
  ModalControlInterface& control;
};

} // namespace ZEL
