# Installs the built library into a fresh prefix, then builds the out-of-tree
# client examples/consumer against it with find_package and runs it offscreen;
# last, checks the pkg-config file by compiling the same client with its flags.
#
# cmake -DBUILD_DIR=<library build> -DSOURCE_DIR=<library source>
#       -DWORK_DIR=<scratch> [-DGENERATOR=Ninja] [-DLAUNCHER=ccache]
#       [-DCXX=c++ -DPKG_CONFIG=pkg-config]
#       [-DPACKAGE=CommonUI -DPC_NAME=commonui]
#       -P InstallAndConsume.cmake
# PACKAGE and PC_NAME name the build's package (CommonUIQt6 and commonui-qt6
# for the Qt 6 build).

foreach(variable BUILD_DIR SOURCE_DIR WORK_DIR)
    if(NOT ${variable})
        message(FATAL_ERROR "install test: ${variable} is not set")
    endif()
endforeach()

if(NOT PACKAGE)
    set(PACKAGE CommonUI)
endif()
if(NOT PC_NAME)
    set(PC_NAME commonui)
endif()
set(prefix ${WORK_DIR}/prefix)
set(client_build ${WORK_DIR}/consumer-build)
file(REMOVE_RECURSE ${WORK_DIR})
file(MAKE_DIRECTORY ${WORK_DIR})

function(step what)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE out ERROR_VARIABLE err)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "install test: ${what} failed (${status})\n${out}\n${err}")
    endif()
    message(STATUS "install test: ${what}: ok")
    set(step_output "${out}" PARENT_SCOPE)
endfunction()

step("cmake --install into ${prefix}"
    ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})

foreach(installed
        include/${PACKAGE}/UI/CKyUIDialog.h
        include/${PACKAGE}/NA/CKyNANetworkAccessManager.h
        include/${PACKAGE}/UI/slimsig/detail/signal_base
        include/${PACKAGE}/CommonUI.h
        include/${PACKAGE}/CommonUIVersion.h
        include/${PACKAGE}/commonui_export.h
        include/${PACKAGE}/KyHostKernel.h)
    if(NOT EXISTS ${prefix}/${installed})
        message(FATAL_ERROR "install test: ${installed} was not installed")
    endif()
endforeach()
file(GLOB_RECURSE config_files ${prefix}/*/${PACKAGE}Config.cmake ${prefix}/*/${PACKAGE}ConfigVersion.cmake
    ${prefix}/*/${PC_NAME}.pc)
list(LENGTH config_files config_count)
if(NOT config_count EQUAL 3)
    message(FATAL_ERROR "install test: package files missing; found: ${config_files}")
endif()
# A build with its own package name installs side by side with the Qt 5 one:
# none of its files may take a path that the other build installs too.
if(NOT PACKAGE STREQUAL "CommonUI")
    file(GLOB_RECURSE installed_files LIST_DIRECTORIES false RELATIVE ${prefix} ${prefix}/*)
    foreach(file ${installed_files})
        if(NOT file MATCHES "(${PACKAGE}|${PC_NAME}|KyHostKernelQt[0-9])")
            message(FATAL_ERROR "install test: ${file} would collide with the Qt 5 build's")
        endif()
    endforeach()
endif()

set(generator_args)
if(GENERATOR)
    set(generator_args -G ${GENERATOR})
endif()
set(launcher_args)
if(LAUNCHER)
    set(launcher_args -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
endif()
step("configure examples/consumer with find_package(${PACKAGE})"
    ${CMAKE_COMMAND} -S ${SOURCE_DIR}/examples/consumer -B ${client_build} ${generator_args}
    -DCMAKE_BUILD_TYPE=Release -DCMAKE_PREFIX_PATH=${prefix} -DCOMMONUI_PACKAGE=${PACKAGE} ${launcher_args})
step("build examples/consumer" ${CMAKE_COMMAND} --build ${client_build})
step("run the consumer offscreen"
    ${CMAKE_COMMAND} -E env --unset=DISPLAY --unset=WAYLAND_DISPLAY QT_QPA_PLATFORM=offscreen
    ${client_build}/consumer)
message(STATUS "${step_output}")
# The version the consumer was compiled against is the one the package claims.
file(GLOB_RECURSE version_file ${prefix}/*/${PACKAGE}ConfigVersion.cmake)
file(STRINGS ${version_file} package_version REGEX "^set\\(PACKAGE_VERSION ")
string(REGEX REPLACE "^set\\(PACKAGE_VERSION \"([^\"]*)\"\\).*" "\\1" package_version "${package_version}")
if(NOT step_output MATCHES "built against CommonUI ${package_version}\n")
    message(FATAL_ERROR "install test: the package says ${package_version}, the header does not")
endif()

# The consumer must have taken the installed library, not the build tree's.
file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${client_build}/consumer
    RESOLVED_DEPENDENCIES_VAR resolved
    PRE_INCLUDE_REGEXES "libCommonUI|libKyHostKernel" PRE_EXCLUDE_REGEXES ".*")
foreach(library ${resolved})
    if(NOT library MATCHES "^${prefix}/")
        message(FATAL_ERROR "install test: the consumer loads ${library}, outside ${prefix}")
    endif()
endforeach()
# ... and the library of this build's Qt, not the other one's.
if(NOT resolved MATCHES "/lib${PACKAGE}\\.so")
    message(FATAL_ERROR "install test: the consumer does not load lib${PACKAGE}; it loads ${resolved}")
endif()

if(PKG_CONFIG AND CXX)
    file(GLOB_RECURSE pc_file ${prefix}/*/${PC_NAME}.pc)
    get_filename_component(pc_dir ${pc_file} DIRECTORY)
    get_filename_component(lib_dir ${pc_dir} DIRECTORY)
    set(ENV{PKG_CONFIG_PATH} "${pc_dir}")
    step("pkg-config --cflags --libs ${PC_NAME}" ${PKG_CONFIG} --cflags --libs ${PC_NAME})
    string(STRIP "${step_output}" flags)
    separate_arguments(flags UNIX_COMMAND "${flags}")
    step("compile examples/consumer with the pkg-config flags"
        ${CXX} -std=c++17 -fPIC ${SOURCE_DIR}/examples/consumer/main.cpp ${flags}
        -Wl,-rpath,${lib_dir} -o ${WORK_DIR}/consumer-pkgconfig)
endif()
