# How every target of this tree is made: C++17, our warnings, one source file per host where a layer
# hides one.

include_guard(GLOBAL)

# lumivo_defaults(TARGET): what holds for libraries, programs and tests alike.
function(lumivo_defaults target)
  target_compile_features(${target} PUBLIC cxx_std_17)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
                                           -Woverloaded-virtual -Wformat=2 $<$<BOOL:${LUMIVO_WERROR}>:-Werror>)
endfunction()

# lumivo_qt(TARGET): Qt's strict definitions and its code generators.
function(lumivo_qt target)
  set_target_properties(${target} PROPERTIES AUTOMOC ON AUTORCC ON)
  target_compile_definitions(
    ${target} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_CAST_FROM_BYTEARRAY
                      QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_STRICT_ITERATORS)
endfunction()

# lumivo_library(TARGET ALIAS [QT] SOURCE...): a static library Lumivo::ALIAS. With QT it is one of
# the interface's, whose headers lie beside its sources; the headers of the others lie in include/.
function(lumivo_library target alias)
  cmake_parse_arguments(PARSE_ARGV 2 arg "QT" "" "")
  add_library(${target} STATIC ${arg_UNPARSED_ARGUMENTS})
  add_library(Lumivo::${alias} ALIAS ${target})
  lumivo_defaults(${target})
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ${alias})
  if(arg_QT)
    lumivo_qt(${target})
    target_include_directories(${target} PUBLIC "${CMAKE_CURRENT_SOURCE_DIR}")
  else()
    target_include_directories(${target} PUBLIC "${PROJECT_SOURCE_DIR}/include")
  endif()
endfunction()

# lumivo_host_source(TARGET BASE): adds BASE-mac.cpp on macOS, elsewhere BASE-linux.cpp where there
# is one, or else BASE-posix.cpp.
function(lumivo_host_source target base)
  set(host posix)
  if(APPLE)
    set(host mac)
  elseif(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${base}-linux.cpp")
    set(host linux)
  endif()
  target_sources(${target} PRIVATE ${base}-${host}.cpp)
endfunction()
