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
endfunction()

# orvo_library(target Name [EXPORT set]): a static library, known as Orvo::Name here and to
# consumers. What its rooms don't declare as public stays here.
function(orvo_library target name)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "EXPORT" "")
    if(NOT arg_EXPORT)
        set(arg_EXPORT OrvoTargets)
    endif()

    add_library(${target} STATIC)
    add_library(Orvo::${name} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${name}
        VERIFY_INTERFACE_HEADER_SETS ON)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/Src>)
    target_sources(${target} PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR}/Src)
    orvo_warnings(${target})
    install(TARGETS ${target} EXPORT ${arg_EXPORT}
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endfunction()

# orvo_public_headers(target file...): headers of the current room that are installed. A consumer
# includes them as this project does, by their path below Src.
function(orvo_public_headers target)
    target_sources(${target} PUBLIC FILE_SET HEADERS FILES ${ARGN})
endfunction()

# orvo_program(name): a program in <build>/bin that ./run builds.
function(orvo_program name)
    add_executable(${name})
    set_target_properties(${name} PROPERTIES
        RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
    orvo_warnings(${name})
    add_dependencies(programs ${name})
    install(TARGETS ${name})
endfunction()
