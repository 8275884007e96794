#include <kroui/utility/ResourceManager.h>

#include <kroui/drawbot/RasterSurface.h>
#include <kroui/utility/CursorCanvas.h>
#include <kroui/utility/OS_ResourceManager.h>

#include <krocore/debug/Assert.h>
#include <krocore/resources/ModuleResources.h>

#include "ui/NodeTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>

namespace {

using kroui::drawbot::Image;
using kroui::ui::CursorPtr;
using kroui::ui::Point;
using kroui::utility::CursorCanvas;
using kroui::utility::CursorMode;
using kroui::utility::ResourceManager;

constexpr const char* kModule = "kroui_tests";

bool SamePixels(const Image& a, const Image& b) {
  return a.GetWidth() == b.GetWidth() && a.GetHeight() == b.GetHeight() &&
         std::equal(a.Pixels(), a.Pixels() + static_cast<std::size_t>(a.GetWidth()) * a.GetHeight(),
                    b.Pixels());
}

Image Drawing(float size) {
  CursorCanvas canvas;
  canvas.Disc({16, 16}, size);
  return canvas.Finish();
}

/// A PNG resource of this test's module, filed while it lives, as the build files a module's own.
class PNGResource {
public:
  PNGResource(std::u16string name, const Image& image) : mName(std::move(name)) {
    const auto file =
        std::filesystem::path(testing::TempDir()) / (std::string(mName.begin(), mName.end()) + ".png");
    EXPECT_TRUE(kroui::drawbot::WritePNG(image, file));
    std::ifstream in(file, std::ios::binary);
    mBytes.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    mRegistrar.emplace(kModule, u"png", mName.c_str(), mBytes.data(), mBytes.size());
  }

private:
  std::u16string mName;
  std::vector<unsigned char> mBytes;
  std::optional<krocore::utility::ModuleResourceRegistrar> mRegistrar;
};

class ResourceManagerTest : public kroui::testing::WindowFixture<> {
protected:
  void TearDown() override {
    kroui::utility::SetResourceManager(nullptr);
    WindowFixture::TearDown();
  }

  ResourceManager manager{kModule};
};

using Reports = krocore::debug::ScopedAssertionRecorder;

TEST_F(ResourceManagerTest, APNGCursorIsReadOnFirstUseWithTheHotSpotOfItsName) {
  ASSERT_TRUE(manager.RegisterPNGCursor(4001, u"Cur_Sample_3_20", {}));
  // Filed only after the registration: the image is looked up when first used.
  const Image image = Drawing(6.f);
  PNGResource resource(u"Cur_Sample_3_20", image);
  const CursorPtr cursor = manager.GetCursor(4001);
  ASSERT_NE(cursor, nullptr);
  EXPECT_EQ(cursor->GetHotSpot(), (Point{3, 20}));
  EXPECT_TRUE(SamePixels(cursor->GetImage(), image));
  EXPECT_EQ(manager.GetCursor(4001), cursor) << "decoded once";
}

TEST_F(ResourceManagerTest, TheRegistrationNamesTheModuleThatHoldsTheImage) {
  PNGResource resource(u"Cur_Sample_1_1", Drawing(4.f));
  Reports reports;
  ResourceManager elsewhere("another_module");
  elsewhere.RegisterPNGCursor(1, u"Cur_Sample_1_1", kModule);
  elsewhere.RegisterPNGCursor(2, u"Cur_Sample_1_1", {});
  EXPECT_NE(elsewhere.GetCursor(1), nullptr);
  EXPECT_EQ(elsewhere.GetCursor(2), nullptr);
  EXPECT_TRUE(reports.Contains(
      "ResourceManager: there is no cursor resource Cur_Sample_1_1 of module another_module"));
}

TEST_F(ResourceManagerTest, RegisteringAgainKeepsTheOrderAndReplacesOnlyAnotherName) {
  PNGResource first(u"Cur_First_1_1", Drawing(4.f));
  for (std::int32_t id : {7, 5, 9}) manager.RegisterPNGCursor(id, u"Cur_First_1_1", {});
  const CursorPtr before = manager.GetCursor(5);
  manager.RegisterPNGCursor(5, u"Cur_First_1_1", {});
  EXPECT_EQ(manager.GetCursor(5), before) << "the same registration again changes nothing";
  manager.RegisterPNGCursor(5, u"Cur_Second_2_3", {});
  EXPECT_EQ(manager.GetCursorResourceName(5), u"Cur_Second_2_3");
  EXPECT_EQ(manager.GetCursorIDs(), (std::vector<std::int32_t>{7, 5, 9}));
}

struct HotSpotCase {
  std::u16string_view name;
  std::optional<Point> hotSpot;
};

class HotSpotOfName : public testing::TestWithParam<HotSpotCase> {};

TEST_P(HotSpotOfName, IsTheNamesLastTwoNumbers) {
  EXPECT_EQ(ResourceManager::ParseHotSpot(GetParam().name), GetParam().hotSpot);
}

INSTANTIATE_TEST_SUITE_P(Names, HotSpotOfName,
                         testing::Values(HotSpotCase{u"Cur_AreaSample_3_20", Point{3, 20}},
                                         HotSpotCase{u"Cur_NadaArrow_0_0", Point{0, 0}},
                                         HotSpotCase{u"Cur_Light1_10_11", Point{10, 11}},
                                         HotSpotCase{u"Cur_Sample_3", std::nullopt},
                                         HotSpotCase{u"Cur_Sample_x_3", std::nullopt},
                                         HotSpotCase{u"Cur_Sample_3_", std::nullopt},
                                         HotSpotCase{u"Cur_Sample_3_123456", std::nullopt},
                                         HotSpotCase{u"3_20", std::nullopt}));

TEST_F(ResourceManagerTest, ANameWithoutAHotSpotIsReportedAndNotRegistered) {
  Reports reports;
  EXPECT_FALSE(manager.RegisterPNGCursor(3, u"Cur_Sample", {}));
  EXPECT_FALSE(manager.HasCursor(3));
  EXPECT_TRUE(reports.Contains(
      "ResourceManager: the cursor name Cur_Sample does not end in its hot spot (_<x>_<y>)"));
}

TEST_F(ResourceManagerTest, AnImageThatCannotBeReadIsReportedOnceAndShowsTheArrow) {
  const CursorPtr shown = kroui::ui::Cursor::Create(Drawing(3.f), {1, 1});
  kroui::ui::SetCursor(shown);
  Reports reports;
  manager.RegisterPNGCursor(8, u"Cur_Missing_1_1", {});
  manager.SetCursor(8, CursorMode::Keep);
  manager.SetCursor(8, CursorMode::Keep);
  EXPECT_EQ(Headless().GetCurrentCursor(), nullptr);
  EXPECT_EQ(reports.Count(), 1u);
}

TEST_F(ResourceManagerTest, AnUnknownIDIsReportedAndChangesNothing) {
  const CursorPtr shown = kroui::ui::Cursor::Create(Drawing(3.f), {1, 1});
  kroui::ui::SetCursor(shown);
  const std::size_t changes = Headless().GetCursorChangeCount();
  Reports reports;
  manager.SetCursor(99, CursorMode::Keep);
  EXPECT_EQ(Headless().GetCurrentCursor(), shown);
  EXPECT_EQ(Headless().GetCursorChangeCount(), changes);
  EXPECT_TRUE(reports.Contains("ResourceManager: no cursor is registered under ID 99"));
}

// Modes, seen through a window whose one node sets no cursor of its own.
class CursorModes : public ResourceManagerTest {
protected:
  void SetUp() override {
    ResourceManagerTest::SetUp();
    window = &MakeWindow();
    Add(window->GetRoot(), "a", {0, 0, 200, 100});
    manager.RegisterCursor(1, kroui::ui::Cursor::Create(Drawing(3.f), {2, 2}));
    manager.RegisterPNGCursor(2, u"Cur_Missing_1_1", {});
  }
  void MoveTo(int x) {
    Headless().MoveMouseTo(window->GetNativeWindow(), {x, 50});
    Pump();
  }
  CursorPtr Current() { return Headless().GetCurrentCursor(); }

