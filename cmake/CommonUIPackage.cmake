# Installation: the library, the host stand-in, the public headers under
# include/<package>/ with their folder layout (clients keep writing
# #include "UI/CKyUIDialog.h"), a CMake package and a pkg-config file.
# The Qt 5 build is the package CommonUI (pkg-config commonui); the Qt 6 build
# is CommonUIQt6 (commonui-qt6), so both install into one prefix side by side.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

string(TOLOWER "${COMMONUI_NAME_SUFFIX}" COMMONUI_PC_SUFFIX)
if(COMMONUI_PC_SUFFIX)
    set(COMMONUI_PC_NAME commonui-${COMMONUI_PC_SUFFIX})
else()
    set(COMMONUI_PC_NAME commonui)
endif()
set(COMMONUI_QT_COMPONENTS Core Gui Widgets Network WebSockets)
set(COMMONUI_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/${COMMONUI_PACKAGE})
set(COMMONUI_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/${COMMONUI_PACKAGE})

# The library finds the host library next to itself wherever the prefix lands.
set_target_properties(CommonUI PROPERTIES INSTALL_RPATH "\$ORIGIN")

install(TARGETS CommonUI KyHostKernel
    EXPORT ${COMMONUI_PACKAGE}Targets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    # The imported targets' include directory (the build tree's is the source's).
    INCLUDES DESTINATION ${COMMONUI_INSTALL_INCLUDEDIR})

# sdk/ is the include root; the signal machinery's headers have no extension.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/sdk/
    DESTINATION ${COMMONUI_INSTALL_INCLUDEDIR}
    FILES_MATCHING PATTERN "*.h" REGEX "/slimsig/detail/[^/]+$")
install(FILES
    ${PROJECT_BINARY_DIR}/generated/commonui_export.h
    ${PROJECT_SOURCE_DIR}/host/KyHostKernel.h
    DESTINATION ${COMMONUI_INSTALL_INCLUDEDIR})

install(EXPORT ${COMMONUI_PACKAGE}Targets
    NAMESPACE ${COMMONUI_PACKAGE}::
    DESTINATION ${COMMONUI_INSTALL_CMAKEDIR})
string(REPLACE ";" " " COMMONUI_QT_COMPONENTS "${COMMONUI_QT_COMPONENTS}")
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/CommonUIConfig.cmake.in
    ${PROJECT_BINARY_DIR}/package/${COMMONUI_PACKAGE}Config.cmake
    INSTALL_DESTINATION ${COMMONUI_INSTALL_CMAKEDIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/${COMMONUI_PACKAGE}ConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/package/${COMMONUI_PACKAGE}Config.cmake
    ${PROJECT_BINARY_DIR}/package/${COMMONUI_PACKAGE}ConfigVersion.cmake
    DESTINATION ${COMMONUI_INSTALL_CMAKEDIR})

# The pkg-config file finds its prefix from its own place, so it stays right
# for `cmake --install --prefix <anywhere>`.
file(RELATIVE_PATH COMMONUI_PC_TO_PREFIX
    /prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig /prefix)
string(REGEX REPLACE "/$" "" COMMONUI_PC_TO_PREFIX "${COMMONUI_PC_TO_PREFIX}")
set(COMMONUI_PC_REQUIRES "${COMMONUI_QT}Core >= ${COMMONUI_QT_MINIMUM_VERSION} ${COMMONUI_QT}Gui \
${COMMONUI_QT}Widgets ${COMMONUI_QT}Network ${COMMONUI_QT}WebSockets")
configure_file(${CMAKE_CURRENT_LIST_DIR}/commonui.pc.in ${PROJECT_BINARY_DIR}/package/${COMMONUI_PC_NAME}.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/package/${COMMONUI_PC_NAME}.pc
    DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
