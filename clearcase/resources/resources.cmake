# The package's 16x16 bitmaps, one per action type ID and CC_LOGO, compiled into the plug-in.
# make_bitmaps.py draws them; the .bmp files are committed, so a build needs no Python.
file(GLOB WF_CC_BITMAPS CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/*.bmp)
list(SORT WF_CC_BITMAPS)
set(WF_CC_RESOURCE_DATA ${CMAKE_CURRENT_BINARY_DIR}/WFClearCaseResourceData.cpp)
add_custom_command(
  OUTPUT ${WF_CC_RESOURCE_DATA}
  COMMAND ${CMAKE_COMMAND} -DOUTPUT=${WF_CC_RESOURCE_DATA} "-DINPUTS=${WF_CC_BITMAPS}"
          -P ${CMAKE_CURRENT_LIST_DIR}/embed_resources.cmake
  DEPENDS ${WF_CC_BITMAPS} ${CMAKE_CURRENT_LIST_DIR}/embed_resources.cmake
  COMMENT "Embedding the ClearCase bitmaps"
  VERBATIM
)
set(WF_CC_RESOURCE_SOURCES
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseResources.cpp
  ${WF_CC_RESOURCE_DATA}
)
