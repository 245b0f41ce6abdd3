# Fails when an include of the core points up the folder order, or when two
# folders include each other; prints the folder graph either way.
include("${CORE_DIR}/layers.cmake")
brenko_core_layer_check("${CORE_DIR}" "${BRENKO_CORE_LAYERS}" graph errors)
string(REPLACE ";" "\n  " shown "${graph}")
message(STATUS "core folder graph:\n  ${shown}")
if(errors)
  string(REPLACE ";" "\n" listed "${errors}")
  message(FATAL_ERROR "the core's folders are out of order:\n${listed}")
endif()
