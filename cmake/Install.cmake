# What is installed besides the targets (docs, man pages, completion, desktop files), and the
# check of the install rules each target declares beside itself (InstallTargets.cmake).
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

# Every program and shared library outside the tests declares its install rule, and nothing in
# the runtime package reaches Qt Widgets: a build agent installs no widget library.
wf_collect_targets(${PROJECT_SOURCE_DIR} wf_all_targets)
get_property(wf_installed GLOBAL PROPERTY WF_INSTALLED_TARGETS)
foreach(target IN LISTS wf_all_targets)
  get_target_property(source_dir ${target} SOURCE_DIR)
  get_target_property(type ${target} TYPE)
  if(source_dir MATCHES "^${PROJECT_SOURCE_DIR}/(tests|bench)(/|$)"
     OR NOT type MATCHES "^(SHARED_LIBRARY|MODULE_LIBRARY|EXECUTABLE)$")
    continue()
  endif()
  if(NOT target IN_LIST wf_installed)
    message(FATAL_ERROR "${target} is built but not installed: call wf_install_library or "
                        "wf_install_program beside its add_library/add_executable")
  endif()
endforeach()
foreach(target IN LISTS wf_installed)
  get_target_property(component ${target} WF_INSTALL_COMPONENT)
  wf_links_widgets(${target} widgets)
  if(widgets AND component STREQUAL "runtime")
    message(FATAL_ERROR "${target} is installed in the runtime package but links Qt Widgets: "
                        "install it with COMPONENT designer")
  endif()
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
  wf_man_page(wfbuild runtime "run Wrenfield build projects unattended" COMMANDS)
  install(FILES ${WF_PACKAGING_DIR}/wfbuild.bash-completion RENAME wfbuild
          DESTINATION ${CMAKE_INSTALL_DATAROOTDIR}/bash-completion/completions COMPONENT runtime)
endif()
if(TARGET WF30ClearCase)
  # Every action's help points here: "Plugins\ClearCase.html" beside the plug-in.
  install(FILES ${PROJECT_SOURCE_DIR}/clearcase/resources/ClearCase.html
          DESTINATION ${WF_INSTALL_PLUGIN_DIR} COMPONENT runtime)
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
