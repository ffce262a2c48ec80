# Commands, desktop files, manual pages and what a Debian package has to have beside its files.
foreach(program ventaro ventaro-box-simulator)
    set(link ${CMAKE_CURRENT_BINARY_DIR}/links/${program})
    file(MAKE_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}/links)
    file(CREATE_LINK ../${program_folder}/${program} ${link} SYMBOLIC)
    install(FILES ${link} DESTINATION ${CMAKE_INSTALL_BINDIR})
endforeach()

install(FILES linux/de.tarnwald.ventaro.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES linux/de.tarnwald.ventaro.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES linux/ventaro.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages)
install(DIRECTORY icons/hicolor DESTINATION ${CMAKE_INSTALL_DATADIR}/icons)
install(FILES linux/copyright DESTINATION ${document_folder})

# install_compressed(FILE DESTINATION): without a time stamp inside, so that a package is the same whenever it is built.
function(install_compressed file destination)
    get_filename_component(name ${file} NAME)
    set(compressed ${CMAKE_CURRENT_BINARY_DIR}/${name}.gz)
    add_custom_command(OUTPUT ${compressed}
        COMMAND gzip -9 --no-name --stdout ${CMAKE_CURRENT_SOURCE_DIR}/${file} > ${compressed}
        DEPENDS ${file}
        VERBATIM)
    add_custom_target(compressed_${name} ALL DEPENDS ${compressed})
    install(FILES ${compressed} DESTINATION ${destination})
    set(installed_files ${installed_files} compressed_${name} PARENT_SCOPE)
endfunction()

install_compressed(linux/ventaro.1 ${CMAKE_INSTALL_MANDIR}/man1)
install_compressed(linux/ventaro-box-simulator.1 ${CMAKE_INSTALL_MANDIR}/man1)
install_compressed(linux/changelog ${document_folder})
