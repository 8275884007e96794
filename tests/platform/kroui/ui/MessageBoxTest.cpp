#include <kroui/ui/MessageBox.h>

#include <krocore/debug/Assert.h>

#include <HeadlessFixture.h>

namespace {

using namespace kroui::ui;

using MessageBox = kroui::testing::HeadlessFixture<>;

TEST_F(MessageBox, EveryBoxShownIsRecordedExactly) {
  const HWND owner = reinterpret_cast<HWND>(0x1234);
  const std::u16string text = u"Le m\u00E9dia \u00AB Clip 1 \u00BB est introuvable.\nLe rechercher\u00A0?";
  ShowMessageBox(owner, text, u"Relier les m\u00E9dias", kMessageBox_YesNo | kMessageBox_IconQuestion);
  ShowMessageBox(nullptr, u"", u"", kMessageBox_OK);

  const auto shown = Headless().GetShownMessageBoxes();
  ASSERT_EQ(shown.size(), 2u);
  EXPECT_EQ(shown[0].owner, owner);
  EXPECT_EQ(shown[0].text, text);
  EXPECT_EQ(shown[0].caption, u"Relier les m\u00E9dias");
  EXPECT_EQ(shown[0].type, kMessageBox_YesNo | kMessageBox_IconQuestion);
  EXPECT_EQ(shown[1].owner, nullptr);
  EXPECT_TRUE(shown[1].text.empty());
}

TEST_F(MessageBox, QueuedAnswersAreUsedInOrderThenTheDefaultButton) {
  Headless().QueueMessageBoxAnswer(kMessageBoxResult_No);
  Headless().QueueMessageBoxAnswer(kMessageBoxResult_Cancel);
  EXPECT_EQ(ShowMessageBox(nullptr, u"Save?", u"", kMessageBox_YesNoCancel), kMessageBoxResult_No);
  EXPECT_EQ(ShowMessageBox(nullptr, u"Save?", u"", kMessageBox_YesNoCancel), kMessageBoxResult_Cancel);
  EXPECT_EQ(ShowMessageBox(nullptr, u"Save?", u"", kMessageBox_YesNoCancel), kMessageBoxResult_Yes);
  EXPECT_EQ(Headless().GetQueuedAnswerCount(), 0u);
}

TEST_F(MessageBox, AQueuedAnswerTheBoxDoesNotOfferIsReportedAndTheDefaultAnswers) {
  krocore::debug::ScopedAssertionRecorder recorder;
  Headless().QueueMessageBoxAnswer(kMessageBoxResult_Yes);
  EXPECT_EQ(ShowMessageBox(nullptr, u"Done.", u"", kMessageBox_OK), kMessageBoxResult_OK);
  EXPECT_TRUE(recorder.Contains("HeadlessBackend: the queued answer is not a button of this message box"));
}

TEST_F(MessageBox, ATypeWithoutAButtonSetShowsNothing) {
  krocore::debug::ScopedAssertionRecorder recorder;
  EXPECT_EQ(ShowMessageBox(nullptr, u"?", u"", 0x7), kMessageBoxResult_None);
  EXPECT_TRUE(recorder.Contains("ShowMessageBox: the type names no button set"));
  EXPECT_TRUE(Headless().GetShownMessageBoxes().empty());
}

TEST_F(MessageBox, ResetForgetsBoxesAndAnswers) {
  ShowMessageBox(nullptr, u"a", u"", kMessageBox_OK);
  Headless().QueueMessageBoxAnswer(kMessageBoxResult_Cancel);
  Headless().Reset();
  EXPECT_TRUE(Headless().GetShownMessageBoxes().empty());
  EXPECT_EQ(ShowMessageBox(nullptr, u"b", u"", kMessageBox_OKCancel), kMessageBoxResult_OK);
}

struct DefaultCase {
  std::uint32_t type;
  std::vector<int> buttons;
  int answer;
};

class MessageBoxDefault : public kroui::testing::HeadlessFixture<testing::TestWithParam<DefaultCase>> {};

TEST_P(MessageBoxDefault, EnterPressesTheButtonTheTypeMakesDefault) {
  const DefaultCase& box = GetParam();
  const auto buttons = GetMessageBoxButtons(box.type);
  EXPECT_EQ(std::vector<int>(buttons.begin(), buttons.end()), box.buttons);
  EXPECT_EQ(ShowMessageBox(nullptr, u"", u"", box.type), box.answer);
}

INSTANTIATE_TEST_SUITE_P(
    ButtonSets, MessageBoxDefault,
    testing::Values(DefaultCase{kMessageBox_OK, {1}, 1}, DefaultCase{kMessageBox_YesNo, {6, 7}, 6},
                    DefaultCase{kMessageBox_YesNo | kMessageBox_DefaultButton2, {6, 7}, 7},
                    DefaultCase{kMessageBox_YesNoCancel | kMessageBox_DefaultButton3, {6, 7, 2}, 2},
                    DefaultCase{kMessageBox_OKCancel | kMessageBox_DefaultButton3, {1, 2}, 1},
                    DefaultCase{kMessageBox_RetryCancel | kMessageBox_IconWarning, {4, 2}, 4},
                    DefaultCase{kMessageBox_AbortRetryIgnore | kMessageBox_IconError | kMessageBox_DefaultButton2,
                                {3, 4, 5}, 4},
                    DefaultCase{kMessageBox_CancelTryContinue | kMessageBox_DefaultButton2 | kMessageBox_TaskModal,
                                {2, 10, 11}, 10}));

} // namespace
