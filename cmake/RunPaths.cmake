# Run paths of what is installed, read after Install.cmake has given each its installed run
# path. Left to itself, CMake would link the build tree's copy with a run path of its own and
# edit it in place when installing; to make room it pads that run path with empty entries,
# which the dynamic loader reads as the current folder, so a library planted in a project
# folder would be loaded. Instead each is linked once with its installed run path followed by
# the build tree's lib/ as seen from its own folder, and installing changes nothing.
# The simulator, installed too, needs no run path at all.
foreach(target IN LISTS wf_all_targets)
  get_target_property(installed ${target} INSTALL_RPATH)
  if(target STREQUAL "ccsim_cleartool")
    set_target_properties(${target} PROPERTIES BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "")
    continue()
  elseif(NOT installed)
    continue()
  endif()
  get_target_property(type ${target} TYPE)
  if(type STREQUAL "EXECUTABLE")
    get_target_property(folder ${target} RUNTIME_OUTPUT_DIRECTORY)
  else()
    get_target_property(folder ${target} LIBRARY_OUTPUT_DIRECTORY)
  endif()
  file(RELATIVE_PATH up "${folder}" "${CMAKE_BINARY_DIR}/lib")
  set(paths ${installed})
  if(up)
    list(APPEND paths "$ORIGIN/${up}")
  endif()
  list(REMOVE_DUPLICATES paths)
  set_target_properties(${target} PROPERTIES BUILD_WITH_INSTALL_RPATH ON INSTALL_RPATH "${paths}")
endforeach()
