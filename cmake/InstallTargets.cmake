# Declared install rules: every installed program and library calls wf_install_library or
# wf_install_program beside its add_library/add_executable, naming its package component:
#   runtime   all a headless build agent needs
#   designer  whatever links Qt Widgets (the designer, the design-time library, page libraries)
# Install.cmake checks the declarations once everything is configured.
#
# The installed layout under the prefix:
#   bin/wfbuild, bin/wfdesigner                   the programs
#   lib/wrenfield/libWF30CoreAPI.so.3 ...         the host's shared libraries, private to it
#   lib/wrenfield/plugins/                        plug-ins and the ClearCase help file
#   lib/wrenfield/plugins/clearcase/              the ClearCase core and page library
#   lib/wrenfield/sim/cleartool                   the simulator, never on PATH (a real cleartool wins)
#   share/doc/wrenfield/                          docs and examples
#   share/man/man1, share/bash-completion, share/applications, share/icons
# wfbuild looks for plug-ins in ../lib/wrenfield/plugins, so the private folder is lib/wrenfield on
# every distribution, not the multiarch libdir. Every run path is relative to $ORIGIN, so an
# unpacked tree works wherever it lies.
include(GNUInstallDirs)

set(WF_INSTALL_PRIVATE_DIR lib/wrenfield)
set(WF_INSTALL_PLUGIN_DIR ${WF_INSTALL_PRIVATE_DIR}/plugins)
set(WF_INSTALL_SIM_DIR ${WF_INSTALL_PRIVATE_DIR}/sim)

# Sets TARGET's installed run path: lib/wrenfield seen from DESTINATION, then EXTRA entries.
function(wf_install_rpath target destination)
  file(RELATIVE_PATH up ${CMAKE_INSTALL_PREFIX}/${destination} ${CMAKE_INSTALL_PREFIX}/${WF_INSTALL_PRIVATE_DIR})
  string(REGEX REPLACE "/$" "" up "${up}")
  set(rpath ${ARGN})
  if(up)
    list(APPEND rpath "$ORIGIN/${up}")
  else()
    list(APPEND rpath "$ORIGIN")
  endif()
  list(REMOVE_DUPLICATES rpath)
  set_target_properties(${target} PROPERTIES INSTALL_RPATH "${rpath}")
endfunction()

function(wf_declare_install target component)
  if(NOT component MATCHES "^(runtime|designer)$")
    message(FATAL_ERROR "${target}: install COMPONENT must be runtime or designer, not \"${component}\"")
  endif()
  set_property(GLOBAL APPEND PROPERTY WF_INSTALLED_TARGETS ${target})
  set_property(TARGET ${target} PROPERTY WF_INSTALL_COMPONENT ${component})
endfunction()

# wf_install_library(TARGET COMPONENT runtime|designer DESTINATION DIR [RPATH ENTRY...])
# A shared library or plug-in, installed to DIR (below the prefix) with its run path reaching
# lib/wrenfield and any further RPATH entries ($ORIGIN/clearcase).
function(wf_install_library target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "COMPONENT;DESTINATION" "RPATH")
  wf_declare_install(${target} "${arg_COMPONENT}")
  wf_install_rpath(${target} ${arg_DESTINATION} ${arg_RPATH})
  install(TARGETS ${target} LIBRARY DESTINATION ${arg_DESTINATION} COMPONENT ${arg_COMPONENT} NAMELINK_SKIP)
endfunction()

# wf_install_program(TARGET COMPONENT runtime|designer DESTINATION DIR)
function(wf_install_program target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "COMPONENT;DESTINATION" "")
  wf_declare_install(${target} "${arg_COMPONENT}")
  wf_install_rpath(${target} ${arg_DESTINATION})
  install(TARGETS ${target} RUNTIME DESTINATION ${arg_DESTINATION} COMPONENT ${arg_COMPONENT})
endfunction()
