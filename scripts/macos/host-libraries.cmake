# Lets a tree that is configured for macOS use the libraries of this Linux host: their headers as they are, and in place
# of each library a text stub of the names that it exports. What links against the stubs has no name left undefined.

# The C library's headers lie beside those that are wanted, and would hide those of macOS.
set(headers "${CMAKE_BINARY_DIR}/include")
file(MAKE_DIRECTORY "${headers}")
foreach(name unicode archive.h archive_entry.h)
  find_path(folder ${name} REQUIRED NO_CACHE)
  file(CREATE_LINK "${folder}/${name}" "${headers}/${name}" SYMBOLIC)
  unset(folder)
endforeach()
set(ICU_INCLUDE_DIR "${headers}")
set(LibArchive_INCLUDE_DIR "${headers}")

# What only a macOS host has, and nothing here runs or loads.
set(LUMIVO_ICONUTIL false)
add_library(Qt5::QCocoaIntegrationPlugin MODULE IMPORTED)
set_target_properties(Qt5::QCocoaIntegrationPlugin PROPERTIES IMPORTED_LOCATION "${CMAKE_BINARY_DIR}/libqcocoa.dylib")
# Our own class is to be compiled, whatever is installed.
set(QtSolutions_LIBRARY OFF)

# lumivo_stub(RESULT LIBRARY): a text stub of the shared library.
function(lumivo_stub result library)
  cmake_path(GET library STEM name)
  set(stub "${CMAKE_BINARY_DIR}/stubs/${name}.tbd")
  execute_process(COMMAND "${CMAKE_NM}" -D --defined-only --format=posix "${library}" OUTPUT_VARIABLE symbols
                  COMMAND_ERROR_IS_FATAL ANY)
  # A line is "NAME@VERSION TYPE ADDRESS SIZE".
  string(REGEX REPLACE "([^@ \n]+)[^\n]*\n" "_\\1,\n  " symbols "${symbols}")
  string(REGEX REPLACE ",\n  $" "" symbols "${symbols}")
  set(targets "[ x86_64-macos, arm64-macos ]")
  file(WRITE "${stub}" "--- !tapi-tbd\n" "tbd-version: 4\n" "targets: ${targets}\n"
       "install-name: '@rpath/${name}.dylib'\n" "exports:\n" "  - targets: ${targets}\n" "    symbols: [ ${symbols} ]\n"
       "...\n")
  set(${result} "${stub}" PARENT_SCOPE)
endfunction()

function(lumivo_use_stubs)
  get_property(imported DIRECTORY PROPERTY IMPORTED_TARGETS)
  foreach(target IN LISTS imported)
    get_target_property(library ${target} LOCATION)
    get_target_property(type ${target} TYPE)
    if(type MATCHES "^(SHARED|UNKNOWN)_LIBRARY$" AND library MATCHES "\\.so")
      lumivo_stub(stub "${library}")
      get_target_property(configurations ${target} IMPORTED_CONFIGURATIONS)
      foreach(suffix "" ${configurations})
        string(REGEX REPLACE "^(.+)" "_\\1" suffix "${suffix}")
        set_target_properties(${target} PROPERTIES IMPORTED_LOCATION${suffix} "${stub}" IMPORTED_SONAME${suffix} "")
      endforeach()
    endif()
  endforeach()
endfunction()

# All of the libraries without the toolkit, whether the launcher calls them or not, with nothing of the toolkit.
function(lumivo_plain_library)
  add_library(lumivo-plain SHARED)
  foreach(library libustring liblogger libtmpname libfile)
    target_sources(lumivo-plain PRIVATE $<TARGET_OBJECTS:${library}>)
    target_link_libraries(lumivo-plain PRIVATE ${library})
  endforeach()
  set_target_properties(lumivo-plain PROPERTIES LINKER_LANGUAGE CXX)
endfunction()

# The first link builds the C++ library. Links side by side would each build it.
set_property(GLOBAL PROPERTY JOB_POOLS link=1)
set(CMAKE_JOB_POOL_LINK link)

cmake_language(DEFER CALL lumivo_use_stubs)
cmake_language(DEFER CALL lumivo_plain_library)
