#include <kroui/backend/Backend.h>
#include <kroui/ui/MessageBox.h>
#include <kroui/utility/KeyState.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

using kroui::backend::Backend;

// Counts what reaches it, to show every kroui entry goes through the current backend.
struct CountingBackend final : Backend {
  explicit CountingBackend(int* destroyed) : mDestroyed(destroyed) {}
  ~CountingBackend() override { ++*mDestroyed; }
  std::string_view GetName() const override { return "counting"; }
  kroui::ui::ModifierKeys GetModifierState() const override {
    ++modifierReads;
    return kroui::ui::kModKey_Alt;
  }
  bool IsKeyDown(std::uint32_t virtualKey) const override { return virtualKey == 0x41; }
  int ShowMessageBox(const kroui::ui::MessageBoxRequest& request) override {
    lastType = request.type;
    return kroui::ui::kMessageBoxResult_No;
  }

  mutable int modifierReads = 0;
  std::uint32_t lastType = 0;
  int* mDestroyed;
};

class BackendTest : public testing::Test {
protected:
  void TearDown() override { kroui::backend::SetBackend(nullptr); }
};

TEST_F(BackendTest, TheHeadlessBackendIsMadeOnFirstUse) {
  kroui::backend::SetBackend(nullptr);
  Backend& first = kroui::backend::GetBackend();
  EXPECT_EQ(first.GetName(), "headless");
  EXPECT_EQ(&kroui::backend::GetBackend(), &first) << "made once, then kept";
}

TEST_F(BackendTest, ASetBackendAnswersEveryEntryAndIsDestroyedWhenReplaced) {
  int destroyed = 0;
  auto owned = std::make_unique<CountingBackend>(&destroyed);
  CountingBackend& counting = *owned;
  kroui::backend::SetBackend(std::move(owned));

  EXPECT_EQ(kroui::utility::GetCurrentModKeys(), kroui::ui::ModifierKeys(kroui::ui::kModKey_Alt));
  EXPECT_EQ(counting.modifierReads, 1);
#if !defined(_WIN32)
  EXPECT_TRUE(kroui::utility::IsKeyDown(0x41u));
#endif
  EXPECT_EQ(kroui::ui::ShowMessageBox(nullptr, u"Delete?", u"Clips", kroui::ui::kMessageBox_YesNo),
            kroui::ui::kMessageBoxResult_No);
  EXPECT_EQ(counting.lastType, kroui::ui::kMessageBox_YesNo);

  kroui::backend::SetBackend(nullptr);
  EXPECT_EQ(destroyed, 1);
  EXPECT_EQ(kroui::backend::GetBackend().GetName(), "headless");
}

TEST_F(BackendTest, ABackendWithoutAWindowSystemKnowsNoWindow) {
  int destroyed = 0;
  kroui::backend::SetBackend(std::make_unique<CountingBackend>(&destroyed));
  Backend& backend = kroui::backend::GetBackend();
  HWND any = reinterpret_cast<HWND>(std::uintptr_t{1});
  backend.RestoreNativeWindow(any);
  EXPECT_FALSE(backend.IsNativeWindowMinimized(any));
  EXPECT_FALSE(backend.IsNativeWindowEnabled(any));
  EXPECT_EQ(backend.GetNativeWindowOwner(any), nullptr);
  EXPECT_TRUE(backend.GetTopLevelWindows().empty());
  kroui::backend::SetBackend(nullptr); // while `destroyed` lives
  EXPECT_EQ(destroyed, 1);
}

} // namespace
