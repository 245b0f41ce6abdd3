cmake_minimum_required(VERSION 3.25)
# Fails when a source file reads an environment variable. Where the program
# keeps things comes from the Qt layer (QStandardPaths), never from HOME,
# XDG_* or APPDATA read by hand, which do not exist or mean other things on
# other systems. SOURCE_DIRS: the folders to search (;-separated).
# ALLOWED: files allowed to read the environment for what is not a path.
set(bad "")
set(count 0)
foreach(dir IN LISTS SOURCE_DIRS)
  file(GLOB_RECURSE files "${dir}/*.h" "${dir}/*.cpp" "${dir}/*.inc")
  foreach(f IN LISTS files)
    math(EXPR count "${count} + 1")
    file(RELATIVE_PATH name "${BASE_DIR}" "${f}")
    if(name IN_LIST ALLOWED)
      continue()
    endif()
    file(STRINGS "${f}" hits REGEX
      "getenv|qEnvironmentVariable|QProcessEnvironment|[^_a-zA-Z]environ[^_a-zA-Z]|GetEnvironmentVariable|SHGetFolderPath|SHGetKnownFolderPath|QDir::homePath")
    if(hits)
      list(APPEND bad "${name}: ${hits}")
    endif()
  endforeach()
endforeach()
if(count EQUAL 0)
  # A wrong or empty SOURCE_DIRS would otherwise pass, having read nothing.
  message(FATAL_ERROR "no source file found in SOURCE_DIRS: '${SOURCE_DIRS}'")
endif()
if(bad)
  string(REPLACE ";" "\n" bad "${bad}")
  message(FATAL_ERROR "the environment read for a path:\n${bad}")
endif()
message(STATUS "no environment read in ${count} files")
