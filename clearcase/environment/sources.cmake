# The units of clearcase/environment, one line each.
set(WF_CC_ENVIRONMENT_SOURCES ${WF_CC_ENVIRONMENT_SOURCES}
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseOptions.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseUtils.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseQuerySession.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseIniFile.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseStringList.cpp
)
