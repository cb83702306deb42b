# What the targets of this project have in common.

# PRIVATE, so that a consumer keeps warnings of their own choice. They become
# errors by CMAKE_COMPILE_WARNING_AS_ERROR, which only the presets switch on.
function(orvo_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
        -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wextra-semi)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        # It takes "x" + std::string for an overlapping copy (GCC bug 105651).
        target_compile_options(${target} PRIVATE -Wno-restrict)
    elseif(NOT (CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 15))
        # What a compiler newer than CI's warns of must not stop anyone.
        set_target_properties(${target} PROPERTIES COMPILE_WARNING_AS_ERROR OFF)
    endif()
    # Two builds in two places are the same.
    target_compile_options(${target} PRIVATE
        -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
endfunction()

# orvo_library(name Name OUTPUT_NAME file [COMPONENT component] [FOR_C]): two of the same objects.
# orvo_<name>, static, is for this project, which reaches all that is in it. Orvo::<Name>, shared or
# static as BUILD_SHARED_LIBS has it, is for hosts, here and where it is installed: they see the
# public headers, and a shared library's exported names.
function(orvo_library name exported)
    cmake_parse_arguments(PARSE_ARGV 2 arg "FOR_C" "OUTPUT_NAME;COMPONENT" "")
    if(NOT arg_COMPONENT)
        set(arg_COMPONENT runtime)
    endif()

    add_library(orvo_${name} STATIC EXCLUDE_FROM_ALL)
    target_compile_features(orvo_${name} PUBLIC cxx_std_20)
    target_include_directories(orvo_${name} PUBLIC ${PROJECT_SOURCE_DIR}/Src)
    orvo_warnings(orvo_${name})

    set(package orvo_${name}_package)
    add_library(${package} $<TARGET_OBJECTS:orvo_${name}>)
    add_library(Orvo::${exported} ALIAS ${package})
    target_sources(${package} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_BINARY_DIR}/include)
    set_target_properties(${package} PROPERTIES
        EXPORT_NAME ${exported}
        OUTPUT_NAME ${arg_OUTPUT_NAME}
        LINKER_LANGUAGE CXX
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        VERIFY_INTERFACE_HEADER_SETS ON)
    if(NOT arg_FOR_C)
        target_compile_features(${package} PUBLIC cxx_std_20)
    endif()
    if(NOT BUILD_SHARED_LIBS)
        target_compile_definitions(orvo_${name} PUBLIC ORVO_STATIC_DEFINE)
        target_compile_definitions(${package} PUBLIC ORVO_STATIC_DEFINE)
    endif()
    if(ORVO_INSTALL)
        # A set of its own for what needs Qt: a consumer of the other libraries needs none.
        install(TARGETS ${package} EXPORT Orvo_${arg_COMPONENT}
            LIBRARY COMPONENT ${arg_COMPONENT} NAMELINK_COMPONENT development
            ARCHIVE COMPONENT development
            FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} COMPONENT development)
    endif()
endfunction()

# orvo_link(name [PUBLIC library...] [PRIVATE library...]): what both of a name's libraries link; by
# its name, where that is one of ours.
function(orvo_link name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "PUBLIC;PRIVATE")
    foreach(scope IN ITEMS PUBLIC PRIVATE)
        foreach(library IN LISTS arg_${scope})
            if(TARGET orvo_${library}_package)
                target_link_libraries(orvo_${name} ${scope} orvo_${library})
                target_link_libraries(orvo_${name}_package ${scope} orvo_${library}_package)
            else()
                target_link_libraries(orvo_${name} ${scope} ${library})
                target_link_libraries(orvo_${name}_package ${scope} ${library})
            endif()
        endforeach()
    endforeach()
endfunction()

# orvo_public_headers(name file...): headers of the current room that are installed. Who adds this
# project to a build of their own finds these, and no others, in a directory of their own.
function(orvo_public_headers name)
    foreach(file IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH file NORMALIZE OUTPUT_VARIABLE source)
        cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${PROJECT_SOURCE_DIR}/Src)
        set(copy ${PROJECT_BINARY_DIR}/include/${source})
        configure_file(${PROJECT_SOURCE_DIR}/Src/${source} ${copy} COPYONLY)
        target_sources(orvo_${name}_package PUBLIC FILE_SET HEADERS FILES ${copy})
    endforeach()
endfunction()

# orvo_program(name component): a program in <build>/bin, which writes its own manual.
function(orvo_program name component)
    add_executable(${name})
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
    orvo_warnings(${name})
    add_dependencies(orvo-programs ${name})
    if(ORVO_INSTALL)
        install(TARGETS ${name} COMPONENT ${component})
        if(NOT CMAKE_CROSSCOMPILING)
            orvo_manual(${name} ${component})
        endif()
    endif()
endfunction()

# orvo_manual(program component): its manual page, and completion for shells.
function(orvo_manual program component)
    set(directory ${PROJECT_BINARY_DIR}/manual)
    file(MAKE_DIRECTORY ${directory})
    set(forms man bash zsh fish)
    set(files ${program}.1 ${program} _${program} ${program}.fish)
    set(destinations ${CMAKE_INSTALL_MANDIR}/man1
        ${CMAKE_INSTALL_DATADIR}/bash-completion/completions
        ${CMAKE_INSTALL_DATADIR}/zsh/site-functions
        ${CMAKE_INSTALL_DATADIR}/fish/vendor_completions.d)
    foreach(form file destination IN ZIP_LISTS forms files destinations)
        add_custom_command(OUTPUT ${directory}/${file}
            COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0
                $<TARGET_FILE:${program}> --generate=${form} > ${directory}/${file}
            DEPENDS ${program}
            VERBATIM)
        install(FILES ${directory}/${file} DESTINATION ${destination} COMPONENT ${component})
    endforeach()
    list(TRANSFORM files PREPEND ${directory}/)
    add_custom_target(orvo-manual-${program} ALL DEPENDS ${files})
endfunction()
