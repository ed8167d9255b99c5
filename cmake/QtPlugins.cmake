# Qt's plug-ins that a bundle brings along: platforms, and what those load when a window opens.

include_guard(GLOBAL)

# lumivo_qt_plugins(RESULT): the files. Each belongs into a folder named like the one it lies in.
function(lumivo_qt_plugins result)
  if(APPLE)
    set(needed QCocoaIntegrationPlugin QOffscreenIntegrationPlugin QMinimalIntegrationPlugin)
    set(useful QMacStylePlugin)
  else()
    set(needed QXcbIntegrationPlugin QOffscreenIntegrationPlugin QMinimalIntegrationPlugin)
    set(useful QXcbGlxIntegrationPlugin QXcbEglIntegrationPlugin QComposePlatformInputContextPlugin
               QIbusPlatformInputContextPlugin)
  endif()
  set(files "")
  foreach(plugin IN LISTS needed useful)
    if(TARGET Qt5::${plugin})
      get_target_property(file Qt5::${plugin} LOCATION)
      list(APPEND files "${file}")
    elseif(plugin IN_LIST needed)
      message(FATAL_ERROR "Qt has no ${plugin}, without which the bundle cannot start")
    endif()
  endforeach()
  set(${result} "${files}" PARENT_SCOPE)
endfunction()
