#include <zel/views/StatusBar.h>

#include <krocore/messaging/Listener.h>
#include <krocore/messaging/Station.h>
#include <krocore/threads/MainThreadQueue.h>

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

namespace {

using Strings = std::vector<std::string>;

/// The host's status line as the tests see it: each message it hears, as
/// text, and the thread it heard it on.
class StatusLine : public krocore::messaging::Listener {
public:
  StatusLine() { SubscribeTo(ZEL::kStation_StatusBar); }

  void ListenToMessage(const krocore::messaging::Message& message) override {
    threads.push_back(std::this_thread::get_id());
    if (const auto* text = message.As<ZEL::StatusBarSetTextMessage>()) heard.push_back("text:" + text->GetText());
    if (const auto* text = message.As<ZEL::StatusBarClearTextMessage>()) heard.push_back("clear:" + text->GetText());
    if (const auto* progress = message.As<ZEL::StatusBarSetProgressMessage>())
      heard.push_back("progress:" + progress->GetLabel() + " " + std::to_string(progress->GetPercent()));
    if (message.Is<ZEL::StatusBarClearProgressMessage>()) heard.push_back("clear progress");
    if (message.Is<ZEL::StatusBarDocumentClosedMessage>()) heard.push_back("closed");
  }

  Strings heard;
  std::vector<std::thread::id> threads;
};

class StatusBarTest : public testing::Test {
protected:
  void TearDown() override {
    krocore::threads::MainThreadQueue::Instance().Clear();
    krocore::messaging::DisposeStation(ZEL::kStation_StatusBar);
  }
  StatusLine line;
};

TEST_F(StatusBarTest, OnTheUIThreadEachCallIsHeardBeforeItReturns) {
  ZEL::StatusBar::SetText("Saved");
  EXPECT_EQ(line.heard, Strings{"text:Saved"});
  ZEL::StatusBar::SetProgress("Conforming", 40);
  ZEL::StatusBar::ClearProgress();
  ZEL::StatusBar::ClearText("Saved");
  ZEL::StatusBar::DocumentClosed();
  EXPECT_EQ(line.heard, (Strings{"text:Saved", "progress:Conforming 40", "clear progress", "clear:Saved", "closed"}));
}

TEST_F(StatusBarTest, FromAWorkerTheCallReturnsAtOnceAndIsHeardLaterOnTheUIThread) {
  std::thread worker([] {
    ZEL::StatusBar::SetProgress("Rendering", 10);
    ZEL::StatusBar::SetProgress("Rendering", 20);
    ZEL::StatusBar::SetText("Rendered");
  });
  worker.join();
  EXPECT_TRUE(line.heard.empty()) << "nothing reaches the status line off the UI thread";

  krocore::threads::DrainMainThreadQueue();
  EXPECT_EQ(line.heard, (Strings{"progress:Rendering 10", "progress:Rendering 20", "text:Rendered"}));
  for (const auto& id : line.threads) EXPECT_EQ(id, std::this_thread::get_id());
}

} // namespace
