#include <zel/views/FrameworkStations.h>

#include <krocore/messaging/Station.h>

#include <gtest/gtest.h>

#include <set>

namespace {

using ZEL::FrameworkStations;

TEST(FrameworkStations, SixDistinctStationsWithThePublicOnesInPlace) {
  const auto stations = FrameworkStations::GetStations();
  ASSERT_EQ(stations.size(), 6u);
  EXPECT_EQ(stations[1], ZEL::kStation_Workspace);
  EXPECT_EQ(stations[2], ZEL::kStation_Theme);
  EXPECT_EQ(stations[3], ZEL::kStation_ModalColorPickerStatusActive);
  EXPECT_EQ(stations[5], ZEL::kStation_ApplicationWindowMenu);
  const std::set<krocore::utility::ImmutableString> distinct(stations.begin(), stations.end());
  EXPECT_EQ(distinct.size(), 6u);
  EXPECT_EQ(distinct.count(ZEL::ToolMessaging::kStation_Tool), 0u);
}

TEST(FrameworkStations, RegisterCreatesAndDisposeRemovesEveryStation) {
  FrameworkStations::Register();
  for (const auto& station : FrameworkStations::GetStations())
    EXPECT_TRUE(krocore::messaging::StationExists(station)) << station.View();
  FrameworkStations::Dispose();
  for (const auto& station : FrameworkStations::GetStations())
    EXPECT_FALSE(krocore::messaging::StationExists(station)) << station.View();
}

} // namespace
