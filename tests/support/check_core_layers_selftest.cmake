# Shows that the folder-order check catches what it is there for: small core
# trees are written to a scratch folder and each must give exactly the
# expected findings.
include("${CORE_DIR}/layers.cmake")
set(root "${SCRATCH_DIR}/core_layers_selftest")
set(layers measure base tape calc)
set(failures "")

# write_tree(NAME "path|line" ...): one file per argument.
function(write_tree name)
  file(REMOVE_RECURSE "${root}/${name}")
  foreach(entry IN LISTS ARGN)
    string(REPLACE "|" ";" parts "${entry}")
    list(GET parts 0 path)
    list(GET parts 1 line)
    file(WRITE "${root}/${name}/${path}" "${line}\n")
  endforeach()
endfunction()

function(expect name expected_graph expected_errors)
  brenko_core_layer_check("${root}/${name}" "${layers}" graph errors)
  if(NOT "${graph}" STREQUAL "${expected_graph}")
    list(APPEND failures "${name}: graph [${graph}], expected [${expected_graph}]")
  endif()
  if(NOT "${errors}" STREQUAL "${expected_errors}")
    list(APPEND failures "${name}: findings [${errors}], expected [${expected_errors}]")
  endif()
  set(failures "${failures}" PARENT_SCOPE)
endfunction()

# Downward and sideways-within-a-folder includes are what the order allows.
write_tree(clean
  "measure/a.h|#include <string>"
  "base/b.h|#include \"core/measure/a.h\""
  "tape/c.cpp|#include \"core/tape/c.h\""
  "tape/c.h|#include \"core/base/b.h\""
  "calc/d.cpp|#include \"core/measure/a.h\"")
expect(clean "measure -> ;base -> measure;tape -> base;calc -> measure" "")

# One include up the order, named with its file.
write_tree(upward
  "base/b.h|#include <string>"
  "tape/c.cpp|#include \"core/calc/d.h\""
  "calc/d.h|#include \"core/base/b.h\"")
expect(upward "base -> ;tape -> calc;calc -> base"
  "tape/c.cpp: #include \"core/calc/d.h\" points up from tape to calc")

# Two folders that include each other: the upward half and the cycle.
write_tree(mutual
  "tape/c.h|#include \"core/calc/d.h\""
  "calc/d.h|#include \"core/tape/c.h\"")
expect(mutual "tape -> calc;calc -> tape"
  "tape/c.h: #include \"core/calc/d.h\" points up from tape to calc;calc and tape include each other")

# A folder the order does not know, as a home and as a target.
write_tree(unknown
  "extra/e.h|#include <string>"
  "base/b.h|#include \"core/extra/e.h\"")
expect(unknown "base -> "
  "base/b.h: #include \"core/extra/e.h\" names folder extra, not in the order;extra/e.h: folder extra is not in the order")

file(REMOVE_RECURSE "${root}")
if(failures)
  string(REPLACE ";" "\n" listed "${failures}")
  message(FATAL_ERROR "the folder-order check missed:\n${listed}")
endif()
message(STATUS "the folder-order check finds upward includes, cycles and unknown folders")
