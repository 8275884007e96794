#pragma once

#include <zel/appearance/ColorManager.h>
#include <zel/appearance/ThemeChangedMessage.h>
#include <zel/appearance/ThemeResources.h>

#include <krocore/messaging/Listener.h>
#include <krocore/messaging/Message.h>
#include <krocore/threads/MainThreadQueue.h>
#include <kroui/skins/SkinManager.h>
#include <kroui/theme/Theme.h>

#include <gtest/gtest.h>

#include <cmath>
#include <ostream>

namespace KLS {
inline void PrintTo(const ParamColor<unsigned char>& c, std::ostream* out) {
  *out << "(" << int(c.red) << ", " << int(c.green) << ", " << int(c.blue) << ")";
}
} // namespace KLS

namespace ZEL::testing {

/// Counts the theme changes announced on "zel.theme".
class ThemeChangeCounter : public krocore::messaging::Listener {
public:
  ThemeChangeCounter() { SubscribeTo(kStation_ThemeChanged); }
  void ListenToMessage(const krocore::messaging::Message& message) override {
    if (message.Is<ThemeChangedMessage>()) ++mCount;
  }
  int Count() const { return mCount; }

private:
  int mCount = 0;
};

/// The library's theme files in the platform theme, at a chosen brightness,
/// and the colour registry initialised; all of it taken down afterwards.
template <typename Base = ::testing::Test>
class AppearanceFixture : public Base {
protected:
  void SetUp() override {
    kroui::ui::Theme::Get().Reset();
    const auto installed = ThemeResources::Install();
    ASSERT_TRUE(installed) << installed.Error();
    ColorManager::Initialize();
  }
  void TearDown() override {
    ColorManager::Terminate();
    kroui::skins::core::SkinManager::SetSkinVersion(kroui::skins::core::SkinManager::kDefaultSkinVersion);
    kroui::ui::Theme::Get().Reset();
    krocore::threads::MainThreadQueue::Instance().Clear();
  }

  static void SetBrightness(float brightness) { kroui::ui::Theme::Get().SetBrightness(brightness); }

  /// A theme colour as the registry turns it into 8 bits.
  static ColorManager::Color ThemeColor(kroui::ui::ColorID id) {
    const auto rgba = kroui::ui::GetColor(id);
    const auto channel = [](float x) { return static_cast<unsigned char>(std::floor(x * 255.f + 0.5f)); };
    return {channel(rgba.red), channel(rgba.green), channel(rgba.blue)};
  }
};

} // namespace ZEL::testing
