#pragma once
// The umbrella header of the framework: includes every public header of ZEL.

#include <kls/Foundation.h>
#include <kls/ParamColor.h>

#include <zel/Localization.h>
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
#include <zel/views/MessageBox.h>
#include <zel/appearance/ColorManager.h>
#include <zel/appearance/ThemeChangedMessage.h>
#include <zel/appearance/ThemeResources.h>
