# The units of clearcase/shell, one line each.
set(WF_CC_SHELL_SOURCES ${WF_CC_SHELL_SOURCES}
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseRegistration.cpp
)
