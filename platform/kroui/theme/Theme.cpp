#include <kroui/theme/Theme.h>

#include <kroui/theme/ColorTrack.h>
#include <kroui/theme/ThemeReader.h>

#include <krocore/resources/ModuleResources.h>
#include <krocore/string/UTFConversion.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <map>
#include <mutex>
#include <string>

namespace kroui::ui {
namespace {

constexpr drawbot::ColorRGBA kUnknownColor{1.f, 0.f, 0.f, 1.f};

std::optional<ColorID> ParseID(std::string_view text) {
  ColorID id = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), id);
  if (error != std::errc() || end != text.data() + text.size() || text.empty()) return std::nullopt;
  return id;
}

} // namespace

struct Theme::Palette {
  std::map<ColorID, ColorTrack> tracks;
  std::map<std::pair<FontText, FontScheme>, float> fontSizes;
  std::map<ColorID, double> values;
  std::map<std::string, ColorID, std::less<>> names;

  void Merge(const ThemeDocument& document) {
    std::map<ColorID, ColorTrack> added;
    for (const KeyFrame& frame : document.keyFrames) added[frame.name].Add(frame);
    for (auto& [id, track] : added) tracks[id] = std::move(track);
    for (const FontSize& size : document.fontSizes) fontSizes[{size.name, size.scheme}] = size.size;
    for (const ThemeValue& value : document.values) values[value.name] = value.v;
    for (const auto& [name, text] : document.entities) {
      if (const auto id = ParseID(text); id && added.count(*id)) names[name] = *id;
    }
  }
};

Theme& Theme::Get() {
  static Theme* sTheme =
      new Theme; // never destroyed: functions may ask for colours during static destruction
  return *sTheme;
}

Theme::Theme() : mPalette(std::make_shared<Palette>()) {}
Theme::~Theme() = default;

std::shared_ptr<const Theme::Palette> Theme::CurrentPalette() const {
  std::lock_guard lock(mPaletteLock);
  return mPalette;
}

void Theme::SetBrightness(float brightness) {
  if (std::isnan(brightness)) return;
  brightness = std::clamp(brightness, 0.f, 1.f);
  if (mBrightness.exchange(brightness) != brightness) NotifyThemeChanged();
}

void Theme::NotifyThemeChanged() { CallThemeChangedFunctions(); }

krocore::utility::Result<void> Theme::Load(std::string_view xml) {
  auto document = ThemeReader::Read(xml);
  if (!document) return krocore::utility::Result<void>::Failure(document.Error());
  {
    std::lock_guard lock(mPaletteLock);
    auto merged = std::make_shared<Palette>(*mPalette);
    merged->Merge(document.Value());
    mPalette = std::move(merged);
  }
  NotifyThemeChanged();
  return krocore::utility::Result<void>::Success();
}

krocore::utility::Result<void> Theme::LoadFromModule(std::string_view module, std::u16string_view type,
                                                     std::u16string_view name) {
  const auto bytes = krocore::utility::GetBinaryFromModule(module, type, name);
  if (bytes.IsEmpty())
    return krocore::utility::Result<void>::Failure("The module " + std::string(module) + " holds no theme " +
                                                   krocore::string::UTF16to8(name));
  return Load(bytes.AsText());
}

void Theme::Reset() {
  {
    std::lock_guard lock(mPaletteLock);
    mPalette = std::make_shared<Palette>();
  }
  mBrightness.store(kDefaultBrightness);
  NotifyThemeChanged();
}

void Theme::SetKeyFrame(const KeyFrame& frame) {
  std::lock_guard lock(mPaletteLock);
  auto edited = std::make_shared<Palette>(*mPalette);
  edited->tracks[frame.name].Add(frame);
  mPalette = std::move(edited);
}

bool Theme::RemoveKeyFrame(ColorID id, float t) {
  std::lock_guard lock(mPaletteLock);
  const auto found = mPalette->tracks.find(id);
  if (found == mPalette->tracks.end()) return false;
  ColorTrack track = found->second;
  if (!track.Remove(t)) return false;
  auto edited = std::make_shared<Palette>(*mPalette);
  if (track.IsEmpty())
    edited->tracks.erase(id);
  else
    edited->tracks[id] = std::move(track);
  mPalette = std::move(edited);
  return true;
}

bool Theme::HasColor(ColorID id) const { return CurrentPalette()->tracks.count(id) != 0; }

drawbot::ColorRGBA Theme::GetColor(ColorID id) const { return GetColorAt(id, GetBrightness()); }

drawbot::ColorRGBA Theme::GetColorAt(ColorID id, float brightness) const {
  const auto palette = CurrentPalette();
  const auto found = palette->tracks.find(id);
  return found == palette->tracks.end() ? kUnknownColor : found->second.At(brightness);
}

std::vector<ColorID> Theme::GetColorIDs() const {
  const auto palette = CurrentPalette();
  std::vector<ColorID> ids;
  ids.reserve(palette->tracks.size());
  for (const auto& entry : palette->tracks) ids.push_back(entry.first);
  return ids;
}

std::optional<ColorID> Theme::FindColorID(std::string_view entityName) const {
  const auto palette = CurrentPalette();
  const auto found = palette->names.find(entityName);
  if (found == palette->names.end()) return std::nullopt;
  return found->second;
}

std::optional<float> Theme::GetFontSize(FontText text, FontScheme scheme) const {
  const auto palette = CurrentPalette();
  const auto found = palette->fontSizes.find({text, scheme});
  if (found == palette->fontSizes.end()) return std::nullopt;
  return found->second;
}

std::optional<double> Theme::GetValue(ColorID id) const {
  const auto palette = CurrentPalette();
  const auto found = palette->values.find(id);
  if (found == palette->values.end()) return std::nullopt;
  return found->second;
}

drawbot::ColorRGBA GetColor(ColorID id) { return Theme::Get().GetColor(id); }

} // namespace kroui::ui
