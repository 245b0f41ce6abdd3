#ifndef BRENKO_OS_STACK_ROOM_H_
#define BRENKO_OS_STACK_ROOM_H_

namespace brenko::os {

// The stack the program's main thread may grow to, in bytes.
inline constexpr long long kMainStackBytes = 64LL * 1024 * 1024;

// Lets the main thread's stack grow to kMainStackBytes (or the system's
// hard limit, if lower). Qt paints overlapping sibling widgets with one
// nested call per sibling under the painted area, and a memory file may
// hold 32,767 memories, most of them stacked in one place: about 300 bytes
// a window, more than the usual 8 MiB. Call it first thing in main(), before
// any thread starts. On Windows the linker sets the size instead (see
// src/app/CMakeLists.txt). Whether the stack may now grow that far.
bool MakeStackRoom();

}  // namespace brenko::os

#endif  // BRENKO_OS_STACK_ROOM_H_
