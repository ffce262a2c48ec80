# Everything beside the program in one folder, as Windows looks for libraries there. Not tried on Windows yet.
install(FILES windows/ventaro.ico windows/project.ico windows/qt.conf DESTINATION ${program_folder})

get_target_property(qmake Qt5::qmake IMPORTED_LOCATION)
get_filename_component(qt_programs ${qmake} DIRECTORY)
find_program(VENTARO_WINDEPLOYQT windeployqt HINTS ${qt_programs})
if(VENTARO_WINDEPLOYQT)
    # Without translations: it would merge them into files of other names. The program loads Qt's own by theirs.
    install(CODE "execute_process(COMMAND \"${VENTARO_WINDEPLOYQT}\" --release --no-translations
        \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${program_folder}/ventaro.exe\" COMMAND_ERROR_IS_FATAL ANY)")
    install(FILES ${qt_programs}/../translations/qtbase_de.qm ${qt_programs}/../translations/qtbase_en.qm
        DESTINATION translations)
else()
    message(WARNING "windeployqt not found: a package would lack the Qt libraries")
endif()

set(CMAKE_INSTALL_SYSTEM_RUNTIME_DESTINATION ${program_folder})
include(InstallRequiredSystemLibraries)
