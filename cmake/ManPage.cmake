# cmake -DPROGRAM=... -DNAME=... -DDESCRIPTION=... -DCOMMANDS=ON|OFF -DHELP2MAN=... -DGZIP=...
#       -DINCLUDE=file.h2m -DOUTPUT=name.1.gz -P ManPage.cmake
# Writes a program's man page from its own --help, so the page never drifts from the program.
# With COMMANDS, every command listed under "Commands:" gets a subsection with its own help text.
foreach(var PROGRAM NAME DESCRIPTION HELP2MAN GZIP INCLUDE OUTPUT)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "ManPage.cmake needs -D${var}=...")
  endif()
endforeach()

# Help text as roff that help2man copies verbatim: kept as preformatted lines, with the
# characters roff would read as requests, escapes or hyphens made literal.
function(to_roff text out)
  string(REPLACE "\\" "\\e" text "${text}")
  string(REPLACE "-" "\\-" text "${text}")
  string(REGEX REPLACE "(^|\n)([.'])" "\\1\\\\&\\2" text "${text}")
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

function(run_help out)
  execute_process(COMMAND ${PROGRAM} ${ARGN} OUTPUT_VARIABLE text ERROR_VARIABLE error
                  RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${PROGRAM} ${ARGN} failed (${status}): ${error}")
  endif()
  set(${out} "${text}" PARENT_SCOPE)
endfunction()

get_filename_component(work "${OUTPUT}" DIRECTORY)
file(MAKE_DIRECTORY "${work}")
file(READ "${INCLUDE}" sections)

if(COMMANDS)
  run_help(overview --help)
  string(REGEX MATCH "\nCommands:\n(([ ]+[^\n]*\n)+)" block "${overview}")
  if(NOT CMAKE_MATCH_1)
    message(FATAL_ERROR "${PROGRAM} --help lists no \"Commands:\"")
  endif()
  string(REGEX MATCHALL "\n  [a-z][a-z-]*" names "\n${CMAKE_MATCH_1}")
  string(APPEND sections "\n[COMMANDS IN DETAIL]\n")
  foreach(name IN LISTS names)
    string(STRIP "${name}" name)
    if(name STREQUAL "help")
      continue()
    endif()
    run_help(details help ${name})
    to_roff("${details}" details)
    string(APPEND sections ".SS ${name}\n.nf\n${details}.fi\n")
  endforeach()
endif()

set(include_file "${work}/${NAME}.generated.h2m")
file(WRITE "${include_file}" "${sections}")
set(page "${work}/${NAME}.1")
execute_process(
  COMMAND ${HELP2MAN} --no-info --name=${DESCRIPTION} --section=1
          --include=${include_file} --output=${page} ${PROGRAM}
  RESULT_VARIABLE status ERROR_VARIABLE error)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "help2man failed on ${PROGRAM}: ${error}")
endif()
# help2man names the program by the path it ran; the page is about the installed command.
file(READ "${page}" text)
get_filename_component(program_dir "${PROGRAM}" DIRECTORY)
string(REPLACE "${program_dir}/" "" text "${text}")
file(WRITE "${page}" "${text}")
execute_process(COMMAND ${GZIP} -9n -c "${page}" OUTPUT_FILE "${OUTPUT}" RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "gzip failed on ${page}")
endif()
