# What the top-level build file pulls in with its one include line. The fuzzing flags must be in
# force before any target is made; installing and packaging need every target, so they are read
# once the top folder is finished (a deferred call reads its arguments then, hence the variable).
set(WF_CMAKE_DIR ${CMAKE_CURRENT_LIST_DIR})
include(${WF_CMAKE_DIR}/Fuzz.cmake)
include(${WF_CMAKE_DIR}/InstallTargets.cmake)
cmake_language(DEFER CALL include ${WF_CMAKE_DIR}/Install.cmake)
cmake_language(DEFER CALL include ${WF_CMAKE_DIR}/RunPaths.cmake)
cmake_language(DEFER CALL include ${WF_CMAKE_DIR}/Packaging.cmake)
