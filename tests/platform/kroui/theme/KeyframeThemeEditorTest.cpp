#include <kroui/theme/KeyframeThemeEditor.h>
#include <kroui/theme/Theme.h>
#include <kroui/theme/ThemeChangedFunctions.h>

#include <gtest/gtest.h>

using kroui::ui::KeyFrame;
using kroui::ui::KeyframeThemeEditor;
using kroui::ui::Theme;

namespace {

class KeyframeThemeEditorTest : public testing::Test {
protected:
  void SetUp() override { Theme::Get().Reset(); }
  void TearDown() override {
    KeyframeThemeEditor::Destroy();
    Theme::Get().Reset();
  }

  static KeyFrame Frame(kroui::ui::ColorID id, float t, float v) {
    KeyFrame frame;
    frame.name = id;
    frame.t = t;
    frame.v = v;
    return frame;
  }
};

TEST_F(KeyframeThemeEditorTest, ThereIsOneEditorBetweenCreateAndDestroy) {
  EXPECT_EQ(KeyframeThemeEditor::Get(), nullptr);
  KeyframeThemeEditor& editor = KeyframeThemeEditor::Create();
  EXPECT_EQ(&KeyframeThemeEditor::Create(), &editor);
  EXPECT_EQ(KeyframeThemeEditor::Get(), &editor);
  KeyframeThemeEditor::Destroy();
  EXPECT_EQ(KeyframeThemeEditor::Get(), nullptr);
}

TEST_F(KeyframeThemeEditorTest, EditsChangeTheThemeAndNotifyOnceTogether) {
  int notifications = 0;
  auto handle = kroui::ui::InstallThemeChangedFunction([&] { ++notifications; });
  KeyframeThemeEditor& editor = KeyframeThemeEditor::Create();
  editor.SetKeyFrame(Frame(42, 0.f, 0.f));
  editor.SetKeyFrame(Frame(42, 1.f, 1.f));
  EXPECT_TRUE(Theme::Get().HasColor(42));
  EXPECT_EQ(Theme::Get().GetColorAt(42, 1.f).red, 1.f);
  EXPECT_EQ(notifications, 0);
  editor.NotifyThemeChanged();
  editor.NotifyThemeChanged(); // nothing new to tell
  EXPECT_EQ(notifications, 1);
}

TEST_F(KeyframeThemeEditorTest, RemovingTheLastFrameRemovesTheColour) {
  KeyframeThemeEditor& editor = KeyframeThemeEditor::Create();
  editor.SetKeyFrame(Frame(7, 0.f, 0.f));
  editor.SetKeyFrame(Frame(7, 1.f, 1.f));
  editor.NotifyThemeChanged();
  EXPECT_FALSE(editor.RemoveKeyFrame(7, 0.5f));
  EXPECT_FALSE(editor.RemoveKeyFrame(8, 0.f));
  EXPECT_EQ(editor.GetPendingEditCount(), 0u);
  EXPECT_TRUE(editor.RemoveKeyFrame(7, 1.f));
  EXPECT_EQ(Theme::Get().GetColorAt(7, 1.f).red, 0.f); // held at the remaining frame
  EXPECT_TRUE(editor.RemoveKeyFrame(7, 0.f));
  EXPECT_FALSE(Theme::Get().HasColor(7));
  EXPECT_EQ(editor.GetPendingEditCount(), 2u);
}

TEST_F(KeyframeThemeEditorTest, DestroyTellsOfEditsNotYetNotified) {
  int notifications = 0;
  auto handle = kroui::ui::InstallThemeChangedFunction([&] { ++notifications; });
  KeyframeThemeEditor::Create().SetKeyFrame(Frame(1, 0.f, 1.f));
  KeyframeThemeEditor::Destroy();
  EXPECT_EQ(notifications, 1);
}

} // namespace
