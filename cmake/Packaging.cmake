# Debian packages through CPack (scripts/package.sh runs it): "wrenfield" holds the runtime a
# headless build agent installs; "wrenfield-designer", made once the designer is built, holds
# everything that links Qt Widgets and depends on the exact same "wrenfield".
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME wrenfield)
set(CPACK_PACKAGE_VENDOR "Wrenfield")
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "${WF_PACKAGE_MAINTAINER}")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL ${WF_PACKAGE_COMPONENTS})
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
# Dependencies come from the binaries. The host's own libraries are private (lib/wrenfield) and
# have no shlibs entry; the designer package finds them in the build tree and gets its
# dependency on them from the component dependency below.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME wrenfield)
# The completion file is used only where bash-completion is installed.
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS bash-completion)
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION
    "Build host for unattended builds, with a ClearCase package
wfbuild runs Wrenfield build projects (.wfp files) unattended on build agents
and CI engines, and writes a build log and JUnit reports. The WF30ClearCase
plug-in adds 24 ClearCase actions (check-outs, labels, baselines, views and
more). A cleartool simulator in /usr/lib/wrenfield/sim lets projects be tried
on a machine without ClearCase.")

set(CPACK_DEBIAN_DESIGNER_PACKAGE_NAME wrenfield-designer)
set(CPACK_DEBIAN_DESIGNER_PACKAGE_SECTION devel)
set(CPACK_COMPONENT_DESIGNER_DEPENDS runtime)
set(CPACK_COMPONENT_DESIGNER_DESCRIPTION
    "Visual editor for Wrenfield build projects
wfdesigner assembles build projects from the actions of the installed
plug-ins, edits them in property pages and runs them with a live log.
Build agents need only the wrenfield package.")

include(CPack)
