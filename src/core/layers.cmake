# The core's folders in their one direction, bottom to top: a folder may
# include itself and the folders before it, never one after it. The libraries
# are made in this order (each links the one before it), and a test reads
# every include of the core against it.
set(BRENKO_CORE_LAYERS
    measure base tape calc keypad memory converter shell commands)

# brenko_core_layer_check(CORE_DIR LAYERS EDGES_VAR ERRORS_VAR) reads every
# .h, .cpp and .inc file below CORE_DIR and sets
#   EDGES_VAR  to the folder graph, one "from -> to1,to2" entry per folder;
#   ERRORS_VAR to one entry per include that breaks the order ("FILE: #include
#              "core/x/y.h" points up from a to x"), per pair of folders that
#              include each other, per file in a folder the order does not
#              name, and per include of such a folder.
function(brenko_core_layer_check core_dir layers edges_var errors_var)
  set(errors "")
  file(GLOB_RECURSE files RELATIVE "${core_dir}" "${core_dir}/*.h"
       "${core_dir}/*.cpp" "${core_dir}/*.inc")
  list(SORT files)
  set(folders "")
  foreach(rel IN LISTS files)
    string(REGEX MATCH "^[^/]+/" folder "${rel}")
    if(NOT folder)
      list(APPEND errors "${rel}: a file outside every folder")
      continue()
    endif()
    string(REGEX REPLACE "/$" "" from "${folder}")
    list(FIND layers "${from}" from_rank)
    if(from_rank LESS 0)
      list(APPEND errors "${rel}: folder ${from} is not in the order")
      continue()
    endif()
    list(APPEND folders "${from}")
    file(STRINGS "${core_dir}/${rel}" includes
         REGEX "^[ \t]*#[ \t]*include[ \t]*\"core/")
    foreach(line IN LISTS includes)
      string(REGEX MATCH "\"core/([^/\"]+)/" hit "${line}")
      set(to "${CMAKE_MATCH_1}")
      if(NOT to)
        list(APPEND errors "${rel}: ${line} names no folder")
        continue()
      endif()
      string(STRIP "${line}" shown)
      list(FIND layers "${to}" to_rank)
      if(to_rank LESS 0)
        list(APPEND errors "${rel}: ${shown} names folder ${to}, not in the order")
        continue()
      endif()
      if(to STREQUAL from)
        continue()
      endif()
      list(APPEND edges_${from} "${to}")
      if(to_rank GREATER from_rank)
        list(APPEND errors "${rel}: ${shown} points up from ${from} to ${to}")
      endif()
    endforeach()
  endforeach()
  list(REMOVE_DUPLICATES folders)
  set(graph "")
  foreach(from IN LISTS layers)
    list(FIND folders "${from}" present)
    if(present LESS 0)
      continue()
    endif()
    set(targets "${edges_${from}}")
    if(targets)
      list(REMOVE_DUPLICATES targets)
      list(SORT targets)
    endif()
    string(REPLACE ";" "," shown "${targets}")
    list(APPEND graph "${from} -> ${shown}")
    # Two folders that include each other form a cycle, whatever the order
    # says about either edge.
    foreach(to IN LISTS targets)
      list(FIND edges_${to} "${from}" back)
      if(back GREATER_EQUAL 0 AND from STRLESS to)
        list(APPEND errors "${from} and ${to} include each other")
      endif()
    endforeach()
  endforeach()
  set(${edges_var} "${graph}" PARENT_SCOPE)
  set(${errors_var} "${errors}" PARENT_SCOPE)
endfunction()
