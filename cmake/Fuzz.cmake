# With WF_FUZZ every target is built with coverage and the sanitizers, not only the fuzz targets:
# the code a target exercises lives in the libraries it links (WF30CoreAPI, the package's core),
# and a fuzzer only sees the edges of code that was instrumented. tests/fuzz adds the libFuzzer
# main to the fuzz targets alone.
if(NOT WF_FUZZ)
  return()
endif()
if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
  message(FATAL_ERROR "WF_FUZZ needs clang (libFuzzer); configure with CXX=clang++")
endif()
add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=undefined
                    -fno-omit-frame-pointer)
add_link_options(-fsanitize=address,undefined)
