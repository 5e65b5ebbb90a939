# The installed layout under the prefix:
#   bin/wfbuild, bin/wfdesigner                   the programs
#   lib/wrenfield/libWF30CoreAPI.so.3 ...         the host's shared libraries, private to it
#   lib/wrenfield/plugins/                        plug-ins and the ClearCase help file
#   lib/wrenfield/sim/cleartool                   the simulator, never on PATH (a real cleartool wins)
#   share/doc/wrenfield/                          docs and examples
#   share/man/man1, share/bash-completion, share/applications, share/icons
# wfbuild looks for plug-ins in ../lib/wrenfield/plugins, so the private folder is lib/wrenfield on
# every distribution, not the multiarch libdir. Every run path is relative to $ORIGIN, so an
# unpacked tree works wherever it lies.
#
# Two components: "runtime" is all a headless build agent needs; "designer" holds whatever links
# Qt Widgets (the designer, the design-time library, plug-ins' page libraries).
include(GNUInstallDirs)

set(WF_INSTALL_PRIVATE_DIR lib/wrenfield)
set(WF_INSTALL_PLUGIN_DIR ${WF_INSTALL_PRIVATE_DIR}/plugins)
set(WF_INSTALL_SIM_DIR ${WF_INSTALL_PRIVATE_DIR}/sim)
set(WF_INSTALL_DOC_DIR ${CMAKE_INSTALL_DATAROOTDIR}/doc/wrenfield)
set(WF_INSTALL_MAN1_DIR ${CMAKE_INSTALL_MANDIR}/man1)
set(WF_PACKAGING_DIR ${PROJECT_SOURCE_DIR}/packaging)

set(WF_PACKAGE_MAINTAINER "Wrenfield maintainers <wrenfield@example.org>" CACHE STRING
    "Name and address that the packages' changelog and control files give")

find_program(WF_HELP2MAN help2man)
find_program(WF_GZIP gzip)

# Every target defined under FOLDER and its sub-folders.
function(wf_collect_targets folder out)
  get_property(targets DIRECTORY ${folder} PROPERTY BUILDSYSTEM_TARGETS)
  get_property(subfolders DIRECTORY ${folder} PROPERTY SUBDIRECTORIES)
  foreach(sub IN LISTS subfolders)
    wf_collect_targets(${sub} more)
    list(APPEND targets ${more})
  endforeach()
  set(${out} ${targets} PARENT_SCOPE)
endfunction()

# True when TARGET links Qt Widgets, directly or through the libraries it links.
function(wf_links_widgets target out)
  set(pending ${target})
  set(seen)
  while(pending)
    list(POP_FRONT pending current)
    if(current IN_LIST seen)
      continue()
    endif()
    list(APPEND seen ${current})
    if(current STREQUAL "Qt6::Widgets")
      set(${out} TRUE PARENT_SCOPE)
      return()
    endif()
    if(NOT TARGET ${current})
      continue()
    endif()
    get_target_property(imported ${current} IMPORTED)
    set(links)
    if(NOT imported)
      get_target_property(links ${current} LINK_LIBRARIES)
    endif()
    get_target_property(interface ${current} INTERFACE_LINK_LIBRARIES)
    foreach(link IN LISTS links interface)
      # $<LINK_ONLY:X> wraps static dependencies; other expressions cannot be judged here.
      if(link MATCHES "^\\$<LINK_ONLY:([^>]+)>$")
        set(link ${CMAKE_MATCH_1})
      endif()
      if(link AND NOT link MATCHES "-NOTFOUND$" AND NOT link MATCHES "^\\$<")
        list(APPEND pending ${link})
      endif()
    endforeach()
  endwhile()
  set(${out} FALSE PARENT_SCOPE)
endfunction()

function(wf_component_of target out)
  wf_links_widgets(${target} widgets)
  if(widgets)
    set(${out} designer PARENT_SCOPE)
  else()
    set(${out} runtime PARENT_SCOPE)
  endif()
endfunction()

