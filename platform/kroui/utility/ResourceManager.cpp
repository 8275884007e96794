#include <kroui/utility/ResourceManager.h>

#include <kroui/drawbot/RasterSurface.h>
#include <kroui/utility/OS_ResourceManager.h>

#include <krocore/debug/Assert.h>
#include <krocore/resources/ModuleResources.h>

#include <algorithm>
#include <span>

namespace kroui::utility {
namespace {

std::unique_ptr<ResourceManager>& Installed() {
  static std::unique_ptr<ResourceManager> sManager;
  return sManager;
}

/// Resource names are ASCII; anything else is shown as '?' in reports.
std::string Narrow(std::u16string_view text) {
  std::string narrow;
  for (char16_t c : text) narrow.push_back(c < 0x80 ? static_cast<char>(c) : '?');
  return narrow;
}

/// The number after the last '_' of `name`, which is cut back to before that '_'.
std::optional<int> TakeLastNumber(std::u16string_view& name) {
  const std::size_t underscore = name.rfind(u'_');
  if (underscore == std::u16string_view::npos) return std::nullopt;
  const std::u16string_view digits = name.substr(underscore + 1);
  // Four digits reach past any cursor image's size and keep the sum in range.
  if (digits.empty() || digits.size() > 4) return std::nullopt;
  int value = 0;
  for (char16_t c : digits) {
    if (c < u'0' || c > u'9') return std::nullopt;
    value = value * 10 + (c - u'0');
  }
  name = name.substr(0, underscore);
  return value;
}

ui::CursorHold HoldOf(CursorMode mode) {
  switch (mode) {
  case CursorMode::UntilButtonUp: return ui::CursorHold::WhileButtonDown;
  case CursorMode::Keep: return ui::CursorHold::UntilNextSet;
  default: return ui::CursorHold::None;
  }
}

} // namespace

ResourceManager::ResourceManager(std::string module) : mModule(std::move(module)) {}

ResourceManager::~ResourceManager() = default;

std::optional<ui::Point> ResourceManager::ParseHotSpot(std::u16string_view name) {
  const std::optional<int> y = TakeLastNumber(name);
  const std::optional<int> x = y ? TakeLastNumber(name) : std::nullopt;
  if (!x || name.empty()) return std::nullopt;
  return ui::Point{*x, *y};
}

bool ResourceManager::RegisterPNGCursor(std::int32_t id, std::u16string_view name, std::string_view module) {
  if (!KROCORE_ASSERT(ParseHotSpot(name), "ResourceManager: the cursor name " + Narrow(name) +
                                              " does not end in its hot spot (_<x>_<y>)"))
    return false;
  Entry entry;
  entry.name = name;
  entry.module = module.empty() ? mModule : std::string(module);
  const auto found = mEntries.find(id);
  if (found != mEntries.end() && found->second.name == entry.name && found->second.module == entry.module)
    return true;
  Store(id, std::move(entry));
  return true;
}

void ResourceManager::RegisterCursor(std::int32_t id, ui::CursorPtr cursor) {
  Entry entry;
  entry.isMade = true;
  entry.cursor = std::move(cursor);
  Store(id, std::move(entry));
}

void ResourceManager::RegisterLazyCursor(std::int32_t id, std::function<ui::CursorPtr()> make) {
  Entry entry;
  entry.make = std::move(make);
  Store(id, std::move(entry));
}

void ResourceManager::Store(std::int32_t id, Entry entry) {
  if (!mEntries.contains(id)) mOrder.push_back(id);
  mEntries.insert_or_assign(id, std::move(entry));
}

bool ResourceManager::HasCursor(std::int32_t id) const { return mEntries.contains(id); }

std::u16string ResourceManager::GetCursorResourceName(std::int32_t id) const {
  const auto found = mEntries.find(id);
  return found == mEntries.end() ? std::u16string() : found->second.name;
}

ui::CursorPtr ResourceManager::GetCursor(std::int32_t id) const {
  const auto found = mEntries.find(id);
  if (!KROCORE_ASSERT(found != mEntries.end(),
                      "ResourceManager: no cursor is registered under ID " + std::to_string(id)))
    return nullptr;
  const Entry& entry = found->second;
  if (!entry.isMade) {
    entry.cursor = Load(entry);
    entry.isMade = true;
  }
  return entry.cursor;
}

ui::CursorPtr ResourceManager::Load(const Entry& entry) const {
  if (entry.make) return entry.make();
  const auto bytes = krocore::utility::GetBinaryFromModule(entry.module, kCursorResourceType, entry.name);
  const std::string where = Narrow(entry.name) + " of module " + entry.module;
  if (!KROCORE_ASSERT(!bytes.IsEmpty(), "ResourceManager: there is no cursor resource " + where))
    return nullptr;
  auto image = drawbot::DecodePNG(std::span(bytes.data, bytes.size));
  if (!KROCORE_ASSERT(image.IsSuccess(),
                      "ResourceManager: the cursor " + where + " cannot be read: " + image.Error()))
    return nullptr;
  return ui::Cursor::Create(std::move(image).Value(), *ParseHotSpot(entry.name));
}

void ResourceManager::SetCursor(std::int32_t id, CursorMode mode) {
  if (!KROCORE_ASSERT(HasCursor(id),
                      "ResourceManager: no cursor is registered under ID " + std::to_string(id)))
    return;
  ui::CursorPtr cursor = GetCursor(id);
  if (mode != CursorMode::Preload) ui::SetCursor(std::move(cursor), HoldOf(mode));
}

ResourceManager& GetResourceManager() {
  std::unique_ptr<ResourceManager>& installed = Installed();
  if (!installed) installed = std::make_unique<OS_ResourceManager>();
  return *installed;
}

void SetResourceManager(std::unique_ptr<ResourceManager> manager) { Installed() = std::move(manager); }

} // namespace kroui::utility