  kroui::ui::UI_Window* window = nullptr;
};

TEST_F(CursorModes, PreloadReadsTheImageNowAndShowsNothing) {
  const std::size_t changes = Headless().GetCursorChangeCount();
  Reports reports;
  manager.SetCursor(2, CursorMode::Preload);
  EXPECT_EQ(reports.Count(), 1u) << "the missing image is found missing now";
  EXPECT_EQ(Headless().GetCursorChangeCount(), changes);
}

TEST_F(CursorModes, UntilMoveLastsUntilThePointerMoves) {
  manager.SetCursor(1, CursorMode::UntilMove);
  EXPECT_EQ(Current(), manager.GetCursor(1));
  MoveTo(20);
  EXPECT_EQ(Current(), nullptr);
}

TEST_F(CursorModes, KeepLastsThroughMovesUntilTheNextSet) {
  manager.SetCursor(1, CursorMode::Keep);
  MoveTo(20);
  MoveTo(40);
  EXPECT_EQ(Current(), manager.GetCursor(1));
  manager.SetCursor(1, CursorMode::UntilMove);
  MoveTo(60);
  EXPECT_EQ(Current(), nullptr);
}

TEST_F(CursorModes, UntilButtonUpLastsWhileAButtonIsHeld) {
  MoveTo(20);
  Headless().PressButton();
  Pump();
  manager.SetCursor(1, CursorMode::UntilButtonUp);
  MoveTo(40);
  EXPECT_EQ(Current(), manager.GetCursor(1));
  Headless().ReleaseButton();
  MoveTo(60);
  EXPECT_EQ(Current(), nullptr);
}

TEST_F(CursorModes, ANewBackendEndsAHold) {
  manager.SetCursor(1, CursorMode::Keep);
  kroui::backend::HeadlessBackend& fresh = kroui::backend::HeadlessBackend::Install();
  EXPECT_FALSE(kroui::ui::IsCursorHeld(false));
  EXPECT_EQ(fresh.GetCurrentCursor(), nullptr);
}

TEST_F(ResourceManagerTest, ThePlatformsManagerIsReplaceableAndMadeAfreshWhenDropped) {
  kroui::utility::GetResourceManager().RegisterCursor(4001, nullptr);
  EXPECT_NE(dynamic_cast<kroui::utility::OS_ResourceManager*>(&kroui::utility::GetResourceManager()),
            nullptr);
  auto own = std::make_unique<ResourceManager>("host");
  ResourceManager* installed = own.get();
  kroui::utility::SetResourceManager(std::move(own));
  EXPECT_EQ(&kroui::utility::GetResourceManager(), installed);
  kroui::utility::SetResourceManager(nullptr);
  EXPECT_FALSE(kroui::utility::GetResourceManager().HasCursor(4001));
  EXPECT_EQ(kroui::utility::GetResourceManager().GetModule(), kroui::utility::OS_ResourceManager::kModule);
}

} // namespace
