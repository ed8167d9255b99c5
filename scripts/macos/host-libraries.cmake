# Lets a tree that is configured for macOS use the libraries of this Linux host: their headers as
# they are, and in place of each library a Mach-O one that exports the same names and does nothing.
# They lie below brew/ as Homebrew would have them, and load each other in the ways that are found
# there. What links against them has no name left undefined, and what copies them into a bundle has
# real files to work on.

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

# What only a macOS host has.
foreach(plugin QCocoaIntegrationPlugin QMacStylePlugin)
  add_library(Qt5::${plugin} MODULE IMPORTED)
  set_target_properties(Qt5::${plugin} PROPERTIES IMPORTED_LOCATION "${plugin}.so")
endforeach()
set(LUMIVO_CODESIGN "${CMAKE_CURRENT_LIST_DIR}/codesign" CACHE FILEPATH "")
# Our own class is to be compiled, whatever is installed.
set(QtSolutions_LIBRARY OFF)

# lumivo_mach_o(FILE NAME SYMBOLS ARGUMENT...): a library whose install name is NAME.
function(lumivo_mach_o file name symbols)
  cmake_path(GET file PARENT_PATH folder)
  file(MAKE_DIRECTORY "${folder}")
  list(TRANSFORM symbols REPLACE "(.+)" ".globl \"_\\1\"\n\"_\\1\":\n")
  list(JOIN symbols "" text)
  file(WRITE "${file}.s" ".text\n${text}ret\n")
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} cc -target ${CMAKE_CXX_COMPILER_TARGET} -shared -o "${file}" "${file}.s"
                          -Wl,-install_name,${name} -Wl,-headerpad_max_install_names ${ARGN}
                  COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE "${file}.s")
endfunction()

# lumivo_framework(RESULT NAME SYMBOLS ARGUMENT...): NAME.framework of Qt, with links and all.
function(lumivo_framework result name symbols)
  set(folder "opt/qt@5/lib/${name}.framework")
  set(here "${CMAKE_BINARY_DIR}/brew/${folder}")
  lumivo_mach_o("${here}/Versions/5/${name}" "${here}/Versions/5/${name}" "${symbols}" ${ARGN})
  file(WRITE "${here}/Versions/5/Resources/Info.plist" "<plist/>\n")
  file(WRITE "${here}/Versions/5/Headers/${name}" "\n")
  file(WRITE "${here}/${name}.prl" "\n")
  file(CREATE_LINK 5 "${here}/Versions/Current" SYMBOLIC)
  foreach(item Headers Resources ${name})
    file(CREATE_LINK Versions/Current/${item} "${here}/${item}" SYMBOLIC)
  endforeach()
  set(${result} "${here}/Versions/5/${name}" PARENT_SCOPE)
endfunction()

# lumivo_dylib(RESULT NAME SYMBOLS): the library in a folder of its own. By its name it is a link,
# as most are. ICU's find each other beside them, libarchive finds one of its own by a run path, and
# OpenGL is the system's.
function(lumivo_dylib result name symbols)
  set(opt "${CMAKE_BINARY_DIR}/brew/opt")
  set(folder "${opt}/${name}/lib")
  set(arguments "")
  if(name MATCHES "^libicu")
    set(folder "${opt}/icu4c/lib")
    if(NOT name STREQUAL libicudata)
      lumivo_mach_o("${folder}/libicudata.1.dylib" @loader_path/libicudata.1.dylib icudata)
      set(arguments "${folder}/libicudata.1.dylib")
    endif()
  elseif(name STREQUAL libarchive)
    lumivo_mach_o("${opt}/xz/lib/liblzma.5.dylib" @rpath/liblzma.5.dylib lzma)
    set(arguments "${opt}/xz/lib/liblzma.5.dylib" -Wl,-rpath,@loader_path/../../xz/lib)
  endif()
  set(install_name "${folder}/${name}.1.dylib")
  if(name MATCHES "GL$")
    set(install_name /System/Library/Frameworks/OpenGL.framework/Versions/A/OpenGL)
  endif()
  lumivo_mach_o("${folder}/${name}.1.2.dylib" "${install_name}" "${symbols}" ${arguments})
  file(CREATE_LINK ${name}.1.2.dylib "${folder}/${name}.1.dylib" SYMBOLIC)
  set(${result} "${folder}/${name}.1.dylib" PARENT_SCOPE)
endfunction()

# lumivo_stub(TARGET): puts a Mach-O library in the place of the imported one, after those that it
# depends on.
function(lumivo_stub target)
  get_target_property(library ${target} LOCATION)
  get_target_property(type ${target} TYPE)
  if(NOT type MATCHES "^(SHARED|UNKNOWN|MODULE)_LIBRARY$" OR NOT library MATCHES "\\.so")
    return()
  endif()
  set(needed "")
  get_target_property(dependencies ${target} INTERFACE_LINK_LIBRARIES)
  foreach(dependency IN LISTS dependencies)
    if(TARGET ${dependency})
      lumivo_stub(${dependency})
      get_target_property(file ${dependency} LOCATION)
      list(APPEND needed "${file}")
    endif()
  endforeach()
  cmake_path(GET library STEM name)
  if(type STREQUAL MODULE_LIBRARY)
    set(stub "${CMAKE_BINARY_DIR}/brew/opt/qt@5/plugins/${name}.dylib")
    lumivo_stub(Qt5::Widgets)
    get_target_property(widgets Qt5::Widgets LOCATION)
    lumivo_mach_o("${stub}" "${name}.dylib" qt_plugin_instance "${widgets}" -Wl,-rpath,@loader_path/../../lib)
  else()
    execute_process(COMMAND "${CMAKE_NM}" -D --defined-only --format=posix "${library}" OUTPUT_VARIABLE symbols
                    COMMAND_ERROR_IS_FATAL ANY)
    # A line is "NAME@VERSION TYPE ADDRESS SIZE".
    string(REGEX REPLACE "([^@ \n]+)[^\n]*\n" "\\1;" symbols "${symbols}")
    list(REMOVE_DUPLICATES symbols)
    if(name MATCHES "^libQt5(.*)")
      lumivo_framework(stub Qt${CMAKE_MATCH_1} "${symbols}" ${needed})
    else()
      lumivo_dylib(stub "${name}" "${symbols}")
    endif()
  endif()
  get_target_property(configurations ${target} IMPORTED_CONFIGURATIONS)
  foreach(suffix "" ${configurations})
    string(REGEX REPLACE "^(.+)" "_\\1" suffix "${suffix}")
    set_target_properties(${target} PROPERTIES IMPORTED_LOCATION${suffix} "${stub}" IMPORTED_SONAME${suffix} "")
  endforeach()
endfunction()

function(lumivo_use_stubs)
  get_property(imported DIRECTORY PROPERTY IMPORTED_TARGETS)
  lumivo_qt_plugins(plugins)
  list(TRANSFORM plugins REPLACE "^.*/" Qt5::)
  foreach(target IN LISTS imported)
    get_target_property(type ${target} TYPE)
    if(NOT type STREQUAL MODULE_LIBRARY OR target IN_LIST plugins)
      lumivo_stub(${target})
    endif()
  endforeach()
endfunction()

# All of the libraries without Qt, whether the launcher calls them or not, with nothing of Qt.
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
