#include <zel/workspace/WindowClasses.h>

#include <zel/Localization.h>

#include <map>
#include <string_view>

namespace ZEL {
namespace {

struct StandardClassName {
  std::string_view mClassName;
  std::string_view mKey;
};

// The standard classes of the host's window menu and the localized title of
// each; several class names are older than their titles.
constexpr StandardClassName kStandardClassNames[] = {
    {"Audio Clip Mixer", "$$$/Vantor/Libraries/ZEL/AudioClipMixerWindowTitle=Audio Clip Mixer"},
    {"Audio Meter", "$$$/Vantor/Libraries/ZEL/AudioMeters=Audio Meters"},
    {"Audio Mixers", "$$$/Vantor/Libraries/ZEL/AudioMixerTrackWindowTitle=Audio Track Mixer"},
    {"Capture", "$$$/Vantor/Libraries/ZEL/Capture=Capture"},
    {"Color Controls", "$$$/Vantor/Libraries/ZEL/Color=Color"},
    {"Color", "$$$/Vantor/Libraries/ZEL/Color=Color"},
    {"Learning", "$$$/Vantor/Libraries/ZEL/Learn=Learn"},
    {"Services", "$$$/Vantor/Libraries/ZEL/Libraries=Libraries"},
    {"Edit To Tape", "$$$/Vantor/Libraries/ZEL/EditToTape=Edit To Tape"},
    {"Effect Controls", "$$$/Vantor/Libraries/ZEL/EffectControls=Effect Controls"},
    {"Effects", "$$$/Vantor/Libraries/ZEL/Effects=Effects"},
    {"EssentialSound", "$$$/Vantor/Libraries/ZEL/EssentialSound=Essential Sound"},
    {"Events", ""},
    {"Graphics", "$$$/Vantor/Libraries/ZEL/EssentialGraphics=Essential Graphics"},
    {"History", "$$$/Vantor/Libraries/ZEL/History=History"},
    {"Info", "$$$/Vantor/Libraries/ZEL/Info=Info"},
    {"Inspector", "$$$/Vantor/Libraries/ZEL/Inspector=Inspector"},
    {"MarkerList", ""},
    {"Media Browser", "$$$/Vantor/Libraries/ZEL/MediaBrowser=Media Browser"},
    {"Metadata Editor", "$$$/Vantor/Libraries/ZEL/MetadataEditor=Metadata Editor"},
    {"Program Monitors", "$$$/Vantor/Libraries/ZEL/ProgramMonitor=&Program Monitor"},
    {"Progress", "$$$/Vantor/Libraries/ZEL/Progress=Progress"},
    {"Projects", "$$$/Vantor/Libraries/ZEL/Projects=Projects"},
    {"Properties2", "$$$/Vantor/Libraries/ZEL/Properties=Properties"},
    {"Properties", "$$$/Vantor/Libraries/ZEL/Properties=Properties"},
    {"VnProductionFolder", "$$$/Vantor/Libraries/ZEL/Production=Production"},
    {"Scopes", "$$$/Vantor/Libraries/ZEL/Scopes=Scopes"},
    {"SequenceIndex", "$$$/Vantor/Libraries/ZEL/Search=Search"},
    {"Source Monitors", "$$$/Vantor/Libraries/ZEL/SourceMonitor=&Source Monitor"},
    {"Timecode", "$$$/Vantor/Libraries/ZEL/Timecode=Timecode"},
    {"Timelines", "$$$/Vantor/Libraries/ZEL/Timelines=&Timelines"},
    {"Tools", "$$$/Vantor/Libraries/ZEL/Tools=Tools"},
    {"Version History", "$$$/Vantor/Libraries/ZEL/VersionHistory=Version History"},
};

// A class without a key of its own is shown under its name.
std::map<UTF8String, UTF8String, std::less<>> BuildDisplayNames() {
  std::map<UTF8String, UTF8String, std::less<>> names;
  for (const StandardClassName& standard : kStandardClassNames)
    names.emplace(standard.mClassName, standard.mKey.empty() ? UTF8String(standard.mClassName)
                                                              : Localize(standard.mKey));
  return names;
}

} // namespace

UTF8String SetWindowClassDisplayName(const UTF8String& className) {
  static const std::map<UTF8String, UTF8String, std::less<>> sDisplayNames = BuildDisplayNames();
  auto found = sDisplayNames.find(className);
  return found == sDisplayNames.end() ? className : found->second;
}

} // namespace ZEL
