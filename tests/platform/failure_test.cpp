#include "platform/failure.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace gullymark::platform {
namespace {

TEST(IgnoreFailure, PassesOverAFailure) {
    EXPECT_NO_THROW(ignore_failure([] { fail(ENOENT, "road.gmk"); }));
}

TEST(IgnoreFailure, HandsOnWhatIsNoFailure) {
    EXPECT_THROW(ignore_failure([] { throw std::runtime_error("a defect of the program"); }),
                 std::runtime_error);
}

}  // namespace
}  // namespace gullymark::platform
