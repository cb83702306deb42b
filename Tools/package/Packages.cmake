# Debian's packages, one of each install component: cmake --workflow --preset debian
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME orvo)
set(CPACK_PACKAGE_CONTACT "The Orvo authors <authors@orvo.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/complete.cmake)
set(CPACK_ORVO_SOURCE ${PROJECT_SOURCE_DIR})

# Where the packages find one another's libraries.
foreach(library IN ITEMS core c widgets c_widgets)
    if(TARGET orvo_${library}_package)
        get_target_property(directory orvo_${library}_package BINARY_DIR)
        list(APPEND CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${directory})
    endif()
endforeach()

get_cmake_property(installed COMPONENTS)
set(CPACK_COMPONENTS_ALL "")
# orvo_package(component name section summary text [ALL] [KEY value]...): "@" is a package of ours,
# of the same version.
macro(orvo_package component name section summary text)
    if(${component} IN_LIST installed)
        cmake_parse_arguments(arg "ALL" "DEPENDS;RECOMMENDS" "" ${ARGN})
        string(TOUPPER ${component} upper)
        list(APPEND CPACK_COMPONENTS_ALL ${component})
        set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${name})
        set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
        set(CPACK_DEBIAN_${upper}_DESCRIPTION "${summary}\n${text}")
        foreach(kind IN ITEMS DEPENDS RECOMMENDS)
            string(REPLACE "@" " (= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})"
                CPACK_DEBIAN_${upper}_PACKAGE_${kind} "${arg_${kind}}")
        endforeach()
        set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS ON)
        if(arg_ALL)
            set(CPACK_DEBIAN_${upper}_PACKAGE_ARCHITECTURE all)
            set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS OFF)
        endif()
    endif()
endmacro()

set(panel "Orvo is the front panel of a four-channel power amplifier, as a component that\na host\
 application embeds.")
orvo_package(runtime liborvo1 libs "front panel of a power amplifier, without a window"
    "${panel} This package has the panel for C++ and for C, without a\nwindow."
    RECOMMENDS "libcups2")
orvo_package(widgets liborvo-widgets1 libs "front panel of a power amplifier, as a Qt widget"
    "${panel} This package has its window for C++ and for C." DEPENDS "liborvo1@")
set(libraries "liborvo1@")
if("widgets" IN_LIST installed)
    string(APPEND libraries ", liborvo-widgets1@")
endif()
orvo_package(development liborvo-dev libdevel "front panel of a power amplifier (development files)"
    "${panel} This package has the headers, and what CMake and\npkg-config need."
    DEPENDS "${libraries}" RECOMMENDS "qt6-base-dev, libgl-dev")
orvo_package(designer liborvo-designer libdevel "front panel of a power amplifier in Qt Designer"
    "${panel} This package puts the panel on the palette of Qt\nDesigner, and into forms that are\
 loaded at run time." DEPENDS "liborvo-widgets1@")
orvo_package(python python3-orvo python "front panel of a power amplifier for Python"
    "${panel} This package is its interface for Python 3." ALL
    DEPENDS "python3:any, liborvo1 (>= ${PROJECT_VERSION})" RECOMMENDS "liborvo-widgets1")
orvo_package(console orvo-console misc "panel script for a power amplifier's front panel"
    "${panel} This program runs scripts on the panel without a\nwindow, or talks to a person at a\
 terminal.")
orvo_package(manager marvane-manager sound "manager of a four-channel power amplifier"
    "Shows the front panel of a power amplifier that is connected at a serial device,\na pipe or a\
 local socket, or simulates one; records and replays sessions, and\nshows traces with cursors and\
 readings." RECOMMENDS "qt6-wayland")
orvo_package(doc orvo-doc doc "front panel of a power amplifier (documentation)"
    "${panel} This package has the documentation and examples." ALL)
foreach(upper IN ITEMS RUNTIME WIDGETS)
    foreach(file IN ITEMS triggers postinst postrm)
        list(APPEND CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA
            ${CMAKE_CURRENT_LIST_DIR}/library/${file})
    endforeach()
endforeach()
include(CPack)
