# Fails when a binary maps a library it must not: the dynamic loader's own list (ldd), so
# libraries reached through other libraries count too. Usage:
#   cmake -DBINARY=file -DFORBIDDEN=regex -DREQUIRED=regex -P CheckLinkedLibraries.cmake
# REQUIRED names a library the binary does map, so that an empty or failed listing cannot pass.
foreach(var BINARY FORBIDDEN REQUIRED)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "CheckLinkedLibraries.cmake: ${var} is not set")
  endif()
endforeach()
execute_process(COMMAND ldd "${BINARY}" OUTPUT_VARIABLE listing ERROR_VARIABLE errors RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "ldd ${BINARY} failed (${status}): ${errors}")
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
