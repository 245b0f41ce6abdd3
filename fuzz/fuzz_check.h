#pragma once
// What a fuzz target does when a rule it checks is broken: say which, then
// abort, so that libFuzzer keeps the input that broke it.

#include <cstdio>
#include <cstdlib>

#define BRENKO_FUZZ_CHECK(condition)                                       \
  do {                                                                     \
    if (!(condition)) {                                                    \
      std::fprintf(stderr, "%s:%d: broken rule: %s\n", __FILE__, __LINE__, \
                   #condition);                                            \
      std::abort();                                                        \
    }                                                                      \
  } while (false)
