#include "ViewTestSupport.h"

#include <zel/views/FocusSaver.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace {

using Strings = std::vector<std::string>;

class FocusSaverTest : public ZELTest::ViewFixture<> {
protected:
  void SetUp() override {
    ViewFixture::SetUp();
    a = Add(root, "a", {0, 0, 100, 100});
    b = Add(root, "b", {100, 0, 200, 100});
    ASSERT_TRUE(a->SetFocus());
  }

  /// A shown window that takes the keyboard, as a dialog does.
  std::unique_ptr<kroui::ui::UI_Window> ShowDialog() {
    kroui::backend::WindowDescription description{"dialog", {150, 150, 250, 250}};
    description.owner = Window().GetNativeWindow();
    auto dialog = std::make_unique<kroui::ui::UI_Window>(description);
    dialog->Show();
    return dialog;
  }
  HWND FocusedWindow() { return Headless().GetFocusedNativeWindow(); }

  std::shared_ptr<ZELTest::RecordingView> a;
  std::shared_ptr<ZELTest::RecordingView> b;
};

TEST_F(FocusSaverTest, GivesTheFocusBackToTheSavedViewAndItsWindow) {
  std::optional<ZEL::FocusSaver> saver(std::in_place);
  EXPECT_EQ(saver->GetTabViewType(), "") << "no tab view can be saved yet";
  auto dialog = ShowDialog();
  ASSERT_EQ(FocusedWindow(), dialog->GetNativeWindow());
  b->SetFocus(); // what the dialog's work did meanwhile
  dialog.reset();
  saver.reset();
  EXPECT_TRUE(a->HasFocus());
  EXPECT_EQ(FocusedWindow(), Window().GetNativeWindow());
}

TEST_F(FocusSaverTest, ClearedItLeavesTheFocusWhereItIs) {
  {
    ZEL::FocusSaver saver;
    b->SetFocus();
    saver.Clear();
  }
  EXPECT_TRUE(b->HasFocus());
}

TEST_F(FocusSaverTest, ASavedViewClosedMeanwhileLeavesItsWindowWithoutFocus) {
  {
    ZEL::FocusSaver saver;
    std::erase(views, a);
    a.reset();
    b->SetFocus();
  }
  EXPECT_FALSE(b->HasFocus());
  EXPECT_EQ(Window().GetFocusedNode(), nullptr);
}

TEST_F(FocusSaverTest, ASavedViewThatCanNoLongerTakeTheFocusLeavesItsWindowWithoutFocus) {
  {
    ZEL::FocusSaver saver;
    b->SetFocus();
    a->Hide();
  }
  EXPECT_EQ(Window().GetFocusedNode(), nullptr);
}

TEST_F(FocusSaverTest, NothingIsRestoredWhenNoWindowWasActiveOrTheWindowIsGone) {
  {
    Headless().FocusNativeWindow(nullptr);
    ZEL::FocusSaver saver;
    Window().Focus();
    b->SetFocus();
  }
  EXPECT_TRUE(b->HasFocus());

  auto dialog = ShowDialog();
  auto inDialog = ZELTest::RecordingView::Make("inDialog", {}, log);
  inDialog->Create(kroui::ui::RefCountedWeakPtr<kroui::ui::UI_Container>(&dialog->GetRoot()), {0, 0, 10, 10});
  inDialog->SetFocus();
  {
    ZEL::FocusSaver saver;
    dialog.reset();
  }
  EXPECT_TRUE(b->HasFocus()) << "the saver had nothing to do with this window";
}

} // namespace
