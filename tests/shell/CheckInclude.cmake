# Compiles a unit that includes one header, with the include paths of one target, and checks
# that it compiles or, for a header of a layer the target does not link, that it fails for the
# missing header and nothing else. Usage:
#   cmake -DCOMPILER=c++ "-DINCLUDES=dir|dir" -DHEADER=layer/file.h -DEXPECT=found|missing
#         -DWORK=dir -P CheckInclude.cmake
foreach(var COMPILER INCLUDES HEADER EXPECT WORK)
  if(NOT DEFINED ${var})
    message(FATAL_ERROR "CheckInclude.cmake: ${var} is not set")
  endif()
endforeach()
string(REPLACE "|" ";" dirs "${INCLUDES}")
set(flags)
foreach(dir IN LISTS dirs)
  list(APPEND flags "-I${dir}")
endforeach()
string(MAKE_C_IDENTIFIER "${HEADER}" name)
set(unit "${WORK}/include_${name}.cpp")
file(WRITE "${unit}" "#include \"${HEADER}\"\n")
execute_process(COMMAND "${COMPILER}" -std=c++20 -fsyntax-only ${flags} "${unit}"
                RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
if(EXPECT STREQUAL "found")
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "\"${HEADER}\" should compile with ${INCLUDES}:\n${err}")
  endif()
elseif(EXPECT STREQUAL "missing")
  if(status EQUAL 0)
    message(FATAL_ERROR "\"${HEADER}\" is reachable with ${INCLUDES}; the layers no longer keep it out")
  endif()
  if(NOT err MATCHES "${HEADER}: No such file or directory")
    message(FATAL_ERROR "\"${HEADER}\" failed for another reason than a missing header:\n${err}")
  endif()
else()
  message(FATAL_ERROR "CheckInclude.cmake: EXPECT must be found or missing, not \"${EXPECT}\"")
endif()
