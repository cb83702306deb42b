# What is installed beside the libraries and the programs themselves.

install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)

# The package: find_package(Orvo), find_package(Orvo COMPONENTS Widgets).
set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/Orvo)
install(EXPORT Orvo_runtime NAMESPACE Orvo:: FILE OrvoTargets.cmake
    DESTINATION ${package_dir} COMPONENT development)
if(ORVO_WINDOW)
    install(EXPORT Orvo_widgets NAMESPACE Orvo:: FILE OrvoWidgetsTargets.cmake
        DESTINATION ${package_dir} COMPONENT development)
endif()
configure_package_config_file(Tools/OrvoConfig.cmake.in OrvoConfig.cmake
    INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(OrvoConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${PROJECT_BINARY_DIR}/OrvoConfig.cmake ${PROJECT_BINARY_DIR}/OrvoConfigVersion.cmake
    DESTINATION ${package_dir} COMPONENT development)

# orvo_pkg_config(name description [REQUIRES module...] [PRIVATE library...]): <name>.pc. What is
# private a static library hands on to whoever links it.
function(orvo_pkg_config name description)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "REQUIRES;PRIVATE")
    set(directory ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
    # Moved as a whole, it is still right.
    file(RELATIVE_PATH up ${CMAKE_INSTALL_PREFIX}/${directory} ${CMAKE_INSTALL_PREFIX})
    list(JOIN arg_REQUIRES ", " requires)
    set(flags "")
    set(libraries "")
    if(NOT BUILD_SHARED_LIBS)
        set(flags " -DORVO_STATIC_DEFINE")
        list(JOIN arg_PRIVATE " " libraries)
    endif()
    configure_file(Tools/orvo.pc.in ${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION ${directory} COMPONENT development)
endfunction()

set(threads "")
if(ORVO_HAS_CUPS)
    set(threads -pthread)
endif()
orvo_pkg_config(orvo "${PROJECT_DESCRIPTION}" PRIVATE ${threads})
orvo_pkg_config(orvo-c "Orvo for C" PRIVATE -lorvo -lstdc++ -lm ${threads})
if(ORVO_WINDOW)
    orvo_pkg_config(orvo-widgets "Orvo's panel in a window" REQUIRES orvo "Qt6Widgets >= 6.4")
    orvo_pkg_config(orvo-c-widgets "Orvo's panel in a window, for C"
        REQUIRES orvo-c PRIVATE -lorvo-widgets -lorvo)
endif()

install(DIRECTORY Docs Examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc)
install(FILES README.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT doc)

# cmake --build BUILD --target orvo-doc: pages of the public headers, for people and Qt's help.
find_package(Doxygen QUIET)
if(DOXYGEN_FOUND)
    set(DOXYGEN_PROJECT_NUMBER ${PROJECT_VERSION})
    set(DOXYGEN_STRIP_FROM_PATH ${PROJECT_BINARY_DIR}/include)
    set(DOXYGEN_STRIP_FROM_INC_PATH ${PROJECT_BINARY_DIR}/include)
    set(DOXYGEN_USE_MDFILE_AS_MAINPAGE ${PROJECT_SOURCE_DIR}/Docs/interface.md)
    set(DOXYGEN_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/doc)
    set(DOXYGEN_EXCLUDE_SYMBOLS Orvo::Detail Orvo::Widgets::Internal)
    set(DOXYGEN_MACRO_EXPANSION YES)
    set(DOXYGEN_EXPAND_ONLY_PREDEF YES)
    set(DOXYGEN_PREDEFINED ORVO_EXPORT= Q_OBJECT= Q_SLOT= Q_SIGNALS=public "Q_PROPERTY(x)=" __cplusplus)
    set(DOXYGEN_EXTRACT_ALL NO)
    set(DOXYGEN_HIDE_UNDOC_MEMBERS NO)
    set(DOXYGEN_WARN_IF_UNDOCUMENTED NO)
    set(DOXYGEN_WARN_AS_ERROR FAIL_ON_WARNINGS)
    set(DOXYGEN_QUIET YES)
    set(DOXYGEN_HAVE_DOT NO)
    set(DOXYGEN_GENERATE_LATEX NO)
    find_program(ORVO_QHELPGENERATOR qhelpgenerator HINTS /usr/lib/qt6/libexec)
    mark_as_advanced(ORVO_QHELPGENERATOR)
    if(ORVO_QHELPGENERATOR)
        set(DOXYGEN_GENERATE_QHP YES)
        set(DOXYGEN_QHP_NAMESPACE internal.orvo)
        set(DOXYGEN_QHG_LOCATION ${ORVO_QHELPGENERATOR})
        set(DOXYGEN_QCH_FILE ${PROJECT_BINARY_DIR}/doc/orvo.qch)
    endif()
    set(all "")
    if(ORVO_DOC)
        set(all ALL)
    endif()
    doxygen_add_docs(orvo-doc ${all} ${PROJECT_BINARY_DIR}/include ${PROJECT_SOURCE_DIR}/Docs/interface.md)
    if(ORVO_DOC)
        install(DIRECTORY ${PROJECT_BINARY_DIR}/doc/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/api
            COMPONENT doc)
    endif()
endif()
