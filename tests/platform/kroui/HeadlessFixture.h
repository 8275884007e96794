#pragma once

#include <backends/headless/HeadlessBackend.h>

#include <gtest/gtest.h>

namespace kroui::testing {

/// Gives each case a fresh headless backend and drops it afterwards, so that
/// no key held or message box shown leaks into the next case.
template <typename Base = ::testing::Test>
class HeadlessFixture : public Base {
protected:
  void SetUp() override { mHeadless = &backend::HeadlessBackend::Install(); }
  void TearDown() override { backend::SetBackend(nullptr); }

  backend::HeadlessBackend& Headless() { return *mHeadless; }

private:
  backend::HeadlessBackend* mHeadless = nullptr;
};

} // namespace kroui::testing
