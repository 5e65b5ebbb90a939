# Fails when a binary maps a library it must not: the dynamic loader's own list (ldd), so
# libraries reached through other libraries count too. Usage:
#   cmake -DBINARY=file -DFORBIDDEN=regex -DREQUIRED=regex -P CheckLinkedLibraries.cmake
# REQUIRED names a library the binary does map, so that an empty or failed listing cannot pass.
# With -DRUN="args;..." the binary is run with those arguments instead, and what the dynamic
# loader loads during the run counts, plug-ins and what they open included.
foreach(var BINARY FORBIDDEN REQUIRED)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "CheckLinkedLibraries.cmake: ${var} is not set")
  endif()
endforeach()
if(DEFINED RUN)
  execute_process(COMMAND ${CMAKE_COMMAND} -E env LD_DEBUG=files "${BINARY}" ${RUN}
                  OUTPUT_QUIET ERROR_VARIABLE loaderLog RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${BINARY} ${RUN} failed (${status})")
  endif()
  string(REGEX MATCHALL "file=[^ ;]+" listing "${loaderLog}")
  list(JOIN listing "\n" listing)
else()
  execute_process(COMMAND ldd "${BINARY}" OUTPUT_VARIABLE listing ERROR_VARIABLE errors RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "ldd ${BINARY} failed (${status}): ${errors}")
  endif()
endif()
if(NOT listing MATCHES "${REQUIRED}")
  message(FATAL_ERROR "${BINARY}: expected a library matching \"${REQUIRED}\" in:\n${listing}")
endif()
string(REGEX MATCHALL "[^\n]*(${FORBIDDEN})[^\n]*" found "${listing}")
if(found)
  list(JOIN found "\n" found)
  message(FATAL_ERROR "${BINARY} maps a library it must not:\n${found}")
endif()
message(STATUS "${BINARY}: no library matching \"${FORBIDDEN}\"")
