#pragma once

// Declarations of kroui's public types, for headers that only name them.

namespace kroui::ui {
class KeyboardCode;
class KeyboardEvent;
struct KeyInfo;
struct MessageBoxRequest;
} // namespace kroui::ui

namespace kroui::ksv {
class ActionInfo;
} // namespace kroui::ksv

namespace kroui::backend {
class Backend;
class HeadlessBackend;
} // namespace kroui::backend
