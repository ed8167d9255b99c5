# Qt's plug-ins that a bundle brings along.

include_guard(GLOBAL)

# lumivo_qt_plugins(RESULT): each as FOLDER/TARGET, for the target Qt5::TARGET, whose file belongs
# into the plug-in folder FOLDER. A dialog without input fields needs a platform and nothing else:
# no OpenGL, no input methods, and no image formats beyond Qt's own.
function(lumivo_qt_plugins result)
  if(APPLE)
    set(plugins platforms/QCocoaIntegrationPlugin platforms/QOffscreenIntegrationPlugin styles/QMacStylePlugin)
  else()
    set(plugins platforms/QXcbIntegrationPlugin platforms/QOffscreenIntegrationPlugin)
  endif()
  foreach(plugin IN LISTS plugins)
    cmake_path(GET plugin FILENAME name)
    if(NOT TARGET Qt5::${name})
      message(FATAL_ERROR "Qt has no ${name}, which the bundle needs")
    endif()
  endforeach()
  set(${result} "${plugins}" PARENT_SCOPE)
endfunction()
