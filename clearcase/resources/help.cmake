# The help file every action points to: installed next to the plug-in, where the host looks for it.
add_custom_command(
  OUTPUT ${WF_PLUGIN_DIR}/ClearCase.html
  COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_CURRENT_LIST_DIR}/ClearCase.html ${WF_PLUGIN_DIR}/ClearCase.html
  DEPENDS ${CMAKE_CURRENT_LIST_DIR}/ClearCase.html
  COMMENT "Installing the ClearCase help file"
  VERBATIM
)
add_custom_target(WF30ClearCaseHelp ALL DEPENDS ${WF_PLUGIN_DIR}/ClearCase.html)
add_dependencies(WF30ClearCase WF30ClearCaseHelp)
