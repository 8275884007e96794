#pragma once

// Declarations of the framework's public types, for headers that only name them.

namespace ZEL {

// Commands and shortcuts.
class Command;
class CommandContext;
class CommandHandler;
class CommandInfo;
class Commander;
class KeyCommandMap;
class KeyModifiers;
class KeySpec;
class ShortcutManager;
class ShortcutSetFile;
class SyntheticCommand;

// The application.
class Application;
class DocumentManager;

// Views.
class BackgroundView;
class ControlView;
class DC;
class DCState;
class FocusSaver;
class Initializer;
class ModalControlInterface;
class ModalEventLoopDriver;
class OverlayView;
class PlatformView;
class ScrollBar;
class ScrollBarPositionChangedMessage;
class ScrollBarPositionChangingMessage;
class SubView;
class TopLevelWindow;
class ViewBase;
class WinOSEventFilterer;
namespace Windows {
class ParentAndChildWindowDisabler;
} // namespace Windows

// Time controls.
class AudioZoomBarControl;
struct AudioZoomRange;
struct MarkerAddition;
class ZoomBarCurve;
class ZoomControl;
class ZoomLimiter;
struct ZoomPosition;
class ZoomSlider;

// Workspace.
class IProject;
class SwitchableTabView;
class WindowClassCallback;
class WindowClassSortCallback;
class WindowContextHandler;
struct WindowInfo;
class Workspace;

// Appearance.
class ColorExpression;
class ColorManager;
class ColorRegistry;
class CursorInitializer;
class ThemeChangedMessage;
class ThemeResources;

} // namespace ZEL
