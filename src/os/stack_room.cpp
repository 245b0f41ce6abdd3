#include "os/stack_room.h"

#if !defined(_WIN32)
#include <sys/resource.h>
#endif

namespace brenko::os {

bool MakeStackRoom() {
#if defined(_WIN32)
  return true;
#else
  rlimit limit{};
  if (getrlimit(RLIMIT_STACK, &limit) != 0) return false;
  const auto wanted = static_cast<rlim_t>(kMainStackBytes);
  if (limit.rlim_cur == RLIM_INFINITY || limit.rlim_cur >= wanted) return true;
  limit.rlim_cur = limit.rlim_max == RLIM_INFINITY || limit.rlim_max >= wanted
                       ? wanted
                       : limit.rlim_max;
  return setrlimit(RLIMIT_STACK, &limit) == 0 && limit.rlim_cur == wanted;
#endif
}

}  // namespace brenko::os
