#include <zel/appearance/Cursor.h>
#include <zel/application/Application.h>

#include <backends/headless/HeadlessBackend.h>
#include <krocore/debug/Assert.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <regex>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

namespace Cursor = ZEL::Cursor;
using kroui::utility::CursorMode;
using kroui::utility::ResourceManager;
using Request = std::pair<std::int32_t, CursorMode>;

std::string Narrow(std::u16string_view text) { return std::string(text.begin(), text.end()); }

/// Records the cursor requests it is given instead of showing them.
class RecordingResourceManager : public ResourceManager {
public:
  RecordingResourceManager() : ResourceManager("recording") {}
  void SetCursor(std::int32_t id, CursorMode mode) override {
    if (onRequest) onRequest();
    requests.emplace_back(id, mode);
  }

  std::vector<Request> requests;
  std::function<void()> onRequest;
};

class RecordingApplication : public ZEL::Application {
public:
  ResourceManager& GetResourceManager() override { return manager; }
  RecordingResourceManager manager;
};

/// A fresh headless backend; the platform's resource manager, the application
/// object and the modal flag back as they were at start afterwards.
class CursorTest : public testing::Test {
protected:
  void SetUp() override { headless = &kroui::backend::HeadlessBackend::Install(); }
  void TearDown() override {
    ZEL::Application::SetInstance(nullptr);
    kroui::utility::SetResourceManager(nullptr);
    Cursor::SetModal(false);
    kroui::backend::SetBackend(nullptr);
  }

  RecordingResourceManager& InstallRecordingPlatform() {
    auto recording = std::make_unique<RecordingResourceManager>();
    RecordingResourceManager& platform = *recording;
    kroui::utility::SetResourceManager(std::move(recording));
    return platform;
  }

  kroui::backend::HeadlessBackend* headless = nullptr;
};

TEST_F(CursorTest, TheTableHoldsEachFrameworkCursorOnceInItsOwnOrder) {
  const auto table = Cursor::GetSharedCursors();
  std::set<std::int32_t> ids, expected{4500, 4501, 4502, 4503};
  std::set<std::u16string_view> names;
  for (std::int32_t id = 4000; id <= 4135; ++id)
    if (id != 4015 && id != 4133) expected.insert(id);
  for (const Cursor::SharedCursor& row : table) {
    ids.insert(row.id);
    names.insert(row.resourceName);
    EXPECT_EQ(row.constant.empty(), row.id >= Cursor::kFirstApplicationCursor) << row.id;
  }
  EXPECT_EQ(table.size(), 138u);
  EXPECT_EQ(ids, expected);
  EXPECT_EQ(names.size(), table.size()) << "resource names are unique";
  EXPECT_FALSE(std::is_sorted(table.begin(), table.end(), [](auto& a, auto& b) { return a.id < b.id; }));
}

TEST_F(CursorTest, ConstantsWhosePictureIsNamedOtherwiseKeepTheirResourceNames) {
  const auto rowOf = [](std::int32_t id) {
    const auto table = Cursor::GetSharedCursors();
    return *std::find_if(table.begin(), table.end(), [id](const auto& row) { return row.id == id; });
  };
  EXPECT_EQ(rowOf(Cursor::kEyedropperFull).resourceName, u"Cur_EyedropperBlack_2_17");
  EXPECT_EQ(rowOf(Cursor::kRoll).resourceName, u"Cur_RollingTrim_14_11");
  EXPECT_EQ(rowOf(Cursor::kRasterMarqueeSubtract).resourceName, u"Cur_ObjectSelectionSubstract_9_9");
  EXPECT_EQ(rowOf(Cursor::kVerticalTextInRect).resourceName, u"Cur_VerticalText_9_4");
  EXPECT_EQ(rowOf(Cursor::kGenExtendNA).constant, "kGenExtendNA");
}

// The numbers hosts and saved state rely on.
static_assert(Cursor::kKROPencil == 23);
static_assert(Cursor::kOSLink == 6);

TEST_F(CursorTest, RegistrationFollowsTheTableAndHappensOnce) {
  ResourceManager manager("zel");
  Cursor::RegisterSharedCursors(manager);
  Cursor::RegisterSharedCursors(manager);
  std::vector<std::int32_t> expected;
  for (const auto& row : Cursor::GetSharedCursors()) expected.push_back(row.id);
  EXPECT_EQ(manager.GetCursorIDs(), expected);

  const ZEL::CursorInitializer initializer;
  const auto& platform = kroui::utility::GetResourceManager().GetCursorIDs();
  ASSERT_EQ(platform.size(), 21u + expected.size()) << "the system's and the platform's cursors come first";
  EXPECT_TRUE(
      std::equal(expected.begin(), expected.end(), platform.end() - static_cast<long>(expected.size())));
}

class EveryFrameworkCursor : public CursorTest, public testing::WithParamInterface<Cursor::SharedCursor> {};