# Shared libraries and plug-ins are found rather than listed, so a new one (the design-time library,
# a package's page library) is installed in the right package as soon as it is built. What is built
# into bin/plugins (or a folder below it) goes to the same place under lib/wrenfield/plugins; other
# shared libraries go to lib/wrenfield. Test and benchmark targets stay out.
wf_collect_targets(${PROJECT_SOURCE_DIR} wf_all_targets)
foreach(target IN LISTS wf_all_targets)
  get_target_property(source_dir ${target} SOURCE_DIR)
  get_target_property(type ${target} TYPE)
  if(source_dir MATCHES "^${PROJECT_SOURCE_DIR}/(tests|bench)(/|$)"
     OR NOT type MATCHES "^(SHARED|MODULE)_LIBRARY$")
    continue()
  endif()
  get_target_property(output_dir ${target} LIBRARY_OUTPUT_DIRECTORY)
  wf_component_of(${target} component)
  file(RELATIVE_PATH below_plugins ${WF_PLUGIN_DIR} "${output_dir}")
  if(output_dir AND NOT below_plugins MATCHES "^\\.\\.")
    set(destination ${WF_INSTALL_PLUGIN_DIR})
    if(below_plugins)
      string(APPEND destination /${below_plugins})
    endif()
  elseif(type STREQUAL "SHARED_LIBRARY")
    set(destination ${WF_INSTALL_PRIVATE_DIR})
  else()
    continue()
  endif()
  # The run path climbs from the library's folder back to lib/wrenfield.
  file(RELATIVE_PATH up ${CMAKE_INSTALL_PREFIX}/${destination} ${CMAKE_INSTALL_PREFIX}/${WF_INSTALL_PRIVATE_DIR})
  string(REGEX REPLACE "/$" "" up "${up}")
  if(up)
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/${up}")
  else()
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
  endif()
  install(TARGETS ${target} LIBRARY DESTINATION ${destination} COMPONENT ${component} NAMELINK_SKIP)
endforeach()

# Writes PROGRAM's man page from its --help and --version (help2man), gzipped as Debian wants it.
# For a program with sub-commands (COMMANDS), each one's "help COMMAND" text becomes a subsection.
function(wf_man_page program component description)
  cmake_parse_arguments(PARSE_ARGV 3 arg "COMMANDS" "" "ENVIRONMENT")
  if(NOT WF_HELP2MAN OR NOT WF_GZIP)
    message(STATUS "help2man or gzip not found: no man page for ${program} (bash scripts/setup.sh installs them)")
    return()
  endif()
  get_target_property(name ${program} OUTPUT_NAME)
  if(NOT name)
    set(name ${program})
  endif()
  set(page ${CMAKE_BINARY_DIR}/man/${name}.1.gz)
  add_custom_command(
    OUTPUT ${page}
    # In a sanitizer build the program must not fail on a leak report while writing its page.
    COMMAND ${CMAKE_COMMAND} -E env ASAN_OPTIONS=detect_leaks=0 ${arg_ENVIRONMENT}
            ${CMAKE_COMMAND} -DPROGRAM=$<TARGET_FILE:${program}> -DNAME=${name}
            "-DDESCRIPTION=${description}" -DCOMMANDS=${arg_COMMANDS} -DHELP2MAN=${WF_HELP2MAN}
            -DGZIP=${WF_GZIP} -DINCLUDE=${WF_PACKAGING_DIR}/${name}.h2m -DOUTPUT=${page}
            -P ${PROJECT_SOURCE_DIR}/cmake/ManPage.cmake
    DEPENDS ${program} ${PROJECT_SOURCE_DIR}/cmake/ManPage.cmake ${WF_PACKAGING_DIR}/${name}.h2m
    COMMENT "Writing the man page of ${name}"
    VERBATIM
  )
  add_custom_target(${name}_man_page ALL DEPENDS ${page})
  install(FILES ${page} DESTINATION ${WF_INSTALL_MAN1_DIR} COMPONENT ${component})
