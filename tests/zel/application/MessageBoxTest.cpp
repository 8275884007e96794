#include <zel/application/MessageBox.h>

#include <backends/headless/HeadlessBackend.h>
#include <krocore/config/TopLevel.h>
#include <kroui/ui/MessageBox.h>

#include <gtest/gtest.h>

#include <string>

namespace {

class MessageBoxTest : public testing::Test {
protected:
  void SetUp() override {
    mHeadless = &kroui::backend::HeadlessBackend::Install();
    mPreviousClient = krocore::config::GetClientName();
    krocore::config::SetClientName("Montage \u00C9tude");
  }
  void TearDown() override {
    krocore::config::SetClientName(mPreviousClient);
    kroui::backend::SetBackend(nullptr);
  }

  kroui::backend::HeadlessBackend* mHeadless = nullptr;
  std::string mPreviousClient;
};

TEST_F(MessageBoxTest, ShowMessageConvertsTheTextAndCaptionsWithTheClientName) {
  mHeadless->QueueMessageBoxAnswer(kroui::ui::kMessageBoxResult_No);
  const int answer = ZEL::ShowMessage("D\u00E9placer les m\u00E9dias ?", kroui::ui::kMessageBox_YesNo |
                                                                            kroui::ui::kMessageBox_IconQuestion);
  EXPECT_EQ(answer, kroui::ui::kMessageBoxResult_No) << "the button that closed the box comes back";
  const auto shown = mHeadless->GetShownMessageBoxes();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].text, u"D\u00E9placer les m\u00E9dias ?");
  EXPECT_EQ(shown[0].caption, u"Montage \u00C9tude");
  EXPECT_EQ(shown[0].owner, nullptr);
  EXPECT_EQ(shown[0].type, kroui::ui::kMessageBox_YesNo | kroui::ui::kMessageBox_IconQuestion);
}

TEST_F(MessageBoxTest, MessageBoxWPassesItsOwnerAndCaptionUnchanged) {
  const auto owner = reinterpret_cast<HWND>(0x1234);
  EXPECT_EQ(ZEL::MessageBoxW(owner, u"Done.", u"Export", kroui::ui::kMessageBox_OK), kroui::ui::kMessageBoxResult_OK);
  const auto shown = mHeadless->GetShownMessageBoxes();
  ASSERT_EQ(shown.size(), 1u);
  EXPECT_EQ(shown[0].owner, owner);
  EXPECT_EQ(shown[0].caption, u"Export");
}

} // namespace
