# How a program becomes a bundle that starts from any folder of a machine with nothing installed.

include_guard(GLOBAL)

include("${CMAKE_CURRENT_LIST_DIR}/QtPlugins.cmake")
set(LUMIVO_CLOSE_BUNDLE "${CMAKE_CURRENT_LIST_DIR}/close-bundle.cmake")

# lumivo_install_bundle(TARGET CONTENTS [INSTALL_ARGUMENT...]): installs the executable into
# CONTENTS/MacOS, Qt's plug-ins into CONTENTS/Frameworks/plugins, and every library that any of them
# loads into CONTENTS/Frameworks, but for the platform's own. INSTALL_ARGUMENT is for every
# install(), COMPONENT for example. What else belongs into the bundle may be installed before or
# after; CONTENTS/Frameworks is made anew.
function(lumivo_install_bundle target contents)
  if(APPLE)
    find_program(LUMIVO_OTOOL NAMES otool llvm-otool llvm-otool-14 REQUIRED)
    find_program(LUMIVO_CODESIGN codesign REQUIRED)
  else()
    # DT_RPATH, unlike DT_RUNPATH, also holds for the libraries behind libraries, and for plug-ins
    # and what they load.
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/../Frameworks")
    target_link_options(${target} PRIVATE LINKER:--disable-new-dtags)
  endif()
  set(installed "\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${contents}")
  install(CODE "file(REMOVE_RECURSE \"${installed}/Frameworks\")" ${ARGN})
  install(TARGETS ${target} RUNTIME DESTINATION "${contents}/MacOS" ${ARGN})
  lumivo_qt_plugins(plugins)
  set(files "")
  foreach(plugin IN LISTS plugins)
    cmake_path(GET plugin PARENT_PATH folder)
    cmake_path(GET plugin FILENAME name)
    install(FILES "$<TARGET_FILE:Qt5::${name}>" DESTINATION "${contents}/Frameworks/plugins/${folder}" ${ARGN})
    list(APPEND files "$<TARGET_FILE:Qt5::${name}>")
  endforeach()
  install(
    CODE "
      set(macos_minimum \"${CMAKE_OSX_DEPLOYMENT_TARGET}\")
      set(otool \"${LUMIVO_OTOOL}\")
      set(install_name_tool \"${CMAKE_INSTALL_NAME_TOOL}\")
      set(codesign \"${LUMIVO_CODESIGN}\")
      include(\"${LUMIVO_CLOSE_BUNDLE}\")
      lumivo_close_bundle(\"${installed}\" \"$<TARGET_FILE:${target}>\" \"${files}\")" ${ARGN})
endfunction()
