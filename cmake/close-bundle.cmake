# Closes an installed bundle: copies every library that it loads into Contents/Frameworks, and has
# them found there. Runs at install time, with the tools for macOS in `otool`, `install_name_tool`
# and `codesign` where there are any, and the oldest system that the bundle starts on in
# `macos_minimum`.
#
# On Linux the executable's DT_RPATH leads to all of them, and whatever paths they have of their
# own, which would hide it, are removed. On macOS each file names the places of the libraries that
# it loads; these are rewritten, and since that breaks signatures, each file gets one of its own.

cmake_policy(VERSION 3.25)

# What the platform itself has: glibc's family, and what macOS keeps where programs may not write.
set(platform_libraries
    "^ld-linux" "^lib(c|m|mvec|dl|pthread|rt|resolv|util|nsl|anl|thread_db|BrokenLocale|nss_[a-z]+)\\.so\\."
    "^/usr/lib/" "^/System/")

# lumivo_close_bundle(CONTENTS EXECUTABLE PLUGINS): EXECUTABLE and PLUGINS are the files that were
# installed into CONTENTS, at the places that they came from: their libraries are looked for from
# there.
function(lumivo_close_bundle contents executable plugins)
  cmake_path(ABSOLUTE_PATH contents NORMALIZE)
  if(otool)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_PLATFORM macos+macho)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_TOOL otool)
    set(CMAKE_GET_RUNTIME_DEPENDENCIES_COMMAND "${otool}")
  endif()
  file(GET_RUNTIME_DEPENDENCIES EXECUTABLES "${executable}" MODULES ${plugins} RESOLVED_DEPENDENCIES_VAR libraries
       PRE_EXCLUDE_REGEXES ${platform_libraries})
  foreach(library IN LISTS libraries)
    lumivo_copy_library("${library}" "${contents}/Frameworks")
  endforeach()
  list(LENGTH libraries count)
  message(STATUS "Closed: ${contents}, ${count} libraries")

  file(GLOB_RECURSE files LIST_DIRECTORIES false "${contents}/Frameworks/*")
  if(NOT otool)
    foreach(file IN LISTS files)
      file(RPATH_REMOVE FILE "${file}")
    endforeach()
    return()
  endif()
  # Beside its bundle the executable is signed as a plain file. Inside, it would stand for the whole
  # bundle.
  cmake_path(GET executable FILENAME name)
  cmake_path(SET outside NORMALIZE "${contents}/../../${name}.closing")
  file(RENAME "${contents}/MacOS/${name}" "${outside}")
  foreach(file IN LISTS files ITEMS "${outside}")
    if(NOT IS_SYMLINK "${file}" AND NOT file MATCHES "\\.framework/.*/Resources/")
      lumivo_close_mach_o("${file}" "${contents}/Frameworks")
    endif()
  endforeach()
  file(RENAME "${outside}" "${contents}/MacOS/${name}")
endfunction()

# A library by the name that it is loaded by; a framework with its links and without what only
# building needs.
function(lumivo_copy_library library frameworks)
  cmake_path(GET library FILENAME name)
  if(library MATCHES "^(.*/([^/]+\\.framework))/")
    set(framework "${CMAKE_MATCH_1}")
    file(COPY "${framework}" DESTINATION "${frameworks}"
         PATTERN Headers EXCLUDE PATTERN "*.prl" EXCLUDE PATTERN "*_debug*" EXCLUDE)
  else()
    file(COPY_FILE "${library}" "${frameworks}/${name}")
    file(CHMOD "${frameworks}/${name}"
         PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
  endif()
endfunction()

# Has FILE find its libraries in FRAMEWORKS, and signs it.
function(lumivo_close_mach_o file frameworks)
  execute_process(COMMAND "${otool}" -l "${file}" OUTPUT_VARIABLE commands COMMAND_ERROR_IS_FATAL ANY)
  # Each load command begins with its kind, and what it names stands some lines below.
  string(REGEX REPLACE "[][;]" "" commands "${commands}")
  string(REPLACE "Load command" ";" commands "${commands}")
  set(changes "")
  foreach(command IN LISTS commands)
    if(command MATCHES "cmd LC_ID_DYLIB")
      file(RELATIVE_PATH name "${frameworks}" "${file}")
      list(APPEND changes -id "@executable_path/../Frameworks/${name}")
    elseif(command MATCHES "cmd LC_[A-Z_]*(LOAD|REEXPORT)[A-Z_]*_DYLIB.* name (.+) \\(offset")
      set(old "${CMAKE_MATCH_2}")
      if(NOT old MATCHES "^(/usr/lib|/System)/")
        lumivo_place_in_bundle(place "${old}" "${frameworks}")
        list(APPEND changes -change "${old}" "${place}")
      endif()
    elseif(command MATCHES "cmd LC_RPATH.* path (.+) \\(offset")
      list(APPEND changes -delete_rpath "${CMAKE_MATCH_1}")
    elseif(command MATCHES "cmd (LC_BUILD_VERSION.* minos|LC_VERSION_MIN_MACOSX.* version) ([0-9.]+)")
      if(CMAKE_MATCH_2 VERSION_GREATER macos_minimum)
        message(FATAL_ERROR "${file} needs macOS ${CMAKE_MATCH_2}, and the bundle promises to start on ${macos_minimum}: "
                            "use a library built for that, or set CMAKE_OSX_DEPLOYMENT_TARGET")
      endif()
    endif()
  endforeach()
  file(CHMOD "${file}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
  execute_process(COMMAND "${install_name_tool}" ${changes} "${file}" COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND "${codesign}" --force --sign - "${file}" COMMAND_ERROR_IS_FATAL ANY)
endfunction()

# What a program of the bundle calls the library NAME, which has to be there.
function(lumivo_place_in_bundle result name frameworks)
  string(REGEX MATCH "[^/]+\\.framework/.*$|[^/]+$" name "${name}")
  if(NOT EXISTS "${frameworks}/${name}")
    message(FATAL_ERROR "${name} is loaded, and was not copied to ${frameworks}")
  endif()
  set(${result} "@executable_path/../Frameworks/${name}" PARENT_SCOPE)
endfunction()
