#include <zel/commands/CommandInfo.h>

#include <algorithm>

namespace ZEL {

CommandInfo::CommandInfo(std::string name, std::int32_t id, CommandKind kind, std::string nonLocalizedUIString,
                         UTF8String uiString, krocore::utility::ImmutableString bitmap, bool usesKeyUp)
    : mName(std::move(name)), mID(id), mKind(kind), mNonLocalizedUIString(std::move(nonLocalizedUIString)),
      mUIString(std::move(uiString)), mBitmap(bitmap), mUsesKeyUp(usesKeyUp) {}

bool CommandInfo::HasShortcut(const KeySpec& key) const {
  return std::find(mShortcuts.begin(), mShortcuts.end(), key) != mShortcuts.end();
}

bool CommandInfo::AddShortcut(const KeySpec& key) {
  if (!key.HasShortcut() || HasShortcut(key)) return false;
  mShortcuts.push_back(key);
  return true;
}

void CommandInfo::SetShortcut(const KeySpec& key) {
  mShortcuts.clear();
  AddShortcut(key);
}

void CommandInfo::SetShortcuts(std::vector<KeySpec> keys) {
  mShortcuts.clear();
  for (const KeySpec& key : keys) AddShortcut(key);
}

bool CommandInfo::ClearShortcut(const KeySpec& key) {
  const auto removed = std::erase(mShortcuts, key);
  return removed > 0;
}

KeySpec CommandInfo::GetMenuShortcut() const { return mShortcuts.empty() ? KeySpec() : mShortcuts.front(); }

void CommandInfo::AddBlockedContext(UTF8String contextName) {
  if (std::find(mBlockedContexts.begin(), mBlockedContexts.end(), contextName) == mBlockedContexts.end())
    mBlockedContexts.push_back(std::move(contextName));
}

} // namespace ZEL
