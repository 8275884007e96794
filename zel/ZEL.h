#pragma once
// The umbrella header of the framework: includes every public header of ZEL.

#include <kls/Foundation.h>
#include <kls/ParamColor.h>

#include <zel/Forward.h>
#include <zel/Localization.h>
#include <zel/application/Application.h>
#include <zel/application/MessageBox.h>
#include <zel/commands/AnalyticsUtils.h>
#include <zel/commands/Command.h>
#include <zel/commands/CommandContext.h>
#include <zel/commands/CommandHandler.h>
#include <zel/commands/CommandInfo.h>
#include <zel/commands/CommandTypes.h>
#include <zel/commands/Commander.h>
#include <zel/commands/KeyCommandMap.h>
#include <zel/commands/KeySpec.h>
#include <zel/commands/ShortcutManager.h>
#include <zel/commands/ShortcutSetFile.h>
#include <zel/commands/SyntheticCommand.h>
#include <zel/appearance/ColorManager.h>
#include <zel/appearance/ThemeChangedMessage.h>
#include <zel/appearance/ThemeResources.h>
#include <zel/views/BackgroundView.h>
#include <zel/views/ControlView.h>
#include <zel/views/DC.h>
#include <zel/views/DCState.h>
#include <zel/views/StatusBar.h>
#include <zel/views/StatusBarMessages.h>
#include <zel/views/SubView.h>
#include <zel/views/ViewBase.h>
#include <zel/appearance/Cursor.h>
#include <zel/views/OverlayView.h>
#include <zel/views/ScrollBar.h>
#include <zel/views/ScrollBarMessages.h>
#include <zel/views/PlatformView.h>
