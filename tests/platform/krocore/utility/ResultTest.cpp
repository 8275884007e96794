#include <krocore/utility/Result.h>

#include <gtest/gtest.h>

#include <string>

using krocore::utility::Result;

TEST(Result, VoidCarriesOnlySuccessOrTheMessage) {
  const auto done = Result<void>::Success();
  EXPECT_TRUE(done);
  EXPECT_TRUE(done.IsSuccess());
  EXPECT_TRUE(done.Error().empty());

  const auto failed = Result<void>::Failure("\"prefs.json\" could not be written");
  EXPECT_FALSE(failed);
  EXPECT_EQ(failed.Error(), "\"prefs.json\" could not be written");
  // Even an empty message is a failure: success is not told by the text.
  EXPECT_FALSE(Result<void>::Failure(""));
}

TEST(Result, ValueOrAnswersTheFallbackOnlyOnFailure) {
  EXPECT_EQ(Result<std::string>::Success("kept").ValueOr("fallback"), "kept");
  const auto failed = Result<std::string>::Failure("damaged");
  EXPECT_EQ(failed.ValueOr("fallback"), "fallback");
  EXPECT_EQ(failed.Error(), "damaged");
}