endfunction()

# Debian wants a copyright file and a gzipped changelog in every package's doc folder.
function(wf_package_docs component package)
  set(changelog ${CMAKE_BINARY_DIR}/packaging/${package}/changelog)
  string(TIMESTAMP WF_DATE "%a, %d %b %Y %H:%M:%S +0000" UTC)
  set(WF_PACKAGE ${package})
  configure_file(${WF_PACKAGING_DIR}/changelog.in ${changelog} @ONLY)
  execute_process(COMMAND ${WF_GZIP} -9n -c ${changelog} OUTPUT_FILE ${changelog}.gz
                  RESULT_VARIABLE failed)
  if(failed)
    message(FATAL_ERROR "gzip could not compress ${changelog}")
  endif()
  install(FILES ${changelog}.gz ${WF_PACKAGING_DIR}/copyright
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/${package} COMPONENT ${component})
endfunction()

# --- runtime: what a build agent installs
set(WF_PACKAGE_COMPONENTS runtime)
if(TARGET wfbuild)
  set_target_properties(wfbuild PROPERTIES INSTALL_RPATH "$ORIGIN/../${WF_INSTALL_PRIVATE_DIR}")
  install(TARGETS wfbuild RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
  wf_man_page(wfbuild runtime "run Wrenfield build projects unattended" COMMANDS)
  install(FILES ${WF_PACKAGING_DIR}/wfbuild.bash-completion RENAME wfbuild
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions COMPONENT runtime)
endif()
if(TARGET WF30ClearCase)
  # Every action's help points here: "Plugins\ClearCase.html" beside the plug-in.
  install(FILES ${PROJECT_SOURCE_DIR}/clearcase/resources/ClearCase.html
          DESTINATION ${WF_INSTALL_PLUGIN_DIR} COMPONENT runtime)
endif()
if(TARGET ccsim_cleartool)
  install(TARGETS ccsim_cleartool RUNTIME DESTINATION ${WF_INSTALL_SIM_DIR} COMPONENT runtime)
endif()
install(FILES ${PROJECT_SOURCE_DIR}/README.md DESTINATION ${WF_INSTALL_DOC_DIR} COMPONENT runtime)
# The designer's pages and their screenshots go with the designer: a build agent has no use for them.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/ DESTINATION ${WF_INSTALL_DOC_DIR} COMPONENT runtime
        PATTERN "designer*" EXCLUDE PATTERN "pages*" EXCLUDE PATTERN "*.png" EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples/ DESTINATION ${WF_INSTALL_DOC_DIR}/examples
        COMPONENT runtime)
if(WF_GZIP)
  wf_package_docs(runtime wrenfield)
endif()

# --- designer: the visual editor, for desktops
if(TARGET wfdesigner)
  list(APPEND WF_PACKAGE_COMPONENTS designer)
  set_target_properties(wfdesigner PROPERTIES INSTALL_RPATH "$ORIGIN/../${WF_INSTALL_PRIVATE_DIR}")
  install(TARGETS wfdesigner RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT designer)
  # A Qt program may build its application object before reading --help; it needs no display.
  wf_man_page(wfdesigner designer "edit Wrenfield build projects" ENVIRONMENT QT_QPA_PLATFORM=offscreen)
  install(FILES ${WF_PACKAGING_DIR}/wfdesigner.desktop
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/applications COMPONENT designer)
  install(FILES ${WF_PACKAGING_DIR}/wfdesigner.svg
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/icons/hicolor/scalable/apps COMPONENT designer)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/designer ${PROJECT_SOURCE_DIR}/docs/pages
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/wrenfield-designer COMPONENT designer)
  install(FILES ${PROJECT_SOURCE_DIR}/docs/designer.md ${PROJECT_SOURCE_DIR}/docs/pages.md
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/doc/wrenfield-designer COMPONENT designer)
  if(WF_GZIP)
    wf_package_docs(designer wrenfield-designer)
  endif()
endif()
