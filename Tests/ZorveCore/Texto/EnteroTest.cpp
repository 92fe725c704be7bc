#include "ZorveCore/Texto/Entero.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

namespace zorve {
namespace {

TEST(EnteroEn, losLimitesDelTipoCabenYLoQueSigueNo) {
  EXPECT_EQ(enteroEn<std::int32_t>("-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(enteroEn<std::int32_t>("2147483647"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(enteroEn<std::int32_t>("2147483648"), std::nullopt);
  EXPECT_EQ(enteroEn<std::uint32_t>("4294967295"), std::numeric_limits<std::uint32_t>::max());
  EXPECT_EQ(enteroEn<std::uint32_t>("4294967296"), std::nullopt);
  EXPECT_EQ(enteroEn<std::uint32_t>("-1"), std::nullopt);
}

TEST(EnteroEn, soloCuentaElTextoEntero) {
  EXPECT_EQ(enteroEn<std::int64_t>("007"), 7);
  for (auto const* const texto : {"", "-", "+1", " 1", "1 ", "1a", "0x1", "1.0", "\xD9\xA1"}) {
    EXPECT_EQ(enteroEn<std::int64_t>(texto), std::nullopt) << texto;
  }
}

}  // namespace
}  // namespace zorve