TEST_P(EveryFrameworkCursor, IsRegisteredUnderItsIDWithTheHotSpotOfItsName) {
  const ZEL::CursorInitializer initializer;
  const ResourceManager& platform = kroui::utility::GetResourceManager();
  const Cursor::SharedCursor& row = GetParam();
  ASSERT_TRUE(platform.HasCursor(row.id));
  EXPECT_EQ(platform.GetCursorResourceName(row.id), row.resourceName);

  std::smatch numbers;
  const std::string name = Narrow(row.resourceName);
  ASSERT_TRUE(std::regex_search(name, numbers, std::regex("^Cur_[A-Za-z0-9]+_([0-9]+)_([0-9]+)$"))) << name;
  const kroui::ui::Point hotSpot{std::stoi(numbers[1]), std::stoi(numbers[2])};
  const kroui::ui::CursorPtr cursor = platform.GetCursor(row.id);
  ASSERT_NE(cursor, nullptr);
  EXPECT_EQ(cursor->GetHotSpot(), hotSpot);
  EXPECT_EQ(cursor->GetImage().GetWidth(), 32);
  EXPECT_EQ(cursor->GetImage().GetHeight(), 32);
  EXPECT_EQ(cursor->GetImage().PixelAt(hotSpot.x, hotSpot.y), 0xFF000000u)
      << "the hot spot is on the drawing";
}

INSTANTIATE_TEST_SUITE_P(Table, EveryFrameworkCursor,
                         testing::ValuesIn(Cursor::GetSharedCursors().begin(),
                                           Cursor::GetSharedCursors().end()),
                         [](const auto& row) {
                           return row.param.constant.empty() ? Narrow(row.param.resourceName)
                                                             : std::string(row.param.constant);
                         });

TEST_F(CursorTest, SetGoesBelow4500ToThePlatformAndFromThereToTheApplication) {
  RecordingResourceManager& platform = InstallRecordingPlatform();
  auto application = std::make_shared<RecordingApplication>();
  ZEL::Application::SetInstance(application);
  Cursor::Set(4499);
  Cursor::Set(4500);
  Cursor::Set(Cursor::kOSArrow);
  Cursor::Set(4503);
  Cursor::Set(Cursor::kInvalid);
  Cursor::SetArrowCursor();
  Cursor::SetWaitCursor();
  constexpr CursorMode kKeep = CursorMode::Keep;
  EXPECT_EQ(platform.requests, (std::vector<Request>{{4499, kKeep}, {0, kKeep}, {0, kKeep}, {2, kKeep}}));
  EXPECT_EQ(application->manager.requests, (std::vector<Request>{{4500, kKeep}, {4503, kKeep}}));
}

TEST_F(CursorTest, TheApplicationLivesUntilItsRequestIsDone) {
  auto application = std::make_shared<RecordingApplication>();
  application->manager.onRequest = [] { ZEL::Application::SetInstance(nullptr); };
  ZEL::Application::SetInstance(application);
  application.reset();
  // The application object goes while its manager handles the request: under
  // AddressSanitizer, a request finished on a freed object fails here.
  Cursor::Set(Cursor::kFirstApplicationCursor);
  EXPECT_EQ(ZEL::Application::Instance(), nullptr);
}

TEST_F(CursorTest, WithoutAnApplicationAnApplicationCursorIsReportedAndChangesNothing) {
  const auto shown = kroui::ui::Cursor::Create(kroui::drawbot::Image(4, 4), {1, 1});
  kroui::ui::SetCursor(shown);
  krocore::debug::ScopedAssertionRecorder reports;
  Cursor::Set(4500);
  EXPECT_TRUE(reports.Contains("Application has not been initialized"));
  EXPECT_EQ(headless->GetCurrentCursor(), shown);
}

TEST_F(CursorTest, TheHeadlessWindowsShowWhatSetMadeCurrent) {
  const ZEL::CursorInitializer initializer;
  ZEL::Application::SetInstance(std::make_shared<ZEL::Application>());
  Cursor::Set(Cursor::kAreaSample);
  ASSERT_NE(headless->GetCurrentCursor(), nullptr);
  EXPECT_EQ(headless->GetCurrentCursor()->GetHotSpot(), (kroui::ui::Point{3, 20}));
  EXPECT_EQ(headless->GetCurrentCursor(),
            kroui::utility::GetResourceManager().GetCursor(Cursor::kAreaSample));

  const std::size_t changes = headless->GetCursorChangeCount();
  Cursor::Set(Cursor::kInvalid);
  EXPECT_EQ(headless->GetCurrentCursor(),
            kroui::utility::GetResourceManager().GetCursor(Cursor::kAreaSample));
  EXPECT_EQ(headless->GetCursorChangeCount(), changes);

  Cursor::Set(Cursor::kKROHand);
  EXPECT_EQ(headless->GetCurrentCursor()->GetHotSpot(), (kroui::ui::Point{11, 11}));
  Cursor::Set(4501);
  EXPECT_EQ(headless->GetCurrentCursor(), ZEL::Application::Instance()->GetResourceManager().GetCursor(4501));
  Cursor::SetArrowCursor();
  EXPECT_EQ(headless->GetCurrentCursor(), nullptr);
}

TEST_F(CursorTest, TheModalFlagIsOnlyANote) {
  EXPECT_FALSE(Cursor::IsModal());
  Cursor::SetModal(true);
  EXPECT_TRUE(Cursor::IsModal());
  RecordingResourceManager& platform = InstallRecordingPlatform();
  Cursor::Set(Cursor::kHand);
  EXPECT_EQ(platform.requests.size(), 1u);
}

TEST_F(CursorTest, HidesNestUntilAsManyShowsOrOneForcedShow) {
  ZEL::HideCursor();
  ZEL::HideCursor();
  ZEL::ShowCursor(false);
  EXPECT_FALSE(headless->IsCursorVisible());
  ZEL::ShowCursor(false);
  EXPECT_TRUE(headless->IsCursorVisible());
  ZEL::HideCursor();
  ZEL::HideCursor();
  ZEL::ShowCursor(true);
  EXPECT_TRUE(headless->IsCursorVisible());
}

} // namespace
