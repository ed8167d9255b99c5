# Qt's plug-ins that a bundle brings along.

include_guard(GLOBAL)

# lumivo_qt_plugins(RESULT): the files. Each belongs into a folder named like the one it lies in. A dialog without input
# fields needs a platform and nothing else: no OpenGL, no input methods, no image formats beyond Qt's own.
function(lumivo_qt_plugins result)
  if(APPLE)
    set(plugins QCocoaIntegrationPlugin QOffscreenIntegrationPlugin QMacStylePlugin)
  else()
    set(plugins QXcbIntegrationPlugin QOffscreenIntegrationPlugin)
  endif()
  set(files "")
  foreach(plugin IN LISTS plugins)
    if(NOT TARGET Qt5::${plugin})
      message(FATAL_ERROR "Qt has no ${plugin}, which the bundle needs")
    endif()
    get_target_property(file Qt5::${plugin} LOCATION)
    list(APPEND files "${file}")
  endforeach()
  set(${result} "${files}" PARENT_SCOPE)
endfunction()
