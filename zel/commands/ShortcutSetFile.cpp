#include <zel/commands/ShortcutSetFile.h>

#include <zel/commands/CommandContext.h>
#include <zel/commands/ShortcutManager.h>

#include <be/store/XMLPropertyStore.h>

#include <algorithm>
#include <array>
#include <optional>

namespace ZEL {
namespace {

using Failure = ShortcutSetFile::Failure;

constexpr std::string_view kPlatformKey = "platform";
constexpr std::string_view kContextKey = "context";
constexpr std::string_view kItemKey = "item";
constexpr std::string_view kItemCountKey = "itemcount";
constexpr std::string_view kCommandNameKey = "commandname";
constexpr std::string_view kVirtualKeyKey = "virtualkey";
constexpr std::string_view kAltKey = "modifier.alt";
constexpr std::string_view kShiftKey = "modifier.shift";
constexpr std::string_view kControlKey = "modifier.ctrl";

// Which key a set's "modifier.ctrl" bit means on the system that made it.
// Key codes are the same everywhere, so a set reads wherever this matches.
enum class ModifierConvention { Control, Command };

struct PlatformConvention {
  std::string_view platform;
  ModifierConvention convention;
};

// Every system a set may come from; a name not listed here is never read.
constexpr std::array kPlatformConventions{
    PlatformConvention{"windows", ModifierConvention::Control},
    PlatformConvention{"linux", ModifierConvention::Control},
    PlatformConvention{"mac", ModifierConvention::Command},
};

std::optional<ModifierConvention> ConventionOf(std::string_view platform) {
  for (const auto& row : kPlatformConventions)
    if (row.platform == platform) return row.convention;
  return std::nullopt;
}

// A set made on `platform` means here what it meant there.
bool ReadsHere(std::string_view platform) {
  const auto theirs = ConventionOf(platform);
  return theirs && theirs == ConventionOf(ShortcutSetFile::GetPlatformName());
}

void WriteItem(BE::IPropertyStoreWriter& writer, std::uint32_t index, const std::string& command, const KeySpec& key) {
  writer.OpenGroup(BE::CreateKeyWithIndex(kItemKey, index));
  writer.WriteString(kCommandNameKey, command);
  writer.WriteUnsigned(kVirtualKeyKey, key.GetKey());
  writer.WriteBool(kAltKey, key.Alt());
  writer.WriteBool(kShiftKey, key.Shift());
  writer.WriteBool(kControlKey, key.Control());
  writer.CloseGroup();
}

void WriteContext(BE::IPropertyStoreWriter& writer, const CommandContext& context) {
  writer.OpenGroup(BE::CreateKeyWithSuffix(kContextKey, context.GetName()));
  std::uint32_t index = 0;
  for (const auto& [name, info] : context.GetCommandNameMap())
    for (const KeySpec& key : info.GetShortcuts()) WriteItem(writer, index++, name, key);
  writer.WriteUnsigned(kItemCountKey, index);
  writer.CloseGroup();
}

// One item of the open context group into `shortcuts`; false when the item
// cannot be used (unknown command, damaged fields, a duplicate).
bool ReadItem(const BE::IPropertyStoreReader& reader, const CommandContext& context,
              std::map<std::string, std::vector<KeySpec>>& shortcuts) {
  const auto command = reader.ReadString(kCommandNameKey);
  const auto virtualKey = reader.ReadUnsigned(kVirtualKeyKey);
  if (!command || !virtualKey || *virtualKey == 0) return false;
  if (context.GetCommandNameMap().find(*command) == context.GetCommandNameMap().end()) return false;
  const KeySpec key(*virtualKey, reader.ReadBool(kControlKey).value_or(false), reader.ReadBool(kAltKey).value_or(false),
                    reader.ReadBool(kShiftKey).value_or(false));
  auto& keys = shortcuts[std::string(*command)];
  if (std::find(keys.begin(), keys.end(), key) != keys.end()) return false;
  keys.push_back(key);
  return true;
}

// The open context group; Invalid when its item count does not fit what it holds.
Failure ReadContext(BE::IPropertyStoreReader& reader, CommandContext& context, ShortcutSetFile::ReadSet& set) {
  const auto count = reader.ReadUnsigned(kItemCountKey);
  // Never trust a count from the file further than the entries it really
  // has: the group holds "itemcount" itself and one group per item.
  if (!count || *count >= reader.GetKeys().size()) return Failure::Invalid;
  std::map<std::string, std::vector<KeySpec>> shortcuts;
  for (std::uint32_t i = 0; i < *count; ++i) {
    if (!reader.OpenGroup(BE::CreateKeyWithIndex(kItemKey, i))) return Failure::Invalid;
    if (!ReadItem(reader, context, shortcuts)) ++set.skippedItems;
    reader.CloseGroup();
  }
  set.contexts.emplace_back(&context, std::move(shortcuts));
  return Failure::None;
}

} // namespace

const char* ShortcutSetFile::GetPlatformName() noexcept {
#if defined(_WIN32)
  return "windows";
#elif defined(__APPLE__)
  return "mac";
#else
  return "linux";
#endif
}

bool ShortcutSetFile::Write(const ShortcutManager& manager, const std::filesystem::path& path) {
  auto writer = krocore::classref::CreateClassInstanceRef<BE::IPropertyStoreWriter>(BE::kXMLFileWriterClassID);
  if (!writer) return false;
  writer->WriteString(kPlatformKey, GetPlatformName());
  for (std::size_t i = 0; i < manager.GetContextCount(); ++i) WriteContext(*writer, manager.GetContext(i));
  return writer->Save(path).IsSuccess();
}

ShortcutSetFile::ReadSet ShortcutSetFile::Read(const ShortcutManager& manager, const std::filesystem::path& path) {
  return ReadWith(manager, [&](BE::IPropertyStoreReader& reader) { return reader.ReadFile(path); });
}

ShortcutSetFile::ReadSet ShortcutSetFile::ReadBytes(const ShortcutManager& manager, std::string_view bytes) {
  return ReadWith(manager, [&](BE::IPropertyStoreReader& reader) { return reader.ReadBytes(bytes); });
}

template <typename Load>
ShortcutSetFile::ReadSet ShortcutSetFile::ReadWith(const ShortcutManager& manager, const Load& load) {
  ReadSet set;
  auto reader = krocore::classref::CreateClassInstanceRef<BE::IPropertyStoreReader>(BE::kXMLFileReaderClassID);
  const auto result = reader ? load(*reader) : BE::StoreReadResult::Failure(BE::StoreReadStatus::kNotAStore, "");
  if (!result) {
    set.failure = result.Status() == BE::StoreReadStatus::kIncompatibleVersion ? Failure::IncompatibleVersion
                                                                               : Failure::Invalid;
    return set;
  }
  if (!ReadsHere(reader->ReadString(kPlatformKey).value_or(""))) {
    set.failure = Failure::OtherPlatform;
    return set;
  }
  for (std::size_t i = 0; i < manager.GetContextCount() && set.failure == Failure::None; ++i) {
    CommandContext& context = manager.GetContext(i);
    if (!reader->OpenGroup(BE::CreateKeyWithSuffix(kContextKey, context.GetName()))) continue;
    set.failure = ReadContext(*reader, context, set);
    reader->CloseGroup();
  }
  if (set.failure != Failure::None) set.contexts.clear();
  return set;
}

} // namespace ZEL
