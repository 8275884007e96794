#include <zel/application/Application.h>

#include <zel/appearance/Cursor.h>

#include <backends/headless/HeadlessBackend.h>

#include <gtest/gtest.h>

namespace {

class ApplicationTest : public testing::Test {
protected:
  void SetUp() override { kroui::backend::HeadlessBackend::Install(); }
  void TearDown() override {
    ZEL::Application::SetInstance(nullptr);
    kroui::backend::SetBackend(nullptr);
  }
};

TEST_F(ApplicationTest, IsNullUntilTheHostInstallsOne) {
  EXPECT_EQ(ZEL::Application::Instance(), nullptr);
  auto application = std::make_shared<ZEL::Application>();
  ZEL::Application::SetInstance(application);
  EXPECT_EQ(ZEL::Application::Instance(), application);
  ZEL::Application::SetInstance(nullptr);
  EXPECT_EQ(ZEL::Application::Instance(), nullptr);
  EXPECT_EQ(application.use_count(), 1) << "the process no longer holds it";
}

TEST_F(ApplicationTest, ItsOwnResourceManagerHoldsTheApplicationCursors) {
  ZEL::Application application;
  const kroui::utility::ResourceManager& manager = application.GetResourceManager();
  std::vector<std::int32_t> expected;
  for (const auto& row : ZEL::Cursor::GetSharedCursors()) {
    if (row.id < ZEL::Cursor::kFirstApplicationCursor) continue;
    expected.push_back(row.id);
    EXPECT_EQ(manager.GetCursorResourceName(row.id), row.resourceName);
    EXPECT_NE(manager.GetCursor(row.id), nullptr) << row.id;
  }
  EXPECT_EQ(expected, (std::vector<std::int32_t>{4500, 4501, 4502, 4503}));
  EXPECT_EQ(manager.GetCursorIDs(), expected);
}

} // namespace
