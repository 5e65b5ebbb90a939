# The units of clearcase/actions, one line each.
set(WF_CC_ACTIONS_SOURCES ${WF_CC_ACTIONS_SOURCES}
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseBaseAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseUCMAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseCheckOutAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseUnCheckOutAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseCheckInGenericAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseCheckInPathAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseMakeElementAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseUpdateAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseSetConfigSpecAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseGetConfigSpecAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseFindCheckoutsAction.cpp
  ${CMAKE_CURRENT_LIST_DIR}/WFClearCaseCleartoolAction.cpp
)
