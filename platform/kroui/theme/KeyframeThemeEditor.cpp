#include <kroui/theme/KeyframeThemeEditor.h>

#include <kroui/theme/Theme.h>

namespace kroui::ui {
namespace {
KeyframeThemeEditor* sEditor = nullptr;
} // namespace

KeyframeThemeEditor& KeyframeThemeEditor::Create() {
  if (!sEditor) sEditor = new KeyframeThemeEditor();
  return *sEditor;
}

void KeyframeThemeEditor::Destroy() {
  if (!sEditor) return;
  sEditor->NotifyThemeChanged();
  delete sEditor;
  sEditor = nullptr;
}

KeyframeThemeEditor* KeyframeThemeEditor::Get() noexcept { return sEditor; }

void KeyframeThemeEditor::SetKeyFrame(const KeyFrame& frame) {
  Theme::Get().SetKeyFrame(frame);
  ++mPendingEdits;
}

bool KeyframeThemeEditor::RemoveKeyFrame(ColorID id, float t) {
  if (!Theme::Get().RemoveKeyFrame(id, t)) return false;
  ++mPendingEdits;
  return true;
}

void KeyframeThemeEditor::NotifyThemeChanged() {
  if (mPendingEdits == 0) return;
  mPendingEdits = 0;
  Theme::Get().NotifyThemeChanged();
}

} // namespace kroui::ui
