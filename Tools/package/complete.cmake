# What Debian wants in each package besides what is installed. Run by CPack before it packs.
cmake_minimum_required(VERSION 3.25)
file(READ ${CPACK_ORVO_SOURCE}/Tools/package/copyright copyright)
# add_licence(name file start): the text in the file, from these words on.
function(add_licence name file start)
    file(READ ${CPACK_ORVO_SOURCE}/${file} text)
    string(FIND "${text}" "${start}" at)
    string(SUBSTRING "${text}" ${at} -1 text)
    string(STRIP "${text}" text)
    string(REPLACE "\n\n" "\n.\n" text "${text}")
    string(REPLACE "\n" "\n " text "${text}")
    set(copyright "${copyright}\nLicense: ${name}\n ${text}\n" PARENT_SCOPE)
endfunction()
add_licence(Expat LICENSE "Permission is hereby")
add_licence(OFL-1.1 Artwork/Fonts/Michroma-LICENSE.txt "SIL OPEN FONT LICENSE")
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})

function(compress file)
    execute_process(COMMAND gzip -9nf ${file} COMMAND_ERROR_IS_FATAL ANY)
endfunction()

foreach(component IN LISTS CPACK_COMPONENTS_ALL)
    string(TOUPPER ${component} upper)
    set(package ${CPACK_DEBIAN_${upper}_PACKAGE_NAME})
    set(root ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
    set(doc ${root}/share/doc/${package})
    # The licence stands in the copyright.
    file(REMOVE ${root}/share/doc/Orvo/LICENSE)
    if(EXISTS ${root}/share/doc/Orvo)
        file(GLOB documents ${root}/share/doc/Orvo/*)
        file(MAKE_DIRECTORY ${doc})
        foreach(document IN LISTS documents)
            cmake_path(GET document FILENAME name)
            file(RENAME ${document} ${doc}/${name})
        endforeach()
        file(REMOVE_RECURSE ${root}/share/doc/Orvo)
    endif()

    file(WRITE ${doc}/copyright "${copyright}")
    file(WRITE ${doc}/changelog.Debian "${CPACK_PACKAGE_NAME} (${version}) unstable; urgency=medium\n\n\
  * Version ${CPACK_PACKAGE_VERSION}; the changelog beside this one says what is new.\n\n\
 -- ${CPACK_PACKAGE_CONTACT}  ${date}\n")
    file(COPY_FILE ${CPACK_ORVO_SOURCE}/CHANGELOG.md ${doc}/changelog)
    file(GLOB pages ${root}/share/man/man1/*.1)
    foreach(file IN ITEMS ${pages} ${doc}/changelog ${doc}/changelog.Debian)
        compress(${file})
    endforeach()

    # Debian's zsh looks for packages' completions here.
    if(EXISTS ${root}/share/zsh/site-functions)
        file(RENAME ${root}/share/zsh/site-functions ${root}/share/zsh/vendor-completions)
    endif()
    file(GLOB_RECURSE left LIST_DIRECTORIES true ${root}/*)
    foreach(path IN LISTS left)
        if(IS_DIRECTORY ${path})
            file(CHMOD ${path} DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
                GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
        endif()
    endforeach()
    file(CHMOD_RECURSE ${doc} FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ
        DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE
        GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
endforeach()
