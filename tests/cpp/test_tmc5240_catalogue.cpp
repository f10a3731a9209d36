// The TMC5240 register catalogue: its rows are consistent, and a word
// decodes into its fields.
#include <gtest/gtest.h>

#include <set>

#include "motion/tmc5240.hpp"

namespace orv {
namespace {

TEST(Tmc5240Catalogue, RowsAreOrderedAndFieldsFitWithoutOverlap) {
  EXPECT_EQ(std::size(kTmc5240Registers), 67u);
  int previous = -1;
  for (const TmcRegister& r : kTmc5240Registers) {
    EXPECT_LT(previous, r.address) << r.name;
    previous = r.address;
    EXPECT_FALSE(r.fields.empty()) << r.name;
    uint64_t used = 0;
    std::set<std::string> names;
    for (const TmcField& f : r.fields) {
      EXPECT_LE(f.low, f.high) << r.name << "." << f.name;
      EXPECT_LE(f.high, 31) << r.name << "." << f.name;
      const uint64_t bits = ((uint64_t{1} << (f.high - f.low + 1)) - 1) << f.low;
      EXPECT_EQ(used & bits, 0u) << r.name << "." << f.name << " overlaps";
      used |= bits;
      EXPECT_TRUE(names.insert(f.name).second) << r.name << "." << f.name;
    }
  }
  EXPECT_EQ(tmc5240Register(MRDR_6C_CHOPCONF)->name, std::string("CHOPCONF"));
  EXPECT_EQ(tmc5240Register(0x07), nullptr);
}

TEST(Tmc5240Catalogue, WordsDecodeIntoFields) {
  // IHOLD_IRUN of the factory block: ihold 3, irun 10, iholddelay 7.
  const auto f = tmc5240Fields(*tmc5240Register(MRDR_10_IHOLD_IRUN), 461315);
  const std::vector<std::pair<std::string, int64_t>> want{
      {"ihold", 3}, {"irun", 10}, {"iholddelay", 7}, {"irundelay", 0}};
  EXPECT_EQ(f, want);
  // Signed fields: a 24-bit velocity and a 7-bit stallGuard threshold.
  EXPECT_EQ(tmc5240Fields(*tmc5240Register(MRDR_22_VACTUAL), 0xFFF830)[0].second, -2000);
  const auto cool = tmc5240Fields(*tmc5240Register(MRDR_6D_COOLCONF), 0x7F << 16);
  EXPECT_EQ(cool[5], (std::pair<std::string, int64_t>{"sgt", -1}));
}

}  // namespace
}  // namespace orv
