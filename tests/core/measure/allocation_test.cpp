// Formatting and reading run on every key press and every tape line; the
// usual short texts must not touch the heap. This binary counts every call of
// the global operator new to check that.

#include <gtest/gtest.h>

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <string>

#include "core/measure/measure.h"
#include "core/measure/number_text.h"

namespace {
std::atomic<long> allocation_count{0};
}  // namespace

void* operator new(std::size_t size) {
  allocation_count.fetch_add(1, std::memory_order_relaxed);
  if (size == 0) size = 1;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}

// These are the replacements of the allocation functions themselves, so
// malloc and free are the matching pair; GCC cannot see that once it inlines
// them into an optimised build and would warn of a mismatch. (MSVC would
// warn of the unknown pragma instead.)
#ifdef __GNUC__
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wmismatched-new-delete"
#endif
void operator delete(void* memory) noexcept { std::free(memory); }

void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
#ifdef __GNUC__
#pragma GCC diagnostic pop
#endif

namespace brenko {
namespace {

// Allocations made while `work` runs.
template <typename Work>
long AllocationsDuring(Work&& work) {
  const long before = allocation_count.load(std::memory_order_relaxed);
  work();
  return allocation_count.load(std::memory_order_relaxed) - before;
}

TEST(AllocationTest, CounterSeesHeapStrings) {
  // Guards the test itself: a result too long for the string's own storage
  // must be counted, or the zero counts below prove nothing.
  std::size_t length = 0;
  const long count = AllocationsDuring([&] {
    const std::string text = FormatCubic(123456789.4);
    length = text.size();
  });
  ASSERT_GT(length, 15u);
  EXPECT_GE(count, 1);
}

TEST(AllocationTest, FormatLinearUpToFifteenCharactersDoesNotAllocate) {
  const double values[] = {151.1875, -151.1875, 0.5,        0.0,       11.99,
                           -0.01,    999.96875, -119.90625, 1199.90625};
  for (double value : values) {
    for (int accuracy : {16, 32}) {
      std::size_t length = 0;
      const long count = AllocationsDuring([&] {
        const std::string text = FormatLinear(value, accuracy);
        length = text.size();
      });
      ASSERT_LE(length, 15u) << value;
      EXPECT_EQ(count, 0) << value << " at " << accuracy;
    }
  }
}

TEST(AllocationTest, FormatSquareAndCubicShortResultsDoNotAllocate) {
  const long count = AllocationsDuring([] {
    const std::string square = FormatSquare(388.5);
    const std::string cubic = FormatCubic(1731.0);
  });
  EXPECT_EQ(count, 0);
}

TEST(AllocationTest, ParseLinearOfShortTextDoesNotAllocate) {
  const long count = AllocationsDuring([] {
    std::string text = "12'- 7 3/16\"";
    ParseLinear(text);
    std::string negative = "- 7 1/2\"";
    ParseLinear(negative);
  });
  EXPECT_EQ(count, 0);
}

TEST(AllocationTest, NumberRulesDoNotAllocate) {
  const long count = AllocationsDuring([] {
    const std::string text = NumberToText(151.1875);
    const std::string trimmed = TrimmedNumberText(-1.5e-5);
    LeadingNumber(" 1200.5 ");
    RoundHalfEven(0.00015, 4);
  });
  EXPECT_EQ(count, 0);
}

}  // namespace
}  // namespace brenko
