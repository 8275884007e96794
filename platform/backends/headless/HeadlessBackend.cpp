// HeadlessBackend: the keyboard and message boxes.

#include <backends/headless/HeadlessBackend.h>
#include <backends/headless/HeadlessStateImpl.h>

#include <kroui/base/KeyTable.h>

#include <krocore/debug/Assert.h>

#include <algorithm>

namespace kroui::backend {
namespace {

// The keyboard keeps sides apart; a generic modifier is the union of its two.
struct ModifierSides {
  std::uint8_t modifier;
  ui::KeyboardCode generic;
  ui::KeyboardCode left;
  ui::KeyboardCode right;
};

constexpr ModifierSides kModifierSides[] = {
    {ui::kModKey_Shift, ui::kKey_Shift, ui::kKey_LeftShift, ui::kKey_RightShift},
    {ui::kModKey_Control, ui::kKey_Control, ui::kKey_LeftControl, ui::kKey_RightControl},
    {ui::kModKey_Alt, ui::kKey_Alt, ui::kKey_LeftAlt, ui::kKey_RightAlt},
};

const ModifierSides* FindGenericModifier(std::uint32_t virtualKey) {
  for (const ModifierSides& sides : kModifierSides) {
    if (sides.generic.GetControlCode(false) == virtualKey) return &sides;
  }
  return nullptr;
}

// The virtual key a press is held under: a generic modifier becomes one side.
std::uint32_t HeldKey(ui::KeyboardCode key) {
  const ModifierSides* sides = FindGenericModifier(key.GetControlCode(false));
  if (sides == nullptr) return key.GetControlCode(false);
  return (key.IsExtended() ? sides->right : sides->left).GetControlCode(false);
}

// Every process has a backend without choosing one: this one, from the library's load on.
[[maybe_unused]] const bool sIsDefault =
    (SetDefaultBackendMaker([]() -> std::unique_ptr<Backend> { return std::make_unique<HeadlessBackend>(); }), true);

} // namespace

HeadlessBackend::HeadlessBackend() : mState(std::make_unique<State>()) {}

HeadlessBackend::~HeadlessBackend() = default;

HeadlessBackend& HeadlessBackend::Install() {
  auto backend = std::make_unique<HeadlessBackend>();
  HeadlessBackend& installed = *backend;
  SetBackend(std::move(backend));
  return installed;
}

std::string_view HeadlessBackend::GetName() const { return "headless"; }

ui::ModifierKeys HeadlessBackend::GetModifierState() const {
  ui::ModifierKeys modifiers;
  for (const ModifierSides& sides : kModifierSides) {
    modifiers.Set(sides.modifier, IsKeyDown(sides.generic.GetControlCode(false)));
  }
  return modifiers;
}

bool HeadlessBackend::IsKeyDown(std::uint32_t virtualKey) const {
  if (const ModifierSides* sides = FindGenericModifier(virtualKey)) {
    return mState->IsHeld(sides->left) || mState->IsHeld(sides->right);
  }
  return mState->LiveKeys().contains(virtualKey);
}

int HeadlessBackend::ShowMessageBox(const ui::MessageBoxRequest& request) {
  mState->shown.push_back(request);
  const int fallback = ui::GetMessageBoxDefaultButton(request.type);
  if (mState->answers.empty()) return fallback;
  const int answer = mState->answers.front();
  mState->answers.pop_front();
  const std::span<const int> offered = ui::GetMessageBoxButtons(request.type);
  const bool isOffered = std::find(offered.begin(), offered.end(), answer) != offered.end();
  if (!KROCORE_ASSERT(isOffered, "HeadlessBackend: the queued answer is not a button of this message box")) {
    return fallback;
  }
  return answer;
}

void HeadlessBackend::PressKey(ui::KeyboardCode key) {
  if (!KROCORE_ASSERT(!key.IsNone(), "HeadlessBackend: no key to press")) return;
  mState->keysDown.insert(HeldKey(key));
}

void HeadlessBackend::ReleaseKey(ui::KeyboardCode key) { mState->keysDown.erase(HeldKey(key)); }

void HeadlessBackend::SetModifiers(ui::ModifierKeys modifiers) {
  for (const ModifierSides& sides : kModifierSides) {
    const bool wanted = modifiers.Has(sides.modifier);
    if (wanted && !IsKeyDown(sides.generic.GetControlCode(false))) PressKey(sides.left);
    if (!wanted) {
      ReleaseKey(sides.left);
      ReleaseKey(sides.right);
    }
  }
}

void HeadlessBackend::ReleaseAllKeys() { mState->keysDown.clear(); }

void HeadlessBackend::QueueMessageBoxAnswer(int button) { mState->answers.push_back(button); }

std::size_t HeadlessBackend::GetQueuedAnswerCount() const { return mState->answers.size(); }

std::span<const ui::MessageBoxRequest> HeadlessBackend::GetShownMessageBoxes() const { return mState->shown; }

void HeadlessBackend::Reset() { mState = std::make_unique<State>(); }

} // namespace kroui::backend
