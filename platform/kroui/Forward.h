#pragma once

// Declarations of kroui's public types, for headers that only name them.

namespace kroui::ui {
class Cursor;
class DataObject;
class DataSource;
struct DragSession;
class EventLoop;
class KeyboardCode;
class KeyboardEvent;
struct KeyInfo;
struct LayoutBinding;
struct MessageBoxRequest;
struct OS_Event;
struct PointerEvent;
class ToolTipManager;
class UI_Animator;
class UI_Container;
class UI_Node;
class UI_Window;
struct UI_NodeAnchor;
template <typename T>
class RefCountedWeakPtr;

// Private implementations, named here because a public class holds them by pointer.
struct UI_WindowImpl;
struct UI_NodeExtras;
} // namespace kroui::ui

namespace kroui::drawbot {
class Drawbot;
class Image;
class RasterSurface;
class RecordingDrawbot;
struct ColorRGBA;
struct DrawCommand;
struct FontKey;
struct FontSpec;
struct GlyphRunCacheStatistics;
struct PointF;
struct RectF;
struct TextMetrics;
} // namespace kroui::drawbot

namespace kroui::ksv {
class ActionInfo;
} // namespace kroui::ksv

namespace kroui::backend {
class Backend;
class HeadlessBackend;
struct MonitorInfo;
struct WindowDescription;
} // namespace kroui::backend

namespace kroui::utility {
class CursorCanvas;
class OS_ResourceManager;
class ResourceManager;
class TimerQueue;
} // namespace kroui::utility

// The theme engine and skins.
namespace kroui::ui {
class ColorTrack;
class DTDEntities;
class Theme;
class ThemeChangedFunctionHandle;
class ThemeReader;
struct FontSize;
struct KeyFrame;
struct ThemeDocument;
struct ThemeValue;
} // namespace kroui::ui

namespace kroui::skins::core {
class SkinManager;
} // namespace kroui::skins::core
